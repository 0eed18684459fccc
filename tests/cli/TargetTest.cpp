// Targets that cannot be written: a message, the old file as it was, and nothing half-written anywhere.
#include "cli/CliRoom.h"

#include "support/ChildProcess.h"

#include <sys/stat.h>

namespace {

class Target : public CliRoom {
protected:
    Target() {
        PutStandard("a.kvstd", PlainCheck(107, "References"));
        PutStandard("b.kvstd", PlainCheck(301, "Spelling"));
        QDir().mkdir("u");
        PutStandard("u/a.kvstd", "");
    }
    const CStringArray AtStart{"a.kvstd", "b.kvstd", "samples", "tmp", "u"};
};

// Every command that writes a standard, with that target.
CStringArray CommandsTo(const CString& target) {
    return {"merge a.kvstd b.kvstd -o " + target, "convert a.kvstd --length in -o " + target,
            "pack u " + target};
}

} // namespace

TEST_F(Target, InAFolderThatIsNotThere) {
    for (const CString& words : CommandsTo("no/out.kvstd"))
        EXPECT_EQ(Run(words, 3,
                      "kvstd: no/out.kvstd: No new file can be made in its folder: No such file or "
                      "directory\n"),
                  "");
    EXPECT_EQ(folder.Names(), AtStart);
}

TEST_F(Target, OverAFolder) {
    QDir().mkdir("out.kvstd");
    folder.Put("out.kvstd/mine", "mine");
    for (const CString& words : CommandsTo("out.kvstd"))
        EXPECT_EQ(Run(words, 3, "kvstd: out.kvstd: The name does not belong to an ordinary file.\n"), "");
    EXPECT_EQ(folder.Names("out.kvstd"), CStringArray{"mine"});
    EXPECT_EQ(folder.Names().size(), AtStart.size() + 1);
}

TEST_F(Target, OverADevice) {
    for (const CString& words : CommandsTo("/dev/null"))
        Run(words, 3, "kvstd: /dev/null: The name does not belong to an ordinary file.\n");
}

TEST_F(Target, ThroughALink) {
    QDir().mkdir("far");
    folder.Put("far/real.kvstd", "old");
    for (const CString& words : CommandsTo("link.kvstd")) {
        QFile::link("far/real.kvstd", "link.kvstd");
        Run(words);
        EXPECT_TRUE(QFileInfo("link.kvstd").isSymLink());
        EXPECT_TRUE(folder.Get("far/real.kvstd").startsWith("PK")) << qPrintable(words);
        EXPECT_EQ(folder.Names("far"), CStringArray{"real.kvstd"});
    }
}

TEST_F(Target, InAClosedFolder) {
    QDir().mkdir("closed");
    folder.Put("closed/out.kvstd", "old");
    ::chmod("closed/out.kvstd", 0666);
    ::chmod("closed", 0555);
    // The way to the usual one is not open to a plain user.
    const QTemporaryDir temporary("/tmp/tests-cli-XXXXXX");
    ::chmod(QFile::encodeName(temporary.path()).constData(), 0777);
    QDir().mkpath("Lang/English");
    ASSERT_TRUE(
        QFile::copy(RULEWARD_BIN_FOLDER "/Lang/English/Rulewardresu.rcc", "Lang/English/Rulewardresu.rcc"));
    // The archive of "pack" is made beside the folder that is packed.
    ::chmod(QFile::encodeName(folder.Path()).constData(), 0777);
    const CString answer = RunInChild([&] {
        BecomePlainUser(folder.Path());
        qputenv("TMPDIR", temporary.path().toUtf8());
        CString said;
        for (const char* target : {"closed/out.kvstd", "closed/new.kvstd"})
            for (const CString& words : CommandsTo(target)) {
                const CommandRun run = RunWords(words, ".");
                if (run.code != 3 || !run.out.isEmpty() || run.err.count('\n') != 1 ||
                    !run.err.startsWith(CString("kvstd: %1: ").arg(target).toUtf8()))
                    said += words + " gave " + CString::number(run.code) + " " + run.out + run.err;
            }
        return said;
    });
    ::chmod("closed", 0755);
    EXPECT_EQ(answer.toStdString(), "");
    EXPECT_TRUE(QDir(temporary.path()).isEmpty());
    EXPECT_EQ(folder.Names("closed"), CStringArray{"out.kvstd"});
    EXPECT_EQ(folder.Get("closed/out.kvstd"), "old");
    EXPECT_EQ(folder.Names(), (CStringArray{"Lang", "a.kvstd", "b.kvstd", "closed", "samples", "tmp", "u"}));
}

TEST_F(Target, WithoutRoomForTemporaryFiles) {
    qputenv("TMPDIR", folder.Path("gone").toUtf8());
    for (const char* words : {"show a.kvstd", "merge a.kvstd b.kvstd -o out.kvstd", "validate a.kvstd"}) {
        const CommandRun run = RunWords(words);
        EXPECT_EQ(run.code, 3) << words;
        EXPECT_TRUE(run.err.contains("no temporary folder can be made: ")) << run.err.constData();
    }
    EXPECT_EQ(folder.Names(), AtStart);
}
