// Whatever a pane of a font check can express goes through it, and through a file, unchanged.
#include "FontRoom.h"

#include "editing/FontList.h"
#include "model/Catalogue.h"
#include "support/GuiTool.h"
#include "support/RandomStandard.h"
#include "support/StandardText.h"
#include "support/TestFolder.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

constexpr MQC_CheckType_e FontTypes[] = {109, 110, 111, 112, 113, 114, 115, 116, 117, 119, 120, 202, 403};
constexpr unsigned Rounds = 200;
constexpr unsigned PaneLife = 8; // checks that are shown in a pane before it is replaced
constexpr unsigned LengthOperators[] = {OpNone,    OpEqual,   OpBelow, OpAbove, OpAtMost,
                                        OpAtLeast, OpBetween, OpOneOf, OpNoneOf};
constexpr unsigned ListedSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};
constexpr unsigned PointOperators[] = {OpNone, OpEqual, OpBelow, OpAbove, OpAtMost, OpAtLeast};

const CStringArray MissingNames = {"Missing A", QString::fromUtf8("Größe & <Co>"), "Missing Z"};

// Random checks that a pane can show in full: values in the order of its rows, numbers of at most six
// decimals, and a correction for all that is in force.
class FontFillings {
public:
    explicit FontFillings(unsigned seed) : m_random(seed) {}

    std::unique_ptr<CCheck> Check(MQC_CheckType_e type) {
        auto check = std::make_unique<CCheck>(type, 0, 0, 0, Below(4));
        auto* documentFont = check->GetIntParameter(Font::DocumentFont);
        if (documentFont && m_random.Chance(20)) {
            Fill(*documentFont, OpEqual, {1}, 1);
            return check;
        }
        FillNames(*check->GetStringParameter(Font::Name));
        FillStyles(*check->GetLongParameter(Font::Style));
        for (const unsigned id : {Font::Strikeout, Font::Underline})
            if (const int value = static_cast<int>(Below(3)); value < 2) {
                Fill(*check->GetIntParameter(id), OpEqual, {value}, value);
                yesAndNo.emplace(id, value);
            }
        if (const unsigned op = PointOperators[Below(std::size(PointOperators))]; m_random.Chance(30) && op) {
            // First those of the list, so that all occur whatever fonts the machine has to draw from.
            const int size =
                static_cast<int>(m_listed < std::size(ListedSizes) ? ListedSizes[m_listed++] : 1 + Below(90));
            sizes.insert(static_cast<unsigned>(size));
            Fill(*check->GetIntParameter(Font::PointHeight), op, {size}, Near(op, size));
            return check;
        }
        for (const unsigned id : {Font::Height, Font::Spacing})
            FillHeight(*check->GetDoubleParameter(id));
        return check;
    }

    // What has occurred: operators by their parameter, and rows of lists.
    std::map<unsigned, std::set<unsigned>> operators;
    std::set<long> styles;
    std::set<unsigned> sizes;
    std::set<std::pair<unsigned, int>> yesAndNo;

private:
    unsigned Below(std::size_t count) { return m_random.Below(static_cast<unsigned>(count)); }

    template <class T> void Fill(CParameter<T>& parameter, unsigned op, std::vector<T> values, T correction) {
        parameter.Operator = op;
        for (const T value : values)
            parameter.Values.Add(value);
        parameter.SetCorrection(correction);
        parameter.CorrectionKind = CorrectionFixed;
        operators[parameter.ID].insert(op);
    }
    // A number that satisfies an operator with one bound.
    template <class T> T Near(unsigned op, T bound) {
        const T step = static_cast<T>(1 + Below(3));
        return op == OpBelow || op == OpAtMost    ? bound - step
               : op == OpAbove || op == OpAtLeast ? bound + step
                                                  : bound;
    }
    double Length() { return (1 + Below(9'999'999)) / (m_random.Chance(50) ? 1e6 : 100.0); }

