#include "engines/FolderServices.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A folder on disk that is filled by relative paths; a path with "/" at its end is a folder.
class Tree : public testing::Test {
protected:
    void Make(const CStringArray& paths) {
        for (const CString& path : paths) {
            const CString full = Path(path);
            QDir().mkpath(full.left(full.lastIndexOf('/')));
            if (path.endsWith('/'))
                continue;
            ASSERT_TRUE(QFile(full).open(QIODevice::WriteOnly)) << full.toStdString();
        }
    }

    CString Path(const CString& relative) const { return m_folder.path() + "/" + relative; }

    CStringArray Relative(const CStringArray& paths) const {
        CStringArray relative;
        for (const CString& path : paths)
            relative.append(path.mid(m_folder.path().size() + 1));
        return relative;
    }

    void List(bool recurse) {
        ListTree(m_folder.path(), files, folders, recurse);
        files = Relative(files);
        folders = Relative(folders);
    }

    CStringArray files, folders;
    QTemporaryDir m_folder;
};

using FindInFolderTest = Tree;
using FindUnderFolderTest = Tree;
using ListTreeTest = Tree;

} // namespace

TEST_F(FindInFolderTest, TakesTheFirstMatchByName) {
    Make({"c.mat", "b.mat", "a.txt", "sub/a.mat"});
    CString found = "kept";
    EXPECT_TRUE(FindInFolder(m_folder.path(), ".mat", found));
    EXPECT_EQ(found, Path("b.mat"));
    EXPECT_FALSE(FindInFolder(m_folder.path(), ".prt", found));
    EXPECT_EQ(found, Path("b.mat"));
}

TEST_F(FindInFolderTest, PatternIsOpenInFrontAndTakesWildcards) {
    Make({"alpha1.mat", "beta22.MAT"});
    CString found;
    EXPECT_TRUE(FindInFolder(m_folder.path(), "??.mat", found));
    EXPECT_EQ(found, Path("alpha1.mat"));
    EXPECT_TRUE(FindInFolder(m_folder.path(), "t*2.mat", found));
    EXPECT_EQ(found, Path("beta22.MAT"));
    EXPECT_TRUE(FindInFolder(m_folder.path() + "/", "BETA*", found));
    EXPECT_EQ(found, Path("beta22.MAT"));
    EXPECT_FALSE(FindInFolder(m_folder.path(), "alpha?", found));
    EXPECT_FALSE(FindInFolder(m_folder.path(), "[a-z]*", found));
}

TEST_F(FindInFolderTest, EmptyPatternMatchesAnythingButTheDotEntries) {
    CString found;
    EXPECT_FALSE(FindInFolder(m_folder.path(), "", found));
    Make({"sub/"});
    EXPECT_TRUE(FindInFolder(m_folder.path(), "", found));
    EXPECT_EQ(found, Path("sub"));
}

TEST_F(FindInFolderTest, MissingFolderHasNoMatch) {
    CString found = "kept";
    EXPECT_FALSE(FindInFolder(Path("none"), "", found));
    EXPECT_FALSE(FindInFolder("", "", found));
    EXPECT_EQ(found, "kept");
}

TEST_F(FindInFolderTest, HardPatternIsSettledQuickly) {
    const CString name(200, 'a');
    Make({name});
    CString found;
    EXPECT_FALSE(FindInFolder(m_folder.path(), CString("*a").repeated(60) + "b", found));
    EXPECT_TRUE(FindInFolder(m_folder.path(), CString("*a").repeated(60) + "*", found));
}

TEST_F(FindUnderFolderTest, LooksInTheFolderBeforeItsSubfolders) {
    Make({"a/x.txt", "x.txt"});
    EXPECT_EQ(FindUnderFolder(m_folder.path(), "x.txt"), Path("x.txt"));
}

