#include "platform/ReplaceFile.h"

#include "platform/FileCalls.h"
#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "support/ChildProcess.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

mode_t ModeOf(const CString& path) {
    struct stat info {};
    ::stat(QFile::encodeName(path).constData(), &info);
    return info.st_mode & 07777;
}

void SetMode(const CString& path, mode_t mode) {
    ::chmod(QFile::encodeName(path).constData(), mode);
}

// As it stands in a link, which need not lead anywhere.
void Link(const char* to, const CString& path) {
    ASSERT_EQ(::symlink(to, QFile::encodeName(path).constData()), 0);
}

// Saves again and again; the first reason that is not the other run's lock.
CString SaveOften(const CString& path, char letter) {
    for (int size = 1; size <= 25; ++size) {
        const FileResult result = ReplaceFile(path, QByteArray(size * 5000, letter));
        if (!result && result.reason != LoadString(FileInUse))
            return result.reason;
    }
    return {};
}

} // namespace

TEST(ReplaceFile, ANewFileHasTheModeOfTheUmask) {
    const TestFolder folder;
    const mode_t umaskBefore = ::umask(027);
    const FileResult result = ReplaceFile(folder.Path("new.kvstd"), "content");
    ::umask(umaskBefore);
    EXPECT_TRUE(result.ok) << result.reason.toStdString();
    EXPECT_TRUE(result.reason.isEmpty());
    EXPECT_EQ(folder.Get("new.kvstd"), "content");
    EXPECT_EQ(ModeOf(folder.Path("new.kvstd")), 0640U);
    EXPECT_EQ(folder.Names(), CStringArray{"new.kvstd"});
}

TEST(ReplaceFile, TheOldFilesModeIsKept) {
    const TestFolder folder;
    for (const mode_t mode : {0600U, 0640U, 0664U, 0777U, 02660U}) {
        folder.Put("old.kvstd", "old");
        SetMode(folder.Path("old.kvstd"), mode);
        EXPECT_TRUE(ReplaceFile(folder.Path("old.kvstd"), "new").ok);
        EXPECT_EQ(folder.Get("old.kvstd"), "new");
        EXPECT_EQ(ModeOf(folder.Path("old.kvstd")), mode);
    }
}

TEST(ReplaceFile, AnEmptyContentMakesAnEmptyFile) {
    const TestFolder folder;
    folder.Put("old.kvstd", "old");
    EXPECT_TRUE(ReplaceFile(folder.Path("old.kvstd"), {}).ok);
    EXPECT_EQ(folder.Get("old.kvstd"), QByteArray(""));
}

TEST(ReplaceFile, ANameInTheCurrentFolderWorks) {
    const TestFolder folder;
    EXPECT_EQ(RunInChild([&] {
                  if (::chdir(QFile::encodeName(folder.Path()).constData()) != 0)
                      return CString("no folder");
                  return ReplaceFile("plain.kvstd", "content").reason;
              }),
              "");
    EXPECT_EQ(folder.Get("plain.kvstd"), "content");
}

TEST(ReplaceFile, NamesOfAnyLengthAndScriptWork) {
    const TestFolder folder;
    for (const CString& name : {CString(255, u'x'), CString(127, u'ß'), CString("Prüfung \"1\"\n%1.kvstd")}) {
        const FileResult result = ReplaceFile(folder.Path(name), "content");
        EXPECT_TRUE(result.ok) << result.reason.toStdString();
        EXPECT_EQ(folder.Get(name), "content");
    }
    EXPECT_EQ(folder.Names().size(), 3);
}

