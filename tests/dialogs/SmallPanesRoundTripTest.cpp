// Whatever the panes of bend tables, file locations and assemblies can express goes through them unchanged.
#include "CheckRoom.h"

#include "editing/ComboBoxExt.h"
#include "editing/RulewardOptions.h"
#include "engines/EnumEngine.h"
#include "engines/ParameterKinds.h"
#include "engines/UnitConvertor.h"
#include "model/CheckManager.h"
#include "model/ParameterValue.h"
#include "support/FilledStandard.h"
#include "support/GuiTool.h"
#include "support/Messages.h"
#include "support/RandomStandard.h"
#include "support/StandardText.h"
#include "support/TestFolder.h"

#include <QDir>
#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace {

constexpr MQC_CheckType_e SmallTypes[] = {BendTable,          FileLocations, FixedParts,
                                          ExternalReferences, Interferences, Mates};
constexpr OperatorCode Operators[] = {OpNone,   OpEqual,   OpBelow, OpAbove, OpAtLeast,
                                      OpAtMost, OpBetween, OpOneOf, OpNoneOf};

// Random checks that a pane can show in full.
class SmallFillings {
public:
    explicit SmallFillings(unsigned seed) : m_random(seed) {}

    std::unique_ptr<CCheck> Check(MQC_CheckType_e type) {
        auto check = CStandard::MakeCheck(type);
        check->Criticality = m_random.Below(4);
        switch (type) {
        case BendTable: FillTables(*check); break;
        case FileLocations: FillLocations(dynamic_cast<CCheckManager&>(*check)); break;
        case FixedParts: FillPair(*check, 1586, false); break;
        case ExternalReferences: FillBoxes(*check, 1714, {0, 5, 3, 1, 4}); break;
        case Interferences:
            FillPair(*check, 1754, true);
            FillBoxes(*check, 1758, {0, 1, 2});
            break;
        default: FillMates(*check); break;
        }
        return check;
    }

    std::map<unsigned, std::set<unsigned>> operators; // of each parameter
    std::map<unsigned, std::set<long>> values;        // of those with a list of them
    std::set<int> mateModes;

private:
    CString Number(bool hasDecimals) {
        if (!hasDecimals || m_random.Chance(20))
            return QString::number(m_random.Below(1'000'000));
        return QString::number((1 + m_random.Below(9'999'999)) / (m_random.Chance(50) ? 1e6 : 100.0), 'g',
                               10);
    }
    void FillPair(CCheck& check, unsigned id, bool hasDecimals) {
        const OperatorCode op = Operators[m_random.Below(std::size(Operators))];
        operators[id].insert(op);
        if (op == OpNone)
            return;
        const bool isList = op == OpOneOf || op == OpNoneOf;
        CStringArray numbers;
        const unsigned count = op == OpBetween ? 2 : isList ? 1 + m_random.Below(9) : 1;
        while (numbers.size() < static_cast<qsizetype>(count))
            numbers.append(Number(hasDecimals));
        Set(check, id, op, numbers);
    }
    void FillBoxes(CCheck& check, unsigned id, const std::vector<long>& inOrder) {
        CStringArray chosen;
        for (const long value : inOrder)
            if (m_random.Chance(40)) {
                chosen.append(QString::number(value));
                values[id].insert(value);
            }
        if (!chosen.isEmpty())
            Set(check, id, OpOneOf, chosen);
    }
    CStringArray Paths(unsigned most, const CString& end) {
        CStringArray paths;
        for (unsigned count = m_random.Below(most + 1); count > 0; --count)
            paths.append(
                QString::fromUtf8("/Büro & <Halle>/%1, %2%3").arg(count).arg(m_random.Below(99)).arg(end));
        return paths;
    }
    void FillTables(CCheck& check) {
        const CStringArray paths = Paths(8, m_random.Chance(50) ? ".xls" : ".btl");
        Set(check, 1741, OpOneOf, paths);
        if (paths.isEmpty())
            return;
        auto& tables = *check.GetStringParameter(1741);
        const auto chosen = m_random.Below(static_cast<unsigned>(paths.size()));
        tables.SetCorrection(new CString(paths[static_cast<qsizetype>(chosen)]));
        tables.CorrectionKind = CorrectionFixed;
    }
    void FillLocations(CCheckManager& check) {
        for (int type = 0; type < 36; ++type) {
            const CStringArray folders = m_random.Chance(20) ? Paths(5, "") : CStringArray();
            if (folders.isEmpty())
                continue;
            auto entry = check.MakeChild();
            Set(*entry, 2473, OpEqual, {QString::number(type)});
            Set(*entry, 2474, OpOneOf, folders);
            Set(*entry, 2476, OpEqual, {m_random.Chance(50) ? "1" : "0"});
            values[2473].insert(type);
            check.Children.Add(entry.release());
        }
        const unsigned selected = m_random.Below(36);
        values[2478].insert(selected);
        Set(check, 2478, OpEqual, {QString::number(selected)});
        FillBoxes(check, 2477, {0, 1, 2});
        check.GetLongParameter(2477)->Operator = OpOneOf;
    }
    void FillMates(CCheck& check) {
        const unsigned mode = m_random.Below(3);
        mateModes.insert(static_cast<int>(mode));
        if (mode == 0)
            Word(check, 32947, OpOneOf, "Yes");
        else if (mode == 1)
            Word(check, 32948, OpTextOnly, "Yes");
        else
            Set(check, 32949, OpAtMost, {Number(true)});
        if (mode > 0)
            Word(check, 32950, OpOneOf, m_random.Chance(50) ? "Yes" : "No");
    }
    void Word(CCheck& check, unsigned id, OperatorCode op, const char* word) {
        Set(check, id, op, {word});
        check.GetStringParameter(id)->ParameterType = 1;
    }
    // Without a correction, unlike other helpers: these panes have none.
    static void Set(CCheck& check, unsigned id, OperatorCode op, const CStringArray& texts) {
        VisitParameter(*check.FindParameter(id), [&]<class T>(CParameter<T>& parameter) {
            parameter.Operator = op;
            for (const CString& text : texts)
                parameter.Values.Add(ValueForm<T>::Parse(text));
        });
    }

