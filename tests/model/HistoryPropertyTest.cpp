#include "support/RandomStandard.h"
#include "support/Seeds.h"
#include "support/StandardText.h"

#include <gtest/gtest.h>

namespace {

const unsigned Seeds = SeedCount(30);

void UndoAll(CStandard& standard) {
    int step = 0;
    while (standard.CanUndo())
        standard.StepHistory(true, step);
}

void RedoAll(CStandard& standard) {
    int step = 0;
    while (standard.CanRedo())
        standard.StepHistory(false, step);
}

// Writing corrects parameters that do not fit and leaves them out the next time; after two writings a
// standard stays as it is.
void Settle(const CStandard& standard) {
    TextOf(standard);
    TextOf(standard);
}

// At most 20 steps, so that all of them can be undone.
void EditAtRandom(RandomStandard& random, CStandard& standard) {
    const unsigned steps = 1 + random.Below(CStandard::MostSteps);
    for (unsigned i = 0; i < steps; ++i) {
        random.Edit(standard);
        Settle(standard);
    }
}

} // namespace

TEST(HistoryProperty, UndoOfEverythingGivesTheFirstChecks) {
    for (unsigned seed = 1; seed <= Seeds; ++seed) {
        RandomStandard random(seed);
        CStandard standard;
        random.Fill(standard, random.Below(25));
        Settle(standard);
        const CString first = LiveTextOf(standard);
        EditAtRandom(random, standard);
        UndoAll(standard);
        ASSERT_EQ(LiveTextOf(standard), first) << "seed " << seed;
        EXPECT_EQ(standard.GetHistoryIndex(), -1);
    }
}

TEST(HistoryProperty, UndoAndRedoOfEverythingGivesTheLastChecks) {
    for (unsigned seed = 1; seed <= Seeds; ++seed) {
        RandomStandard random(seed);
        CStandard standard;
        random.Fill(standard, random.Below(25));
        Settle(standard);
        EditAtRandom(random, standard);
        const CString last = LiveTextOf(standard);
        const std::vector<unsigned> numbers = NumbersOf(LiveOf(standard));
        const int index = standard.GetHistoryIndex();
        UndoAll(standard);
        RedoAll(standard);
        ASSERT_EQ(LiveTextOf(standard), last) << "seed " << seed;
        EXPECT_EQ(NumbersOf(LiveOf(standard)), numbers);
        EXPECT_EQ(standard.GetHistoryIndex(), index);
    }
}

// From the first round on also the deleted checks and all life statuses are the same, to the byte.
TEST(HistoryProperty, EveryFurtherRoundGivesTheSameBytes) {
    for (unsigned seed = 1; seed <= Seeds; ++seed) {
        RandomStandard random(seed);
        CStandard standard;
        random.Fill(standard, random.Below(25));
        Settle(standard);
        EditAtRandom(random, standard);
        UndoAll(standard);
        const CString first = TextOf(standard);
        RedoAll(standard);
        const CString last = TextOf(standard);
        UndoAll(standard);
        ASSERT_EQ(TextOf(standard), first) << "seed " << seed;
        RedoAll(standard);
        ASSERT_EQ(TextOf(standard), last) << "seed " << seed;
    }
}

TEST(HistoryProperty, EachStepBackGivesTheChecksOfItsPlace) {
    for (unsigned seed = 1; seed <= Seeds; ++seed) {
        RandomStandard random(seed);
        CStandard standard;
        random.Fill(standard, random.Below(10));
        Settle(standard);
        std::vector<CString> places{LiveTextOf(standard)};
        while (standard.GetHistoryIndex() < CStandard::MostSteps - 1) {
            random.Edit(standard);
            Settle(standard);
            if (standard.GetHistoryIndex() + 1 == static_cast<int>(places.size()))
                places.push_back(LiveTextOf(standard));
        }
        int step = 0;
        while (standard.CanUndo()) {
            ASSERT_EQ(LiveTextOf(standard), places[static_cast<size_t>(standard.GetHistoryIndex() + 1)])
                << "seed " << seed;
            standard.StepHistory(true, step);
        }
    }
}
