#include "MergeRoom.h"
#include "model/Standard.h"
#include "platform/TextNumbers.h"

class MergeBatch : public MergeRoom {};

TEST_F(MergeBatch, LaterFileWins) {
    Put("a.kvstd", Standard(Check("101", "A") + Check("203", "A")));
    Put("b.kvstd", Standard(Check("312", "B") + Check("101", "B")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(outcome.fileName, "Merged.kvstd");
    EXPECT_EQ(ChecksOf(BatchPath()), (CStringArray{"203 A", "312 B", "101 B"}));
    EXPECT_EQ(folder.Names("run/Merge"), CStringArray("Merged.kvstd"));
    EXPECT_EQ(messages.texts, CStringArray());
}

TEST_F(MergeBatch, ValuesOfTheLaterFileReplaceTheEarlierOnesEntirely) {
    Put("a.kvstd", Standard(Check("101", "Template", Measure(0, {"1", "2", "3"}))));
    Put("b.kvstd", Standard(Check("101", "Template", Measure(0, {"7"}))));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ValuesOf(BatchPath(), "Template"), CStringArray("7"));
}

TEST_F(MergeBatch, OrderIsThatOfTheLastAppearance) {
    Put("a.kvstd", Standard(Check("1", "A") + Check("2", "A") + Check("3", "A")));
    Put("b.kvstd", Standard(Check("3", "B") + Check("1", "B")));
    Put("c.kvstd", Standard(Check("4", "C") + Check("3", "C")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()), (CStringArray{"2 A", "1 B", "4 C", "3 C"}));
}

TEST_F(MergeBatch, ADeletedCheckOfALaterFileDeletesNothing) {
    Put("a.kvstd", Standard(Check("101", "A")));
    Put("b.kvstd", Standard(Check("101", "B", {}, 1) + Check("203", "B", {}, 1)));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()), CStringArray("101 A"));
}

TEST_F(MergeBatch, OnlyTheExactMarkCountsAsDeleted) {
    Put("a.kvstd", Standard({}));
    Put("b.kvstd", Standard("<Check Type='1' LifeStatus='01'/><Check Type='2' LifeStatus='1 '/>"
                            "<Check Type='3' LifeStatus='2'/><Check Type='4'/>"));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()), (CStringArray{"1 ", "2 ", "3 ", "4 "}));
}

TEST_F(MergeBatch, DeletedChecksOfTheBaseStayUnlessTheirTypeComesAgain) {
    Put("a.kvstd", Standard(Check("1", "A", {}, 1) + Check("2", "A") + Check("3", "A", {}, 1)));
    Put("b.kvstd", Standard(Check("3", "B") + Check("2", "B")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()), (CStringArray{"-1 A", "3 B", "2 B"}));
}

TEST_F(MergeBatch, OfTwoChecksOfOneTypeTheFirstIsReplaced) {
    Put("a.kvstd", Standard(Check("7", "first", {}, 1) + Check("7", "second") + Check("8", "A")));
    Put("b.kvstd", Standard(Check("7", "B") + Check("9", "x") + Check("9", "y")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()), (CStringArray{"7 second", "8 A", "7 B", "9 y"}));
}

TEST_F(MergeBatch, ATypeWithinAnotherTypeIsNoSuchType) {
    Put("a.kvstd", Standard(Check("101", "A") + Check("210", "A")));
    Put("b.kvstd", Standard(Check("1", "B") + Check("10", "B") + Check("101|210", "B")));
    Put("c.kvstd", Standard(Check("10", "C")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()), (CStringArray{"101 A", "210 A", "1 B", "101|210 B", "10 C"}));
}

TEST_F(MergeBatch, LengthsTakeTheUnitOfTheBase) {
    const CString inside = Measure(1, {"2", "3"}) + Measure(31, {"2"}) + Measure(2, {"45"});
    Put("a.kvstd", Standard({}, "Unit='3'"));
    Put("b.kvstd", Standard(Check("1", "mm", inside), "Unit='0'"));
    Put("c.kvstd", Standard(Check("2", "metre", inside), "Unit='2'"));
    Put("d.kvstd", Standard(Check("3", "none", inside), ""));
    Put("e.kvstd", Standard(Check("4", "same", inside), "Unit='3'"));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ValuesOf(BatchPath(), "mm"), (CStringArray{"0.078740", "3", "0.000122", "45"}));
    EXPECT_EQ(ValuesOf(BatchPath(), "metre"), (CStringArray{"78.740157", "3", "122047.488189", "45"}));
    EXPECT_EQ(ValuesOf(BatchPath(), "none"), (CStringArray{"2", "3", "2", "45"}));
    EXPECT_EQ(ValuesOf(BatchPath(), "same"), (CStringArray{"2", "3", "2", "45"}));
}

TEST_F(MergeBatch, ABaseWithoutUnitConvertsNothing) {
    Put("a.kvstd", Standard({}, "Unit=''"));
    Put("b.kvstd", Standard(Check("1", "B", Measure(1, {"2"})), "Unit='3'"));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ValuesOf(BatchPath(), "B"), CStringArray("2"));
}