    RandomStandard m_random;
};

void FillStandard(CStandard& standard, SmallFillings& fillings) {
    for (const MQC_CheckType_e type : SmallTypes) {
        unsigned sequence = 0;
        standard.InsertCheck(fillings.Check(type), sequence);
    }
}

// The entries of a container are named by their type of file, which is no value that is filled.
std::string ContentOf(CCheck& check) {
    for (CCheck* entry : check.Children)
        entry->Name.clear();
    return TextOfCheck(check);
}

// What all panes of the tool write.
std::string ContentsOf(GuiTool& tool) {
    std::string contents;
    for (const MQC_CheckType_e type : SmallTypes) {
        const auto check = CStandard::MakeCheck(type);
        tool.Pane(type)->FillCheck(*check);
        contents += TextOfCheck(*check) + '\n';
    }
    return contents;
}

} // namespace

TEST(SmallPanesRoundTrip, ACheckPassesThroughItsPaneUnchanged) {
    PaneRoom room;
    SmallFillings fillings(40);
    for (const MQC_CheckType_e type : SmallTypes) {
        CExtDialog& pane = *room.GetChecksPage().GetPane(type, true);
        for (int round = 0; round < 200; ++round) {
            const auto check = fillings.Check(type);
            pane.LoadCheck(*check);
            const auto shown = CStandard::MakeCheck(type);
            pane.FillCheck(*shown);
            ASSERT_EQ(ContentOf(*shown), ContentOf(*check)) << type << ", round " << round;
        }
    }
    const std::set<unsigned> all(std::begin(Operators), std::end(Operators));
    EXPECT_EQ(fillings.operators[1754], all);
    EXPECT_EQ(fillings.operators[1586], all);
    EXPECT_EQ(fillings.values[1714], (std::set<long>{0, 1, 3, 4, 5}));
    EXPECT_EQ(fillings.values[1758], (std::set<long>{0, 1, 2}));
    EXPECT_EQ(fillings.values[2477], (std::set<long>{0, 1, 2}));
    EXPECT_EQ(fillings.values[2473].size(), 36u);
    EXPECT_EQ(fillings.values[2478].size(), 36u);
    EXPECT_EQ(fillings.mateModes.size(), 3u);
}

TEST(SmallPanesRoundTrip, AFileShowsInAnotherPaneAsItWasWritten) {
    PaneRoom first, second;
    const auto written = [](PaneRoom& room, const CCheck& check) {
        CExtDialog& pane = *room.GetChecksPage().GetPane(check.Type, true);
        pane.LoadCheck(check);
        auto shown = CStandard::MakeCheck(check.Type);
        pane.FillCheck(*shown);
        return shown;
    };
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SmallFillings fillings(seed);
        CStandard saved, opened;
        std::map<MQC_CheckType_e, std::string> before;
        for (const MQC_CheckType_e type : SmallTypes) {
            auto check = written(first, *fillings.Check(type));
            before[type] = TextOfCheck(*check);
            unsigned sequence = 0;
            saved.InsertCheck(std::move(check), sequence);
        }
        ReadText(TextOf(saved), opened);
        for (const CCheck* check : LiveOf(opened))
            ASSERT_EQ(TextOfCheck(*written(second, *check)), before[check->Type])
                << check->Type << ", seed " << seed;
    }
}

