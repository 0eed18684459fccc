// The panes of interferences, misaligned mates, fixed components and external references.
#include "CheckRoom.h"

#include "editing/ExtRichEditCtrl.h"
#include "engines/ActiveUnit.h"
#include "engines/EnumEngine.h"
#include "engines/ParameterKinds.h"
#include "model/ParameterValue.h"
#include "support/FilledStandard.h"
#include "support/Language.h"
#include "support/Messages.h"

#include <algorithm>
#include <set>

namespace {

constexpr int Comparison = 1080, Value = 1081;

class InterferencePane : public CheckRoom {
protected:
    InterferencePane() : CheckRoom(Interferences) {}
    void Enter(int row, const CString& text) {
        Hand().Choose(Comparison, row);
        Hand().Type(Value, text);
    }
};

class FixedPane : public CheckRoom {
protected:
    FixedPane() : CheckRoom(FixedParts) {}
};

class MatesPane : public CheckRoom {
protected:
    enum Control : int { Maximum = 1002, Unit = 1210, NotAllowed = 32940, Allowed, UpTo, Inside };
    MatesPane() : CheckRoom(Mates) {}
};

class ReferencePane : public CheckRoom {
protected:
    ReferencePane() : CheckRoom(ExternalReferences) {}
};

} // namespace

TEST(AssemblyPanes, HaveTheirCaptionsPicturesAndHelp) {
    ExpectPanes({{503, 1264, 1740, 1402},
                 {127, 1438, 2425, 1020},
                 {Interferences, 1406, 1753, 1506},
                 {Mates, 32960, 32939, 1506},
                 {FixedParts, 1173, 1585, 1503},
                 {ExternalReferences, 1176, 1713, 1504}});
}

TEST(AssemblyPanes, KeysOfTheLabelsDifferInEachLanguage) {
    for (const char* name : {"English", "German"}) {
        const Language language(name);
        for (const MQC_CheckType_e type : {503, 127, Interferences, Mates, FixedParts, ExternalReferences}) {
            PaneRoom room;
            room.Show();
            const CExtDialog& pane = room.Add(type);
            CString keys = CString(name) == "English" ? "fecwh" : "dbpfh"; // of the menu bar
            const auto note = [&keys](const CString& text) {
                if (const qsizetype mark = text.indexOf(u'&'); mark >= 0 && mark + 1 < text.size())
                    keys += text[mark + 1].toLower();
            };
            for (const auto* label : pane.findChildren<QLabel*>())
                note(label->text());
            for (const auto* button : pane.findChildren<QAbstractButton*>())
                note(button->text());
            const std::set<QChar> different(keys.begin(), keys.end());
            EXPECT_EQ(static_cast<std::size_t>(keys.size()), different.size())
                << name << ' ' << type << ' ' << keys.toStdString();
        }
    }
}

TEST(AssemblyPanes, BoxesAreCalledAsTheirValues) {
    struct Box {
        MQC_CheckType_e type;
        int control;
        int kind;
        unsigned long value;
    };
    constexpr Box boxes[] = {
        {Interferences, 1281, KindInterferenceMode, 0},    {Interferences, 1515, KindInterferenceMode, 1},
        {Interferences, 1516, KindInterferenceMode, 2},    {ExternalReferences, 1140, KindReferenceState, 0},
        {ExternalReferences, 1144, KindReferenceState, 5}, {ExternalReferences, 1142, KindReferenceState, 3},
        {ExternalReferences, 1141, KindReferenceState, 1}, {ExternalReferences, 1143, KindReferenceState, 4},
        {FileLocations, 1329, KindFileLocationRule, 0},    {FileLocations, 1330, KindFileLocationRule, 1},
        {FileLocations, 1331, KindFileLocationRule, 2}};
    PaneRoom room;
    room.Show();
    for (const MQC_CheckType_e type : {Interferences, ExternalReferences, FileLocations})
        room.Add(type);
    for (const Box& box : boxes) {
        CString text;
        CEnumEngine().GetDisplayString(box.kind, box.value, text);
        EXPECT_EQ(CheckHand(*room.Pane(box.type)).Get<QAbstractButton>(box.control).text(), text);
        EXPECT_FALSE(text.isEmpty());
    }
}

