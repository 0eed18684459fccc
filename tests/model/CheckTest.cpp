#include "model/Check.h"

#include "engines/EnumEngine.h"
#include "platform/LanguageLibrary.h"
#include "support/Messages.h"

#include <QLoggingCategory>
#include <gtest/gtest.h>

namespace {

CCheck NewCheck(int type) {
    return CCheck(type, 0, 0, 0, 1);
}

QStringList debugLines;

void KeepLine(QtMsgType, const QMessageLogContext&, const QString& line) {
    debugLines.append(line);
}

} // namespace

TEST(Check, NewOneIsInForceWithoutNumber) {
    const CCheck check = NewCheck(102);
    EXPECT_EQ(check.Type, 102);
    EXPECT_EQ(check.Sequence, 0u);
    EXPECT_EQ(check.Status, 0u);
    EXPECT_EQ(check.LifeStatus, LifeInForce);
    EXPECT_EQ(check.Criticality, 1u);
    EXPECT_EQ(check.CorrectionKind, 0u);
    EXPECT_EQ(check.Children.Count, 0);
    EXPECT_EQ(check.Links.Values.Count, 0);
    EXPECT_EQ(check.Links.Values[0], nullptr);
    EXPECT_EQ(check.Links.Values[1], nullptr);
    EXPECT_EQ(check.Links.Operator, OpOneOf);
    EXPECT_EQ(check.Links.CorrectionKind, CorrectionAbsent);
}

TEST(Check, FieldsAreThoseGiven) {
    const CCheck check(704, 7, 2, LifeEdited, 3);
    EXPECT_EQ(check.Sequence, 7u);
    EXPECT_EQ(check.Status, 2u);
    EXPECT_EQ(check.LifeStatus, LifeEdited);
    EXPECT_EQ(check.Criticality, 3u);
}

TEST(Check, ParametersAreFoundByNumberAndZeroIsOne) {
    const CCheck check = NewCheck(101);
    const CParameterEntry* entry = check.FindParameter(0);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->DataType, DataText);
    EXPECT_EQ(entry, check.Parameters[1]);
    EXPECT_EQ(check.FindParameter(1), nullptr);
    EXPECT_EQ(NewCheck(406).FindParameter(0), nullptr);
}

TEST(Check, TypedLookupsWantTheDataType) {
    const CCheck fonts = NewCheck(109);
    EXPECT_TRUE(fonts.GetStringParameter(1700));
    EXPECT_EQ(fonts.GetLongParameter(1700), nullptr);
    EXPECT_TRUE(fonts.GetLongParameter(1701));
    EXPECT_TRUE(fonts.GetIntParameter(1702));
    EXPECT_EQ(fonts.GetLongParameter(1702), nullptr);
    EXPECT_TRUE(fonts.GetDoubleParameter(1704));
    EXPECT_EQ(fonts.GetIntParameter(1704), nullptr);
    EXPECT_TRUE(NewCheck(124).GetBoolParameter(2476));
    EXPECT_TRUE(NewCheck(304).GetULongParameter(1564));
    EXPECT_EQ(NewCheck(304).GetBoolParameter(1564), nullptr);
    EXPECT_EQ(fonts.GetDateParameter(1700), nullptr);
    EXPECT_EQ(fonts.GetStringParameter(9999), nullptr);
}

TEST(Check, CopyTakesAllButStatusAndLifeStatus) {
    CCheck source(312, 4, 2, LifeEdited, 3);
    source.Name = "own name";
    source.CorrectionKind = 1;
    source.GetLongParameter(1742)->Values.Add(2);
    CCheck target(312, 9, 0, LifeDeleted, 1);
    EXPECT_EQ(&target.CopyFrom(source), &target);
    EXPECT_EQ(target.Sequence, 4u);
    EXPECT_EQ(target.Name, "own name");
    EXPECT_EQ(target.Criticality, 3u);
    EXPECT_EQ(target.GetLongParameter(1742)->Values[0], 2);
    EXPECT_EQ(target.Status, 0u);
    EXPECT_EQ(target.LifeStatus, LifeDeleted);
    EXPECT_EQ(target.CorrectionKind, 0u);
}