TEST(SmallPanesRoundTrip, ACommitWithoutAChangeKeepsEveryValue) {
    PaneRoom room;
    SmallFillings fillings(41);
    FillStandard(room.standard, fillings);
    room.Show();
    room.TakeUp();
    std::map<MQC_CheckType_e, std::string> before;
    for (const MQC_CheckType_e type : SmallTypes)
        before[type] = ContentOf(*room.Live(type));
    for (const MQC_CheckType_e type : SmallTypes) {
        room.Pane(type)->OnParameterChanged();
        EXPECT_EQ(ContentOf(*room.Live(type)), before[type]) << type;
    }
}

TEST(SmallPanesRoundTrip, ACopyOfACheckArrivesWhole) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        PaneRoom source, target;
        SmallFillings fillings(seed);
        FillStandard(source.standard, fillings);
        target.Show();
        for (const MQC_CheckType_e type : SmallTypes) {
            target.GetChecksPage().AddCheck(type, source.Live(type));
            ASSERT_TRUE(target.Live(type)) << type;
            EXPECT_EQ(ContentOf(*target.Live(type)), ContentOf(*source.Live(type))) << type;
        }
    }
}

TEST(SmallPanesRoundTrip, TheCorrectionIsATableAfterEverySingleChange) {
    PaneRoom room;
    room.Show();
    room.GetChecksPage().resize(1100, 900);
    const CheckHand hand(room.Add(BendTable));
    RandomStandard random(42);
    for (int step = 0; step < 200; ++step) {
        FileList& list = hand.List(1272);
        const auto row = [&] {
            return static_cast<int>(random.Below(static_cast<unsigned>(list.topLevelItemCount())));
        };
        if (list.topLevelItemCount() == 0 || random.Chance(45))
            hand.Drop(1272, {QString("/t/%1.xls").arg(random.Below(20)),
                             QString("/t/%1.btl").arg(random.Below(20))});
        else if (random.Chance(50)) {
            hand.ClickRow(1272, row());
            Gui::Key(hand.Get(1272), Qt::Key_Delete);
        } else if (QComboBox& box = *static_cast<QComboBox*>(hand.Get<CMyStatic>(1304).List());
                   box.count() > 0)
            Gui::ChooseRow(box, static_cast<int>(random.Below(static_cast<unsigned>(box.count()))));
        ASSERT_EQ(CorrectionComplaints(*room.Live(BendTable)), "") << "step " << step;
    }
}

TEST(SmallPanesRoundTrip, TheToolSavesAndShowsAgainWhatWasEntered) {
    const TestFolder folder;
    QDir(folder.Path()).mkdir("templates");
    const CString path = folder.Path("small.kvstd");
    std::string entered;
    {
        GuiTool tool;
        tool.Do(Command::ShowAllChecks);
        for (const MQC_CheckType_e type : SmallTypes)
            tool.PressCheck(type);
        CheckHand(*tool.Pane(BendTable)).Drop(1272, {"/t/a.xls", "/t/b.btl"});
        CheckHand(*tool.Pane(FileLocations)).Drop(1274, {folder.Path("templates")});
        CheckHand(*tool.Pane(FileLocations)).Click(1330);
        const CheckHand fixed(*tool.Pane(FixedParts)), interferences(*tool.Pane(Interferences)),
            mates(*tool.Pane(Mates)), references(*tool.Pane(ExternalReferences));
        fixed.Choose(1080, AtMost);
        fixed.Type(1081, "2");
        interferences.Choose(1080, Between);
        interferences.Type(1081, "0.5,7");
        interferences.Click(1516);
        mates.Click(32942);
        mates.Type(1002, "0.125");
        references.Click(1144);
        entered = ContentsOf(tool);
        ASSERT_TRUE(tool.SaveAs(path));
    }
    GuiTool tool;
    ASSERT_TRUE(tool.Open(path));
    tool.Do(Command::ShowAllChecks);
    EXPECT_EQ(ContentsOf(tool), entered);
    EXPECT_EQ(CheckHand(*tool.Pane(BendTable)).List(1272).Paths(), (CStringArray{"/t/a.xls", "/t/b.btl"}));
    EXPECT_EQ(CheckHand(*tool.Pane(FileLocations)).List(1274).Paths(),
              CStringArray{folder.Path("templates")});
    EXPECT_EQ(CheckHand(*tool.Pane(FixedParts)).Field(1081).text(), "2");
    EXPECT_EQ(CheckHand(*tool.Pane(Interferences)).Field(1081).text(), "0.5 , 7");
    EXPECT_EQ(CheckHand(*tool.Pane(Mates)).Field(1002).text(), "0.125");
    EXPECT_TRUE(CheckHand(*tool.Pane(ExternalReferences)).IsChecked(1144));
}