TEST(AssemblyPanes, EveryInputHasAName) {
    PaneRoom room;
    room.Show();
    for (const MQC_CheckType_e type : {503, 127, Interferences, Mates, FixedParts, ExternalReferences}) {
        for (const QWidget* control : room.Add(type).Controls()) {
            const auto* button = qobject_cast<const QAbstractButton*>(control);
            const bool hasText = button && !button->text().isEmpty();
            EXPECT_TRUE(control->focusPolicy() == Qt::NoFocus || hasText ||
                        !control->accessibleName().isEmpty())
                << type << ' ' << control->objectName().toStdString();
        }
    }
}

TEST_F(InterferencePane, StartsWithNothingRequired) {
    EXPECT_EQ(Gui::RowsOf(Hand().Combo(Comparison)),
              (CStringArray{LoadString(1632), "=", "<", ">", ">=", "<=", LoadString(1657), LoadString(1658),
                            LoadString(1659)}));
    EXPECT_EQ(Hand().Combo(Comparison).currentIndex(), 0);
    EXPECT_FALSE(Hand().IsEnabled(Value));
    EXPECT_EQ(Written(1754), "0:");
    EXPECT_EQ(Written(1758), "0:");
}

TEST_F(InterferencePane, TheUnitIsThatOfAVolumeAndFollowsTheDocument) {
    EXPECT_EQ(Hand().Get<QLabel>(1283).text(), "mm^3");
    Enter(Equal, "1000");
    ASSERT_EQ(room.units.size(), 1u);
    room.standard.Unit = 1;
    room.units[0]->ApplyUnitChange(0, 1);
    EXPECT_EQ(Hand().Get<QLabel>(1283).text(), "cm^3");
    EXPECT_EQ(Hand().Field(Value).text(), "1");
}

TEST_F(InterferencePane, EachComparisonIsWrittenWithItsValues) {
    constexpr std::pair<int, const char*> expected[] = {
        {Equal, "3:2.5"},  {Below, "5:2.5"},     {Above, "6:2.5"},        {AtLeast, "7:2.5"},
        {AtMost, "8:2.5"}, {Between, "1:2.5,7"}, {OneOf, "2:2.5,7,0.25"}, {NoneOf, "4:2.5,7,0.25"}};
    for (const auto& [row, text] : expected) {
        Enter(row, CString(text).mid(2));
        EXPECT_EQ(Written(1754), text);
    }
    Hand().Choose(Comparison, Any);
    EXPECT_EQ(Written(1754), "0:");
    EXPECT_EQ(Hand().Field(Value).text(), "");
    EXPECT_FALSE(Hand().IsEnabled(Value));
}

TEST_F(InterferencePane, AnotherComparisonTakesWhatItCan) {
    Enter(OneOf, "4,5,6");
    Hand().Choose(Comparison, Between);
    EXPECT_EQ(Written(1754), "1:4,5");
    Hand().Choose(Comparison, AtLeast);
    EXPECT_EQ(Written(1754), "7:4");
    Enter(Equal, "0");
    Hand().Choose(Comparison, Below);
    EXPECT_EQ(Written(1754), "5:1");
}

TEST_F(InterferencePane, LeavingCompletesTheText) {
    Enter(Between, "3");
    Gui::Focus(Hand().Get(1249));
    EXPECT_EQ(Hand().Field(Value).text(), "3,3");
    EXPECT_EQ(Written(1754), "1:3,3");
    Enter(Equal, "");
    Gui::Focus(Hand().Get(1249));
    EXPECT_EQ(Hand().Combo(Comparison).currentIndex(), 0);
    EXPECT_EQ(Written(1754), "0:");
}

TEST_F(InterferencePane, ValuesAreNoLengths) {
    const Messages messages;
    Enter(Equal, "1000001");
    EXPECT_EQ(messages.texts, CStringArray{LoadString(2043)});
    EXPECT_EQ(Written(1754), "3:100000");
}

TEST_F(InterferencePane, OptionsAreWrittenInTheirOrder) {
    Hand().Click(1516);
    EXPECT_EQ(Written(1758), "2:2");
    Hand().Click(1281);
    Hand().Click(1515);
    EXPECT_EQ(Written(1758), "2:0,1,2");
    for (const int box : {1281, 1515, 1516})
        Gui::Key(Hand().Get(box), Qt::Key_Space);
    EXPECT_EQ(Written(1758), "0:");
}