TEST(ReplaceFile, ACopyHasTheContentOfItsSource) {
    const TestFolder folder;
    QByteArray large(1000 * 1000 + 7, 'x');
    large[700 * 1000] = '\0';
    folder.Put("source.zip", large);
    folder.Put("old.kvstd", "old");
    EXPECT_TRUE(ReplaceFileByCopy(folder.Path("old.kvstd"), folder.Path("source.zip")).ok);
    EXPECT_EQ(folder.Get("old.kvstd"), large);
    EXPECT_TRUE(ReplaceFileByCopy(folder.Path("old.kvstd"), folder.Path("old.kvstd")).ok);
    EXPECT_EQ(folder.Get("old.kvstd"), large);
}

TEST(ReplaceFile, ACopyOfNothingLeavesTheOldFile) {
    const TestFolder folder;
    folder.Put("old.kvstd", "old");
    EXPECT_FALSE(ReplaceFileByCopy(folder.Path("old.kvstd"), folder.Path("missing.zip")).ok);
    EXPECT_FALSE(ReplaceFileByCopy(folder.Path("old.kvstd"), folder.Path()).ok);
    EXPECT_EQ(folder.Get("old.kvstd"), "old");
    EXPECT_EQ(folder.Names(), CStringArray{"old.kvstd"});
}

TEST(ReplaceFile, LinksAreFollowedAndStay) {
    const TestFolder folder;
    QDir(folder.Path()).mkdir("real");
    folder.Put("real/standard.kvstd", "old");
    Link("real/standard.kvstd", folder.Path("relative"));
    Link(QFile::encodeName(folder.Path("relative")).constData(), folder.Path("real/chain"));
    for (const char* name : {"relative", "real/chain"}) {
        EXPECT_TRUE(ReplaceFile(folder.Path(name), name).ok);
        EXPECT_TRUE(QFileInfo(folder.Path(name)).isSymLink());
        EXPECT_EQ(folder.Get("real/standard.kvstd"), name);
    }
    EXPECT_EQ(folder.Names("real"), (CStringArray{"chain", "standard.kvstd"}));
}

TEST(ReplaceFile, ALinkToNothingMakesWhatItNames) {
    const TestFolder folder;
    QDir(folder.Path()).mkdir("real");
    Link("real/../real/new.kvstd", folder.Path("link"));
    EXPECT_TRUE(ReplaceFile(folder.Path("link"), "content").ok);
    EXPECT_TRUE(QFileInfo(folder.Path("link")).isSymLink());
    EXPECT_EQ(folder.Get("real/new.kvstd"), "content");
}

TEST(ReplaceFile, LinksInACircleAreRefused) {
    const TestFolder folder;
    Link("b", folder.Path("a"));
    Link("a", folder.Path("b"));
    const FileResult result = ReplaceFile(folder.Path("a"), "content");
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.reason.contains(qt_error_string(ELOOP))) << result.reason.toStdString();
    EXPECT_EQ(folder.Names(), (CStringArray{"a", "b"}));
}

TEST(ReplaceFile, WhatIsNoFileIsRefused) {
    const TestFolder folder;
    QDir(folder.Path()).mkdir("folder");
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.Path("pipe")).constData(), 0600), 0);
    for (const CString& path :
         {folder.Path(), folder.Path("folder"), folder.Path("folder/"), folder.Path("pipe"),
          folder.Path("pipe/x"), folder.Path("missing/x"), folder.Path("new/"), CString(), CString("."),
          folder.Path(CString("nul").append(QChar(u'\0')))}) {
        const FileResult result = ReplaceFile(path, "content");
        EXPECT_FALSE(result.ok) << path.toStdString();
        EXPECT_FALSE(result.reason.isEmpty());
    }
    EXPECT_EQ(folder.Names(), (CStringArray{"folder", "pipe"}));
}

TEST(ReplaceFile, AClosedFolderWithAWritableFileIsRefused) {
    const TestFolder folder;
    folder.Put("old.kvstd", "old");
    SetMode(folder.Path("old.kvstd"), 0666);
    SetMode(folder.Path(), 0555);
    const CString reason = RunInChild([&] {
        BecomePlainUser(folder.Path());
        const FileResult result = ReplaceFile("old.kvstd", "new");
        return result.ok ? CString("it was written") : result.reason;
    });
    SetMode(folder.Path(), 0755);
    EXPECT_TRUE(reason.contains(qt_error_string(EACCES))) << reason.toStdString();
    EXPECT_EQ(folder.Get("old.kvstd"), "old");
    EXPECT_EQ(folder.Names(), CStringArray{"old.kvstd"});
}

