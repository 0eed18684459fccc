// Whatever the panes of units, precision, alignment and the like can express goes through them unchanged; and
// a correction always satisfies what is required.
#include "ValueFillings.h"
#include "ValueRoom.h"

#include "support/GuiTool.h"
#include "support/StandardText.h"
#include "support/TestFolder.h"

namespace {

void FillStandard(CStandard& standard, ValueFillings& fillings) {
    for (const MQC_CheckType_e type : ValueFillings::Types) {
        unsigned sequence = 0;
        standard.InsertCheck(fillings.Check(type), sequence);
    }
}

} // namespace

TEST(ValueRoundTrip, ACheckPassesThroughItsPaneUnchanged) {
    PaneRoom room;
    ValueFillings fillings(1);
    for (const MQC_CheckType_e type : ValueFillings::Types) {
        CExtDialog& pane = *room.GetChecksPage().GetPane(type, true);
        for (int round = 0; round < 200; ++round) {
            const auto check = fillings.Check(type);
            pane.LoadCheck(*check);
            CCheck shown(type, 0, 0, 0, 1);
            pane.FillCheck(shown);
            ASSERT_EQ(TextOfCheck(shown), TextOfCheck(*check)) << type << ", round " << round;
        }
    }
    EXPECT_EQ(fillings.operators,
              (std::set<unsigned>{OpOneOf, OpEqual, OpBelow, OpAbove, OpAtLeast, OpAtMost}));
    const std::map<unsigned, std::size_t> counts = {
        {1663, 5},  {1664, 11}, {1666, 2}, {1668, 2}, {1669, 11}, {1671, 2}, {1673, 2}, {1674, 4},
        {1676, 11}, {1677, 4},  {1678, 9}, {1679, 6}, {1665, 9},  {1667, 9}, {1670, 9}, {1672, 9},
        {1675, 9},  {1680, 9},  {2281, 9}, {2282, 9}, {2283, 9},  {2284, 9}, {2404, 9}, {2405, 9},
        {2314, 4},  {2274, 3},  {2275, 3}, {2276, 3}, {2277, 4},  {140, 5},  {1742, 5}};
    for (const auto& [id, count] : counts)
        EXPECT_EQ(fillings.values[id].size(), count) << id;
}

TEST(ValueRoundTrip, ACommitWithoutAChangeKeepsEveryValue) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        PaneRoom room;
        ValueFillings fillings(seed);
        FillStandard(room.standard, fillings);
        room.Show();
        room.TakeUp();
        const CString before = LiveTextOf(room.standard);
        for (const MQC_CheckType_e type : ValueFillings::Types)
            room.Pane(type)->OnParameterChanged();
        ASSERT_EQ(LiveTextOf(room.standard).toStdString(), before.toStdString()) << seed;
        EXPECT_FALSE(room.standard.CanUndo() && room.standard.CanRedo());
    }
}

TEST(ValueRoundTrip, AFileShowsInAFreshPaneAsItWasWritten) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        CStandard written, read;
        ValueFillings fillings(seed);
        FillStandard(written, fillings);
        ReadText(TextOf(written), read);
        PaneRoom room;
        for (const MQC_CheckType_e type : ValueFillings::Types) {
            CCheck *before = nullptr, *stored = nullptr;
            written.FindLiveByType(type, before);
            read.FindLiveByType(type, stored);
            ASSERT_TRUE(before && stored);
            CExtDialog& pane = *room.GetChecksPage().GetPane(type, true);
            pane.LoadCheck(*stored);
            CCheck after(type, 0, 0, 0, 1);
            pane.FillCheck(after);
            ASSERT_EQ(TextOfCheck(after), TextOfCheck(*before)) << type << ", seed " << seed;
        }
    }
}