    void FillNames(CParameter<CString*>& names) {
        std::vector<CString*> chosen;
        for (const CString& name : m_names)
            if (m_random.Chance(30))
                chosen.push_back(new CString(name));
        if (chosen.empty())
            return;
        const CString correction = *chosen[Below(chosen.size())];
        Fill(names, OpOneOf, chosen, new CString(correction));
    }
    void FillStyles(CParameter<long>& parameter) {
        std::vector<long> chosen;
        for (long code = 1; code <= 4; ++code)
            if (m_random.Chance(40))
                chosen.push_back(code);
        if (chosen.empty())
            return;
        styles.insert(chosen.begin(), chosen.end());
        Fill(parameter, OpOneOf, chosen, chosen[Below(chosen.size())]);
    }
    void FillHeight(CParameter<double>& height) {
        const unsigned op = LengthOperators[Below(std::size(LengthOperators))];
        if (op == OpNone)
            return;
        std::vector<double> values = {Length()};
        const bool isList = op == OpOneOf || op == OpNoneOf;
        const unsigned more = op == OpBetween ? 1 : isList ? Below(9) : 0;
        for (unsigned i = 0; i < more; ++i)
            values.push_back(Length());
        const double outside = *std::ranges::max_element(values) + 1;
        Fill(height, op, values,
             op == OpNoneOf   ? outside
             : isList || more ? values.back()
                              : Near(op, values[0]));
    }

    static CStringArray AllNames() {
        CFontList list;
        list.FillWithInstalled();
        CStringArray names;
        for (int row = 0; row < list.count(); ++row)
            names.append(list.item(row)->text());
        return names + MissingNames;
    }

    RandomStandard m_random;
    std::size_t m_listed = 0;
    const CStringArray m_names = AllNames();
};

std::string TextOfCheck(const CCheck& check) {
    CStandard standard;
    unsigned sequence = 0;
    standard.InsertCheck(CStandard::CloneCheck(check), sequence);
    return LiveTextOf(standard).toStdString();
}

// Gives the pane its rows of missing fonts, whose order is that in which they were met.
void ShowMissingNames(CExtDialog& pane, MQC_CheckType_e type) {
    CCheck check(type, 0, 0, 0, 1);
    auto& names = *check.GetStringParameter(Font::Name);
    names.Operator = OpOneOf;
    for (const CString& name : MissingNames)
        names.Values.Add(new CString(name));
    pane.LoadCheck(check);
}

// The check of a round in one of the three kinds of pane; the first kind is that of all document fonts.
MQC_CheckType_e TypeOf(unsigned kind, unsigned round) {
    return kind == 0 ? FontTypes[round % 11] : kind == 1 ? Font::Annotations : Font::Dimensions;
}

std::unique_ptr<CExtDialog> FreshPane(PaneRoom& room, QWidget& parent, MQC_CheckType_e type) {
    auto pane = room.MakePane(*FindPageCheck(type));
    pane->Create(&parent);
    ShowMissingNames(*pane, type);
    return pane;
}

void FillStandard(CStandard& standard, FontFillings& fillings) {
    for (const MQC_CheckType_e type : FontTypes) {
        unsigned sequence = 0;
        standard.InsertCheck(fillings.Check(type), sequence);
    }
}

} // namespace

TEST(FontRoundTrip, ACheckPassesThroughItsPaneUnchanged) {
    PaneRoom room;
    for (const MQC_CheckType_e type : FontTypes)
        ShowMissingNames(*room.GetChecksPage().GetPane(type, true), type);
    for (unsigned kind = 0; kind < 3; ++kind) {
        FontFillings fillings(20 + kind);
        for (unsigned round = 0; round < Rounds; ++round) {
            const MQC_CheckType_e type = TypeOf(kind, round);
            CExtDialog& pane = *room.Pane(type);
            const auto check = fillings.Check(type);
            pane.LoadCheck(*check);
            CCheck shown(type, 0, 0, 0, 1);
            pane.FillCheck(shown);
            ASSERT_EQ(TextOfCheck(shown), TextOfCheck(*check)) << type;
        }
        for (const unsigned id : {Font::Height, Font::Spacing})
            EXPECT_EQ(fillings.operators[id],
                      std::set<unsigned>(std::begin(LengthOperators) + 1, std::end(LengthOperators)));
        EXPECT_EQ(fillings.operators[Font::PointHeight],
                  std::set<unsigned>(std::begin(PointOperators) + 1, std::end(PointOperators)));
        EXPECT_TRUE(std::ranges::includes(
            fillings.sizes, std::set<unsigned>(std::begin(ListedSizes), std::end(ListedSizes))));
        EXPECT_EQ(fillings.styles.size(), 4u);
        EXPECT_EQ(fillings.yesAndNo.size(), 4u);
    }
}

