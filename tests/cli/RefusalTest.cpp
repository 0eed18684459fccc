// Files that are missing, broken or hostile: one line on standard error, code 3, and nothing left behind.
#include "cli/CliRoom.h"

#include "support/ChildProcess.h"

#include <QDirIterator>

namespace {

class Refusal : public CliRoom {
protected:
    void ExpectRefused(const CString& words, const CString& line) {
        EXPECT_EQ(Run(words, 3, ("kvstd: " + line + "\n").toUtf8()), "");
    }
};

// Every command that opens one file, with a target of its own where it needs one.
CStringArray CommandsOn(const CString& file) {
    return {"show " + file, "report -o r " + file, "convert -o c.kvstd --length mm " + file};
}

} // namespace

TEST_F(Refusal, AFileThatIsNotThere) {
    for (const CString& words : CommandsOn("no.kvstd"))
        ExpectRefused(words, "no.kvstd: there is no such file");
    ExpectRefused("unpack no.kvstd u", "no.kvstd: there is no such file");
    ExpectRefused("validate no.kvstd", "no.kvstd: there is no such file");
    EXPECT_EQ(folder.Names(), (CStringArray{"samples", "tmp"}));
}

TEST_F(Refusal, AFolderInPlaceOfAFile) {
    for (const CString& words : CommandsOn("samples"))
        ExpectRefused(words, "samples: this is not a file");
    ExpectRefused("unpack samples u", "samples: this is not a file");
    ExpectRefused("validate samples", "samples: this is not a file");
}

TEST_F(Refusal, AFileThatCannotBeRead) {
    folder.Put("closed.kvstd", "<Standard/>");
    QFile::setPermissions("closed.kvstd", QFile::Permissions());
    QDir().mkpath("Lang/English");
    ASSERT_TRUE(
        QFile::copy(RULEWARD_BIN_FOLDER "/Lang/English/Rulewardresu.rcc", "Lang/English/Rulewardresu.rcc"));
    const CString answer = RunInChild([this] {
        BecomePlainUser(folder.Path());
        CString said;
        for (const char* words : {"show closed.kvstd", "validate closed.kvstd", "unpack closed.kvstd u"}) {
            const CommandRun run = RunWords(words, ".");
            said += CString::number(run.code) + " " + run.out + run.err;
        }
        return said;
    });
    EXPECT_EQ(answer, CString("3 kvstd: closed.kvstd: Permission denied\n").repeated(3));
}

TEST_F(Refusal, NoStandardAtAll) {
    folder.Put("empty.kvstd", "");
    folder.Put("text.kvstd", "hello\n");
    folder.Put("other.kvstd", "<Other/>");
    folder.Put("cut.kvstd", "<Standard><Check");
    folder.Put("zip.kvstd", "PK\x03\x04 and no more");
    for (const CString& words : CommandsOn("empty.kvstd"))
        ExpectRefused(words, "empty.kvstd: The file is empty.");
    for (const CString& words : CommandsOn("text.kvstd"))
        ExpectRefused(words, "text.kvstd: The file is damaged or no XML file. "
                             "Line 1: Start tag expected, '<' not found");
    for (const char* name : {"other.kvstd", "cut.kvstd", "zip.kvstd"}) {
        const CommandRun run = RunWords(CString("show ") + name);
        EXPECT_EQ(run.code, 3) << name;
        EXPECT_TRUE(run.err.startsWith(QByteArray("kvstd: ") + name + ": ")) << run.err.constData();
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
    }
    EXPECT_FALSE(QFileInfo::exists("r"));
    EXPECT_FALSE(QFileInfo::exists("c.kvstd"));
}

TEST_F(Refusal, ALaterVersion) {
    folder.Put("later.kvstd", "<Standard Version=\"2027\"/>");
    const CommandRun run = RunWords("show later.kvstd");
    EXPECT_EQ(run.code, 3);
    EXPECT_TRUE(run.err.contains("2027")) << run.err.constData();
    EXPECT_TRUE(run.err.contains("2026")) << run.err.constData();
}

TEST_F(Refusal, AnArchiveWithoutAStandard) {
    const CString good = RULEWARD_SOURCE_FOLDER "/tests/corpus/archives/good-empty-archive.zip";
    ExpectRefused("show '" + good + "'", good + ": the archive holds no standard");
}

TEST_F(Refusal, NamesOfFilesStayInTheirLine) {
    folder.Put("two\nlines.kvstd", "");
    ExpectRefused("show 'two\nlines.kvstd'", "two lines.kvstd: The file is empty.");
}

// Whatever the file holds: opened, or refused in one line, by every command, and nothing is left behind.
TEST_F(Refusal, HostileFiles) {
    int refused = 0;
    for (const char* corpus : {"documents", "archives"}) {
        QDirIterator files(CString(RULEWARD_SOURCE_FOLDER "/tests/corpus/") + corpus, QDir::Files);
        while (files.hasNext()) {
            const CString path = files.next();
            const CommandRun run = RunWords("show '" + path + "'");
            ASSERT_TRUE(run.code == 0 || run.code == 3) << qPrintable(path);
            ASSERT_EQ(run.err.count('\n'), run.code == 0 ? 0 : 1) << run.err.constData();
            ASSERT_EQ(run.err.startsWith("kvstd: " + path.toUtf8() + ": "), run.code == 3);
            ASSERT_EQ(run.out.isEmpty(), run.code == 3) << qPrintable(path);
            refused += run.code == 3 ? 1 : 0;
        }
    }
    EXPECT_GT(refused, 160);
    EXPECT_EQ(folder.Names(), (CStringArray{"samples", "tmp"}));
}
