#include "MergeRoom.h"

class MergeSideFolders : public MergeRoom {
protected:
    void PutBase() { Put("base.kvstd", Standard(Check("1", "base"))); }
};

TEST_F(MergeSideFolders, TheBaseBringsItsOwn) {
    PutPacked("a.kvstd", Standard(Check("101", "A") + Check("203", "A") + Check("312", "A", {}, 1)),
              {{"101/a.txt", "A"}, {"203/a.txt", "A"}, {"312/a.txt", "deleted"}});
    PutPacked("b.kvstd", Standard(Check("101", "B")), {{"101/b.txt", "B"}});
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(folder.Names("run/Merge"), (CStringArray{"101", "203", "312", "Merged.kvstd"}));
    EXPECT_EQ(folder.Names("run/Merge/101"), CStringArray("b.txt"));
    EXPECT_EQ(MergedSide("203/a.txt"), "A");
    EXPECT_EQ(MergedSide("312/a.txt"), "deleted");
}

TEST_F(MergeSideFolders, ALaterCheckWithoutOneRemovesTheEarlierOne) {
    PutPacked("a.kvstd", Standard(Check("101", "A")), {{"101/a.txt", "A"}});
    Put("b.kvstd", Standard(Check("101", "B")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(folder.Names("run/Merge"), CStringArray("Merged.kvstd"));
}

TEST_F(MergeSideFolders, ADeletedCheckBringsNone) {
    PutBase();
    PutPacked("b.kvstd", Standard(Check("101", "B", {}, 1)), {{"101/b.txt", "B"}});
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(folder.Names("run/Merge"), CStringArray("Merged.kvstd"));
}

TEST_F(MergeSideFolders, AFileInsteadOfAFolderIsLeft) {
    PutBase();
    PutPacked("b.kvstd", Standard(Check("101", "B")), {{"101", "a file"}});
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(folder.Names("run/Merge"), CStringArray("Merged.kvstd"));
}

TEST_F(MergeSideFolders, OnlyDigitsNameOne) {
    const CStringArray types = {"..",
                                ".",
                                "../../outside",
                                "/tmp",
                                " 101",
                                "101 ",
                                "1/2",
                                "-1",
                                "sub",
                                "1e3",
                                CString::fromUtf8("١٠١"),
                                "101\\203",
                                "*",
                                "~",
                                "FilesToBeMerged"};
    CString checks;
    for (const CString& type : types)
        checks += Check(type, "T");
    QDir(folder.Path()).mkdir("run/outside");
    folder.Put("run/outside/keep.txt", "keep");
    PutBase();
    PutPacked("a.kvstd", Standard(checks), {{"sub/a.txt", "A"}, {"1/2/a.txt", "A"}, {"101 /a.txt", "A"}});
    PutPacked("b.kvstd", Standard(checks), {{"sub/b.txt", "B"}});
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()).size(), 1 + types.size());
    EXPECT_EQ(folder.Names("run/Merge"), CStringArray("Merged.kvstd"));
    EXPECT_EQ(folder.Get("run/outside/keep.txt"), "keep");
    EXPECT_EQ(folder.Names("run"), (CStringArray{"Merge", "outside"}));
}

TEST_F(MergeSideFolders, ATypeWithQuotesIsATypeLikeAnyOther) {
    const CString type = "x&quot; or &quot;1&quot;=&quot;1' ] | //*";
    Put("a.kvstd", Standard(Check("101", "A") + Check(type, "A")));
    Put("b.kvstd", Standard(Check(type, "B")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()), (CStringArray{"101 A", "x\" or \"1\"=\"1' ] | //* B"}));
}

TEST_F(MergeSideFolders, AnArchiveThatLeavesItsFolderIsRejected) {
    PutBase();
    const CString evil = PutPacked("evil.kvstd", Standard(Check("101", "A")), {{"101/a.txt", "A"}});
    QByteArray bytes = folder.Get("evil.kvstd");
    bytes.replace("101/a.txt", "../../a.t");
    folder.Put("evil.kvstd", bytes);
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(rejected, CStringArray(evil));
    EXPECT_EQ(folder.Names("run"), CStringArray("Merge"));
    EXPECT_EQ(folder.Names("run/Merge"), CStringArray("base.kvstd"));
}