TEST(Check, CopyTakesTheLinks) {
    CCheck below = NewCheck(0);
    CCheck node = NewCheck(0);
    node.Links.Values.Add(&below);
    CCheck copy = NewCheck(0);
    copy.CopyFrom(node);
    EXPECT_EQ(copy.Links.Values[0], &below);
}

TEST(Check, EditCopiesNameParametersAndCriticality) {
    CCheck edited = NewCheck(312);
    edited.Name = "renamed";
    edited.Criticality = 2;
    edited.GetLongParameter(1742)->Values.Add(1);
    CCheck live(312, 3, 0, LifeEdited, 1);
    EXPECT_TRUE(edited.ApplyTo(live));
    EXPECT_EQ(live.Name, "renamed");
    EXPECT_EQ(live.Criticality, 2u);
    EXPECT_EQ(live.GetLongParameter(1742)->Values[0], 1);
    EXPECT_EQ(live.Sequence, 3u);
    EXPECT_EQ(live.LifeStatus, LifeEdited);
}

TEST(Check, IdenticalParametersWithoutCorrectionCountAsAChange) {
    CCheck edited = NewCheck(312);
    CCheck live = NewCheck(312);
    EXPECT_TRUE(edited.ApplyTo(live));
}

TEST(Check, CriticalityAloneIsAChangeAndANameIsNot) {
    CCheck edited = NewCheck(406);
    CCheck live = NewCheck(406);
    edited.Name = "renamed";
    EXPECT_FALSE(edited.ApplyTo(live));
    EXPECT_EQ(live.Name, "renamed");
    edited.Criticality = 0;
    EXPECT_TRUE(edited.ApplyTo(live));
    EXPECT_FALSE(edited.ApplyTo(live));
}

TEST(Check, EditSkipsEmptySlots) {
    CCheck edited = NewCheck(602);
    CCheck live = NewCheck(602);
    delete edited.Parameters[0];
    edited.Parameters[0] = nullptr;
    EXPECT_FALSE(edited.ApplyTo(live));
    EXPECT_FALSE(live.ApplyTo(edited));
}

TEST(Check, CorrectionKindSpreadsOverTheParameters) {
    CCheck check = NewCheck(109);
    check.SetCorrectionKind(1);
    EXPECT_EQ(check.CorrectionKind, 1u);
    for (const CParameterEntry* entry : check.Parameters)
        EXPECT_EQ(entry->Parameter->CorrectionKind, 1);
}

TEST(Check, IllegalDataTypeShowsAMessageAndTheOthersGoOn) {
    CCheck check = NewCheck(602);
    const Messages messages;
    check.Parameters.Add(CreateParameter(9, 1, OpNone, 0, false).release());
    check.Parameters.Add(CreateParameter(DataLong, 1701, OpNone, 0, false).release());
    check.SetCorrectionKind(1);
    EXPECT_EQ(messages.texts.count("Illegal Param DataType Defined"), 2);
    EXPECT_EQ(check.Parameters[2]->Parameter->CorrectionKind, 1);
}

TEST(Check, HooksDoNothing) {
    CCheck check = NewCheck(101);
    check.HookA();
    check.HookB();
    check.HookF();
    EXPECT_EQ(check.HookC(), -1);
    EXPECT_EQ(check.HookD(), 0);
    EXPECT_EQ(check.HookE(), 1);
}

TEST(Check, MisalignedMatesAreNamedInTheDebugOutput) {
    debugLines.clear();
    QLoggingCategory::setFilterRules("ruleward.model.debug=true");
    const QtMessageHandler before = qInstallMessageHandler(KeepLine);
    NewCheck(607);
    NewCheck(608);
    qInstallMessageHandler(before);
    QLoggingCategory::setFilterRules({});
    EXPECT_EQ(debugLines, QStringList("Populate_MisalignConcentricCheck Entered \n"));
}
