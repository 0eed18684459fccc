#include "platform/Folders.h"

#include "support/ChildProcess.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const COleDateTime Time(QDate(2026, 2, 3), QTime(9, 5, 7, 4));

struct stat InfoOf(const CString& path) {
    struct stat info {};
    ::lstat(QFile::encodeName(path).constData(), &info);
    return info;
}

// Makes the folder of the temporary files for as long as the object lives.
class TemporaryFolderScope {
public:
    explicit TemporaryFolderScope(const CString& path) { qputenv("TMPDIR", QFile::encodeName(path)); }
    ~TemporaryFolderScope() { qputenv("TMPDIR", m_before); }

private:
    const QByteArray m_before = qgetenv("TMPDIR");
};

} // namespace

TEST(Folders, AStampHasPaddedFieldsButNoPaddedMilliseconds) {
    EXPECT_EQ(MakeRunStamp(Time), "2602030905074");
    EXPECT_EQ(MakeRunStamp(COleDateTime(QDate(2009, 12, 31), QTime(23, 59, 59, 0))), "0912312359590");
    EXPECT_EQ(MakeRunStamp(COleDateTime(QDate(2110, 1, 10), QTime(0, 0, 0, 999))), "100110000000999");
    EXPECT_GE(MakeRunStamp().size(), 13);
}

TEST(Folders, EnsureFolderMakesOneLevelForTheUserAlone) {
    const TestFolder folder;
    EXPECT_FALSE(EnsureFolder(folder.Path("a/b")));
    EXPECT_TRUE(EnsureFolder(folder.Path("a")));
    EXPECT_TRUE(EnsureFolder(folder.Path("a")));
    EXPECT_TRUE(EnsureFolder(folder.Path("a/b")));
    EXPECT_EQ(InfoOf(folder.Path("a/b")).st_mode & 07777, 0700U);
    EXPECT_FALSE(EnsureFolder(CString()));
}

TEST(Folders, EnsureFolderFailsWhereTheUserMayNotWrite) {
    const TestFolder folder;
    QDir(folder.Path()).mkdir("closed");
    QFile::setPermissions(folder.Path("closed"), QFile::Permissions(0x5555));
    EXPECT_EQ(RunInChild([&] {
                  BecomePlainUser(folder.Path());
                  return EnsureFolder("closed") || EnsureFolder("closed/below") ? "made" : "refused";
              }),
              "refused");
}

TEST(Folders, DeletingATreeRemovesAllOfIt) {
    const TestFolder folder;
    QDir(folder.Path()).mkpath("tree/a/b/c");
    folder.Put("tree/a/file", "x");
    folder.Put("tree/a/b/.hidden", "x");
    DeleteFolderTree(folder.Path("tree"));
    EXPECT_EQ(folder.Names(), CStringArray());
}

TEST(Folders, DeletingATreeNeverFollowsALink) {
    const TestFolder folder;
    QDir(folder.Path()).mkdir("outside");
    QDir(folder.Path()).mkpath("tree/a");
    folder.Put("outside/precious", "kept");
    QFile::link(folder.Path("outside"), folder.Path("tree/a/folderlink"));
    QFile::link(folder.Path("outside/precious"), folder.Path("tree/filelink"));
    QFile::link("..", folder.Path("tree/a/up"));
    QFile::link(folder.Path("outside"), folder.Path("toplink"));
    DeleteFolderTree(folder.Path("tree"));
    DeleteFolderTree(folder.Path("toplink/"));
    EXPECT_EQ(folder.Names(), CStringArray{"outside"});
    EXPECT_EQ(folder.Get("outside/precious"), "kept");
}

TEST(Folders, DeletingNothingLeavesEverything) {
    const TestFolder folder;
    folder.Put("file", "kept");
    EXPECT_EQ(RunInChild([&] {
                  if (::chdir(QFile::encodeName(folder.Path()).constData()) != 0)
                      return "no folder";
                  DeleteFolderTree(CString());
                  DeleteFolderTree("missing");
                  return "";
              }),
              "");
    EXPECT_EQ(folder.Get("file"), "kept");
}

TEST(Folders, DeletingGoesOnWhereSomethingCannotBeRemoved) {
    const TestFolder folder;
    QDir(folder.Path()).mkpath("tree/closed");
    QDir(folder.Path()).mkpath("tree/open");
    folder.Put("tree/closed/file", "x");
    folder.Put("tree/open/file", "x");
    QFile::setPermissions(folder.Path("tree"), QFile::Permissions(0x7777));
    QFile::setPermissions(folder.Path("tree/open"), QFile::Permissions(0x7777));
    QFile::setPermissions(folder.Path("tree/closed"), QFile::Permissions(0x5555));
    RunInChild([&] {
        BecomePlainUser(folder.Path());
        DeleteFolderTree("tree");
        return "";
    });
    QFile::setPermissions(folder.Path("tree/closed"), QFile::Permissions(0x7777));
    EXPECT_EQ(folder.Names("tree"), CStringArray{"closed"});
}