TEST_F(MergeBatch, FilesThatAreNoStandardsAreRejected) {
    const CString other = Put("other.kvstd", "<Other><Check Type='1'/></Other>");
    Put("a.kvstd", Standard(Check("1", "A")));
    const CString packed = PutPacked("packed.kvstd", "<Other/>");
    Put("b.kvstd", Standard(Check("2", "B")));
    const CString missing = folder.Path("missing.kvstd");
    files.append(missing);
    EXPECT_EQ(Batch({.reporting = true, .progress = {}}), 1);
    EXPECT_EQ(files, (CStringArray{folder.Path("a.kvstd"), folder.Path("b.kvstd")}));
    EXPECT_EQ(rejected, (CStringArray{other, packed, missing}));
    EXPECT_EQ(messages.texts, CStringArray(LoadString(2401) + "\n" + rejected.join("\n")));
    EXPECT_EQ(ChecksOf(BatchPath()), (CStringArray{"1 A", "2 B"}));
    ASSERT_EQ(outcome.rejectedReasons.size(), 3);
    EXPECT_EQ(outcome.rejectedReasons[0], LoadString(PackingNoStandard));
    EXPECT_EQ(outcome.rejectedReasons[1], LoadString(PackingNoStandard));
    EXPECT_FALSE(outcome.rejectedReasons[2].isEmpty());
}

TEST_F(MergeBatch, RejectedFilesAreNotShownUnlessWanted) {
    Put("other.kvstd", "<Other/>");
    Put("a.kvstd", Standard({}));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(messages.texts, CStringArray());
}

TEST_F(MergeBatch, WithoutAnyStandardThereIsNoResult) {
    Put("other.kvstd", "<Other/>");
    EXPECT_EQ(Batch(), 0);
    EXPECT_EQ(files, CStringArray());
    EXPECT_EQ(outcome.failure, "");
    files = {};
    rejected = {};
    EXPECT_EQ(Batch({.reporting = true, .progress = {}}), 0);
    EXPECT_EQ(messages.texts, CStringArray());
}

TEST_F(MergeBatch, OneStandardIsTheResultAsItIs) {
    Put("broken.kvstd", "<Standard>");
    PutPacked("only one.kvstd", Standard(Check("101", "A", {}, 1)),
              {{"101/a.txt", "side"}, {"FilesToBeMerged/b.txt", "odd"}});
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(outcome.fileName, "only one.kvstd");
    EXPECT_EQ(ChecksOf(BatchPath()), CStringArray("-101 A"));
    EXPECT_EQ(MergedSide("101/a.txt"), "side");
    EXPECT_EQ(MergedSide("FilesToBeMerged/b.txt"), "odd");
    EXPECT_EQ(folder.Names("run"), CStringArray("Merge"));
    EXPECT_EQ(folder.Names("run/Merge"), (CStringArray{"101", "FilesToBeMerged", "only one.kvstd"}));
}

TEST_F(MergeBatch, ACheckWithoutTypeEndsItsFile) {
    Put("a.kvstd", Standard(Check("1", "A")));
    Put("b.kvstd", Standard(Check("2", "B") + "<Check Name='none'/>" + Check("1", "B")));
    const CString third = Put("c.kvstd", Standard("<Check Type=''/>" + Check("3", "C")));
    Put("d.kvstd", Standard(Check("4", "D")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()), (CStringArray{"1 A", "2 B", "4 D"}));
    EXPECT_EQ(messages.texts, (CStringArray{LoadString(2131), LoadString(2131)}));
    EXPECT_EQ(WarningTexts(), (std::vector<unsigned>{MergeRestSkipped, MergeRestSkipped}));
    EXPECT_EQ(outcome.warnings[1].source, third);
}

TEST_F(MergeBatch, ACheckWithoutTypeInTheBaseStays) {
    Put("a.kvstd", Standard("<Check Name='none'/>" + Check("1", "A")));
    Put("b.kvstd", Standard(Check("1", "B")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()), (CStringArray{" none", "1 B"}));
    EXPECT_EQ(messages.texts, CStringArray());
}

