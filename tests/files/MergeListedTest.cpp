#include "MergeRoom.h"
#include "platform/TextNumbers.h"

#include <QProcess>

class MergeListed : public MergeRoom {};

TEST_F(MergeListed, LaterFileWinsAndStandsBehindTheRest) {
    Put("a.kvstd", Standard(Check("101", "A") + Check("203", "A") + Check("312", "A")));
    Put("b.kvstd", Standard(Check("101", "B")));
    EXPECT_EQ(Listed(), 1);
    EXPECT_EQ(resultPath, folder.Path("Result.kvstd"));
    EXPECT_EQ(ChecksOf(ListedPath()), (CStringArray{"203 A", "312 A", "101 B"}));
    EXPECT_EQ(messages.texts, CStringArray());
}

TEST_F(MergeListed, DeletedChecksOfTheBaseStandAheadOfTheLiveOnes) {
    Put("a.kvstd",
        Standard(Check("1", "A") + Check("2", "A", {}, 1) + Check("3", "A") + Check("4", "A", {}, 1)));
    Put("b.kvstd", Standard(Check("1", "B") + Check("5", "B", {}, 1)));
    EXPECT_EQ(Listed(), 1);
    EXPECT_EQ(ChecksOf(ListedPath()), (CStringArray{"-2 A", "-4 A", "3 A", "1 B"}));
}

TEST_F(MergeListed, TheSecondPassOfTheBaseTakesTheFirstCheckOfAType) {
    Put("a.kvstd", Standard(Check("1", "deleted", {}, 1) + Check("1", "live") + Check("2", "A")));
    Put("b.kvstd", Standard({}));
    EXPECT_EQ(Listed(), 1);
    EXPECT_EQ(ChecksOf(ListedPath()), (CStringArray{"1 live", "1 live", "2 A"}));
}

TEST_F(MergeListed, TheResultIsPackedUnderTheChosenNameAndTheFoldersGo) {
    Put("plain.kvstd", Standard(Check("1", "A")));
    PutPacked("packed.kvstd", Standard(Check("2", "B")));
    EXPECT_EQ(Listed("Chosen name.kvstd"), 1);
    EXPECT_TRUE(folder.Get("Chosen name.kvstd").startsWith("PK"));
    EXPECT_EQ(folder.Names("run"), CStringArray());
    QProcess unzip;
    unzip.start("unzip", {"-t", resultPath});
    ASSERT_TRUE(unzip.waitForFinished());
    EXPECT_EQ(unzip.exitCode(), 0) << unzip.readAll().toStdString();
    EXPECT_EQ(ChecksOf(ListedPath()), (CStringArray{"1 A", "2 B"}));
}

TEST_F(MergeListed, TheSourcesMayBeTheTarget) {
    Put("a.kvstd", Standard(Check("1", "A")));
    Put("b.kvstd", Standard(Check("2", "B")));
    EXPECT_EQ(Listed("a.kvstd"), 1);
    EXPECT_EQ(ChecksOf(ListedPath()), (CStringArray{"1 A", "2 B"}));
    EXPECT_EQ(folder.Get("b.kvstd"), Standard(Check("2", "B")).toUtf8());
}

TEST_F(MergeListed, CancelKeepsTheFoldersAndTheNextMergeStartsAnew) {
    Put("a.kvstd", Standard(Check("1", "A")));
    PutPacked("b.kvstd", Standard(Check("101", "B")), {{"101/b.txt", "B"}});
    EXPECT_EQ(Listed(""), 0);
    EXPECT_EQ(resultPath, "");
    EXPECT_EQ(messages.texts, CStringArray());
    EXPECT_EQ(folder.Names("run/Merge"), (CStringArray{"101", "FilesToBeMerged"}));
    files.removeLast();
    Put("c.kvstd", Standard(Check("3", "C")));
    EXPECT_EQ(Listed(), 1);
    ListedPath();
    EXPECT_EQ(folder.Names("unpacked"), CStringArray("Result.kvstd"));
}

TEST_F(MergeListed, LengthsTakeTheUnitOfTheBase) {
    Put("inch.kvstd", Standard(Check("1", "inch", Measure(1, {"2"})), "Unit='3'"));
    Put("mm.kvstd",
        Standard(Check("2", "mm", Measure(1, {"25.4"}) + Measure(31, {"16387.064"})), "Unit='0'"));
    EXPECT_EQ(Listed(), 1);
    const CString path = ListedPath();
    EXPECT_EQ(ValuesOf(path, "inch"), CStringArray("2"));
    EXPECT_EQ(ValuesOf(path, "mm"), (CStringArray{"1.000000", "1.000000"}));
}

TEST_F(MergeListed, FilesBeforeTheFirstStandardAreSkippedWithAMessage) {
    const CString other = Put("other.kvstd", "<Other/>");
    const CString broken = PutPacked("broken.kvstd", "<Standard>");
    Put("a.kvstd", Standard(Check("1", "A"), "Unit='3'"));
    Put("b.kvstd", Standard(Check("2", "B", Measure(1, {"25.4"})), "Unit='0'"));
    EXPECT_EQ(Listed(), 1);
    EXPECT_EQ(messages.texts, (CStringArray{LoadString(2130) + other, LoadString(2130) + broken}));
    const CString path = ListedPath();
    EXPECT_EQ(ChecksOf(path), (CStringArray{"1 A", "2 B"}));
    EXPECT_EQ(ValuesOf(path, "B"), CStringArray("1.000000"));
}

