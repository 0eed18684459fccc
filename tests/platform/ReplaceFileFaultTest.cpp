// Saving on a disk, or under signals, that let system calls fail.
#include "platform/FileLock.h"
#include "platform/ReplaceFile.h"
#include "support/ChildProcess.h"
#include "support/FileFaults.h"
#include "support/TestFolder.h"

#include <cerrno>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <iostream>
#include <sys/resource.h>

namespace {

const QByteArray Content = QByteArray("0123456789").repeated(20 * 1000);

qsizetype OpenHandles() {
    return QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size();
}

class ReplaceFileFault : public ::testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        folder.Put("old.kvstd", "old");
        folder.Put("source.zip", Content);
        handles = OpenHandles();
    }
    void TearDown() override { EXPECT_EQ(OpenHandles(), handles); }

    FileResult Save(FileLock* lock = nullptr) const {
        return GetParam() ? ReplaceFileByCopy(folder.Path("old.kvstd"), folder.Path("source.zip"), lock)
                          : ReplaceFile(folder.Path("old.kvstd"), Content, lock);
    }

    void ExpectRefused(int error) const {
        const FileResult result = Save();
        EXPECT_FALSE(result.ok);
        EXPECT_TRUE(result.reason.contains(qt_error_string(error))) << result.reason.toStdString();
        EXPECT_EQ(folder.Get("old.kvstd"), "old");
        EXPECT_EQ(folder.Names(), (CStringArray{"old.kvstd", "source.zip"}));
    }

    void ExpectSaved() const {
        const FileResult result = Save();
        EXPECT_TRUE(result.ok) << result.reason.toStdString();
        EXPECT_EQ(folder.Get("old.kvstd"), Content);
        EXPECT_EQ(folder.Names(), (CStringArray{"old.kvstd", "source.zip"}));
    }

    TestFolder folder;
    qsizetype handles = 0;
};

// In a child, on a disk of 64 KiB: the empty text where everything is as it must be.
CString SaveOnSmallDisk(const std::function<FileResult(const CString& path)>& save, int error) {
    const CString name = "disk/standard.kvstd";
    const QByteArray old(20 * 1024, 'o');
    if (const FileResult first = ReplaceFile(name, old); !first)
        return "the first save failed: " + first.reason;
    const FileResult result = save(name);
    if (result.ok || !result.reason.contains(qt_error_string(error)))
        return "the full disk was not told: " + result.reason;
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly) || file.readAll() != old)
        return "the old file was lost";
    if (QDir("disk").entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size() != 1)
        return "something was left";
    return ReplaceFile(name, "small").ok ? CString() : CString("the next save failed");
}

} // namespace

TEST_P(ReplaceFileFault, ShortWritesAreContinued) {
    FileFaults faults;
    faults.WriteAtMost(4093);
    ExpectSaved();
}

TEST_P(ReplaceFileFault, SignalsInterruptNothing) {
    FileFaults faults;
    faults.InterruptEveryOtherCall();
    ExpectSaved();
}

TEST_P(ReplaceFileFault, AFullDiskLeavesTheOldFile) {
    for (const size_t room : {size_t(0), size_t(1), size_t(4096), size_t(Content.size() - 1)}) {
        FileFaults faults;
        faults.FillDiskAfter(room);
        ExpectRefused(ENOSPC);
    }
}

TEST_P(ReplaceFileFault, ADiskThatTakesNothingIsNotAskedForEver) {
    FileFaults faults;
    faults.WriteAtMost(0);
    ExpectRefused(EIO);
}

TEST_P(ReplaceFileFault, AFailedFlushLeavesTheOldFile) {
    FileFaults faults;
    faults.FailFlush(EIO);
    ExpectRefused(EIO);
}

TEST_P(ReplaceFileFault, AFailedRenameLeavesTheOldFile) {
    FileFaults faults;
    faults.FailRename(EXDEV);
    ExpectRefused(EXDEV);
}

TEST_P(ReplaceFileFault, AFailureToldAtClosingLeavesTheOldFile) {
    FileFaults faults;
    faults.FailClose(EDQUOT);
    ExpectRefused(EDQUOT);
}

