#include "shell/SavedPlace.h"

#include <gtest/gtest.h>

namespace {

class SavedPlaceOfHistory : public ::testing::Test {
protected:
    SavedPlaceOfHistory() {
        standard.StepsDiscarded = [this](int first) { place.ForgetFrom(first, standard); };
    }
    void Edit(int times = 1) {
        for (int count = 0; count < times; ++count) {
            auto check = CStandard::MakeCheck(101);
            CCheck* live = nullptr;
            unsigned sequence = 0;
            standard.FindLiveByType(101, live);
            if (live)
                standard.DeleteCheck(live->Sequence);
            else
                standard.AddCheck(check, sequence);
        }
    }
    void Undo(int times = 1) {
        int step = 0;
        for (int count = 0; count < times; ++count)
            standard.StepHistory(true, step);
    }
    void Redo() {
        int step = 0;
        standard.StepHistory(false, step);
    }

    SavedPlace place;
    CStandard standard;
};

} // namespace

TEST_F(SavedPlaceOfHistory, ANewHistoryIsAtItsPlace) {
    EXPECT_TRUE(place.IsAt(standard));
    Edit();
    EXPECT_FALSE(place.IsAt(standard));
    Undo();
    EXPECT_TRUE(place.IsAt(standard));
}

TEST_F(SavedPlaceOfHistory, UndoAndRedoComeBackToIt) {
    Edit(3);
    place.Note(standard);
    Undo();
    EXPECT_FALSE(place.IsAt(standard));
    Redo();
    EXPECT_TRUE(place.IsAt(standard));
}

TEST_F(SavedPlaceOfHistory, The21stEditIsNotTakenForTheSavedOne) {
    Edit(20);
    place.Note(standard); // the index stays at its highest from here on
    Edit();
    EXPECT_FALSE(place.IsAt(standard));
    Undo();
    EXPECT_TRUE(place.IsAt(standard)); // it has moved down with its step
}

TEST_F(SavedPlaceOfHistory, AStepThatWasDroppedIsReachedNoMore) {
    Edit(1);
    place.Note(standard);
    Edit(21);
    Undo(20);
    EXPECT_FALSE(place.IsAt(standard));
}

TEST_F(SavedPlaceOfHistory, ADiscardedStepTakesItAlong) {
    Edit(3);
    place.Note(standard);
    Undo(2);
    Edit(2); // again three steps, but others
    EXPECT_FALSE(place.IsAt(standard));
    place.Note(standard);
    EXPECT_TRUE(place.IsAt(standard));
}

TEST_F(SavedPlaceOfHistory, StepsBehindItMayBeDiscarded) {
    Edit(2);
    place.Note(standard);
    Edit(2);
    Undo(2);
    Edit();
    Undo();
    EXPECT_TRUE(place.IsAt(standard));
}