TEST_F(MergeListed, ALaterFileThatIsNoStandardIsSkippedWithAMessage) {
    Put("a.kvstd", Standard(Check("1", "A")));
    const CString broken = Put("broken.kvstd", "<Standard");
    Put("b.kvstd", Standard(Check("2", "B")));
    const CString other = PutPacked("other.kvstd", "<Other><Check Type='3'/></Other>");
    EXPECT_EQ(Listed(), 1);
    EXPECT_EQ(messages.texts, (CStringArray{LoadString(2130) + broken, LoadString(2130) + other}));
    EXPECT_EQ(ChecksOf(ListedPath()), (CStringArray{"1 A", "2 B"}));
}

TEST_F(MergeListed, WithoutAnyStandardTheLastFileIsNamed) {
    const CString first = Put("a.kvstd", "no");
    const CString last = Put("b.kvstd", "neither");
    EXPECT_EQ(Listed(), 0);
    EXPECT_EQ(messages.texts, (CStringArray{LoadString(2130) + first, LoadString(2129) + last}));
    EXPECT_FALSE(QFile::exists(folder.Path("Result.kvstd")));
}

TEST_F(MergeListed, ACheckWithoutTypeEndsItsFileWithAMessage) {
    Put("a.kvstd", Standard(Check("1", "A") + "<Check Name='none'/>" + Check("2", "A")));
    Put("b.kvstd", Standard(Check("3", "B")));
    EXPECT_EQ(Listed(), 1);
    EXPECT_EQ(messages.texts, CStringArray(LoadString(2131)));
    EXPECT_EQ(ChecksOf(ListedPath()), (CStringArray{" none", "2 A", "1 A", "3 B"}));
}

TEST_F(MergeListed, AResultThatCannotBeWrittenIsToldAndTheTargetStays) {
    Put("a.kvstd", Standard(Check("1", "A")));
    Put("b.kvstd", Standard(Check("2", "B")));
    QDir(folder.Path()).mkdir("taken");
    EXPECT_EQ(Listed("taken"), 0);
    ASSERT_EQ(messages.texts.size(), 1);
    EXPECT_TRUE(messages.texts[0].startsWith(folder.Path("taken") + "\n"));
    EXPECT_EQ(resultPath, "");
    EXPECT_EQ(folder.Names("taken"), CStringArray());
}

TEST_F(MergeListed, SideFoldersGoWithTheirChecks) {
    PutPacked("a.kvstd", Standard(Check("101", "A") + Check("203", "A") + Check("312", "A", {}, 1)),
              {{"101/a.txt", "A"}, {"203/sub/a.txt", "A"}, {"312/a.txt", "deleted"}, {"notes/a.txt", "A"}});
    PutPacked("b.kvstd", Standard(Check("101", "B") + Check("401", "B")),
              {{"101/b.txt", "B"}, {"401/b.txt", "B"}, {"203/b.txt", "no such check"}});
    EXPECT_EQ(Listed(), 1);
    ListedPath();
    EXPECT_EQ(folder.Names("unpacked"), (CStringArray{"101", "203", "401", "Result.kvstd"}));
    EXPECT_EQ(folder.Names("unpacked/101"), CStringArray("b.txt"));
    EXPECT_EQ(folder.Get("unpacked/203/sub/a.txt"), "A");
    EXPECT_EQ(folder.Names("unpacked/203"), CStringArray("sub"));
}

TEST_F(MergeListed, AFolderThatCannotBeMadeIsTold) {
    folder.Put("blocked", "a file");
    Put("a.kvstd", Standard({}));
    Put("b.kvstd", Standard({}));
    const auto never = [] {
        ADD_FAILURE() << "asked for a name";
        return CString();
    };
    EXPECT_EQ(MergeListedStandards(folder.Path("blocked"), files, never, resultPath), 0);
    EXPECT_EQ(messages.texts, CStringArray(folder.Path("blocked") + "\n" +
                                           LoadString(MergeFolderNotMade).arg(folder.Path("blocked/Merge"))));
}

TEST_F(MergeListed, ProgressRunsToItsEndBeforeTheNameIsAsked) {
    Put("no.kvstd", "no");
    Put("a.kvstd", Standard({}));
    Put("b.kvstd", Standard({}));
    std::vector<int> steps;
    const auto note = [&steps](int done, int total) {
        EXPECT_EQ(total, 6);
        steps.push_back(done);
    };
    const auto ask = [&steps] {
        EXPECT_EQ(steps, (std::vector<int>{1, 2, 3, 4, 5, 6}));
        return CString();
    };
    EXPECT_EQ(MergeListedStandards(Run(), files, ask, resultPath, note), 0);
}

TEST_F(MergeListed, AResultTooLargeToBeOpenedAgainIsNotWritten) {
    const CString text(7 * 1024 * 1024, 'x'); // a longer one is not taken in one piece
    const auto checks = [&text](int first) {
        CString all;
        for (int type = first; type < first + 4; ++type)
            all += Check(CString::number(type), "T", text);
        return all;
    };
    Put("a.kvstd", Standard(checks(1)));
    Put("b.kvstd", Standard(checks(5)));
    EXPECT_EQ(Listed(), 0);
    ASSERT_EQ(messages.texts.size(), 1);
    EXPECT_TRUE(messages.texts[0].startsWith(folder.Path("Result.kvstd") + "\n"));
    EXPECT_FALSE(QFile::exists(folder.Path("Result.kvstd")));
}
