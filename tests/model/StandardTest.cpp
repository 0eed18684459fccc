#include "model/Standard.h"

#include "support/FixedSession.h"
#include "support/StandardText.h"

#include <gtest/gtest.h>

namespace {

using Numbers = std::vector<unsigned>;

unsigned Add(CStandard& standard, int type) {
    unsigned number = 0;
    auto check = CStandard::MakeCheck(type);
    standard.AddCheck(check, number);
    EXPECT_EQ(check, nullptr);
    return number;
}

CCheck* Live(const CStandard& standard, int type) {
    CCheck* check = nullptr;
    standard.FindLiveByType(type, check);
    return check;
}

CCheck* Numbered(const CStandard& standard, unsigned number) {
    CCheck* check = nullptr;
    standard.FindBySequence(number, check);
    return check;
}

void SetLong(CCheck& check, unsigned id, long value) {
    CParameter<long>& parameter = *check.GetLongParameter(id);
    parameter.ClearValues();
    parameter.Values.Add(value);
    parameter.Operator = OpEqual;
}

} // namespace

TEST(Standard, NewOneIsEmpty) {
    CStandard standard;
    CheckList list;
    EXPECT_FALSE(standard.GetLiveChecks(list));
    EXPECT_FALSE(standard.GetAllChecks(list));
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(standard.GetHistoryIndex(), -1);
    EXPECT_FALSE(standard.CanUndo());
    EXPECT_FALSE(standard.CanRedo());
    EXPECT_EQ(standard.Unit, -2);
    EXPECT_EQ(standard.AngularUnit, -2);
    EXPECT_EQ(standard.LastSequence, 0u);
    EXPECT_EQ(standard.RunRWConfigOption, 0);
    EXPECT_EQ(standard.CountLiveChecks(), 0);
    EXPECT_EQ(standard.Name + standard.CreatedOn + standard.Createdby + standard.ReportXml, "");
    ASSERT_TRUE(standard.Root);
    EXPECT_EQ(standard.Root->Type, 0);
    EXPECT_EQ(standard.Root->Sequence, 0u);
    EXPECT_EQ(standard.Root->Links.Values.Count, 0);
}

TEST(Standard, FactoryMakesContainersForTheirFiveCodes) {
    for (int type : {105, 122, 127, 303, 310})
        EXPECT_TRUE(dynamic_cast<CCheckManager*>(CStandard::MakeCheck(type).get())) << type;
    for (int type : {0, 101, 104, 121, 124, 304, 308, 605, 900})
        EXPECT_FALSE(dynamic_cast<CCheckManager*>(CStandard::MakeCheck(type).get())) << type;
}

TEST(Standard, CloneHasTheLifeStatusToo) {
    const auto check = CStandard::MakeCheck(312);
    check->LifeStatus = LifeDeleted;
    check->Sequence = 5;
    const auto clone = CStandard::CloneCheck(*check);
    EXPECT_EQ(clone->LifeStatus, LifeDeleted);
    EXPECT_EQ(clone->Sequence, 5u);
}

TEST(Standard, ChecksAreNumberedAndDeletedOnesHidden) {
    CStandard standard;
    EXPECT_EQ(Add(standard, 101), 1u);
    EXPECT_EQ(Add(standard, 102), 2u);
    EXPECT_EQ(Add(standard, 312), 3u);
    standard.DeleteCheck(2);
    EXPECT_EQ(NumbersOf(LiveOf(standard)), (Numbers{1, 3}));
    EXPECT_EQ(NumbersOf(AllOf(standard)), (Numbers{1, 2, 3}));
    EXPECT_EQ(standard.CountLiveChecks(), 2);
    EXPECT_EQ(Numbered(standard, 2)->LifeStatus, LifeDeleted);
    EXPECT_EQ(standard.GetHistoryIndex(), 3);
}

