// The pane of the drafting standards.
#include "support/Language.h"
#include "support/PaneRoom.h"
#include "support/StandardText.h"

#include "editing/ComboBoxExt.h"
#include "editing/MyStatic.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>

namespace {

constexpr int Ansi = 1005, Iso = 1007, Din = 1009, CustomBox = 1020;

class StandardCheck : public testing::Test {
protected:
    void SetUp() override {
        room.Show();
        room.Add(101);
    }
    CExtDialog& Pane() { return *room.Pane(101); }
    QAbstractButton& Box(int number) { return *Pane().GetDlgItem<QAbstractButton>(number); }
    QLineEdit& Name() { return *Pane().GetDlgItem<QLineEdit>(1315); }
    CMyStatic& Correction() { return *Pane().GetDlgItem<CMyStatic>(1304); }
    void Click(int number) { Gui::Click(Box(number)); }

    const CParameter<long>& Standards() { return *room.Live(101)->GetLongParameter(1578); }
    std::vector<long> Values() { return {Standards().Values.begin(), Standards().Values.end()}; }
    const CParameter<CString*>& NameParameter() { return *room.Live(101)->GetStringParameter(0); }

    PaneRoom room;
};

using List = std::vector<long>;

} // namespace

TEST_F(StandardCheck, StartsWithoutAnyStandard) {
    EXPECT_EQ(Standards().Operator, OpNone);
    EXPECT_EQ(Standards().Values.Count, 0);
    EXPECT_FALSE(Name().isEnabled());
}

TEST_F(StandardCheck, TheFirstTickPutsTheListInForceAndTheLastTakesItOut) {
    Click(Iso);
    EXPECT_EQ(Standards().Operator, OpOneOf);
    EXPECT_EQ(Values(), List{2});
    Click(Iso);
    EXPECT_EQ(Standards().Operator, OpNone);
    EXPECT_EQ(Standards().Values.Count, 0);
}

TEST_F(StandardCheck, EachBoxWritesItsValueInOrder) {
    const std::pair<int, long> boxes[] = {{1020, 8}, {1019, 7}, {1017, 6}, {1021, 5},
                                          {1011, 4}, {1009, 3}, {1007, 2}, {1005, 1}};
    List expected;
    for (const auto& [box, value] : boxes) {
        Click(box);
        expected.insert(expected.begin(), value);
        EXPECT_EQ(Values(), expected) << box;
    }
}

TEST_F(StandardCheck, KeysTickAsWell) {
    Gui::Focus(Box(Din));
    Gui::Key(Box(Din), Qt::Key_Space);
    EXPECT_EQ(Values(), List{3});
}

TEST_F(StandardCheck, EachTickIsAStepThatCanBeUndone) {
    const int before = room.standard.GetHistoryIndex();
    Click(Iso);
    Click(Din);
    EXPECT_EQ(room.standard.GetHistoryIndex(), before + 2);
}

TEST_F(StandardCheck, TheCorrectionFollowsTheTicks) {
    Click(Iso);
    EXPECT_EQ(Standards().CorrectionKind, CorrectionFixed);
    EXPECT_EQ(Standards().Correction, 2);
    Click(Ansi);
    EXPECT_EQ(Standards().Correction, 2); // still one of the list
    Click(Iso);
    EXPECT_EQ(Standards().Correction, 1);
    Click(Ansi);
    EXPECT_TRUE(Correction().Choices.Strings.isEmpty());
}

TEST_F(StandardCheck, ACorrectionCanBeChosen) {
    Click(Iso);
    Click(Din);
    Gui::ChooseRow(*Correction().List(), 1);
    EXPECT_EQ(Standards().Correction, 3);
    EXPECT_EQ(Values(), (List{2, 3}));
    Click(Ansi);
    EXPECT_EQ(Standards().Correction, 3);
}

TEST_F(StandardCheck, ACustomStandardWithoutANameIsWrittenAllTheSame) {
    Click(CustomBox);
    EXPECT_EQ(Values(), List{8});
    EXPECT_EQ(NameParameter().Operator, OpNone);
    EXPECT_EQ(NameParameter().Values.Count, 0);
    EXPECT_TRUE(Name().isEnabled());
    EXPECT_TRUE(Name().hasFocus());
}

TEST_F(StandardCheck, TheNameOfTheCustomStandardIsTrimmedAndShownAsAChoice) {
    Click(Iso);
    Click(CustomBox);
    Gui::Type(Name(), " Acme 7 ");
    EXPECT_EQ(NameParameter().Operator, OpEqual);
    ASSERT_EQ(NameParameter().Values.Count, 1);
    EXPECT_EQ(*NameParameter().Values[0], "Acme 7");
    EXPECT_EQ(Correction().Choices.Strings, (CStringArray{LoadString(1825), " Acme 7 "}));
    EXPECT_EQ(Name().toolTip(), " Acme 7 ");
    Gui::ChooseRow(*Correction().List(), 1);
    EXPECT_EQ(Standards().Correction, 8);
}

