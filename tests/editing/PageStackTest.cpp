// Panes come to the page and go from it.
#include "editing/PageRoom.h"

#include <QSet>
#include <stdexcept>

namespace {

constexpr MQC_CheckType_e Properties = 105, Annotation = 201, Overlap = 406, OnlyInFiles = 605;

using PageStack = PageRoom;

std::unique_ptr<CCheck> Check(MQC_CheckType_e type, unsigned criticality = 1) {
    auto check = CStandard::MakeCheck(type);
    check->Criticality = criticality;
    return check;
}

} // namespace

TEST_F(PageStack, ANewPageHasAPaneForEachCheckAndNoWindowYet) {
    EXPECT_EQ(page->GetTable().Order().size(), PageChecks().size());
    for (const MQC_CheckType_e type : page->GetTable().Order()) {
        ASSERT_NE(page->GetPane(type, false), nullptr) << type;
        EXPECT_FALSE(Pane(type).HasWindow());
        EXPECT_EQ(Pane(type).CheckType, type);
    }
    EXPECT_EQ(page->GetNextPosition(), 0);
    EXPECT_EQ(page->GetSelectedPosition(), -1);
}

TEST_F(PageStack, AnAddedCheckStandsInTheStandardWithWhatItsPaneShows) {
    Add({References});
    ASSERT_NE(Live(References), nullptr);
    EXPECT_EQ(Live(References)->Criticality, 1u);
    EXPECT_EQ(page->GetSelectedPosition(), 0);
    EXPECT_EQ(page->GetCurrentCheck(), Live(References));
    EXPECT_EQ(host.changed, std::vector<unsigned>{32775});
    ExpectAgreement();
}

TEST_F(PageStack, ACheckThatMayStandMoreThanOnceIsReachedByItsCommand) {
    EXPECT_EQ(page->GetTable().Find(104), nullptr);
    const CPDCheckInfo* info = page->GetTable().FindByCommand(32773);
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->GetCheckType(), Properties);
    Add({Properties});
    EXPECT_NE(dynamic_cast<CCheckManager*>(Live(Properties)), nullptr);
    EXPECT_EQ(page->GetTable().FindByCommand(4711), nullptr);
}

TEST_F(PageStack, PositionsFollowTheAddingAndTheLayoutTheCatalogue) {
    Add({Features, Overlap, Datum, References});
    EXPECT_EQ(Position(Features), 0);
    EXPECT_EQ(Position(Overlap), Size(Features));
    EXPECT_EQ(Position(References), Size(Features) + Size(Overlap) + Size(Datum));
    EXPECT_EQ(Seen(), (std::vector<MQC_CheckType_e>{References, Datum, Overlap, Features}));
    int top = 0;
    for (const MQC_CheckType_e type : Seen()) {
        EXPECT_EQ(Pane(type).Top, top);
        EXPECT_EQ(Pane(type).height(), Pane(type).GetDisplayHeight());
        top += Pane(type).height();
    }
}

TEST_F(PageStack, AddingWhatStandsAlreadyChangesNothing) {
    Add({References, References});
    EXPECT_EQ(host.standard.CountLiveChecks(), 1);
    ExpectAgreement();
}

TEST_F(PageStack, RemovingTheOnlyPaneEmptiesTheStackAndTheNextStartsAtItsBeginning) {
    Add({References});
    page->RemoveCheck(References, true);
    EXPECT_EQ(page->GetNextPosition(), -1);
    EXPECT_EQ(page->GetSelectedPosition(), -1);
    EXPECT_EQ(host.standard.CountLiveChecks(), 0);
    EXPECT_TRUE(Pane(References).isHidden());
    ExpectAgreement();
    Add({Overlap});
    EXPECT_EQ(Position(Overlap), 0);
    EXPECT_EQ(page->GetNextPosition(), Size(Overlap));
}

