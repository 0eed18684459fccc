// Files hold what no pane would have written: any values, operators and corrections.
#include "support/PaneRoom.h"
#include "support/RandomStandard.h"

#include "model/Catalogue.h"

namespace {

constexpr unsigned Seeds = 6;

class AnyValues : public testing::TestWithParam<RandomStandard::Taste> {};

} // namespace

TEST_P(AnyValues, EveryPaneShowsAndCommitsThem) {
    PaneRoom room;
    room.Show();
    for (const PageCheckRow& row : PageChecks()) {
        CExtDialog& pane = room.Add(row.type);
        for (unsigned seed = 1; seed <= Seeds; ++seed) {
            RandomStandard random(seed * 1000 + row.type, GetParam());
            pane.LoadCheck(*random.Check(row.type));
            Gui::Settle();
            pane.OnParameterChanged();
        }
        EXPECT_NE(room.Live(row.type), nullptr) << row.dialogClass;
        room.GetChecksPage().RemoveCheck(row.type, true);
    }
}

INSTANTIATE_TEST_SUITE_P(Tastes, AnyValues,
                         testing::Values(RandomStandard::Taste::Fitting, RandomStandard::Taste::Any));
