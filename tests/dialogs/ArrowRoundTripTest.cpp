// Whatever a pane of an arrowhead check can express goes through it unchanged; and a correction always
// satisfies what is required.
#include "ArrowRoom.h"

#include "support/GuiTool.h"
#include "support/Messages.h"
#include "support/RandomStandard.h"
#include "support/StandardText.h"
#include "support/TestFolder.h"

#include <algorithm>
#include <set>

namespace {

constexpr unsigned ArrowOperators[] = {OpNone,    OpEqual,   OpBelow, OpAbove, OpAtMost,
                                       OpAtLeast, OpBetween, OpOneOf, OpNoneOf};

// Random checks that a pane can show in full: values in the order of its boxes, numbers of at most six
// decimals, and a correction for all that is in force.
class ArrowFillings {
public:
    explicit ArrowFillings(unsigned seed) : m_random(seed) {}

    std::unique_ptr<CCheck> Check(MQC_CheckType_e type) {
        auto check = std::make_unique<CCheck>(type, 0, 0, 0, Below(4));
        if (type == Arrow::Document)
            for (const Arrow::Size& size : Arrow::Sizes)
                FillSize(*check->GetDoubleParameter(size.parameter));
        std::set<int> ticked;
        for (const Arrow::DocumentBox& document : Arrow::DocumentBoxes)
            if (document.type == type && m_random.Chance(25)) {
                ticked.insert(document.box);
                Fill(*check->GetIntParameter(document.parameter), OpEqual, {1}, 1);
            }
        for (const Arrow::Group& group : Arrow::Groups)
            if (group.type == type && !ticked.contains(group.documentBox))
                FillGroup(group, *check->GetIntParameter(group.parameter));
        return check;
    }

    std::set<unsigned> operators;
    std::set<std::pair<unsigned, int>> values; // of choices, by parameter

private:
    unsigned Below(std::size_t count) { return m_random.Below(static_cast<unsigned>(count)); }
    double Length() { return (1 + Below(9'999'999)) / (m_random.Chance(50) ? 1e6 : 100.0); }

    template <class T>
    void Fill(CParameter<T>& parameter, unsigned op, const std::vector<T>& wanted, T correction) {
        parameter.Operator = op;
        for (const T value : wanted)
            parameter.Values.Add(value);
        parameter.SetCorrection(correction);
        parameter.CorrectionKind = CorrectionFixed;
        operators.insert(op);
    }
    void FillSize(CParameter<double>& size) {
        const unsigned op = ArrowOperators[Below(std::size(ArrowOperators))];
        if (op == OpNone)
            return;
        std::vector<double> wanted = {Length()};
        const bool isList = op == OpOneOf || op == OpNoneOf;
        const unsigned more = op == OpBetween ? 1 : isList ? Below(9) : 0;
        for (unsigned i = 0; i < more; ++i)
            wanted.push_back(Length());
        const double bound = wanted[0];
        const double correction = op == OpNoneOf                     ? *std::ranges::max_element(wanted) + 1
                                  : op == OpBelow || op == OpAtMost  ? bound - 1
                                  : op == OpAbove || op == OpAtLeast ? bound + 2.5
                                                                     : wanted.back();
        Fill(size, op, wanted, correction);
    }
    void FillGroup(const Arrow::Group& group, CParameter<int>& parameter) {
        const unsigned percent = 10 + Below(90);
        std::vector<int> wanted;
        for (std::size_t i = 0; i < group.boxes.size(); ++i)
            if (m_random.Chance(percent))
                wanted.push_back(Arrow::ValueOf(group, i));
        if (wanted.empty())
            return;
        for (const int value : wanted)
            values.emplace(group.parameter, value);
        Fill(parameter, OpOneOf, wanted, wanted[Below(wanted.size())]);
    }