// Dropped: decimals beyond the sixth, and a value of the options without a box.
TEST_F(InterferencePane, WhatItCannotShowGoesWithTheNextChange) {
    CCheck check(Interferences, 0, 0, 0, 1);
    SetParameter(check, 1754, OpEqual, {"0.12345678"});
    SetParameter(check, 1758, OpOneOf, {"1", "9"});
    Pane().LoadCheck(check);
    EXPECT_EQ(Hand().Field(Value).text(), "0.123457");
    EXPECT_EQ(::Written(*Shown(), 1754), "3:0.123457");
    EXPECT_EQ(::Written(*Shown(), 1758), "2:1");
}

// Dropped: an operator that is not on offer, with its values.
TEST_F(InterferencePane, AnUnknownComparisonIsShownAsNone) {
    CCheck check(Interferences, 0, 0, 0, 1);
    SetParameter(check, 1754, OpNotEqual, {"3"});
    Pane().LoadCheck(check);
    EXPECT_EQ(Hand().Combo(Comparison).currentIndex(), 0);
    EXPECT_EQ(::Written(*Shown(), 1754), "0:");
}

TEST_F(InterferencePane, FiftyValuesAreToldByTheTip) {
    CStringArray values;
    for (int i = 1; i <= 50; ++i)
        values.append(QString::number(i) + ".5");
    Enter(OneOf, values.join(u','));
    EXPECT_EQ(Live().GetDoubleParameter(1754)->Values.Count, 50);
    EXPECT_EQ(Gui::TipAt(Hand().Get(Value), {5, 5}), "<qt>" + values.join(u','));
}

TEST_F(FixedPane, StartsWithNothingRequired) {
    EXPECT_EQ(Gui::RowsOf(Hand().Combo(Comparison)),
              (CStringArray{LoadString(1632), "=", "<", ">", ">=", "<=", LoadString(1657), LoadString(1658),
                            LoadString(1659)}));
    EXPECT_FALSE(Hand().IsEnabled(Value));
    EXPECT_EQ(Written(1586), "0:");
}

TEST_F(FixedPane, LeavingCompletesTheText) {
    Hand().Choose(Comparison, Between);
    Hand().Type(Value, "3,");
    Gui::Focus(Hand().Get(1249));
    EXPECT_EQ(Hand().Field(Value).text(), "3,3");
    EXPECT_EQ(Written(1586), "1:3,3");
    Hand().Type(Value, "");
    Gui::Focus(Hand().Get(1249));
    EXPECT_EQ(Hand().Combo(Comparison).currentIndex(), 0);
    EXPECT_EQ(Written(1586), "0:");
}

TEST_F(FixedPane, NumbersAreNoLengths) {
    const Messages messages;
    Hand().Choose(Comparison, Equal);
    Hand().Type(Value, "1000001");
    EXPECT_EQ(messages.texts, CStringArray{LoadString(2043)});
    EXPECT_EQ(Written(1586), "3:100000");
}

TEST_F(FixedPane, EachComparisonIsWrittenWithItsWholeNumbers) {
    constexpr std::pair<int, const char*> expected[] = {
        {Equal, "3:2"},  {Below, "5:2"},     {Above, "6:2"},     {AtLeast, "7:0"},
        {AtMost, "8:2"}, {Between, "1:2,7"}, {OneOf, "2:2,7,4"}, {NoneOf, "4:2,7,4"}};
    for (const auto& [row, text] : expected) {
        Hand().Choose(Comparison, row);
        Hand().Type(Value, CString(text).mid(2));
        EXPECT_EQ(Written(1586), text);
    }
    Hand().Choose(Comparison, Any);
    EXPECT_EQ(Written(1586), "0:");
}

TEST_F(FixedPane, APointCannotBeTyped) {
    Hand().Choose(Comparison, Equal);
    Hand().Type(Value, "1.5x");
    EXPECT_EQ(Hand().Field(Value).text(), "15");
}