TEST(SmallPanesRoundTrip, DeleteInAListKeepsTheCheck) {
    GuiTool tool;
    tool.Do(Command::ShowAllChecks);
    const TestFolder folder;
    folder.Put("a.xls", "x");
    for (const auto& [type, list, path] :
         {std::tuple(BendTable, 1272, folder.Path("a.xls")), {FileLocations, 1274, folder.Path()}}) {
        tool.PressCheck(type);
        const CheckHand hand(*tool.Pane(type));
        ASSERT_TRUE(hand.Drop(list, {path}));
        hand.ClickRow(list, 0);
        Gui::Key(hand.Get(list), Qt::Key_Delete);
        EXPECT_EQ(hand.List(list).topLevelItemCount(), 0);
        CCheck* live = nullptr;
        tool.Standard().FindLiveByType(type, live);
        EXPECT_TRUE(live) << type;
    }
}

// Each unit in turn from millimetres and back, by what the check holds and the field shows.
TEST(SmallPanesRoundTrip, VolumesAndMisalignmentsFollowAllUnitsAndComeBack) {
    GuiTool tool;
    tool.Do(Command::ShowAllChecks);
    for (const MQC_CheckType_e type : {Interferences, Mates})
        tool.PressCheck(type);
    tool.View().ApplyUnits(0, 0);
    const CheckHand volume(*tool.Pane(Interferences)), mates(*tool.Pane(Mates));
    volume.Choose(1080, Equal);
    volume.Type(1081, "1000000");
    mates.Click(32942);
    mates.Type(1002, "254");
    const auto held = [&tool](MQC_CheckType_e type, unsigned id) {
        CCheck* live = nullptr;
        tool.Standard().FindLiveByType(type, live);
        return live ? live->GetDoubleParameter(id)->Values[0] : 0.0;
    };
    const auto expect = [&](int unit) {
        double length = CUnitConvertor().Convert(254, DimensionLength, 0, static_cast<unsigned long>(unit));
        double cube = 1'000'000;
        for (int i = 0; i < 3; ++i)
            cube = CUnitConvertor().Convert(cube, DimensionLength, 0, static_cast<unsigned long>(unit));
        for (const double shown : {held(Mates, 32949), mates.Field(1002).text().toDouble()})
            EXPECT_NEAR(shown, length, 1e-6 * length) << unit;
        for (const double shown : {held(Interferences, 1754), volume.Field(1081).text().toDouble()})
            EXPECT_NEAR(shown, cube, 1e-6 * cube) << unit;
    };
    for (int unit = 1; unit <= 10; ++unit) {
        tool.View().ApplyUnits(unit, 0);
        expect(unit);
        tool.View().ApplyUnits(0, 0);
        expect(0);
    }
}

TEST(SmallPanesRoundTrip, AnInterferenceVolumeFollowsTheUnitWithItsCube) {
    GuiTool tool;
    tool.PressCheck(Interferences);
    const CheckHand hand(*tool.Pane(Interferences));
    const auto choose = [&tool](unsigned long unit) {
        CString name;
        CEnumEngine().GetDisplayString(KindLengthUnit, unit, name);
        tool.ShowPage(OptionsPage);
        auto& units = *tool.View().GetOptionsPage().GetDlgItem<QComboBox>(1280);
        Gui::ChooseRow(units, units.findText(name));
        tool.ShowPage(ChecksPage);
    };
    choose(0);
    hand.Choose(1080, Equal);
    hand.Type(1081, "1000");
    choose(1);
    EXPECT_EQ(hand.Field(1081).text(), "1");
    EXPECT_EQ(hand.Get<QLabel>(1283).text(), "cm^3");
    choose(0);
    EXPECT_EQ(hand.Field(1081).text(), "1000");
    EXPECT_EQ(hand.Get<QLabel>(1283).text(), "mm^3");
}
