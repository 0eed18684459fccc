#include "support/StandardText.h"

#include <gtest/gtest.h>

namespace {

using Numbers = std::vector<unsigned>;

// A standard with the operations of a user.
struct Edited {
    unsigned Add(int type) {
        unsigned number = 0;
        auto check = CStandard::MakeCheck(type);
        standard.AddCheck(check, number);
        return number;
    }
    void SetCriticality(int type, unsigned criticality) {
        CCheck* live = nullptr;
        standard.FindLiveByType(type, live);
        auto edited = CStandard::CloneCheck(*live);
        edited->Criticality = criticality;
        standard.EditCheck(std::move(edited));
    }
    int Undo() { return standard.StepHistory(true, step); }
    int Redo() { return standard.StepHistory(false, step); }
    CCheck* At(unsigned number) const {
        CCheck* check = nullptr;
        standard.FindBySequence(number, check);
        return check;
    }
    void PushMove(unsigned number, int type) {
        auto snapshot = CStandard::MakeCheck(type);
        snapshot->Sequence = standard.MoveCheck(number, type);
        snapshot->LifeStatus = LifeMoved;
        standard.PushHistory(std::move(snapshot));
    }
    std::vector<int> Types() const {
        std::vector<int> types;
        for (const CCheck* check : AllOf(standard))
            types.push_back(check->Type);
        return types;
    }

    CStandard standard;
    int step = -1;
};

constexpr int Fonts[] = {109, 110, 111, 112, 113, 114, 115, 116, 117, 118, 119,
                         120, 121, 123, 124, 201, 202, 203, 301, 302, 304};

} // namespace

TEST(History, HoldsTwentyStepsAndDropsTheOldest) {
    Edited edited;
    for (int i = 0; i < 20; ++i)
        edited.Add(Fonts[i]);
    EXPECT_EQ(edited.standard.GetHistoryIndex(), 19);
    EXPECT_EQ(edited.standard.GetDroppedSteps(), 0);
    edited.Add(Fonts[20]);
    EXPECT_EQ(edited.standard.History.Count, 20);
    EXPECT_EQ(edited.standard.GetHistoryIndex(), 19);
    EXPECT_EQ(edited.standard.GetDroppedSteps(), 1);
    while (edited.standard.CanUndo())
        edited.Undo();
    EXPECT_EQ(NumbersOf(LiveOf(edited.standard)), Numbers{1}) << "the oldest add cannot be undone";
}

TEST(History, NewStepDiscardsWhatWasUndone) {
    Edited edited;
    edited.Add(406);
    edited.SetCriticality(406, 2);
    edited.SetCriticality(406, 3);
    edited.Undo();
    edited.Undo();
    EXPECT_TRUE(edited.standard.CanRedo());
    std::vector<int> discarded;
    edited.standard.StepsDiscarded = [&](int first) {
        discarded.push_back(first);
        EXPECT_EQ(edited.standard.History.Count, 3) << "told before they are gone";
    };
    edited.SetCriticality(406, 0);
    EXPECT_FALSE(edited.standard.CanRedo());
    EXPECT_EQ(edited.standard.History.Count, 2);
    EXPECT_EQ(edited.standard.GetHistoryIndex(), 1);
    edited.SetCriticality(406, 1);
    EXPECT_EQ(discarded, std::vector<int>{1}) << "a step at the end discards none";
}

TEST(History, UndoneAddComesBackUnderItsNumber) {
    Edited edited;
    edited.Add(406);
    edited.Add(312);
    EXPECT_EQ(edited.Undo(), 312);
    EXPECT_EQ(edited.step, 0);
    EXPECT_EQ(NumbersOf(LiveOf(edited.standard)), Numbers{1});
    EXPECT_EQ(edited.At(2)->LifeStatus, LifeDeleted);
    EXPECT_EQ(edited.Redo(), 312);
    EXPECT_EQ(NumbersOf(LiveOf(edited.standard)), (Numbers{1, 2}));
    EXPECT_FALSE(edited.standard.CanRedo());
}

TEST(History, UndoneDeletionBringsTheCheckBack) {
    Edited edited;
    edited.Add(406);
    edited.standard.DeleteCheck(1);
    EXPECT_EQ(edited.Undo(), 406);
    EXPECT_EQ(edited.step, 1);
    EXPECT_EQ(edited.At(1)->LifeStatus, LifeInForce);
    edited.Redo();
    EXPECT_EQ(edited.At(1)->LifeStatus, LifeDeleted);
}