TEST(ReplaceFile, AWriteProtectedFileIsRefused) {
    const TestFolder folder;
    folder.Put("old.kvstd", "old");
    SetMode(folder.Path("old.kvstd"), 0444);
    SetMode(folder.Path(), 0777);
    const CString reason = RunInChild([&] {
        BecomePlainUser(folder.Path());
        const FileResult result = ReplaceFile("old.kvstd", "new");
        return result.ok ? CString("it was written") : result.reason;
    });
    EXPECT_TRUE(reason.contains(qt_error_string(EACCES))) << reason.toStdString();
    EXPECT_EQ(folder.Get("old.kvstd"), "old");
}

TEST(ReplaceFile, WhatAKilledRunLeftIsClearedByTheNextSave) {
    const TestFolder folder;
    folder.Put(".old.kvstd.0123456789abcdef.part", "half");
    folder.Put(".old.kvstd.0123456789abcdeg.part", "not a part file");
    folder.Put(".other.kvstd.0123456789abcdef.part", "of another file");
    ASSERT_TRUE(ReplaceFile(folder.Path("old.kvstd"), "new").ok);
    EXPECT_EQ(folder.Names(), (CStringArray{".old.kvstd.0123456789abcdeg.part",
                                            ".other.kvstd.0123456789abcdef.part", "old.kvstd"}));
}

TEST(ReplaceFile, APartFileThatIsStillWrittenIsLeft) {
    const TestFolder folder;
    const CString part = ".old.kvstd.0123456789abcdef.part";
    folder.Put(part, "half");
    HoldingChild writer([&] {
        static FileLock lock;
        return lock.Take(folder.Path(part)) == LockOutcome::Taken;
    });
    ASSERT_TRUE(writer.Succeeded());
    EXPECT_TRUE(ReplaceFile(folder.Path("old.kvstd"), "new").ok);
    EXPECT_EQ(folder.Names(), (CStringArray{part, "old.kvstd"}));
    writer.Kill();
    EXPECT_TRUE(ReplaceFile(folder.Path("old.kvstd"), "newer").ok);
    EXPECT_EQ(folder.Names(), CStringArray{"old.kvstd"});
}

TEST(ReplaceFile, ALinkWithThePartFilesNameIsNotFollowed) {
    const TestFolder folder;
    folder.Put("precious", "kept");
    Link("precious", folder.Path(".old.kvstd.0123456789abcdef.part"));
    EXPECT_TRUE(ReplaceFile(folder.Path("old.kvstd"), "new").ok);
    EXPECT_EQ(folder.Get("precious"), "kept");
}

TEST(ReplaceFile, RunsThatSaveAtTheSameTimeShowWholeFilesOnly) {
    const TestFolder folder;
    folder.Put("shared.kvstd", "a");
    constexpr int Runs = 3;
    for (int run = 0; run < Runs; ++run)
        if (::fork() == 0)
            ::_exit(SaveOften(folder.Path("shared.kvstd"), static_cast<char>('a' + run)).isEmpty() ? 0 : 1);
    for (int ended = 0, status = 0; ended < Runs;) {
        const QByteArray content = folder.Get("shared.kvstd");
        ASSERT_FALSE(content.isEmpty());
        ASSERT_EQ(content.count(content.front()), content.size());
        if (::waitpid(-1, &status, WNOHANG) > 0) {
            EXPECT_EQ(status, 0);
            ++ended;
        }
        ::usleep(1000);
    }
    EXPECT_EQ(folder.Names(), CStringArray{"shared.kvstd"});
}
