// The rows of a check: plain, in a container, and those that are put together from others.
#include "model/CheckWording.h"

#include "model/ParameterValue.h"
#include "model/Standard.h"
#include "support/Language.h"

#include <gtest/gtest.h>

namespace {

constexpr unsigned Critical = 3;
constexpr unsigned Low = 0;

void Set(CCheck& check, unsigned id, unsigned op, const CStringArray& values,
         const char* correction = nullptr) {
    VisitParameter(*check.FindParameter(id), [&]<class T>(CParameter<T>& parameter) {
        parameter.Operator = op;
        for (const CString& value : values)
            parameter.Values.Add(ValueForm<T>::Parse(value));
        if (!correction)
            return;
        parameter.CorrectionKind = CorrectionFixed;
        parameter.SetCorrection(ValueForm<T>::Parse(correction));
    });
}

CCheck& AddChild(CCheck& container) {
    auto child = dynamic_cast<CCheckManager&>(container).MakeChild();
    CCheck& added = *child;
    container.Children.Add(child.release());
    return added;
}

// "parameter|value|correction|criticality|child" of each row.
CStringArray Rows(const CCheck& check) {
    CStringArray rows;
    for (const CheckRow& row : WordCheck(check, 0, 0))
        rows.append(CString("%1|%2|%3|%4|%5")
                        .arg(row.parameter.parameter, row.parameter.value, row.parameter.correction)
                        .arg(row.criticality)
                        .arg(row.child));
    return rows;
}

} // namespace

TEST(CheckWording, ParametersInTheirOrder) {
    const auto check = CStandard::MakeCheck(109);
    check->Criticality = Critical;
    Set(*check, 1704, OpBetween, {"2.5", "3.5"}, "3.5");
    Set(*check, 1700, OpOneOf, {"DejaVu Sans"});
    EXPECT_EQ(Rows(*check), (CStringArray{"Font Name|DejaVu Sans|--|3|-1",
                                          "Text Height|between(2.5mm , 3.5mm)|3.5mm|3|-1"}));
}

TEST(CheckWording, NothingInForceGivesNoRows) {
    EXPECT_EQ(Rows(*CStandard::MakeCheck(109)), CStringArray());
}

TEST(CheckWording, TypesThatAreShownByTheirSummary) {
    for (const int type : {107, 118, 301, 307, 313, 606, 0, 999}) {
        const auto check = CStandard::MakeCheck(type);
        for (CParameterEntry* entry : check->Parameters)
            entry->Parameter->Operator = OpEqual;
        EXPECT_EQ(Rows(*check), CStringArray()) << type;
    }
}

TEST(CheckWording, DraftingStandardByItsTexts) {
    const auto check = CStandard::MakeCheck(101);
    Set(*check, 1578, OpOneOf, {"1", "2"}, "2");
    EXPECT_EQ(Rows(*check), CStringArray{"Drafting Standard|ANSI,ISO|--|1|-1"});
    EXPECT_TRUE(check->GetLongParameter(1578)) << "the check itself keeps its codes";
}

TEST(CheckWording, DraftingStandardOfOnesOwn) {
    const auto check = CStandard::MakeCheck(101);
    Set(*check, 1578, OpOneOf, {"2", "8"});
    Set(*check, 0, OpOneOf, {"House rules"});
    EXPECT_EQ(Rows(*check), CStringArray{"Drafting Standard|ISO,House rules|--|1|-1"});
}

TEST(CheckWording, DraftingStandardWithoutValues) {
    EXPECT_EQ(Rows(*CStandard::MakeCheck(101)), CStringArray{"Drafting Standard||--|1|-1"});
}

TEST(CheckWording, ThePageShowsTheCorrectionOfADraftingStandard) {
    const auto check = CStandard::MakeCheck(101);
    EXPECT_TRUE(WordCheckOfPage(*check, 0, 0).empty()) << "no choice is not in force";
    Set(*check, 1578, OpOneOf, {"1", "2"}, "2");
    const std::vector<CheckRow> rows = WordCheckOfPage(*check, 0, 0);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].parameter.value, "ANSI,ISO");
    EXPECT_EQ(rows[0].parameter.correction, "ISO");
}

TEST(CheckWording, EntriesOfAContainerTakeItsCriticality) {
    const auto container = CStandard::MakeCheck(105);
    container->Criticality = Critical;
    for (const char* name : {"Weight", "Finish"}) {
        CCheck& child = AddChild(*container);
        child.Criticality = Low;
        Set(child, 1724, OpEqual, {name});
    }
    EXPECT_EQ(Rows(*container), (CStringArray{"Property Name|Weight|--|3|0", "Property Name|Finish|--|3|1"}));
}

TEST(CheckWording, WhatOnlyCarriesMeaningIsNotShown) {
    const auto container = CStandard::MakeCheck(105);
    CCheck& child = AddChild(*container);
    Set(child, 1724, OpEqual, {"Weight"});
    Set(child, 0, OpOneOf, {"5"});
    EXPECT_EQ(Rows(*container), CStringArray{"Property Name|Weight|--|1|0"});
}

TEST(CheckWording, CustomChecksHaveTheirOwnCriticality) {
    const auto container = CStandard::MakeCheck(122);
    container->Criticality = Low;
    CCheck& first = AddChild(*container);
    first.Criticality = Critical;
    Set(first, 135, OpEqual, {"Bend radius"});
    CCheck& second = AddChild(*container);
    second.Criticality = 2;
    Set(second, 135, OpEqual, {"Flat pattern"});
    EXPECT_EQ(Rows(*container),
              (CStringArray{"Check Name|Bend radius|--|3|0", "Check Name|Flat pattern|--|2|1"}));
}

TEST(CheckWording, FileLocationsAreOneRowEach) {
    const auto container = CStandard::MakeCheck(127);
    container->Criticality = 2;
    CCheck& child = AddChild(*container);
    child.Criticality = Low;
    Set(child, 2473, OpEqual, {"2"}, "2");
    Set(child, 2474, OpOneOf, {"S:\\CAD\\Formats", "D:\\Local"});
    Set(*container, container->Parameters[0]->ID, OpOneOf, {"1"});
    const std::vector<CheckRow> rows = WordCheck(*container, 0, 0);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].parameter.parameter, "Sheet Formats");
    EXPECT_EQ(rows[0].parameter.value, "Formats (S:\\CAD)Local (D:)") << "nothing between the folders";
    EXPECT_EQ(rows[0].parameter.correction, "Sheet Formats");
    EXPECT_EQ(rows[0].criticality, 2u);
    EXPECT_EQ(rows[0].child, 0);
    EXPECT_EQ(rows[1].parameter.parameter, "Folder Rules");
    EXPECT_EQ(rows[1].child, -1);
}

TEST(CheckWording, AContainersOwnParametersComeLast) {
    const auto container = CStandard::MakeCheck(127);
    for (CParameterEntry* entry : container->Parameters)
        entry->Parameter->Operator = OpEqual;
    EXPECT_EQ(Rows(*container).size(), 1) << "of file locations only the first";
}

TEST(CheckWording, AnEmptyContainer) {
    for (const int type : {105, 122, 310, 401})
        EXPECT_EQ(Rows(*CStandard::MakeCheck(type)), CStringArray()) << type;
}
