// A change of unit goes through all checks at once: what they hold, what their panes show, and back again.
#include "support/GuiTool.h"

#include "dialogs/KeepingCheckDlg.h"
#include "editing/MyStatic.h"
#include "engines/ParameterKinds.h"
#include "engines/UnitConvertor.h"
#include "engines/UnitText.h"
#include "model/Catalogue.h"
#include "support/FilledStandard.h"
#include "support/Gui.h"
#include "support/Messages.h"
#include "support/RandomStandard.h"
#include "support/StandardText.h"
#include "support/WrittenCheck.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>

namespace {

constexpr int LengthUnitBox = 1280, AngleUnitBox = 1341;
constexpr int UnitsOnOffer[] = {6, 7, 8, 0, 1, 2, 10, 9, 3, 4}; // in the order of their rows
constexpr int UnitNotOnOffer = 5, Metres = 2;
constexpr int LastUnitRow = 9, AngleDegrees = 0, AngleRadians = 3;
constexpr MQC_CheckType_e Precision = 409;
constexpr unsigned WhatIsCompared = 2314;

// Ten decimals are shown, and what is shown is written.
constexpr double RoundingOfFigures = 0.501e-10;

bool IsMeasure(const CParameterEntry& entry) {
    const auto kind = entry.Parameter->ParameterType;
    return entry.DataType == DataDouble && (kind == KindLength || kind == KindAngle || kind == KindVolume);
}

bool HasMeasures(const CCheck& check) {
    return std::ranges::any_of(check.Parameters,
                               [](const CParameterEntry* entry) { return IsMeasure(*entry); });
}

// Requires one of two values of each of a check's measures; a pane may show the first of them alone. Lengths
// are in angstroms and angles in degrees.
std::unique_ptr<CCheck> WithMeasures(MQC_CheckType_e type) {
    auto check = CStandard::MakeCheck(type);
    double number = 1.5;
    for (const CParameterEntry* entry : check->Parameters) {
        if (!IsMeasure(*entry))
            continue;
        number += 1.25;
        const auto kind = entry->Parameter->ParameterType;
        const double value = number * (kind == KindVolume ? 1e28 : kind == KindLength ? 1e7 : 10);
        SetParameter(*check, entry->ID, OpOneOf,
                     {QString::number(value, 'f', 3), QString::number(2 * value, 'f', 3)});
        entry->Parameter->CorrectionKind = CorrectionFixed;
    }
    if (type == Precision)
        SetParameter(*check, WhatIsCompared, OpOneOf, {"11", "12", "10"});
    return check;
}

// One number of a check.
struct Figure {
    CString name;
    unsigned kind;
    double value;
};

class AllUnits : public testing::Test {
protected:
    void SetUp() override {
        tool.View().ApplyUnits(UnitsOnOffer[0], AngleDegrees);
        RandomStandard random(1, RandomStandard::Taste::Fitting);
        for (const PageCheckRow& row : PageChecks()) {
            const auto fitting = random.Check(row.type);
            tool.Page().AddCheck(row.type,
                                 HasMeasures(*fitting) ? WithMeasures(row.type).get() : fitting.get());
        }
        tool.Page().RefreshAll(); // gives each check corrections that satisfy it
        Gui::Settle();
        for (const CCheck* check : LiveOf(tool.Standard()))
            if (!HasMeasures(*check))
                m_others.emplace(check->Type, TextOfCheck(*check));
    }

    // The measures of all checks and the corrections of those that a pane shows, in a steady order.
    std::vector<Figure> Figures() {
        std::vector<Figure> figures;
        for (const CCheck* check : LiveOf(tool.Standard()))
            for (const CParameterEntry* entry : check->Parameters) {
                if (!IsMeasure(*entry))
                    continue;
                const auto& measure = static_cast<const CParameter<double>&>(*entry->Parameter);
                const CString name = QString("%1 of check %2").arg(measure.ID).arg(check->Type);
                for (const double value : measure.Values)
                    figures.push_back({name, measure.ParameterType, value});
                if (Pane(check->Type).GetCorrectionControls().count(measure.ID) > 0)
                    figures.push_back({"correction " + name, measure.ParameterType, measure.Correction});
            }
        return figures;
    }
    // What becomes of a number of a figure's kind by a change of unit.
    static double Converted(const Figure& figure, double value, int oldUnit, int newUnit) {
        const bool isAngle = figure.kind == KindAngle;
        for (int i = figure.kind == KindVolume ? 3 : 1; i > 0; --i)
            value = CUnitConvertor().Convert(value, isAngle ? DimensionAngle : DimensionLength,
                                             static_cast<unsigned>(oldUnit), static_cast<unsigned>(newUnit));
        return value;
    }

