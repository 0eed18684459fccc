#include "shell/RecentFiles.h"

#include <gtest/gtest.h>

TEST(RecentFiles, TheNewestOfFourStandsFirst) {
    CRecentFiles files;
    for (const char* path : {"/a/1.kvstd", "/a/2.kvstd", "/a/3.kvstd", "/a/4.kvstd", "/a/5.kvstd"})
        files.Add(path);
    EXPECT_EQ(files.Paths(), CStringArray({"/a/5.kvstd", "/a/4.kvstd", "/a/3.kvstd", "/a/2.kvstd"}));
    files.Add("/a/3.kvstd");
    EXPECT_EQ(files.Paths(), CStringArray({"/a/3.kvstd", "/a/5.kvstd", "/a/4.kvstd", "/a/2.kvstd"}));
}

TEST(RecentFiles, TheNextRunFindsThem) {
    CRecentFiles files;
    files.Add("/b/Ümlaut, with comma.kvstd");
    files.Add("/b/2.kvstd");
    CRecentFiles next;
    next.Load();
    EXPECT_EQ(next.Paths().mid(0, 2), CStringArray({"/b/2.kvstd", "/b/Ümlaut, with comma.kvstd"}));
    next.Remove("/b/2.kvstd");
    files.Load();
    EXPECT_FALSE(files.Paths().contains("/b/2.kvstd"));
}

TEST(RecentFiles, AnItemShowsPlaceAndName) {
    CRecentFiles files;
    files.Add("/c/Plan & Part.kvstd");
    files.Add("/c/Rules.kvstd");
    EXPECT_EQ(files.MenuText(0), "&1 Rules.kvstd");
    EXPECT_EQ(files.MenuText(1), "&2 Plan && Part.kvstd");
}

TEST(RecentFiles, EqualNamesShowTheirFolders) {
    CRecentFiles files;
    files.Add("/old/Rules.kvstd");
    files.Add("/new/Rules.kvstd");
    EXPECT_EQ(files.MenuText(0), "&1 Rules.kvstd  (/new)");
    EXPECT_EQ(files.MenuText(1), "&2 Rules.kvstd  (/old)");
}
