// Corrections in the panes of the font checks satisfy what is required, whatever is done to the controls.
#include "FontRoom.h"

#include "editing/ExACRichEdit.h"
#include "support/Messages.h"
#include "support/RandomStandard.h"

#include <QApplication>
#include <algorithm>
#include <set>

namespace {

bool Satisfies(unsigned op, double number, const std::vector<double>& values) {
    const bool isListed = std::ranges::find(values, number) != values.end();
    switch (op) {
    case OpBetween: {
        const auto [low, high] = std::ranges::minmax(values);
        return number >= low && number <= high;
    }
    case OpOneOf:
    case OpEqual: return isListed;
    case OpNoneOf: return !isListed;
    case OpBelow: return number < values[0];
    case OpAbove: return number > values[0];
    case OpAtLeast: return number >= values[0];
    case OpAtMost: return number <= values[0];
    default: return false;
    }
}

// What a correction has wrong; empty where it satisfies its parameter, or none has to.
CString Complaint(const CParameterEntry& entry) {
    CString wrong;
    VisitParameter(entry, [&]<class T>(const CParameter<T>& parameter) {
        const bool isRangeInTheMaking = parameter.Operator == OpBetween && parameter.Values.Count != 2;
        if (parameter.Operator == OpNone || parameter.Values.Count == 0 || isRangeInTheMaking)
            return;
        if constexpr (std::is_arithmetic_v<T>)
            if (parameter.Operator == OpBelow && parameter.Values[0] <= 0)
                return; // no size is below that
        bool holds = parameter.CorrectionKind == CorrectionFixed;
        if constexpr (std::is_same_v<T, CString*>) {
            holds = holds && std::ranges::any_of(parameter.Values, [&](const CString* value) {
                        return *value == *parameter.Correction;
                    });
        } else if constexpr (std::is_arithmetic_v<T>) {
            const std::vector<double> values(parameter.Values.begin(), parameter.Values.end());
            holds = holds && Satisfies(parameter.Operator, static_cast<double>(parameter.Correction), values);
        }
        if (!holds)
            wrong = parameter.Name + " has no good correction";
    });
    return wrong;
}

// Makes one change after another, each of a kind that a user makes by hand. Numbers are whole ones.
class RandomHand {
public:
    RandomHand(const FontHand& hand, unsigned seed) : m_hand(hand), m_random(seed) {}

    void Act() {
        switch (Below(11)) {
        case 0: return m_hand.ClickRow(Font::Styles, Below(4));
        case 1: return m_hand.ClickRow(Font::Names, Below(m_hand.Get<CChoiceList>(Font::Names).count()));
        case 2: return Choose(m_random.Chance(50) ? Font::StrikeoutBox : Font::UnderlineBox, 3);
        case 3: return m_hand.Click(m_random.Chance(70) ? Font::Units : Font::Points);
        case 4: return ClickDocumentFont();
        case 5: return Choose(m_random.Chance(50) ? Font::PointsCombo : Font::PointSizes, 6);
        case 6: return Type(Font::PointSizes, m_hand.Combo(Font::PointSizes).lineEdit());
        case 7: return Choose(m_random.Chance(50) ? Font::HeightCombo : Font::SpacingCombo, 9);
        case 8: return ChangeCorrection(1297 + Below(8));
        default: {
            const int field = m_random.Chance(50) ? Font::HeightField : Font::SpacingField;
            return Type(field, &m_hand.Field(field));
        }
        }
    }

private:
    int Below(int count) { return static_cast<int>(m_random.Below(static_cast<unsigned>(count))); }

    void Choose(int combo, int rows) {
        if (m_hand.IsEnabled(combo))
            m_hand.Choose(combo, Below(rows));
    }
    void ClickDocumentFont() {
        if (m_hand.Has(Font::DocumentFontBox) &&
            (m_random.Chance(10) || m_hand.Get<QAbstractButton>(Font::DocumentFontBox).isChecked()))
            m_hand.Click(Font::DocumentFontBox);
    }
    // A character at the end or in place of all, or none: the field is entered and left at the next change.
    void Type(int control, QLineEdit* field) {
        if (!m_hand.IsEnabled(control))
            return;
        Gui::Focus(m_hand.Get(control));
        if (m_random.Chance(10) || field->text().size() > 6)
            field->selectAll();
        if (control != Font::PointSizes && m_random.Chance(25))
            Gui::Key(m_hand.Get(control), Qt::Key_Comma);
        else if (m_random.Chance(10))
            Gui::Key(m_hand.Get(control), Qt::Key_Backspace);
        else
            Gui::Type(m_hand.Get(control), QString::number(Below(10)));
    }
    // A correction that does not do is refused when its field is left.
    void ChangeCorrection(int number) {
        if (!m_hand.Has(number))
            return;
        const CMyStatic& correction = m_hand.Correction(number);
        if (correction.List()->isVisible() && correction.List()->isEnabled()) {
            Gui::ChooseRow(*correction.List(), Below(correction.List()->count()));
        } else if (correction.Edit()->isVisible() && correction.Edit()->isEnabled()) {
            Gui::Focus(*correction.Edit());
            correction.Edit()->selectAll();
            Gui::Type(*correction.Edit(), QString::number(Below(60)));
            Gui::Focus(m_hand.Get(1249));
            Gui::Settle();
        }
    }

    const FontHand& m_hand;
    RandomStandard m_random;
};

class FontCorrections : public testing::TestWithParam<MQC_CheckType_e> {};

} // namespace

TEST_P(FontCorrections, SatisfyTheirParametersAfterEverySingleChange) {
    const Messages messages;
    PaneRoom room;
    room.standard.Unit = 0;
    room.Show();
    room.GetChecksPage().resize(1100, 900);
    const FontHand hand(room.Add(GetParam()));
    RandomHand random(hand, static_cast<unsigned>(GetParam()));
    std::set<unsigned> operators;
    for (int step = 0; step < 900; ++step) {
        random.Act();
        for (const CParameterEntry* entry : room.Live(GetParam())->Parameters) {
            ASSERT_EQ(Complaint(*entry).toStdString(), "") << "step " << step;
            operators.insert(entry->Parameter->Operator);
        }
    }
    EXPECT_GE(operators.size(), 9u);
}

INSTANTIATE_TEST_SUITE_P(Panes, FontCorrections,
                         testing::Values(Font::Notes, Font::Annotations, Font::Dimensions));