TEST(FontRoundTrip, ACommitWithoutAChangeKeepsEveryValue) {
    PaneRoom room;
    FontFillings fillings(21);
    FillStandard(room.standard, fillings);
    room.Show();
    room.TakeUp();
    const CString before = LiveTextOf(room.standard);
    for (const MQC_CheckType_e type : FontTypes)
        room.Pane(type)->OnParameterChanged();
    EXPECT_EQ(LiveTextOf(room.standard).toStdString(), before.toStdString());
}

TEST(FontRoundTrip, AFileShowsInAFreshPaneAsItWasWritten) {
    PaneRoom room;
    QWidget parent;
    for (unsigned kind = 0; kind < 3; ++kind) {
        FontFillings fillings(40 + kind);
        std::unique_ptr<CExtDialog> pane, fresh;
        for (unsigned round = 0; round < Rounds; ++round) {
            const MQC_CheckType_e type = TypeOf(kind, round / PaneLife);
            if (round % PaneLife == 0) {
                pane = FreshPane(room, parent, type);
                fresh = FreshPane(room, parent, type);
            }
            const auto check = fillings.Check(type);
            pane->LoadCheck(*check);
            CCheck written(type, 0, 0, 0, 1), shown(type, 0, 0, 0, 1);
            pane->FillCheck(written);
            CStandard file, read;
            unsigned sequence = 0;
            file.InsertCheck(CStandard::CloneCheck(written), sequence);
            ReadText(TextOf(file), read);
            CCheck* found = nullptr;
            read.FindLiveByType(type, found);
            ASSERT_TRUE(found) << type;
            fresh->LoadCheck(*found);
            fresh->FillCheck(shown);
            ASSERT_EQ(TextOfCheck(shown), TextOfCheck(*check)) << type << ", round " << round;
        }
    }
}

TEST(FontRoundTrip, APageTakenUpFromAFileShowsEveryCheck) {
    PaneRoom first, second;
    FontFillings fillings(60);
    FillStandard(first.standard, fillings);
    ReadText(TextOf(first.standard), second.standard);
    second.Show();
    second.TakeUp();
    for (const MQC_CheckType_e type : FontTypes) {
        CCheck shown(type, 0, 0, 0, 1);
        second.Pane(type)->FillCheck(shown);
        EXPECT_EQ(TextOfCheck(shown), TextOfCheck(*first.Live(type))) << type;
    }
}

TEST(FontRoundTrip, TheToolSavesAndShowsAgainWhatWasEntered) {
    const TestFolder folder;
    const CString path = folder.Path("fonts.kvstd");
    CString entered;
    {
        GuiTool tool;
        tool.Do(Command::ShowAllChecks);
        tool.PressCheck(Font::Notes);
        tool.PressCheck(Font::Dimensions);
        const FontHand notes(*tool.Pane(Font::Notes)), dimensions(*tool.Pane(Font::Dimensions));
        notes.ClickRow(Font::Names, 0);
        notes.Enter(Font::HeightCombo, Font::Between, "2.5,3.5");
        notes.Choose(Font::UnderlineBox, 2);
        dimensions.Click(Font::Points);
        dimensions.Choose(Font::PointsCombo, Font::AtLeast);
        dimensions.Choose(Font::PointSizes, 4);
        entered = LiveTextOf(tool.Standard());
        ASSERT_TRUE(tool.SaveAs(path));
    }
    GuiTool tool;
    ASSERT_TRUE(tool.Open(path));
    EXPECT_EQ(LiveTextOf(tool.Standard()), entered);
    tool.Do(Command::ShowAllChecks);
    const FontHand notes(*tool.Pane(Font::Notes)), dimensions(*tool.Pane(Font::Dimensions));
    EXPECT_EQ(notes.Field(Font::HeightField).text(), "2.5 , 3.5");
    EXPECT_EQ(notes.Get<CChoiceList>(Font::Names).ChosenTexts().size(), 1);
    EXPECT_EQ(dimensions.Combo(Font::PointSizes).currentText(), "12");
}