TEST_F(MergeBatch, ReportHasOneLineForEachReplacedName) {
    Put("a.kvstd", Standard(Check("1", "One") + Check("2", "Two")));
    const CString second =
        Put("b.kvstd", Standard(Check("2", "Two") + Check("1", "One") + Check("3", "New")));
    const CString third = Put("c.kvstd", Standard(Check("2", "Two")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(report, (CStringArray{LoadString(2402), "Two  --  " + ShortenSourcePath(third),
                                    "One  --  " + ShortenSourcePath(second)}));
}

TEST_F(MergeBatch, ReportIsEmptyWhereNothingWasReplaced) {
    Put("a.kvstd", Standard(Check("1", "A")));
    Put("b.kvstd", Standard(Check("2", "B")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(report, CStringArray());
}

TEST_F(MergeBatch, WhatALaterVersionSavedIsTakenAndTold) {
    const CString first = Put("a.kvstd", Standard(Check("1", "A"), "Version='2027'"));
    const CString second = Put("b.kvstd", Standard(Check("2", "B"), "Version='2030'"));
    Put("c.kvstd", Standard(Check("3", "C"), "Version='2025'"));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()).size(), 3);
    EXPECT_EQ(WarningTexts(), (std::vector<unsigned>{MergeLaterVersion, MergeLaterVersion}));
    EXPECT_EQ(outcome.warnings[0].source, first);
    EXPECT_EQ(outcome.warnings[1].source, second);
    EXPECT_EQ(outcome.warnings[1].Words(), LoadString(MergeLaterVersion).arg("2030"));
}

TEST_F(MergeBatch, WhatTheConversionLeavesIsTold) {
    Put("a.kvstd", Standard({}, "Unit='3' AngularUnit='0'"));
    const CString source = Put("b.kvstd", Standard(Check("1", "Bend", Measure(1, {"10", "20"})) +
                                                       Check("2", "Draft", Measure(2, {"3"})),
                                                   "Unit='0' AngularUnit='1'"));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(WarningTexts(), (std::vector<unsigned>{MergeFiguresCut, MergeMoreValues, MergeAnglesStay}));
    EXPECT_EQ(outcome.warnings[0].source, source);
    EXPECT_EQ(outcome.warnings[0].check, "Bend");
    EXPECT_EQ(outcome.warnings[0].Words(), LoadString(MergeFiguresCut).arg("Size"));
    EXPECT_EQ(outcome.warnings[2].check, "Draft");
}

TEST_F(MergeBatch, WhatAnEarlierMergeLeftIsGone) {
    QDir(Run()).mkpath("Merge/101");
    folder.Put("run/Merge/101/old.txt", "old");
    folder.Put("run/Merge/Merged.kvstd", "old");
    Put("a.kvstd", Standard(Check("101", "A")));
    Put("b.kvstd", Standard(Check("203", "B")));
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(folder.Names("run/Merge"), CStringArray("Merged.kvstd"));
}

TEST_F(MergeBatch, AFolderThatCannotBeMadeIsTold) {
    folder.Put("blocked", "a file");
    Put("a.kvstd", Standard({}));
    EXPECT_EQ(MergeStandardFiles(folder.Path("blocked"), files, rejected, report, outcome), 0);
    EXPECT_EQ(outcome.failure, LoadString(MergeFolderNotMade).arg(folder.Path("blocked/Merge")));
}

TEST_F(MergeBatch, ProgressRunsToItsEnd) {
    for (const char* name : {"a.kvstd", "b.kvstd", "c.kvstd"})
        Put(name, Standard(Check("1", "A")));
    Put("d.kvstd", "none");
    std::vector<int> steps;
    const auto note = [&steps](int done, int total) {
        EXPECT_EQ(total, 8);
        steps.push_back(done);
    };
    EXPECT_EQ(Batch({.reporting = false, .progress = note}), 1);
    EXPECT_EQ(steps, (std::vector<int>{1, 2, 3, 4, 5, 6, 8}));
}

TEST_F(MergeBatch, ThreeHundredFilesMakeOneStandard) {
    CStringArray expected;
    for (int i = 0; i < 300; ++i) {
        const CString own = CString::number(1000 + i);
        Put(CString("%1.kvstd").arg(i), Standard(Check("101", own) + Check(own, own)));
        expected.append(own + " " + own);
    }
    expected.insert(299, "101 1299");
    EXPECT_EQ(Batch(), 1);
    EXPECT_EQ(ChecksOf(BatchPath()), expected);
    EXPECT_EQ(report.size(), 300); // the heading, and each name but the first
    CStandard standard;
    EXPECT_TRUE(standard.LoadFromFile(BatchPath()));
    EXPECT_EQ(standard.CountLiveChecks(), 301);
}

TEST(MergeNotes, PathsOfMoreThan53CharactersAreShortened) {
    const CString fits(53, 'x');
    EXPECT_EQ(ShortenSourcePath(fits), fits);
    const CString path = "/home/designer/standards/0123456789/sheet metal/rules.kvstd";
    EXPECT_EQ(ShortenSourcePath(path), path.left(25) + "..." + path.right(25));
    EXPECT_EQ(ShortenSourcePath(path).size(), 53);
    MergeNotes notes;
    notes.Replaced("Bend radius", path);
    EXPECT_EQ(notes.Report()[1], "Bend radius  --  /home/designer/standards/...9/sheet metal/rules.kvstd");
}

TEST(MergeNotes, ANameIsOneLineEvenWithALineBreak) {
    MergeNotes notes;
    notes.Replaced("a\nb\r", "p");
    EXPECT_EQ(notes.Report()[1], "a b   --  p");
}