TEST(ValueRoundTrip, TheToolSavesAndShowsAgainWhatWasEntered) {
    const TestFolder folder;
    const CString path = folder.Path("units.kvstd");
    CString entered;
    {
        GuiTool tool;
        tool.Do(Command::ShowAllChecks);
        for (const MQC_CheckType_e type : ValueFillings::Types)
            tool.PressCheck(type);
        const PaneHand units(*tool.Pane(108)), precision(*tool.Pane(409)), gaps(*tool.Pane(314));
        units.Click(1130);
        units.ClickRow(1109, 8);
        units.Choose(1098, AtLeastRow);
        units.Enter(1099, "3");
        precision.Choose(1256, 2);
        precision.Click(1323);
        precision.Enter(1328, "0.25");
        gaps.Enter(1285, "1.5");
        gaps.Enter(1083, "2");
        PaneHand(*tool.Pane(408)).Click(1527);
        PaneHand(*tool.Pane(123)).Click(1289);
        PaneHand(*tool.Pane(312)).Click(1266);
        PaneHand(*tool.Pane(405)).Click(1133);
        entered = LiveTextOf(tool.Standard());
        ASSERT_TRUE(tool.SaveAs(path));
    }
    GuiTool tool;
    ASSERT_TRUE(tool.Open(path));
    EXPECT_EQ(LiveTextOf(tool.Standard()), entered);
    tool.Do(Command::ShowAllChecks);
    for (const MQC_CheckType_e type : ValueFillings::Types) {
        CCheck shown(type, 0, 0, 0, 1);
        tool.Pane(type)->FillCheck(shown);
        CCheck* live = nullptr;
        tool.Standard().FindLiveByType(type, live);
        EXPECT_EQ(TextOfCheck(shown), TextOfCheck(*live)) << type;
    }
    EXPECT_EQ(PaneHand(*tool.Pane(409)).Field(1328).text(), "0.25");
    EXPECT_EQ(PaneHand(*tool.Pane(108)).Spin(1099).value(), 3);
}

namespace {

// Changes one control of a pane at random, as a user would.
class RandomUser {
public:
    RandomUser(CExtDialog& pane, unsigned seed) : m_pane(pane), m_random(seed) {
        for (const auto& [number, control] : pane.Controls().asKeyValueRange())
            if (number > 2 && number < CExtDialog::CaptionControl && number != CExtDialog::CriticalityControl)
                m_numbers.push_back(number);
        std::ranges::sort(m_numbers); // the same on every machine
    }

    void Act() {
        const PaneHand hand(m_pane);
        const int number = m_numbers[m_random.Below(static_cast<unsigned>(m_numbers.size()))];
        QWidget& control = hand.Get(number);
        if (!control.isEnabled() || !control.isVisible())
            return;
        if (auto* list = qobject_cast<CChoiceList*>(&control))
            hand.ClickRow(number, Below(list->count()));
        else if (auto* combo = qobject_cast<QComboBox*>(&control))
            hand.Choose(number, Below(combo->count()));
        else if (qobject_cast<CNumberSpin*>(&control)) {
            hand.Enter(number, QString::number(1 + Below(8)));
        } else if (qobject_cast<QLineEdit*>(&control))
            hand.Enter(number, QString::number(Below(400) / 8.0));
        else if (qobject_cast<QAbstractButton*>(&control))
            ActOnBox(hand, number);
        else if (auto* correction = qobject_cast<CMyStatic*>(&control))
            ActOnCorrection(*correction);
    }

private:
    int Below(int count) { return static_cast<int>(m_random.Below(static_cast<unsigned>(count))); }

    // What closes all others is soon opened again.
    void ActOnBox(const PaneHand& hand, int number) {
        const bool closes = number == 1133 || number == 1288;
        const bool opens = number == 1130 || number == 1117 || number == 1097;
        if (closes && !hand.IsTicked(number) && m_random.Chance(80))
            return;
        if (opens && hand.IsTicked(number) && m_random.Chance(80))
            return;
        hand.Click(number);
    }
    void ActOnCorrection(CMyStatic& correction) {
        QComboBox& list = *correction.List();
        if (list.isVisible() && list.isEnabled() && list.count() > 0)
            Gui::ChooseRow(list, Below(list.count()));
    }

    CExtDialog& m_pane;
    RandomStandard m_random;
    std::vector<int> m_numbers;
};

} // namespace

TEST(ValueCorrections, SatisfyTheirParameterAfterEverySingleChange) {
    std::set<unsigned> operators;
    for (const MQC_CheckType_e type : ValueFillings::Types) {
        const Messages messages;
        PaneRoom room;
        room.standard.Unit = 0;
        room.Show();
        room.GetChecksPage().resize(1100, 1500);
        RandomUser user(room.Add(type), 50 + static_cast<unsigned>(type));
        for (int step = 0; step < (type == 108 ? 600 : 200); ++step) {
            user.Act();
            for (const CParameterEntry* entry : room.Live(type)->Parameters) {
                operators.insert(entry->Parameter->Operator);
                // These have no correction.
                if (type == 409 && ((entry->ID >= 2307 && entry->ID <= 2310) || entry->ID == 2314))
                    continue;
                ASSERT_EQ(CorrectionComplaint(*entry), "") << type << ", step " << step;
            }
        }
    }
    EXPECT_EQ(operators,
              (std::set<unsigned>{OpNone, OpOneOf, OpEqual, OpBelow, OpAbove, OpAtLeast, OpAtMost}));
}