    // Changes a unit, and holds every figure against the one before.
    template <class Change> void Step(bool isLength, int oldUnit, int newUnit, Change change) {
        const std::vector<Figure> before = Figures();
        change();
        ASSERT_EQ(isLength ? tool.Standard().Unit : tool.Standard().AngularUnit, newUnit);
        const std::vector<Figure> after = Figures();
        ASSERT_EQ(after.size(), before.size());
        m_bounds.resize(after.size(), 0.0);
        for (std::size_t i = 0; i < after.size(); ++i) {
            if ((before[i].kind != KindAngle) != isLength) {
                EXPECT_EQ(after[i].value, before[i].value) << before[i].name.toStdString();
                continue;
            }
            const double wanted = Converted(before[i], before[i].value, oldUnit, newUnit);
            const double bound = RoundingOfFigures + 1e-14 * std::abs(wanted);
            EXPECT_NEAR(after[i].value, wanted, bound)
                << before[i].name.toStdString() << " in unit " << newUnit;
            m_bounds[i] = bound + Converted(before[i], m_bounds[i], oldUnit, newUnit);
        }
        ExpectPanesAgree();
    }
    void ChooseLength(int row, int oldUnit) {
        Step(true, oldUnit, UnitsOnOffer[row], [&] { Choose(LengthUnitBox, row); });
    }
    void Choose(int box, int row) {
        tool.ShowPage(OptionsPage);
        Gui::ChooseRow(*Gui::FindNumber(tool.View(), box), row);
        tool.ShowPage(ChecksPage);
    }
    // What each pane and its labels show is what its check holds; checks without measures stay.
    void ExpectPanesAgree() {
        for (const CCheck* check : LiveOf(tool.Standard())) {
            const std::string text = TextOfCheck(*check);
            if (const auto other = m_others.find(check->Type); other != m_others.end()) {
                EXPECT_EQ(text, other->second) << check->Type;
            }
            if (dynamic_cast<CKeepingCheckDlg*>(&Pane(check->Type)))
                continue; // shows no values
            const auto shown = CStandard::MakeCheck(check->Type);
            Pane(check->Type).FillCheck(*shown);
            EXPECT_EQ(TextOfCheck(*shown), text) << check->Type;
        }
        for (const auto& entry : tool.Document().GetUnitSettings()) {
            const CStandard& standard = tool.Standard();
            const int unit = entry->Dimension == DimensionAngle ? standard.AngularUnit : standard.Unit;
            EXPECT_TRUE(entry->LabelControl->text().startsWith(
                UnitLabelText(0, entry->Dimension, static_cast<unsigned>(unit))));
        }
    }
    void ExpectBackAt(const std::vector<Figure>& start) {
        const std::vector<Figure> end = Figures();
        ASSERT_EQ(end.size(), start.size());
        for (std::size_t i = 0; i < end.size(); ++i)
            EXPECT_NEAR(end[i].value, start[i].value, m_bounds[i]) << start[i].name.toStdString();
    }
    CExtDialog& Pane(MQC_CheckType_e type) { return *tool.Page().GetPane(type, false); }

    Messages messages;
    GuiTool tool;

private:
    std::map<MQC_CheckType_e, std::string> m_others; // checks that no change of unit touches
    std::vector<double> m_bounds;                    // by how much each figure may be off
};

} // namespace

TEST_F(AllUnits, LengthsGoThroughAllElevenUnitsAndBack) {
    EXPECT_EQ(LiveOf(tool.Standard()).size(), PageChecks().size());
    const std::vector<Figure> start = Figures();
    // Six of arrows, two of each of the thirteen fonts, and two gaps, each of two values and a correction;
    // two of sheets and a volume, of two values; four tolerances and a distance.
    EXPECT_EQ(start.size(), 3u * (6 + 13 * 2 + 2) + 2 * (2 + 1) + 4 + 1);
    for (int row = 1; row <= LastUnitRow; ++row)
        ChooseLength(row, UnitsOnOffer[row - 1]);
    const int last = UnitsOnOffer[LastUnitRow];
    Step(true, last, UnitNotOnOffer, [this] { tool.View().ApplyUnits(UnitNotOnOffer, AngleDegrees); });
    Step(true, UnitNotOnOffer, last, [&] { tool.View().ApplyUnits(last, AngleDegrees); });
    for (int row = LastUnitRow - 1; row >= 0; --row)
        ChooseLength(row, UnitsOnOffer[row + 1]);
    ExpectBackAt(start);
    EXPECT_TRUE(messages.texts.isEmpty());
}

// In metres, which are not converted: lengths go from their unit to itself, and other units may lose a last
// digit.
TEST_F(AllUnits, AnglesGoToRadiansAndBack) {
    tool.View().ApplyUnits(Metres, AngleDegrees);
    const std::vector<Figure> start = Figures();
    Step(false, AngleDegrees, AngleRadians, [this] { Choose(AngleUnitBox, 1); });
    Step(false, AngleRadians, AngleDegrees, [this] { Choose(AngleUnitBox, 0); });
    ExpectBackAt(start);
}