TEST_P(ReplaceFileFault, AModeThatCannotBeKeptLeavesTheOldFile) {
    FileFaults faults;
    faults.FailMode(EPERM);
    ExpectRefused(EPERM);
}

TEST_P(ReplaceFileFault, AFolderThatTakesNoFileLeavesTheOldFile) {
    FileFaults faults;
    faults.FailCreate(EROFS);
    ExpectRefused(EROFS);
}

TEST_P(ReplaceFileFault, AFailedFlushOfTheFolderIsAWarning) {
    FileFaults faults;
    faults.FailFolderFlush(EIO);
    const FileResult result = Save();
    EXPECT_TRUE(result.ok);
    EXPECT_TRUE(result.reason.contains(qt_error_string(EIO))) << result.reason.toStdString();
    EXPECT_EQ(folder.Get("old.kvstd"), Content);
}

TEST_P(ReplaceFileFault, AFolderThatKnowsNoFlushIsNoFailure) {
    FileFaults faults;
    faults.FailFolderFlush(EINVAL);
    const FileResult result = Save();
    EXPECT_TRUE(result.ok);
    EXPECT_TRUE(result.reason.isEmpty());
}

TEST_P(ReplaceFileFault, AFileSystemWithoutLocksIsWrittenAllTheSame) {
    FileFaults faults;
    faults.FailLock(ENOLCK);
    FileLock lock;
    EXPECT_TRUE(Save(&lock).ok);
    EXPECT_FALSE(lock.IsHeld());
    EXPECT_EQ(folder.Get("old.kvstd"), Content);
}

TEST_P(ReplaceFileFault, AFailureLeavesTheCallersLock) {
    FileLock lock;
    ASSERT_EQ(lock.Take(folder.Path("old.kvstd")), LockOutcome::Taken);
    FileFaults faults;
    faults.FailRename(EIO);
    EXPECT_FALSE(Save(&lock).ok);
    EXPECT_TRUE(lock.IsHeld());
}

INSTANTIATE_TEST_SUITE_P(Forms, ReplaceFileFault, ::testing::Bool(),
                         [](const auto& given) { return given.param ? "Copy" : "Bytes"; });

TEST(ReplaceFileFullDisk, ASmallDiskLeavesTheOldFileByteForByte) {
    for (const bool plainUser : {false, true}) {
        for (const bool copy : {false, true}) {
            // one each: where nothing may be mounted, what a user saves stays in the way of the next
            const TestFolder folder;
            QDir(folder.Path()).mkdir("disk");
            folder.Put("source.zip", Content);
            QFile::setPermissions(folder.Path("source.zip"), QFile::Permissions(0x6644));
            QFile::setPermissions(folder.Path("disk"), QFile::Permissions(0x7777));
            const CString answer = RunInChild([&] {
                if (plainUser)
                    BecomePlainUser(folder.Path());
                else if (::chdir(QFile::encodeName(folder.Path()).constData()) != 0)
                    return CString("no folder");
                const bool mounted = MakeSmallDisk("disk", 64 * 1024);
                if (!mounted)
                    std::cout << "No file system may be mounted here: the size of a file is limited instead."
                              << std::endl;
                return SaveOnSmallDisk(
                    [copy](const CString& path) {
                        return copy ? ReplaceFileByCopy(path, "source.zip") : ReplaceFile(path, Content);
                    },
                    mounted ? ENOSPC : EFBIG);
            });
            EXPECT_EQ(answer, "") << (plainUser ? "plain user: " : "this user: ") << answer.toStdString();
        }
    }
}

TEST(ReplaceFileFullDisk, ALimitToTheSizeOfFilesLeavesTheOldFileByteForByte) {
    const TestFolder folder;
    QDir(folder.Path()).mkdir("disk");
    const CString answer = RunInChild([&] {
        const rlimit limit{64 * 1024, 64 * 1024};
        if (::chdir(QFile::encodeName(folder.Path()).constData()) != 0 ||
            ::setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return CString("no limit");
        std::signal(SIGXFSZ, SIG_IGN);
        return SaveOnSmallDisk([](const CString& path) { return ReplaceFile(path, Content); }, EFBIG);
    });
    EXPECT_EQ(answer, "");
}