    RandomStandard m_random;
};

std::size_t ValueCount() {
    std::size_t count = 0;
    for (const Arrow::Group& group : Arrow::Groups)
        count += group.boxes.size();
    return count;
}

// One random act of a user on a pane. Bounds are whole numbers, for a correction of the user's is compared
// with a bound by whole numbers alone.
void Act(MQC_CheckType_e type, const ArrowHand& hand, RandomStandard& random) {
    const auto below = [&](std::size_t count) { return random.Below(static_cast<unsigned>(count)); };
    if (type == Arrow::Document && random.Chance(60)) {
        const Arrow::Size& size = Arrow::Sizes[below(std::size(Arrow::Sizes))];
        if (random.Chance(50))
            hand.Choose(size.combo, static_cast<int>(below(9)));
        if (!hand.IsEnabled(size.value) || random.Chance(30))
            return;
        Gui::Focus(hand.Get(size.value));
        if (random.Chance(50))
            hand.Field(size.value).selectAll();
        Gui::Type(hand.Get(size.value), QString::number(below(40)));
        if (random.Chance(30))
            Gui::Type(hand.Get(size.value), ",");
        return;
    }
    if (type != Arrow::Document && random.Chance(10)) {
        hand.Click(type == Arrow::Annotations ? 1068 : random.Chance(50) ? 1077 : 1075);
        return;
    }
    std::vector<const Arrow::Group*> groups;
    for (const Arrow::Group& group : Arrow::Groups)
        if (group.type == type)
            groups.push_back(&group);
    const Arrow::Group& group = *groups[below(groups.size())];
    CComboBoxExt& list = *hand.Correction(group.correction).List();
    if (random.Chance(20) && list.isVisible() && list.isEnabled() && list.count() > 0)
        Gui::ChooseRow(list, static_cast<int>(below(static_cast<std::size_t>(list.count()))));
    else
        hand.Click(group.boxes[below(group.boxes.size())]);
}

} // namespace

TEST(ArrowRoundTrip, ACheckPassesThroughItsPaneUnchanged) {
    PaneRoom room;
    ArrowFillings fillings(1);
    for (const MQC_CheckType_e type : Arrow::All) {
        CExtDialog& pane = *room.GetChecksPage().GetPane(type, true);
        for (int round = 0; round < 250; ++round) {
            const auto check = fillings.Check(type);
            pane.LoadCheck(*check);
            CCheck shown(type, 0, 0, 0, 1);
            pane.FillCheck(shown);
            ASSERT_EQ(TextOfCheck(shown), TextOfCheck(*check)) << type << ", round " << round;
        }
    }
    EXPECT_EQ(fillings.operators, (std::set<unsigned>{OpBetween, OpOneOf, OpEqual, OpNoneOf, OpBelow, OpAbove,
                                                      OpAtLeast, OpAtMost}));
    EXPECT_EQ(fillings.values.size(), ValueCount());
}

TEST(ArrowRoundTrip, ACommitWithoutAChangeKeepsEveryValue) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        PaneRoom room;
        ArrowFillings fillings(seed);
        for (const MQC_CheckType_e type : Arrow::All) {
            unsigned sequence = 0;
            room.standard.InsertCheck(fillings.Check(type), sequence);
        }
        room.Show();
        room.TakeUp();
        const std::string before = LiveTextOf(room.standard).toStdString();
        for (const MQC_CheckType_e type : Arrow::All)
            room.Pane(type)->OnParameterChanged();
        ASSERT_EQ(LiveTextOf(room.standard).toStdString(), before) << seed;
    }
}

TEST(ArrowRoundTrip, ACopyOfACheckArrivesWhole) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        PaneRoom target;
        ArrowFillings fillings(seed);
        target.Show();
        for (const MQC_CheckType_e type : Arrow::All) {
            const auto source = fillings.Check(type);
            target.GetChecksPage().AddCheck(type, source.get());
            ASSERT_TRUE(target.Live(type)) << type;
            EXPECT_EQ(TextOfCheck(*target.Live(type)), TextOfCheck(*source)) << type;
        }
    }
}

TEST(ArrowRoundTrip, AFileShowsInAFreshPaneAsItWasWritten) {
    PaneRoom first, second;
    ArrowFillings fillings(2);
    for (int round = 0; round < 200; ++round) {
        CStandard written, read;
        for (const MQC_CheckType_e type : Arrow::All) {
            unsigned sequence = 0;
            CExtDialog& pane = *first.GetChecksPage().GetPane(type, true);
            pane.LoadCheck(*fillings.Check(type));
            auto check = std::make_unique<CCheck>(type, 0, 0, 0, 1);
            pane.FillCheck(*check);
            written.InsertCheck(std::move(check), sequence);
        }
        ReadText(TextOf(written), read);
        for (const MQC_CheckType_e type : Arrow::All) {
            CCheck *before = nullptr, *after = nullptr;
            written.FindLiveByType(type, before);
            read.FindLiveByType(type, after);
            ASSERT_TRUE(before && after);
            CExtDialog& pane = *second.GetChecksPage().GetPane(type, true);
            pane.LoadCheck(*after);
            CCheck shown(type, 0, 0, 0, 1);
            pane.FillCheck(shown);
            ASSERT_EQ(TextOfCheck(shown), TextOfCheck(*before)) << type << ", round " << round;
        }
    }
}