TEST_F(FindUnderFolderTest, GoesDepthFirst) {
    Make({"a/deep/er/x.txt", "b/x.txt"});
    EXPECT_EQ(FindUnderFolder(m_folder.path(), "x.txt"), Path("a/deep/er/x.txt"));
    EXPECT_EQ(FindUnderFolder(m_folder.path(), "y.txt"), "");
    EXPECT_EQ(FindUnderFolder("", "x.txt"), "");
}

TEST_F(FindUnderFolderTest, ExactSpellingGoesFirst) {
    Make({"X.TXT", "x.txt", "y.TXT"});
    EXPECT_EQ(FindUnderFolder(m_folder.path(), "x.txt"), Path("x.txt"));
    EXPECT_EQ(FindUnderFolder(m_folder.path(), "Y.txt"), Path("y.TXT"));
}

TEST_F(FindUnderFolderTest, FolderOfThatNameIsNoHit) {
    Make({"a/x.txt/", "b/x.txt"});
    EXPECT_EQ(FindUnderFolder(m_folder.path(), "x.txt"), Path("b/x.txt"));
}

TEST_F(FindUnderFolderTest, NameCannotLeaveTheTree) {
    Make({"a/", "outside.txt"});
    EXPECT_EQ(FindUnderFolder(Path("a"), "../outside.txt"), "");
}

TEST_F(ListTreeTest, ListsByNameWithAFolderBeforeItsContent) {
    Make({"b.txt", "a.txt", ".hidden", "sub/z.txt", "sub/inner/y.txt", "empty/"});
    List(true);
    EXPECT_EQ(files, CStringArray({".hidden", "a.txt", "b.txt", "sub/inner/y.txt", "sub/z.txt"}));
    EXPECT_EQ(folders, CStringArray({"empty", "sub", "sub/inner"}));
}

TEST_F(ListTreeTest, WithoutRecursionStaysInTheFolder) {
    Make({"a.txt", "sub/z.txt"});
    List(false);
    EXPECT_EQ(files, CStringArray{"a.txt"});
    EXPECT_EQ(folders, CStringArray{"sub"});
}

TEST_F(ListTreeTest, AppendsToWhatIsThere) {
    Make({"a.txt"});
    files = CStringArray{Path("before")};
    List(true);
    EXPECT_EQ(files, CStringArray({"before", "a.txt"}));
}

TEST_F(ListTreeTest, LinkedFoldersAreNeitherEnteredNorListed) {
    QTemporaryDir outside;
    ASSERT_TRUE(QFile(outside.filePath("secret.txt")).open(QIODevice::WriteOnly));
    Make({"sub/a.txt"});
    ASSERT_TRUE(QFile::link(m_folder.path(), Path("sub/loop")));
    ASSERT_TRUE(QFile::link(outside.path(), Path("sub/away")));
    List(true);
    EXPECT_EQ(files, CStringArray{"sub/a.txt"});
    EXPECT_EQ(folders, CStringArray{"sub"});
    EXPECT_EQ(FindUnderFolder(m_folder.path(), "secret.txt"), "");
}

TEST_F(ListTreeTest, WhatCannotBeReadIsPassedOver) {
    Make({"a.txt", "locked/b.txt"});
    ASSERT_EQ(::mkfifo(Path("pipe").toUtf8().constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(Path("nowhere"), Path("broken")));
    const QByteArray locked = Path("locked").toUtf8();
    ASSERT_EQ(::chmod(locked.constData(), 0), 0);
    const bool isRoot = ::access(locked.constData(), R_OK) == 0; // whom no lock keeps out
    List(true);
    ::chmod(locked.constData(), 0700);
    EXPECT_EQ(files, isRoot ? CStringArray({"a.txt", "locked/b.txt"}) : CStringArray{"a.txt"});
    EXPECT_EQ(folders, CStringArray{"locked"});
}

TEST_F(ListTreeTest, MissingFolderHoldsNothing) {
    ListTree(Path("none"), files, folders, true);
    ListTree("", files, folders, true);
    EXPECT_TRUE(files.isEmpty());
    EXPECT_TRUE(folders.isEmpty());
}