TEST(Folders, ATreeDeeperThanThereAreHandlesIsDeleted) {
    const TestFolder folder;
    CString path = folder.Path("tree");
    for (int level = 0; level < 200; ++level, path += "/d")
        ASSERT_TRUE(EnsureFolder(path));
    EXPECT_EQ(RunInChild([&] {
                  const rlimit limit{64, 64};
                  if (::setrlimit(RLIMIT_NOFILE, &limit) != 0)
                      return "no limit";
                  DeleteFolderTree(folder.Path("tree"));
                  return "";
              }),
              "");
    EXPECT_EQ(folder.Names(), CStringArray());
}

TEST(RunFolder, LiesInATreeOfTheUsersOwn) {
    const TestFolder folder;
    const TemporaryFolderScope scope(folder.Path());
    EXPECT_EQ(PrepareRunFolder(Time), folder.Path("Ruleward/2026/CheckBuilder/2602030905074"));
    for (const char* level : {"Ruleward", "Ruleward/2026", "Ruleward/2026/CheckBuilder",
                              "Ruleward/2026/CheckBuilder/2602030905074"})
        EXPECT_EQ(InfoOf(folder.Path(level)).st_mode & 07777, 0700U) << level;
}

TEST(RunFolder, TwoRunsHaveTwoFoldersSideBySide) {
    const TestFolder folder;
    const TemporaryFolderScope scope(folder.Path());
    const CString first = PrepareRunFolder(Time);
    const CString second = RunInChild([] { return PrepareRunFolder(Time); }); // in the same millisecond
    EXPECT_NE(first, second);
    EXPECT_EQ(folder.Names("Ruleward/2026/CheckBuilder"), (CStringArray{"2602030905074", "2602030905075"}));
}

TEST(RunFolder, WithoutATemporaryFolderOneOfTheUsersOwnIsTaken) {
    const TestFolder home;
    const QByteArray before = qgetenv("XDG_CACHE_HOME");
    const TemporaryFolderScope scope{CString()};
    qputenv("XDG_CACHE_HOME", QFile::encodeName(home.Path("cache")));
    const CString run = PrepareRunFolder(Time);
    before.isNull() ? qunsetenv("XDG_CACHE_HOME") : qputenv("XDG_CACHE_HOME", before);
    EXPECT_EQ(run, home.Path("cache/Ruleward/2026/CheckBuilder/2602030905074"));
    EXPECT_TRUE(QDir(run).exists());
}

TEST(RunFolder, ALinkInTheWayIsRefused) {
    for (const char* level : {"Ruleward", "Ruleward/2026", "Ruleward/2026/CheckBuilder"}) {
        const TestFolder folder, elsewhere;
        const TemporaryFolderScope scope(folder.Path());
        QDir(folder.Path()).mkpath(QFileInfo(level).path());
        QFile::link(elsewhere.Path(), folder.Path(level));
        EXPECT_EQ(PrepareRunFolder(Time), "/CheckBuilder/2602030905074") << level;
        EXPECT_EQ(elsewhere.Names(), CStringArray());
        EXPECT_FALSE(QDir("/CheckBuilder").exists());
    }
}

TEST(RunFolder, AFileInTheWayIsRefused) {
    const TestFolder folder;
    const TemporaryFolderScope scope(folder.Path());
    folder.Put("Ruleward", "x");
    EXPECT_EQ(PrepareRunFolder(Time), "/CheckBuilder/2602030905074");
}

// Somebody else's folder could be read, or its content exchanged, by its owner.
TEST(RunFolder, AForeignOwnerIsRefused) {
    if (::geteuid() != 0) { // a plain user meets root's folders everywhere, but cannot make one
        const TemporaryFolderScope scope("/");
        EXPECT_EQ(PrepareRunFolder(Time), "/CheckBuilder/2602030905074");
        return;
    }
    const TestFolder folder;
    const TemporaryFolderScope scope(folder.Path());
    QDir(folder.Path()).mkdir("Ruleward");
    ASSERT_EQ(::chown(QFile::encodeName(folder.Path("Ruleward")).constData(), 65534, 65534), 0);
    EXPECT_EQ(PrepareRunFolder(Time), "/CheckBuilder/2602030905074");
    EXPECT_EQ(folder.Names("Ruleward"), CStringArray());
}

TEST(RunFolder, AnOwnFolderThatIsOpenToOthersIsClosed) {
    const TestFolder folder;
    const TemporaryFolderScope scope(folder.Path());
    QDir(folder.Path()).mkdir("Ruleward");
    QFile::setPermissions(folder.Path("Ruleward"), QFile::Permissions(0x7777));
    PrepareRunFolder(Time);
    EXPECT_EQ(InfoOf(folder.Path("Ruleward")).st_mode & 07777, 0700U);
}