TEST(Standard, AddingADeletedTypeBringsTheOldOneBackAtTheEnd) {
    CStandard standard;
    for (int type : {101, 312, 102})
        Add(standard, type);
    SetLong(*Live(standard, 312), 1742, 2);
    CCheck* const old = Live(standard, 312);
    standard.DeleteCheck(2);

    auto given = CStandard::MakeCheck(312);
    const CCheck* const kept = given.get();
    SetLong(*given, 1742, 1);
    unsigned number = 0;
    EXPECT_EQ(standard.AddCheck(given, number), 4);
    EXPECT_EQ(number, 4u);
    EXPECT_EQ(NumbersOf(LiveOf(standard)), (Numbers{1, 3, 4}));
    EXPECT_EQ(NumbersOf(AllOf(standard)), (Numbers{1, 3, 4}));
    EXPECT_EQ(Live(standard, 312), old);
    EXPECT_EQ(old->GetLongParameter(1742)->Values[0], 2);

    EXPECT_EQ(given.get(), kept) << "it stays with the caller";
    EXPECT_EQ(given->GetLongParameter(1742)->Values[0], 2);
    EXPECT_EQ(given->Sequence, 4u);
    EXPECT_EQ(given->LifeStatus, LifeInForce);
}

TEST(Standard, EditWithoutDifferenceLeavesNoStep) {
    CStandard standard;
    Add(standard, 406);
    EXPECT_EQ(standard.EditCheck(CStandard::MakeCheck(406)), nullptr);
    EXPECT_EQ(standard.GetHistoryIndex(), 0);
    auto critical = CStandard::MakeCheck(406);
    critical->Criticality = 3;
    EXPECT_EQ(standard.EditCheck(std::move(critical)), nullptr);
    EXPECT_EQ(standard.GetHistoryIndex(), 1);
    EXPECT_EQ(Live(standard, 406)->Criticality, 3u);
    EXPECT_EQ(standard.History[1]->LifeStatus, LifeEdited);
    EXPECT_EQ(standard.History[1]->Criticality, 1u);
}

TEST(Standard, EditOfAContainerSetsItsCriticality) {
    CStandard standard;
    Add(standard, 105);
    auto edited = CStandard::MakeCheck(105);
    edited->Criticality = 0;
    standard.EditCheck(std::move(edited));
    EXPECT_EQ(Live(standard, 105)->Criticality, 0u);
    EXPECT_EQ(Live(standard, 105)->Sequence, 1u);
}

TEST(Standard, EditWithoutALiveCheckGivesAnEmptyOneBack) {
    CStandard standard;
    Add(standard, 312);
    standard.DeleteCheck(1);
    auto edited = CStandard::MakeCheck(312);
    SetLong(*edited, 1742, 1);
    const auto result = standard.EditCheck(std::move(edited));
    ASSERT_TRUE(result);
    EXPECT_EQ(result->Type, 312);
    EXPECT_EQ(result->GetLongParameter(1742)->Values.Count, 0);
    EXPECT_EQ(standard.GetHistoryIndex(), 1);
}

TEST(Standard, EditOfACopyLeavesTheCallersCheck) {
    CStandard standard;
    Add(standard, 312);
    const auto edited = CStandard::MakeCheck(312);
    SetLong(*edited, 1742, 1);
    EXPECT_EQ(standard.EditCheckCopy(*edited), nullptr);
    EXPECT_EQ(Live(standard, 312)->GetLongParameter(1742)->Values[0], 1);
    EXPECT_EQ(edited->Sequence, 0u);
}

TEST(Standard, LookUpsLeaveThePointerWhereThereIsNone) {
    CStandard standard;
    Add(standard, 312);
    standard.DeleteCheck(1);
    CCheck marker(0, 0, 0, 0, 1);
    CCheck* check = &marker;
    standard.FindBySequence(7, check);
    EXPECT_EQ(check, &marker);
    standard.FindLiveByType(312, check);
    EXPECT_EQ(check, &marker);
    standard.FindAnyByType(101, check);
    EXPECT_EQ(check, &marker);
    standard.FindAnyByType(312, check);
    EXPECT_EQ(check->Sequence, 1u);
}

