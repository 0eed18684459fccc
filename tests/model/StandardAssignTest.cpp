#include "support/CheckNumbers.h"
#include "support/StandardText.h"

#include <gtest/gtest.h>

namespace {

using Numbers = std::vector<unsigned>;

// Checks 102 (numbers 1 and 3) and 312 (number 2); number 1 is deleted.
void Fill(CStandard& standard) {
    for (int type : {102, 312, 102})
        Insert(standard, type);
    standard.DeleteCheck(1);
    for (CCheck* check : AllOf(standard))
        if (check->Type == 102)
            check->GetDoubleParameter(1552)->Values.Add(25.4);
}

double LengthOf(const CCheck& check) {
    return check.GetDoubleParameter(1552)->Values[0];
}

} // namespace

TEST(StandardAssignment, KeepsDeletedChecksAndRenumbersAll) {
    CStandard source;
    for (int type : {101, 312, 406, 102})
        Insert(source, type);
    source.DeleteCheck(3);
    source.RemoveCheck(1);
    CStandard target;
    for (int type : {201, 202})
        Insert(target, type);
    target = source;
    const CheckList checks = AllOf(target);
    EXPECT_EQ(NumbersOf(checks), (Numbers{1, 2, 3}));
    EXPECT_EQ(target.LastSequence, 3u);
    EXPECT_EQ(checks[0]->Type, 312);
    EXPECT_EQ(checks[1]->Type, 406);
    EXPECT_EQ(checks[1]->LifeStatus, LifeDeleted);
    EXPECT_EQ(NumbersOf(LiveOf(target)), (Numbers{1, 3}));
    EXPECT_EQ(NumbersOf(AllOf(source)), (Numbers{2, 3, 4}));
}

TEST(StandardAssignment, TakesUnitsAndOptionButNeitherHeaderNorHistory) {
    CStandard source;
    source.Unit = Inch;
    source.AngularUnit = Radian;
    source.RunRWConfigOption = 2;
    source.Name = source.CreatedOn = source.Createdby = "source";
    Insert(source, 312);
    source.DeleteCheck(1);
    CStandard target;
    target.Name = target.CreatedOn = target.Createdby = "target";
    target = source;
    EXPECT_EQ(target.Unit, Inch);
    EXPECT_EQ(target.AngularUnit, Radian);
    EXPECT_EQ(target.RunRWConfigOption, 2);
    EXPECT_EQ(target.Name + target.CreatedOn + target.Createdby, "targettargettarget");
    EXPECT_EQ(target.GetHistoryIndex(), -1);
    EXPECT_EQ(target.History.Count, 0);
}

TEST(StandardAssignment, ToItselfChangesNothing) {
    CStandard standard;
    Fill(standard);
    const CStandard& itself = standard;
    standard = itself;
    EXPECT_EQ(NumbersOf(AllOf(standard)), (Numbers{1, 2, 3}));
}

TEST(ChangeUnits, ConvertsAllChecksDeletedOnesIncluded) {
    CStandard standard;
    standard.Unit = Millimetre;
    standard.AngularUnit = Degree;
    Fill(standard);
    standard.ChangeUnits(Inch, Radian);
    EXPECT_EQ(standard.Unit, Inch);
    EXPECT_EQ(standard.AngularUnit, Radian);
    EXPECT_NEAR(LengthOf(*AllOf(standard)[0]), 1.0, 1e-9);
    EXPECT_NEAR(LengthOf(*AllOf(standard)[2]), 1.0, 1e-9);
}

TEST(ChangeUnits, UndoBringsBackFiguresOfTheUnitInForce) {
    CStandard standard;
    standard.Unit = Millimetre;
    standard.AngularUnit = Degree;
    Insert(standard, 102);
    AllOf(standard)[0]->GetDoubleParameter(1552)->Values.Add(25.4);
    auto edited = CStandard::CloneCheck(*AllOf(standard)[0]);
    edited->GetDoubleParameter(1552)->Values[0] = 50.8;
    standard.EditCheck(std::move(edited));
    standard.ChangeUnits(Inch, Degree);
    EXPECT_NEAR(LengthOf(*AllOf(standard)[0]), 2.0, 1e-9);
    int step = 0;
    standard.StepHistory(true, step);
    EXPECT_NEAR(LengthOf(*AllOf(standard)[0]), 1.0, 1e-9);
    EXPECT_EQ(standard.Unit, Inch);
    standard.StepHistory(false, step);
    EXPECT_NEAR(LengthOf(*AllOf(standard)[0]), 2.0, 1e-9);
}

TEST(ChangeUnits, LeavesNoStep) {
    CStandard standard;
    Insert(standard, 102);
    standard.ChangeUnits(Inch, Degree);
    EXPECT_EQ(standard.GetHistoryIndex(), -1);
}