TEST(History, EditIsSwappedWithItsSnapshot) {
    Edited edited;
    edited.Add(406);
    edited.SetCriticality(406, 3);
    EXPECT_EQ(edited.Undo(), 406);
    EXPECT_EQ(edited.step, 2);
    EXPECT_EQ(edited.At(1)->Criticality, 1u);
    edited.Redo();
    EXPECT_EQ(edited.At(1)->Criticality, 3u);
    EXPECT_EQ(edited.standard.History[1]->Criticality, 1u);
    EXPECT_EQ(edited.At(1)->LifeStatus, LifeEdited);
    EXPECT_EQ(edited.standard.History[1]->LifeStatus, LifeEdited);
    EXPECT_EQ(edited.standard.History[1]->Sequence, 1u);
}

TEST(History, EditOfAContainerIsSwappedWithItsChildren) {
    Edited edited;
    edited.Add(105);
    auto container = std::make_unique<CCheckManager>(105);
    container->Children.Add(container->MakeChild().release());
    edited.standard.EditCheck(std::move(container));
    EXPECT_EQ(edited.At(1)->Children.Count, 1);
    edited.Undo();
    EXPECT_EQ(edited.At(1)->Children.Count, 0);
    edited.Redo();
    EXPECT_EQ(edited.At(1)->Children.Count, 1);
}

TEST(History, NothingBeforeTheFirstStep) {
    Edited edited;
    unsigned number = 0;
    edited.standard.InsertCheck(CStandard::MakeCheck(406), number);
    edited.SetCriticality(406, 3);
    EXPECT_EQ(edited.standard.GetHistoryIndex(), 0);
    edited.Undo();
    EXPECT_FALSE(edited.standard.CanUndo());
    edited.step = 77;
    EXPECT_EQ(edited.Undo(), 0);
    EXPECT_EQ(edited.step, 77);
    EXPECT_EQ(edited.At(1)->Criticality, 1u);
    EXPECT_TRUE(edited.standard.CanRedo());
}

TEST(History, RedoWithNothingAheadDoesNothing) {
    Edited edited;
    EXPECT_EQ(edited.Redo(), 0);
    EXPECT_EQ(edited.standard.GetHistoryIndex(), -1);
    edited.Add(406);
    edited.SetCriticality(406, 3);
    EXPECT_EQ(edited.Redo(), 0);
    EXPECT_EQ(edited.standard.GetHistoryIndex(), 1);
    EXPECT_EQ(edited.At(1)->Criticality, 3u);
}

TEST(History, EmptyOneTakesBackTheOfferToRedo) {
    CStandard standard;
    standard.RedoAvailable = 1;
    EXPECT_FALSE(standard.CanRedo());
    EXPECT_EQ(standard.RedoAvailable, 0);
}

TEST(History, MovingDownShiftsTheOthersUp) {
    Edited edited;
    for (int type : {406, 312, 102, 101, 307})
        edited.Add(type);
    EXPECT_EQ(edited.standard.MoveCheck(2, 307), 5u);
    EXPECT_EQ(edited.Types(), (std::vector<int>{406, 307, 312, 102, 101}));
    EXPECT_EQ(NumbersOf(AllOf(edited.standard)), (Numbers{1, 2, 3, 4, 5}));
}

TEST(History, MovingUpShiftsTheOthersDownAcrossGaps) {
    Edited edited;
    for (int type : {406, 312, 102, 101, 307})
        edited.Add(type);
    edited.standard.RemoveCheck(3);
    EXPECT_EQ(edited.standard.MoveCheck(5, 406), 1u);
    EXPECT_EQ(edited.Types(), (std::vector<int>{312, 101, 307, 406}));
    EXPECT_EQ(NumbersOf(AllOf(edited.standard)), (Numbers{1, 3, 4, 5}));
    EXPECT_EQ(edited.standard.MoveCheck(5, 406), 5u);
    EXPECT_EQ(NumbersOf(AllOf(edited.standard)), (Numbers{1, 3, 4, 5}));
}