TEST_F(FixedPane, ShowsTheNumbersOfACheck) {
    CCheck check(FixedParts, 0, 0, 0, 1);
    SetParameter(check, 1586, OpNoneOf, {"3", "12"});
    Pane().LoadCheck(check);
    EXPECT_EQ(Hand().Combo(Comparison).currentIndex(), NoneOf);
    EXPECT_EQ(Hand().Field(Value).text(), "3 , 12");
    EXPECT_EQ(::Written(*Shown(), 1586), "4:3,12");
    Pane().LoadCheck(CCheck(FixedParts, 0, 0, 0, 1));
    EXPECT_EQ(Hand().Combo(Comparison).currentIndex(), 0);
    EXPECT_FALSE(Hand().IsEnabled(Value));
}

TEST_F(MatesPane, StartsWithNoMisalignmentAllowed) {
    EXPECT_TRUE(Hand().IsChecked(NotAllowed));
    EXPECT_FALSE(Hand().IsEnabled(Maximum));
    EXPECT_FALSE(Hand().IsEnabled(Unit));
    EXPECT_EQ(Hand().Get<QLabel>(Unit).text(), "mm");
    EXPECT_EQ(Written(32947), "2:Yes");
    for (const unsigned other : {32948u, 32949u, 32950u})
        EXPECT_EQ(Written(other), "0:") << other;
}

TEST_F(MatesPane, EachModeWritesItsOwnParameter) {
    Hand().Click(Allowed);
    EXPECT_EQ(Written(32947), "0:");
    EXPECT_EQ(Written(32948), "13:Yes");
    EXPECT_EQ(Written(32950), "2:No");
    Hand().Click(Inside);
    EXPECT_EQ(Written(32950), "2:Yes");
    Hand().Click(UpTo);
    Hand().Type(Maximum, "0.25");
    EXPECT_EQ(Written(32948), "0:");
    EXPECT_EQ(Written(32949), "8:0.25");
    EXPECT_EQ(Written(32950), "2:Yes");
    Hand().Click(NotAllowed);
    EXPECT_EQ(Written(32947), "2:Yes");
    EXPECT_EQ(Written(32949), "0:");
    EXPECT_EQ(Written(32950), "0:");
    EXPECT_FALSE(Hand().IsEnabled(Maximum));
}

TEST_F(MatesPane, AMaximumWithoutANumberIsZero) {
    Hand().Click(UpTo);
    EXPECT_TRUE(Hand().IsEnabled(Maximum));
    EXPECT_TRUE(Hand().IsEnabled(Unit));
    EXPECT_EQ(Hand().Field(Maximum).text(), "");
    EXPECT_EQ(Written(32949), "8:0");
}

TEST_F(MatesPane, TheModeIsChosenByTheArrowKeys) {
    Gui::Focus(Hand().Get(NotAllowed));
    Gui::Key(Hand().Get(NotAllowed), Qt::Key_Down);
    EXPECT_EQ(Written(32948), "13:Yes");
    Gui::Key(Hand().Get(Allowed), Qt::Key_Down);
    EXPECT_EQ(Written(32949), "8:0");
    EXPECT_TRUE(Hand().IsEnabled(Maximum));
}

TEST_F(MatesPane, AMaximumIsALength) {
    const Messages messages;
    SetActiveLengthUnitProvider([] { return 0; });
    Hand().Click(UpTo);
    Hand().Type(Maximum, "1000001");
    SetActiveLengthUnitProvider({});
    EXPECT_EQ(messages.texts, CStringArray{LoadString(2191)});
    EXPECT_EQ(Written(32949), "8:0");
}

TEST_F(MatesPane, AListCannotBeTyped) {
    Hand().Click(UpTo);
    Hand().Type(Maximum, "1,2-.5");
    EXPECT_EQ(Hand().Field(Maximum).text(), "12.5");
    EXPECT_EQ(Written(32949), "8:12.5");
}

TEST_F(MatesPane, NamesAndKindGoWithTheValues) {
    Hand().Click(Allowed);
    for (const unsigned id : {32948u, 32950u}) {
        EXPECT_EQ(Live().GetStringParameter(id)->Name, LoadString(id));
        EXPECT_EQ(Live().GetStringParameter(id)->ParameterType, 1u);
    }
    Hand().Click(UpTo);
    EXPECT_EQ(Live().GetDoubleParameter(32949)->Name, LoadString(32949));
    EXPECT_EQ(Live().GetDoubleParameter(32949)->ParameterType, 1u);
}

