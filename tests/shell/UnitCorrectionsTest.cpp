// A correction is converted with the value that it corrects to.
#include "support/Gui.h"
#include "support/GuiTool.h"

#include <gtest/gtest.h>

namespace {

constexpr MQC_CheckType_e Arrows = 102;
constexpr unsigned Height = 1552, Width = 1553, Length = 1554;
constexpr int LengthUnits = 1280, MillimeterRow = 3, InchRow = 8;
constexpr double MillimetersOfAnInch = 25.4;

void Require(CCheck& check, unsigned id, unsigned op, std::initializer_list<double> values,
             double correction) {
    CParameter<double>& parameter = *check.GetDoubleParameter(id);
    for (const double value : values)
        parameter.Values.Add(value);
    parameter.Operator = op;
    parameter.SetCorrection(correction);
    parameter.CorrectionKind = CorrectionFixed;
}

void ChooseUnit(GuiTool& tool, int row) {
    tool.ShowPage(OptionsPage);
    Gui::ChooseRow(*Gui::FindNumber(tool.View(), LengthUnits), row);
    tool.ShowPage(ChecksPage);
}

} // namespace

TEST(UnitCorrections, FollowTheUnitInTheCheckItself) {
    GuiTool tool;
    ChooseUnit(tool, MillimeterRow);
    CCheck check(Arrows, 0, 0, 0, 1);
    Require(check, Height, OpEqual, {3.5}, 3.5);
    Require(check, Width, OpBelow, {3.5}, 2.5);
    Require(check, Length, OpOneOf, {10, 20}, 20);
    tool.Page().AddCheck(Arrows, &check);
    Gui::Settle();
    ChooseUnit(tool, InchRow);
    CCheck* live = nullptr;
    tool.Standard().FindLiveByType(Arrows, live);
    ASSERT_NE(live, nullptr);
    for (const auto& [id, correction] : {std::pair(Height, 3.5), {Width, 2.5}, {Length, 20.0}}) {
        EXPECT_NEAR(live->GetDoubleParameter(id)->Correction, correction / MillimetersOfAnInch, 1e-6) << id;
        EXPECT_NEAR(live->GetDoubleParameter(id)->Values[0], (id == Length ? 10 : 3.5) / MillimetersOfAnInch,
                    1e-6)
            << id;
    }
}