TEST_F(StandardCheck, ALongNameShowsOnlyItsBeginningInTheTooltip) {
    Click(CustomBox);
    Gui::Type(Name(), CString(100, u'x'));
    EXPECT_EQ(Name().toolTip(), CString(80, u'x'));
    EXPECT_EQ(NameParameter().Values[0]->size(), 100);
}

TEST_F(StandardCheck, UntickingTheCustomStandardLocksItsName) {
    Click(CustomBox);
    Gui::Type(Name(), "Acme");
    Click(CustomBox);
    EXPECT_FALSE(Name().isEnabled());
    EXPECT_EQ(Name().text(), "Acme");
    EXPECT_EQ(NameParameter().Values.Count, 0);
}

TEST_F(StandardCheck, AnyCharacterMayStandInTheName) {
    Click(CustomBox);
    Gui::Type(Name(), QStringLiteral("Größe-1/ä ß"));
    EXPECT_EQ(*NameParameter().Values[0], QStringLiteral("Größe-1/ä ß"));
}

TEST_F(StandardCheck, LoadingShowsAllOfACheck) {
    CCheck check(101, 0, 0, 0, 2);
    auto* standards = check.GetLongParameter(1578);
    standards->Operator = OpOneOf;
    for (const long value : {3L, 8L, 77L, 0L})
        standards->Values.Add(value);
    standards->Correction = 8;
    standards->CorrectionKind = CorrectionFixed;
    auto* name = check.GetStringParameter(0);
    name->Operator = OpEqual;
    name->Values.Add(new CString("Acme"));
    Pane().LoadCheck(check);
    EXPECT_TRUE(Box(Din).isChecked() && Box(CustomBox).isChecked());
    EXPECT_FALSE(Box(Iso).isChecked() || Box(Ansi).isChecked());
    EXPECT_EQ(Name().text(), "Acme");
    EXPECT_EQ(Pane().Criticality, 2u);
    EXPECT_EQ(Pane().GetDlgItem<QComboBox>(1249)->currentIndex(), 2);
    EXPECT_TRUE(Correction().Choices.Strings.contains("Acme"));
    EXPECT_FALSE(Correction().Choices.Strings.contains(LoadString(2422)));
}

TEST_F(StandardCheck, LoadingAnEmptyCheckClearsTheBoxes) {
    Click(Iso);
    Pane().LoadCheck(CCheck(101, 0, 0, 0, 0));
    EXPECT_FALSE(Box(Iso).isChecked());
    EXPECT_EQ(Pane().Criticality, 0u);
}

TEST_F(StandardCheck, ACheckWithoutANameDoesNotKeepTheOneThatStoodThere) {
    Click(CustomBox);
    const auto unnamed = CStandard::CloneCheck(*room.Live(101));
    Gui::Type(Name(), "Acme");
    Pane().LoadCheck(*unnamed);
    EXPECT_EQ(Name().text(), "");
    Pane().OnCriticalityChanged();
    EXPECT_EQ(NameParameter().Values.Count, 0);
}

TEST_F(StandardCheck, LoadingWritesNothing) {
    Click(Iso);
    const int before = room.standard.GetHistoryIndex();
    Pane().LoadCheck(*room.Live(101));
    Gui::Settle();
    EXPECT_EQ(room.standard.GetHistoryIndex(), before);
}

TEST_F(StandardCheck, TheCriticalityIsWrittenWithTheValues) {
    Click(Din);
    Gui::ChooseRow(*Pane().GetDlgItem<QWidget>(1249), 3);
    EXPECT_EQ(room.Live(101)->Criticality, 3u);
    EXPECT_EQ(Values(), List{3});
}

TEST_F(StandardCheck, WhatIsShownIsWhatIsSaved) {
    Click(Iso);
    Click(CustomBox);
    Gui::Type(Name(), "Acme");
    CStandard reopened;
    ReadText(TextOf(room.standard), reopened);
    CCheck* check = nullptr;
    reopened.FindLiveByType(101, check);
    ASSERT_TRUE(check);
    EXPECT_EQ(check->GetLongParameter(1578)->Values.Count, 2);
    EXPECT_EQ(*check->GetStringParameter(0)->Values[0], "Acme");
    EXPECT_EQ(check->GetLongParameter(1578)->Correction, 2);
}

TEST_F(StandardCheck, WithoutALiveCheckNothingIsWritten) {
    room.GetChecksPage().RemoveCheck(101, true);
    Pane().OnParameterChanged();
    EXPECT_EQ(room.Live(101), nullptr);
}

TEST_F(StandardCheck, TabGoesThroughTheBoxesInTheOrderOfReading) {
    Click(CustomBox);
    Gui::Focus(Box(Iso));
    std::vector<CString> order;
    for (int step = 0; step < 10; ++step) {
        QWidget* now = QApplication::focusWidget();
        while (now && !now->objectName().toInt())
            now = now->parentWidget();
        order.push_back(now ? now->objectName() : CString());
        Gui::Key(*QApplication::focusWidget(), Qt::Key_Tab);
    }
    const std::vector<CString> expected = {"1007", "1005", "1009", "1011", "1021",
                                           "1017", "1019", "1020", "1315", "10002"};
    EXPECT_EQ(order, expected);
}