TEST_F(PageStack, ARemovedPaneLeavesNoGap) {
    Add({Drafting, References, Datum, Features});
    page->RemoveCheck(References, true);
    EXPECT_EQ(Position(Datum), Size(Drafting));
    EXPECT_EQ(Position(Features), Size(Drafting) + Size(Datum));
    ExpectAgreement();
    page->RemoveCheck(Features, true);
    page->RemoveCheck(Drafting, true);
    EXPECT_EQ(Position(Datum), 0);
    ExpectAgreement();
}

TEST_F(PageStack, WhatIsSelectedStaysSoWhenPanesBeforeItGo) {
    Add({Drafting, References, Datum});
    page->ToggleSelection(Position(References));
    page->RemoveCheck(Drafting, true);
    EXPECT_EQ(page->GetSelectedPosition(), Position(References));
    EXPECT_EQ(page->GetSelection(), (std::vector<int>{Position(Datum), Position(References)}));
    ExpectAgreement();
}

TEST_F(PageStack, APositionWithoutAPaneEndsTheClosingOfAGap) {
    Add({References, Datum, Features});
    ++Pane(References).LogicalSize;
    EXPECT_THROW(page->RemoveCheck(References, true), std::out_of_range);
}

TEST_F(PageStack, RemovingWhatDoesNotStandThereChangesNothing) {
    Add({References});
    page->RemoveCheck(Datum, true);
    page->RemoveCheck(OnlyInFiles, true);
    EXPECT_EQ(host.standard.CountLiveChecks(), 1);
    ExpectAgreement();
}

TEST_F(PageStack, ALoadedStandardIsTakenUpInItsOrder) {
    unsigned sequence = 0;
    for (const MQC_CheckType_e type : {Features, OnlyInFiles, References, Annotation})
        host.standard.InsertCheck(Check(type, 3), sequence);
    host.loaded = true;
    page->TakeUpLoadedChecks();
    EXPECT_EQ(Position(Features), 0);
    EXPECT_EQ(Position(References), Size(Features));
    EXPECT_EQ(Position(OnlyInFiles), -1);
    EXPECT_EQ(page->GetSelectedPosition(), 0);
    EXPECT_EQ(host.group, 6u);
    EXPECT_EQ(host.standard.CountLiveChecks(), 4) << "a check without a pane must not be lost";
    ExpectAgreement();
    // A second showing takes nothing up twice.
    page->TakeUpLoadedChecks();
    ExpectAgreement();
}

TEST_F(PageStack, ADeletedCheckIsLoadedIntoItsPaneButNotPlaced) {
    unsigned sequence = 0;
    auto deleted = Check(References, 3);
    deleted->LifeStatus = LifeDeleted;
    host.standard.InsertCheck(std::move(deleted), sequence);
    host.loaded = true;
    page->TakeUpLoadedChecks();
    EXPECT_EQ(Position(References), -1);
    EXPECT_EQ(page->GetSelectedPosition(), -1);
    EXPECT_EQ(Pane(References).Criticality, 3u);
    ExpectAgreement();
    Add({References});
    EXPECT_EQ(Live(References)->Criticality, 3u);
    ExpectAgreement();
}

TEST_F(PageStack, OfTwoChecksOfOneTypeThePaneShowsTheFirst) {
    unsigned sequence = 0;
    host.standard.InsertCheck(Check(References, 3), sequence);
    host.standard.InsertCheck(Check(References, 0), sequence);
    auto deleted = Check(References, 2);
    deleted->LifeStatus = LifeDeleted;
    host.standard.InsertCheck(std::move(deleted), sequence);
    host.standard.InsertCheck(Check(Datum), sequence);
    host.loaded = true;
    page->TakeUpLoadedChecks();
    EXPECT_EQ(Pane(References).Criticality, 3u);
    EXPECT_EQ(page->GetNextPosition(), Size(References) + Size(Datum));
    page->RemoveCheck(References, true);
    EXPECT_EQ(Position(Datum), 0);
    EXPECT_EQ(host.standard.CountLiveChecks(), 2);
}

