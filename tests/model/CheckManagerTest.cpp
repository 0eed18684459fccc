#include "model/CheckManager.h"

#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>

namespace {

CCheck& AddChild(CCheckManager& container, const char* name) {
    auto child = container.MakeChild();
    child->GetStringParameter(1724)->Values.Add(new CString(name));
    return *container.Children[container.Children.Add(child.release())];
}

CString NameOf(const CCheck& child) {
    return *child.GetStringParameter(1724)->Values[0];
}

// Two containers whose children differ in nothing that counts: their parameters hold corrections equal to
// the kinds.
void MakeTheSame(CCheckManager& a, CCheckManager& b) {
    for (CCheckManager* container : {&a, &b}) {
        CCheck& child = AddChild(*container, "Material");
        for (unsigned id : {1724u, 1726u})
            child.GetStringParameter(id)->SetCorrection(new CString);
        for (unsigned id : {1725u, 0u})
            child.GetLongParameter(id)->Correction = CorrectionAbsent;
    }
}

} // namespace

TEST(CheckManager, HasItsNameAndNoChildren) {
    const CCheckManager container(105);
    EXPECT_EQ(container.Name, LoadString(1723));
    EXPECT_EQ(container.Children.Count, 0);
    EXPECT_EQ(container.Criticality, 1u);
    EXPECT_EQ(container.Sequence, 0u);
}

TEST(CheckManager, FileLocationsHaveTwoParametersOfTheirOwn) {
    EXPECT_EQ(CCheckManager(127).Parameters.Count, 2);
    for (int type : {105, 122, 303, 310})
        EXPECT_EQ(CCheckManager(type).Parameters.Count, 0) << type;
}

TEST(CheckManager, OfAnotherCodeHasNeitherNameNorChildren) {
    const CCheckManager container(101);
    EXPECT_EQ(container.Name, "");
    EXPECT_EQ(container.MakeChild(), nullptr);
}

TEST(CheckManager, HooksDoNothing) {
    CCheckManager container(105);
    container.HookB();
    EXPECT_EQ(container.HookC(), -1);
}

TEST(CheckManager, CopyRebuildsTheChildrenAndLeavesTheName) {
    CCheckManager source(105);
    source.Sequence = 6;
    source.Criticality = 2;
    source.Name = "other";
    source.LifeStatus = LifeDeleted;
    AddChild(source, "Material").Criticality = 3;
    AddChild(source, "Weight");
    CCheckManager target(105);
    AddChild(target, "old");
    target.CopyFrom(source);
    EXPECT_EQ(target.Sequence, 6u);
    EXPECT_EQ(target.Criticality, 2u);
    EXPECT_EQ(target.Name, LoadString(1723));
    EXPECT_EQ(target.LifeStatus, LifeInForce);
    ASSERT_EQ(target.Children.Count, 2);
    EXPECT_NE(target.Children[0], source.Children[0]);
    EXPECT_EQ(NameOf(*target.Children[0]), "Material");
    EXPECT_EQ(target.Children[0]->Criticality, 3u);
    EXPECT_EQ(NameOf(*target.Children[1]), "Weight");
}

TEST(CheckManager, CopyTakesItsOwnParameters) {
    CCheckManager source(127);
    source.GetLongParameter(2477)->Values.Add(4);
    CCheckManager target(127);
    target.CopyFrom(source);
    EXPECT_EQ(target.GetLongParameter(2477)->Values[0], 4);
}

TEST(CheckManager, EditWithoutDifferenceIsNone) {
    CCheckManager edited(105);
    CCheckManager live(105);
    EXPECT_FALSE(edited.ApplyTo(live));
    MakeTheSame(edited, live);
    EXPECT_FALSE(edited.ApplyTo(live));
}

TEST(CheckManager, EditOfAChildIsAChange) {
    CCheckManager edited(105);
    CCheckManager live(105);
    MakeTheSame(edited, live);
    const CCheck* const kept = live.Children[0];
    *edited.Children[0]->GetStringParameter(1724)->Values[0] = "Weight";
    EXPECT_TRUE(edited.ApplyTo(live));
    EXPECT_EQ(live.Children[0], kept);
    EXPECT_EQ(NameOf(*kept), "Weight");
}

TEST(CheckManager, OtherNumberOfChildrenRebuildsThem) {
    CCheckManager edited(105);
    CCheckManager live(105);
    MakeTheSame(edited, live);
    AddChild(edited, "Weight");
    EXPECT_TRUE(edited.ApplyTo(live));
    ASSERT_EQ(live.Children.Count, 2);
    EXPECT_EQ(NameOf(*live.Children[1]), "Weight");
}

TEST(CheckManager, EditAssignsNeitherNameNorCriticality) {
    CCheckManager edited(105);
    CCheckManager live(105);
    edited.Name = "other";
    edited.Criticality = 3;
    EXPECT_TRUE(edited.ApplyTo(live));
    EXPECT_EQ(live.Name, LoadString(1723));
    EXPECT_EQ(live.Criticality, 1u);
}

TEST(CheckManager, EditOfItsOwnParametersIsAChange) {
    CCheckManager edited(127);
    CCheckManager live(127);
    for (CCheckManager* container : {&edited, &live})
        for (unsigned id : {2477u, 2478u})
            container->GetLongParameter(id)->Correction = CorrectionAbsent;
    EXPECT_FALSE(edited.ApplyTo(live));
    edited.GetLongParameter(2478)->Values.Add(3);
    EXPECT_TRUE(edited.ApplyTo(live));
    EXPECT_EQ(live.GetLongParameter(2478)->Values[0], 3);
}
