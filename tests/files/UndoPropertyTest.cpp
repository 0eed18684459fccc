// Random edits of the sample of a standard, all taken back.
#include "fuzz/ScratchFolder.h"
#include "fuzz/StandardProperty.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <random>

namespace {

CString Parameter(int id, int op, int kind, const CString& values) {
    return CString("<Parameter Type='%1'><Operator>%2</Operator><ParameterType>%3</ParameterType>%4"
                   "<Remarks/></Parameter>")
        .arg(id)
        .arg(op)
        .arg(kind)
        .arg(values);
}

// Plain checks, a container, a type that is not known, and a type of which a deleted check is there as well.
CString Sample() {
    const CString child = "<Check Type='104' Name='Property' Criticality='2'>" +
                          Parameter(1724, 2, 0, "<Value>Material</Value>") +
                          Parameter(1726, 2, 0, "<Value>Steel</Value>") + "</Check>";
    return "<Standard Unit='0' AngularUnit='0' Version='2026'>"
           "<Check Type='312' Name='Deleted' LifeStatus='1'/>"
           "<Check Type='102' Name='Arrows' LifeStatus='0' Criticality='2'>" +
           Parameter(1552, 1, 1, "<Value>1.5</Value><Value>2.5</Value>") +
           Parameter(1553, 7, 1, "<Value>3</Value>") + "</Check>" +
           "<Check Type='105' Name='Properties' LifeStatus='0'>" + child + child + "</Check>" +
           "<Check Type='312' Name='Display' LifeStatus='2'>" + Parameter(1742, 2, 25, "<Value>2</Value>") +
           "</Check><Check Type='9999' Name='Unknown' LifeStatus='0'/></Standard>";
}

std::string RandomEdits(unsigned seed) {
    std::mt19937 random(seed);
    std::string edits(2 * (1 + random() % 30), '\0');
    for (char& byte : edits)
        byte = static_cast<char>(random());
    return edits;
}

} // namespace

TEST(UndoProperty, UndoOfEverythingBringsBackWhatThereWas) {
    const ScratchFolder folder;
    const StandardRoom room(folder.Path());
    for (unsigned seed = 1; seed <= 400; ++seed) {
        CStandard standard;
        ASSERT_TRUE(standard.LoadFromXmlText(Sample()));
        ASSERT_TRUE(room.UndoesAll(standard, RandomEdits(seed))) << "seed " << seed;
    }
}

TEST(UndoProperty, DeletingAndBringingBackLeavesTheSameBytes) {
    const TestFolder folder;
    CStandard standard;
    ASSERT_TRUE(standard.LoadFromXmlText(Sample()));
    const auto bytes = [&] {
        standard.SaveToFile(folder.Path("s.kvstd"));
        return folder.Get("s.kvstd");
    };
    const QByteArray before = bytes();
    CheckList checks;
    standard.GetLiveChecks(checks);
    for (const CCheck* check : checks) {
        if (check->LifeStatus != LifeInForce)
            continue;
        standard.DeleteCheck(check->Sequence);
        unsigned sequence = 0;
        auto again = CStandard::MakeCheck(check->Type);
        standard.AddCheck(again, sequence);
        EXPECT_EQ(sequence, standard.LastSequence);
    }
    EXPECT_NE(bytes(), before); // they stand at the end now
    int step = 0;
    while (standard.CanUndo())
        standard.StepHistory(true, step);
    EXPECT_EQ(bytes(), before);
}

TEST(UndoProperty, OfTwoChecksOfOneTypeTheRightOneComesBack) {
    CStandard standard;
    ASSERT_TRUE(standard.LoadFromXmlText(Sample()));
    CheckList checks;
    standard.GetAllChecks(checks);
    CCheck* const deleted = checks[0];
    CCheck* const live = checks[3];
    int step = 0;
    unsigned sequence = 0;
    const auto bringBack = [&] {
        auto check = CStandard::MakeCheck(312);
        standard.AddCheck(check, sequence);
    };
    standard.DeleteCheck(live->Sequence);
    bringBack(); // the other one, which was deleted first
    EXPECT_EQ(deleted->LifeStatus, LifeInForce);
    standard.StepHistory(true, step);
    bringBack(); // now this one has the lower number
    EXPECT_EQ(live->LifeStatus, LifeInForce);
    while (standard.CanUndo())
        standard.StepHistory(true, step);
    EXPECT_EQ(deleted->LifeStatus, LifeDeleted);
    EXPECT_EQ(live->LifeStatus, LifeInForce);
    EXPECT_EQ(live->Sequence, 4u);
    while (standard.CanRedo())
        standard.StepHistory(false, step);
    EXPECT_EQ(deleted->LifeStatus, LifeDeleted);
    EXPECT_EQ(live->LifeStatus, LifeInForce);
    EXPECT_EQ(live->Sequence, sequence);
}

TEST(UndoProperty, AStepOfARemovedCheckFindsAnotherOfItsTypeOrNone) {
    CStandard standard;
    unsigned sequence = 0;
    int step = 0;
    auto check = CStandard::MakeCheck(203);
    standard.AddCheck(check, sequence);
    standard.DeleteCheck(sequence);
    standard.RemoveCheck(sequence);
    EXPECT_EQ(standard.StepHistory(true, step), 203);
    EXPECT_EQ(standard.GetHistoryIndex(), 1); // nothing to bring back: the step stays
    standard.InsertCheck(CStandard::MakeCheck(203), sequence);
    EXPECT_EQ(standard.StepHistory(true, step), 203);
    EXPECT_EQ(standard.GetHistoryIndex(), 0);
    const CStandard empty;
    standard = empty;
    EXPECT_EQ(standard.StepHistory(true, step), 203);
    EXPECT_EQ(standard.GetHistoryIndex(), -1);
}

TEST(UndoProperty, TheSecondWriteIsTheLastThatChangesAnything) {
    const ScratchFolder folder;
    const StandardRoom room(folder.Path());
    CStandard standard;
    ASSERT_TRUE(standard.LoadFromXmlText(Sample()));
    EXPECT_TRUE(room.WritesTheSameAgain(standard));
}