TEST(History, MovingATypeThatIsNotThereChangesNothing) {
    Edited edited;
    edited.Add(406);
    EXPECT_EQ(edited.standard.MoveCheck(3, 312), 3u);
    EXPECT_EQ(NumbersOf(AllOf(edited.standard)), Numbers{1});
}

TEST(History, MoveIsUndoneAndRedoneByTheNumberOfItsSnapshot) {
    Edited edited;
    for (int type : {406, 312, 102})
        edited.Add(type);
    edited.PushMove(1, 102);
    EXPECT_EQ(edited.Types(), (std::vector<int>{102, 406, 312}));
    EXPECT_EQ(edited.standard.History[3]->Sequence, 3u);
    EXPECT_EQ(edited.Undo(), 102);
    EXPECT_EQ(edited.step, 3);
    EXPECT_EQ(edited.Types(), (std::vector<int>{406, 312, 102}));
    EXPECT_EQ(edited.standard.History[3]->Sequence, 1u);
    edited.Redo();
    EXPECT_EQ(edited.Types(), (std::vector<int>{102, 406, 312}));
}

TEST(History, UndoBackToASavedPlaceHasItsIndex) {
    Edited edited;
    edited.Add(406);
    const int saved = edited.standard.GetHistoryIndex();
    TextOf(edited.standard);
    edited.SetCriticality(406, 3);
    EXPECT_NE(edited.standard.GetHistoryIndex(), saved);
    edited.Undo();
    EXPECT_EQ(edited.standard.GetHistoryIndex(), saved);
    EXPECT_TRUE(edited.standard.CanUndo()) << "saving does not reset the history";
}

TEST(History, CheckOfTheSnapshotsNumberIsTheOneBroughtBack) {
    Edited edited;
    unsigned number = 0;
    for (unsigned criticality : {2u, 3u}) { // as a merged file may hold them
        auto check = CStandard::MakeCheck(406);
        check->Criticality = criticality;
        check->LifeStatus = criticality == 2 ? LifeDeleted : LifeInForce;
        edited.standard.InsertCheck(std::move(check), number);
    }
    edited.standard.DeleteCheck(2);
    edited.Undo();
    EXPECT_EQ(NumbersOf(LiveOf(edited.standard)), Numbers{2});
    EXPECT_EQ(edited.At(1)->LifeStatus, LifeDeleted);
    edited.Redo();
    EXPECT_TRUE(LiveOf(edited.standard).empty());
    edited.Undo();
    edited.SetCriticality(406, 0);
    edited.Undo();
    EXPECT_EQ(edited.At(2)->Criticality, 3u);
    EXPECT_EQ(edited.At(1)->Criticality, 2u);
}

TEST(History, StepsOfARemovedCheckLeaveTheOthersAlone) {
    Edited edited;
    edited.Add(406);
    edited.Add(312);
    edited.SetCriticality(406, 3);
    edited.standard.DeleteCheck(1);
    edited.standard.RemoveCheck(1);
    EXPECT_EQ(edited.Undo(), 406) << "a bring-back whose check is gone ends where it stands";
    EXPECT_EQ(edited.standard.GetHistoryIndex(), 3);
    EXPECT_EQ(NumbersOf(LiveOf(edited.standard)), Numbers{2});
}

TEST(History, RedoOfAnAddWhoseCheckIsGoneMovesTheIndexOnly) {
    Edited edited;
    edited.Add(406);
    edited.Undo();
    edited.standard.RemoveCheck(1);
    EXPECT_EQ(edited.Redo(), 406);
    EXPECT_EQ(edited.standard.GetHistoryIndex(), 0);
    EXPECT_TRUE(edited.standard.CanRedo()) << "what follows the look-up is not done";
    edited.Undo();
    EXPECT_TRUE(AllOf(edited.standard).empty());
    EXPECT_EQ(edited.standard.GetHistoryIndex(), -1);
}

TEST(History, SnapshotIsIndependentOfTheLiveCheck) {
    Edited edited;
    edited.Add(406);
    edited.At(1)->Criticality = 0;
    EXPECT_EQ(edited.standard.History[0]->Criticality, 1u);
    EXPECT_EQ(edited.standard.History[0]->LifeStatus, LifeInForce);
    EXPECT_EQ(edited.standard.History[0]->Sequence, 1u);
}