TEST(Standard, TypeGivesTheLowestNumber) {
    CStandard standard;
    unsigned number = 0;
    for (int i = 0; i < 3; ++i)
        standard.InsertCheck(CStandard::MakeCheck(312), number);
    EXPECT_EQ(number, 3u);
    Numbered(standard, 1)->LifeStatus = LifeDeleted;
    EXPECT_EQ(Live(standard, 312)->Sequence, 2u);
    CCheck* any = nullptr;
    standard.FindAnyByType(312, any);
    EXPECT_EQ(any->Sequence, 1u);
}

TEST(Standard, DeletingOrRemovingAnUnknownNumberDoesNothing) {
    CStandard standard;
    Add(standard, 312);
    standard.DeleteCheck(9);
    standard.RemoveCheck(9);
    EXPECT_EQ(NumbersOf(LiveOf(standard)), Numbers{1});
    EXPECT_EQ(standard.GetHistoryIndex(), 0);
}

TEST(Standard, RemovingTheOnlyCheckLeavesTheBottomNode) {
    CStandard standard;
    const CCheck* const bottom = standard.Root;
    Add(standard, 312);
    EXPECT_NE(standard.Root, bottom);
    standard.RemoveCheck(1);
    EXPECT_EQ(standard.Root, bottom);
    EXPECT_TRUE(AllOf(standard).empty());
    EXPECT_EQ(standard.LastSequence, 1u) << "numbers are not given out again";
    EXPECT_EQ(standard.GetHistoryIndex(), 0) << "removing leaves no step";
}

TEST(Standard, UnreadableLifeStatusCountsAsInForce) {
    CStandard standard;
    Add(standard, 312);
    Numbered(standard, 1)->LifeStatus = LifeUnreadable;
    EXPECT_EQ(standard.CountLiveChecks(), 1);
}

TEST(Standard, ManagedCorrectionWantsStatusTwoAndAKind) {
    CStandard standard;
    Add(standard, 312);
    CCheck& check = *Numbered(standard, 1);
    EXPECT_FALSE(standard.HasManagedCorrection());
    check.Status = 2;
    EXPECT_FALSE(standard.HasManagedCorrection());
    check.CorrectionKind = 1;
    EXPECT_TRUE(standard.HasManagedCorrection());
    check.LifeStatus = LifeDeleted;
    EXPECT_FALSE(standard.HasManagedCorrection());
}

TEST(Standard, ReferencedFilesAreTheFirstValuesOfTheCustomChecks) {
    CStandard standard;
    CStringArray files{"stale"};
    standard.GetReferencedFiles(files);
    EXPECT_TRUE(files.isEmpty());
    auto container = std::make_unique<CCheckManager>(122);
    for (const CStringArray& values :
         {CStringArray{"C:\\a.swp", "b.swp"}, CStringArray(), CStringArray("c")}) {
        auto child = container->MakeChild();
        for (const CString& value : values)
            child->GetStringParameter(132)->Values.Add(new CString(value));
        container->Children.Add(child.release());
    }
    unsigned number = 0;
    standard.InsertCheck(std::move(container), number);
    standard.GetReferencedFiles(files);
    EXPECT_EQ(files, (CStringArray{"C:\\a.swp", "c"}));
    standard.DeleteCheck(number);
    standard.GetReferencedFiles(files);
    EXPECT_TRUE(files.isEmpty());
}

TEST(Standard, HeaderIsStampedWithUserAndTime) {
    const FixedSession session("designer", COleDateTime(QDate(2026, 3, 5), QTime(14, 7, 9)));
    CStandard standard;
    standard.SetHeader("C:\\Rules\\Plate rules.kvstd", "German");
    EXPECT_EQ(standard.Name, "C:\\Rules\\Plate rules.kvstd");
    EXPECT_EQ(standard.Createdby, "designer");
    EXPECT_EQ(standard.CreatedOn, "05.03.26 2.07pm");
}