TEST(MatesWords, AreTheSameInEveryLanguage) {
    const Language german("German");
    PaneRoom room;
    room.Show();
    const CheckHand hand(room.Add(Mates));
    hand.Click(32941);
    EXPECT_EQ(Written(*room.Live(Mates), 32948), "13:Yes");
    EXPECT_EQ(Written(*room.Live(Mates), 32950), "2:No");
}

TEST_F(MatesPane, ACheckIsShownByTheFirstOfItsParametersWithAValue) {
    CCheck check(Mates, 0, 0, 0, 1);
    SetParameter(check, 32949, OpAtMost, {"1.5"});
    SetParameter(check, 32950, OpOneOf, {"Yes"});
    Pane().LoadCheck(check);
    EXPECT_TRUE(Hand().IsChecked(UpTo));
    EXPECT_TRUE(Hand().IsChecked(Inside));
    EXPECT_EQ(Hand().Field(Maximum).text(), "1.5");
    SetParameter(check, 32948, OpTextOnly, {"Yes"});
    Pane().LoadCheck(check);
    EXPECT_TRUE(Hand().IsChecked(Allowed));
    EXPECT_EQ(Hand().Field(Maximum).text(), "");
    SetParameter(check, 32947, OpOneOf, {"Yes"});
    SetParameter(check, 32950, OpOneOf, {"No"});
    Pane().LoadCheck(check);
    EXPECT_TRUE(Hand().IsChecked(NotAllowed));
    EXPECT_FALSE(Hand().IsChecked(Inside));
    Pane().LoadCheck(CCheck(Mates, 0, 0, 0, 1));
    EXPECT_TRUE(Hand().IsChecked(NotAllowed));
}

// Dropped: all numbers of the maximum but the last; and the tick where no misalignment is allowed.
TEST_F(MatesPane, OfSeveralNumbersTheLastIsKept) {
    CCheck check(Mates, 0, 0, 0, 1);
    SetParameter(check, 32949, OpAtMost, {"1.5", "2.5"});
    Pane().LoadCheck(check);
    EXPECT_EQ(::Written(*Shown(), 32949), "8:2.5");
    Hand().Click(NotAllowed);
    Hand().Click(Inside);
    EXPECT_EQ(::Written(*Shown(), 32950), "0:");
}

TEST_F(ReferencePane, EachBoxWritesItsState) {
    constexpr std::pair<int, const char*> boxes[] = {
        {1140, "2:0"}, {1144, "2:5"}, {1142, "2:3"}, {1141, "2:1"}, {1143, "2:4"}};
    for (const auto& [box, text] : boxes) {
        Hand().Click(box);
        EXPECT_EQ(Written(1714), text);
        Gui::Key(Hand().Get(box), Qt::Key_Space);
        EXPECT_EQ(Written(1714), "0:");
    }
    for (const int box : {1140, 1141, 1142, 1143, 1144})
        Hand().Click(box);
    EXPECT_EQ(Written(1714), "2:0,5,3,1,4");
}

// Dropped: the state 2 and unknown ones.
TEST_F(ReferencePane, AStateWithoutABoxIsIgnored) {
    CCheck check(ExternalReferences, 0, 0, 0, 1);
    SetParameter(check, 1714, OpOneOf, {"2", "4", "77"});
    Pane().LoadCheck(check);
    for (const int box : {1140, 1141, 1142, 1144})
        EXPECT_FALSE(Hand().IsChecked(box)) << box;
    EXPECT_TRUE(Hand().IsChecked(1143));
    EXPECT_EQ(::Written(*Shown(), 1714), "2:4");
    Pane().LoadCheck(CCheck(ExternalReferences, 0, 0, 0, 1));
    EXPECT_FALSE(Hand().IsChecked(1143));
}

TEST_F(ReferencePane, TheCriticalityIsWrittenWithTheRest) {
    Hand().Click(1144);
    Hand().Choose(1249, 3);
    EXPECT_EQ(Live().Criticality, 3u);
    EXPECT_EQ(Written(1714), "2:5");
}

TEST_F(ReferencePane, LoadingWritesNothing) {
    const int before = room.standard.GetHistoryIndex();
    CCheck check(ExternalReferences, 0, 0, 0, 1);
    SetParameter(check, 1714, OpOneOf, {"4"});
    Pane().LoadCheck(check);
    Gui::Settle();
    EXPECT_EQ(room.standard.GetHistoryIndex(), before);
    EXPECT_EQ(Written(1714), "0:");
}
