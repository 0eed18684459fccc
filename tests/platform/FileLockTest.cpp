#include "platform/FileLock.h"

#include "platform/ReplaceFile.h"
#include "support/ChildProcess.h"
#include "support/FileFaults.h"
#include "support/TestFolder.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <utility>

namespace {

// How another run of the program fares with the file.
CString OtherRunTakes(const CString& path) {
    return RunInChild([&] {
        FileLock lock;
        switch (lock.Take(path)) {
        case LockOutcome::Taken: return "taken";
        case LockOutcome::InUse: return "in use";
        case LockOutcome::NoLocks: return "no locks";
        case LockOutcome::Failed: break;
        }
        return "failed";
    });
}

class FileLockTest : public ::testing::Test {
protected:
    void SetUp() override { folder.Put("standard.kvstd", "content"); }

    TestFolder folder;
    const CString path = folder.Path("standard.kvstd");
};

} // namespace

TEST_F(FileLockTest, KeepsOtherRunsOutUntilItIsReleased) {
    FileLock lock;
    EXPECT_FALSE(lock.IsHeld());
    ASSERT_EQ(lock.Take(path), LockOutcome::Taken);
    EXPECT_TRUE(lock.IsHeld());
    EXPECT_EQ(OtherRunTakes(path), "in use");
    lock.Release();
    EXPECT_FALSE(lock.IsHeld());
    EXPECT_EQ(OtherRunTakes(path), "taken");
}

TEST_F(FileLockTest, KeepsTheSameRunOutToo) {
    FileLock lock, second;
    ASSERT_EQ(lock.Take(path), LockOutcome::Taken);
    EXPECT_EQ(second.Take(path), LockOutcome::InUse);
    EXPECT_FALSE(second.IsHeld());
}

TEST_F(FileLockTest, OthersMayRead) {
    FileLock lock;
    ASSERT_EQ(lock.Take(path), LockOutcome::Taken);
    EXPECT_EQ(RunInChild([&] { return QString::fromUtf8(folder.Get("standard.kvstd")); }), "content");
    EXPECT_EQ(OtherRunTakes(path), "in use"); // and reading in this process has not lost it
}

TEST_F(FileLockTest, MovesWithItsObject) {
    FileLock first;
    ASSERT_EQ(first.Take(path), LockOutcome::Taken);
    FileLock second(std::move(first));
    FileLock third;
    third = std::move(second);
    EXPECT_TRUE(third.IsHeld());
    EXPECT_EQ(OtherRunTakes(path), "in use");
    third = FileLock();
    EXPECT_EQ(OtherRunTakes(path), "taken");
}

TEST_F(FileLockTest, IsGoneWhenItsRunIsKilled) {
    HoldingChild other([&] {
        static FileLock lock;
        return lock.Take(path) == LockOutcome::Taken;
    });
    ASSERT_TRUE(other.Succeeded());
    FileLock lock;
    EXPECT_EQ(lock.Take(path), LockOutcome::InUse);
    other.Kill();
    EXPECT_EQ(lock.Take(path), LockOutcome::Taken);
}

TEST_F(FileLockTest, IsTakenOnTheFileThatStandsThereNow) {
    // Another run saves between the opening and the locking.
    FileFaults faults;
    auto& call = TheFileCalls().lock;
    call = [this, real = call, first = true](int handle, struct flock* range) mutable {
        if (std::exchange(first, false)) {
            folder.Put("newer.kvstd", "newer");
            std::rename(QFile::encodeName(folder.Path("newer.kvstd")).constData(),
                        QFile::encodeName(path).constData());
        }
        return real(handle, range);
    };
    FileLock lock;
    EXPECT_EQ(lock.Take(path), LockOutcome::Taken);
    EXPECT_TRUE(lock.IsHeld());
    EXPECT_EQ(OtherRunTakes(path), "in use");
}

TEST_F(FileLockTest, IsNotHeldOnAFileThatWasReplacedByAnotherProgram) {
    FileLock lock;
    ASSERT_EQ(lock.Take(path), LockOutcome::Taken);
    QFile::remove(path);
    EXPECT_FALSE(lock.IsHeld());
    folder.Put("standard.kvstd", "other");
    EXPECT_FALSE(lock.IsHeld());
}

TEST_F(FileLockTest, FailsWithTheCauseWhereThereIsNoFile) {
    FileLock lock;
    EXPECT_EQ(lock.Take(folder.Path("missing")), LockOutcome::Failed);
    EXPECT_EQ(errno, ENOENT);
}

TEST_F(FileLockTest, TellsAFileSystemWithoutLocks) {
    FileFaults faults;
    faults.FailLock(ENOLCK);
    FileLock lock;
    EXPECT_EQ(lock.Take(path), LockOutcome::NoLocks);
    EXPECT_FALSE(lock.IsHeld());
}

TEST_F(FileLockTest, ASaveIsRefusedWhileAnotherRunHoldsTheFile) {
    HoldingChild other([&] {
        static FileLock lock;
        return lock.Take(path) == LockOutcome::Taken;
    });
    ASSERT_TRUE(other.Succeeded());
    const FileResult result = ReplaceFile(path, "new");
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(folder.Get("standard.kvstd"), "content");
    EXPECT_EQ(folder.Names(), CStringArray{"standard.kvstd"});
}

TEST_F(FileLockTest, TheSaversLockPassesToTheNewFileWithoutAGap) {
    FileLock lock;
    ASSERT_EQ(lock.Take(path), LockOutcome::Taken);
    FileFaults faults;
    CStringArray others;
    faults.BeforeRename([&] { others += OtherRunTakes(path); });
    ASSERT_TRUE(ReplaceFile(path, "new", &lock).ok);
    EXPECT_TRUE(lock.IsHeld());
    others += OtherRunTakes(path);
    EXPECT_EQ(others, (CStringArray{"in use", "in use"}));
    EXPECT_EQ(folder.Get("standard.kvstd"), "new");
}

TEST_F(FileLockTest, SavingUnderAnotherNameMovesTheLock) {
    FileLock lock;
    ASSERT_EQ(lock.Take(path), LockOutcome::Taken);
    ASSERT_TRUE(ReplaceFile(folder.Path("copy.kvstd"), "new", &lock).ok);
    EXPECT_EQ(OtherRunTakes(folder.Path("copy.kvstd")), "in use");
    EXPECT_EQ(OtherRunTakes(path), "taken");
}

TEST_F(FileLockTest, ASaveWithoutLockLeavesNone) {
    ASSERT_TRUE(ReplaceFile(path, "new").ok);
    EXPECT_EQ(OtherRunTakes(path), "taken");
}
