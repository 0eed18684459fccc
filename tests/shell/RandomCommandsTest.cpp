#include "support/Gui.h"
#include "support/GuiRandom.h"
#include "support/Seeds.h"
#include "support/TestFolder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr unsigned WalkLength = 250;
constexpr unsigned DailyWalks = 2, MostWalks = 20;

} // namespace

TEST(RandomCommands, PanesModelAndFileAgreeAfterEach) {
    const unsigned walks = std::min(SeedCount(DailyWalks), MostWalks);
    for (unsigned seed = FirstSeed(); seed < FirstSeed() + walks; ++seed) {
        const TestFolder folder;
        RandomWalk::WriteStandards(folder.Path());
        RandomWalk walk(seed, folder.Path());
        for (unsigned step = 1; step <= WalkLength; ++step) {
            walk.Step();
            const CString wrong = walk.WhatIsWrong();
            ASSERT_TRUE(wrong.isEmpty())
                << "seed " << seed << ", command " << step << ": " << wrong.toStdString() << "after\n  "
                << walk.LastCommands().toStdString();
        }
    }
}