TEST(ArrowRoundTrip, TheToolSavesAndShowsAgainWhatWasEntered) {
    const TestFolder folder;
    const CString path = folder.Path("arrows.kvstd");
    CString entered;
    {
        GuiTool tool;
        tool.Do(Command::ShowAllChecks);
        for (const MQC_CheckType_e type : Arrow::All)
            tool.PressCheck(type);
        const ArrowHand document(*tool.Pane(Arrow::Document)), dimensions(*tool.Pane(Arrow::Dimensions)),
            annotations(*tool.Pane(Arrow::Annotations));
        document.Enter(Arrow::Sizes[0], Arrow::Between, "2.5,3.5");
        document.Click(1067);
        document.Click(1113);
        dimensions.Click(1077);
        dimensions.Click(1069);
        annotations.Click(1072);
        annotations.Click(1074);
        Gui::ChooseRow(*annotations.Correction(1297).List(), 1);
        entered = LiveTextOf(tool.Standard());
        ASSERT_TRUE(tool.SaveAs(path));
    }
    GuiTool tool;
    ASSERT_TRUE(tool.Open(path));
    EXPECT_EQ(LiveTextOf(tool.Standard()).toStdString(), entered.toStdString());
    tool.Do(Command::ShowAllChecks);
    const ArrowHand document(*tool.Pane(Arrow::Document)), dimensions(*tool.Pane(Arrow::Dimensions)),
        annotations(*tool.Pane(Arrow::Annotations));
    EXPECT_EQ(document.Field(1003).text(), "2.5 , 3.5");
    EXPECT_TRUE(document.Box(1067).isChecked() && document.Box(1113).isChecked());
    EXPECT_TRUE(dimensions.Box(1077).isChecked() && dimensions.Box(1069).isChecked());
    EXPECT_FALSE(dimensions.IsEnabled(1112));
    EXPECT_EQ(annotations.Correction(1297).List()->currentIndex(), 1);
}

TEST(ArrowCorrections, SatisfyTheirParameterAfterEverySingleChange) {
    const Messages messages;
    for (const MQC_CheckType_e type : Arrow::All) {
        PaneRoom room;
        room.standard.Unit = 0;
        room.Show();
        room.GetChecksPage().resize(1100, 900);
        const ArrowHand hand(room.Add(type));
        RandomStandard random(41);
        std::set<unsigned> operators;
        for (int step = 0; step < 400; ++step) {
            Act(type, hand, random);
            ASSERT_EQ(CorrectionComplaints(*room.Live(type)), "") << type << ", step " << step;
            for (const CParameterEntry* entry : room.Live(type)->Parameters)
                operators.insert(entry->Parameter->Operator);
        }
        EXPECT_EQ(operators.size(), type == Arrow::Document ? 9u : 3u);
    }
}

TEST(ArrowCorrections, SatisfyTheirParameterAfterEveryChangeOfOperator) {
    const Messages messages;
    PaneRoom room;
    room.standard.Unit = 0;
    room.Show();
    room.GetChecksPage().resize(1100, 900);
    const ArrowHand hand(room.Add(Arrow::Document));
    for (int from = Arrow::Equal; from <= Arrow::NoneOf; ++from)
        for (int to = Arrow::Equal; to <= Arrow::NoneOf; ++to)
            for (const char* text : {"0", "100", "2,1", "1,2,3,4,5"}) {
                hand.Enter(Arrow::Sizes[0], from, text);
                hand.Choose(Arrow::Sizes[0].combo, to);
                ASSERT_EQ(CorrectionComplaints(*room.Live(Arrow::Document)), "")
                    << from << " " << to << " " << text;
            }
}