TEST_F(PageStack, ANewCheckTakesTheValuesOfItsSource) {
    page->AddCheck(References, Check(References, 3).get());
    EXPECT_EQ(Live(References)->Criticality, 3u);
    ExpectAgreement();
}

TEST_F(PageStack, TheValuesOfASourceWinOverThoseOfADeletedCheck) {
    Add({References});
    page->RemoveCheck(References, true);
    page->AddCheck(References, Check(References, 3).get());
    EXPECT_EQ(Live(References)->Criticality, 3u);
    ExpectAgreement();
}

TEST_F(PageStack, OnlyTheChecksOfTheGroupInFrontHaveHeight) {
    Add({References, Datum});
    Show();
    host.showAll = false;
    host.group = 0;
    page->Relayout();
    EXPECT_EQ(Seen(), std::vector<MQC_CheckType_e>{References});
    EXPECT_EQ(Position(Datum), Size(References));
    EXPECT_EQ(Pane(Datum).DisplayState, CExtDialog::ShownWhole);
    host.group = 1;
    page->Relayout();
    EXPECT_EQ(Seen(), std::vector<MQC_CheckType_e>{Datum});
    EXPECT_EQ(Pane(Datum).Top, 0);
    host.group = 7;
    page->Relayout();
    EXPECT_EQ(Seen().size(), 2u);
    ExpectAgreement();
}

TEST_F(PageStack, AnAddedCheckBringsItsGroupToTheFront) {
    host.showAll = false;
    Show();
    Add({References, Datum});
    EXPECT_EQ(host.group, 1u);
    EXPECT_EQ(Seen(), std::vector<MQC_CheckType_e>{Datum});
}

TEST_F(PageStack, ACollapsedPaneIsAsHighAsItsCaption) {
    Add({References, Datum});
    Show();
    const int whole = Pane(Datum).Top;
    Pane(References).ToggleExpand();
    EXPECT_EQ(Pane(References).height(), 20);
    EXPECT_EQ(Pane(Datum).Top, 20);
    Pane(References).ToggleExpand();
    EXPECT_EQ(Pane(Datum).Top, whole);
}

TEST_F(PageStack, APaneThatComesBackIsExpanded) {
    Add({References});
    Pane(References).ToggleExpand();
    page->RemoveCheck(References, true);
    Add({References});
    EXPECT_TRUE(Pane(References).Expanded);
    Pane(References).ToggleExpand();
    EXPECT_EQ(Pane(References).DisplayState, CExtDialog::Collapsed);
}

TEST_F(PageStack, AClosedPaneTakesItsCheckAway) {
    Add({References, Datum});
    Show();
    Pane(References).ClosePane();
    EXPECT_EQ(Live(References), nullptr);
    EXPECT_NE(Live(Datum), nullptr);
    ExpectAgreement();
}

TEST_F(PageStack, TheChecksAreToldInTheOrderOfTheCatalogue) {
    Add({Features, Datum, References});
    std::vector<MQC_CheckType_e> types;
    for (const CCheck* check : page->ChecksInCatalogueOrder())
        types.push_back(check->Type);
    EXPECT_EQ(types, (std::vector<MQC_CheckType_e>{References, Datum, Features}));
}

TEST_F(PageStack, AnEmptyPageTellsHowToAddACheck) {
    Show();
    const auto middle = [this] {
        QSet<QRgb> colors;
        const QImage image = page->viewport()->grab().toImage();
        for (int x = 300; x < 700; ++x)
            for (int y = 150; y < 350; ++y)
                colors.insert(image.pixel(x, y));
        return colors.size();
    };
    const qsizetype hint = middle();
    EXPECT_GT(hint, 10);
    Add({References});
    host.showAll = false;
    host.group = 3;
    page->Relayout();
    EXPECT_GT(middle(), 10) << "nor may a page look empty because its checks are of other groups";
}
