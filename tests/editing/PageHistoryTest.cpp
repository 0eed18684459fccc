// Undo and redo on the page.
#include "editing/PageRoom.h"

#include <QComboBox>
#include <random>

namespace {

constexpr MQC_CheckType_e Spelling = 203;

using PageHistory = PageRoom;

} // namespace

TEST_F(PageHistory, ADeletedCheckComesBackBetweenItsNeighbours) {
    Add({References, Datum, Features});
    page->RemoveCheck(Datum, true);
    EXPECT_EQ(Position(Features), Size(References));
    Undo();
    EXPECT_EQ(Position(Datum), Size(References));
    EXPECT_EQ(Position(Features), Size(References) + Size(Datum));
    EXPECT_EQ(page->GetSelectedPosition(), Position(Datum));
    EXPECT_EQ(Seen(), (std::vector<MQC_CheckType_e>{References, Datum, Features}));
    ExpectAgreement();
    Redo();
    EXPECT_EQ(Position(Datum), -1);
    ExpectAgreement();
}

TEST_F(PageHistory, AnAddedCheckGoesAndComesAgain) {
    Add({References, Datum});
    Undo();
    EXPECT_EQ(Live(Datum), nullptr);
    EXPECT_EQ(Position(Datum), -1);
    ExpectAgreement();
    Undo();
    EXPECT_EQ(page->GetNextPosition(), -1);
    Redo();
    Redo();
    EXPECT_EQ(Position(Datum), Size(References));
    ExpectAgreement();
}

TEST_F(PageHistory, AnEditedCheckIsShownAndSelectedAgain) {
    Add({References, Datum});
    auto edited = CStandard::CloneCheck(*Live(References));
    edited->Criticality = 3;
    host.standard.EditCheck(std::move(edited));
    page->LoadPane(*Live(References));
    Undo();
    EXPECT_EQ(Pane(References).Criticality, 1u);
    EXPECT_EQ(page->GetSelectedPosition(), Position(References));
    ExpectAgreement();
    Redo();
    EXPECT_EQ(Pane(References).Criticality, 3u);
    ExpectAgreement();
}

TEST_F(PageHistory, AMovedCheckTakesItsNewPlaceInTheStackAndIsSelected) {
    Add({References, Datum, Features});
    auto snapshot = CStandard::CloneCheck(*Live(Features));
    snapshot->LifeStatus = LifeMoved;
    snapshot->Sequence = host.standard.MoveCheck(1, Features);
    host.standard.PushHistory(std::move(snapshot));
    page->ApplyHistoryStep(Features, LifeMoved, false);
    EXPECT_EQ(Position(Features), 0);
    EXPECT_EQ(Position(References), Size(Features));
    EXPECT_EQ(page->GetSelectedPosition(), 0);
    ExpectAgreement();
    Undo();
    EXPECT_EQ(Position(References), 0);
    EXPECT_EQ(page->GetSelectedPosition(), Position(Features));
    ExpectAgreement();
}

TEST_F(PageHistory, AStepOfACheckWithoutAPaneLeavesThePage) {
    Add({References});
    page->ApplyHistoryStep(605, LifeEdited, true);
    page->ApplyHistoryStep(605, LifeDeleted, true);
    page->ApplyHistoryStep(605, LifeInForce, true);
    ExpectAgreement();
}

// Whatever comes after what, the page's maps, its panes and the standard tell the same.
TEST_F(PageHistory, RandomWorkKeepsPageAndStandardInAgreement) {
    constexpr MQC_CheckType_e types[] = {101, References, 105, Spelling, Datum, 406, 303, 501, 604, Features};
    host.showAll = false;
    for (unsigned seed = 1; seed <= 5; ++seed) {
        std::mt19937 random(seed);
        for (int round = 0; round < 120 && !HasFailure(); ++round) {
            const MQC_CheckType_e type = types[random() % std::size(types)];
            switch (random() % 8) {
            case 0:
            case 1: page->AddCheck(type, nullptr); break;
            case 2: page->RemoveCheck(type, true); break;
            case 3:
                if (host.standard.CanUndo())
                    Undo();
                break;
            case 4:
                if (host.standard.CanRedo())
                    Redo();
                break;
            case 5:
                if (Position(type) >= 0)
                    page->SelectPane(Position(type));
                break;
            case 6:
                if (Position(type) >= 0 && Position(type) != page->GetSelectedPosition())
                    page->ToggleSelection(Position(type));
                break;
            case 7:
                if (auto* combo = Pane(type).GetDlgItem<QComboBox>(1249); combo && Position(type) >= 0) {
                    combo->setCurrentIndex(static_cast<int>(random() % 4));
                    Q_EMIT combo->activated(combo->currentIndex());
                }
                break;
            }
            ExpectAgreement();
        }
        ASSERT_FALSE(HasFailure()) << "seed " << seed;
    }
}
