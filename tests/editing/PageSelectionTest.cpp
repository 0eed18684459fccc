// What is selected on the page, by mouse and by keyboard.
#include "editing/PageRoom.h"
#include "editing/WheelGuard.h"

#include <QApplication>
#include <QComboBox>
#include <QScrollBar>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest>

namespace {

class PageSelection : public PageRoom {
protected:
    void Fill() {
        Add({Features, Datum, References});
        Resize(1000, 900);
        Show();
    }
    void ClickOn(MQC_CheckType_e type, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        Gui::ClickAt(Pane(type), {300, 30}, modifiers);
    }
    std::vector<MQC_CheckType_e> Selected() {
        std::vector<MQC_CheckType_e> types;
        for (const int position : page->GetSelection())
            types.push_back(page->TypeAtPosition(position));
        return types;
    }
    QComboBox& Criticality(MQC_CheckType_e type) { return *Pane(type).GetDlgItem<QComboBox>(1249); }
    // The pane in which the keyboard is, 0 where it is in none.
    MQC_CheckType_e Keyboard() {
        const QWidget* focus = QApplication::focusWidget();
        for (const MQC_CheckType_e type : page->GetTable().Order())
            if (focus && (&Pane(type) == focus || Pane(type).isAncestorOf(focus)))
                return type;
        return 0;
    }
    // As from the window system: only such a turn goes on to the parents of what is under the pointer.
    void TurnWheelOver(QWidget& control) {
        const QPointF place = control.mapTo(&window, control.rect().center());
        QWheelEvent turn(place, window.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&turn);
        qApp->notify(window.windowHandle(), &turn);
        Gui::Settle();
    }
    using Types = std::vector<MQC_CheckType_e>;
};

} // namespace

TEST_F(PageSelection, APositionWithinAPaneIsThatPane) {
    Add({References, Datum});
    EXPECT_EQ(page->TypeAtPosition(0), References);
    EXPECT_EQ(page->TypeAtPosition(Size(References) - 1), References);
    EXPECT_EQ(page->TypeAtPosition(Size(References)), Datum);
    EXPECT_EQ(page->TypeAtPosition(1000), Datum);
    EXPECT_EQ(page->TypeAtPosition(-1), 0);
}

TEST_F(PageSelection, AClickSelectsOnePaneAndItsGroup) {
    Fill();
    ClickOn(Datum);
    EXPECT_EQ(Selected(), Types{Datum});
    EXPECT_EQ(host.group, 1u);
    EXPECT_EQ(page->GetCurrentCheck(), Live(Datum));
    ClickOn(References);
    EXPECT_EQ(Selected(), Types{References});
    ExpectAgreement();
}

TEST_F(PageSelection, AClickWithCtrlAddsAPaneAndTakesItOff) {
    Fill();
    ClickOn(References);
    ClickOn(Datum, Qt::ControlModifier);
    EXPECT_EQ(Selected(), (Types{References, Datum}));
    EXPECT_EQ(page->GetSelectedPosition(), Position(Datum));
    ClickOn(References, Qt::ControlModifier);
    EXPECT_EQ(Selected(), Types{Datum});
    ExpectAgreement();
}

TEST_F(PageSelection, AClickWithCtrlOnTheCurrentPaneLeavesIt) {
    Fill();
    ClickOn(References);
    ClickOn(Datum, Qt::ControlModifier);
    ClickOn(Datum, Qt::ControlModifier);
    EXPECT_EQ(Selected(), (Types{References, Datum}));
}

TEST_F(PageSelection, TheOnlySelectedPaneIsNotTakenOff) {
    Fill();
    ClickOn(References);
    page->ToggleSelection(Position(References));
    EXPECT_EQ(Selected(), Types{References});
}

TEST_F(PageSelection, APlainClickEndsASelectionOfSeveral) {
    Fill();
    ClickOn(References);
    ClickOn(Datum, Qt::ControlModifier);
    ClickOn(Features);
    EXPECT_EQ(Selected(), Types{Features});
    ExpectAgreement();
}

TEST_F(PageSelection, TheCurrentPaneSelectedAgainKeepsTheSelection) {
    Fill();
    ClickOn(References);
    ClickOn(Datum, Qt::ControlModifier);
    host.group = 0;
    ClickOn(Datum);
    page->SelectPane(Position(Datum));
    EXPECT_EQ(Selected(), (Types{References, Datum}));
    EXPECT_EQ(host.group, 0u);
    page->SelectPane(Position(Datum) + 1); // no pane begins there
    EXPECT_EQ(page->GetSelectedPosition(), Position(Datum));
    page->SelectPane(Position(References));
    EXPECT_EQ(Selected(), Types{References});
    ExpectAgreement();
}

TEST_F(PageSelection, WhatThePaneHasNotWrittenYetIsCommitted) {
    Add({Datum, Arrowheads});
    Pane(Arrowheads).Criticality = 3;
    page->SelectPane(Position(Datum));
    page->CommitPending();
    EXPECT_EQ(Live(Arrowheads)->Criticality, 1u) << "only the selected pane is asked";
    page->SelectPane(Position(Arrowheads));
    page->CommitPending();
    EXPECT_EQ(Live(Arrowheads)->Criticality, 3u);
}

TEST_F(PageSelection, TabGoesFromPaneToPaneInTheOrderOfTheCatalogue) {
    Fill();
    Gui::Focus(Criticality(References));
    Types reached{Keyboard()};
    for (int i = 0; i < 30 && Keyboard() != 0; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        Gui::Settle();
        if (Keyboard() != reached.back())
            reached.push_back(Keyboard());
    }
    ASSERT_GE(reached.size(), 3u);
    reached.resize(3);
    EXPECT_EQ(reached, (Types{References, Datum, Features}));
}

TEST_F(PageSelection, TabWithShiftGoesBack) {
    Fill();
    Gui::Focus(Criticality(Features));
    Types reached{Keyboard()};
    for (int i = 0; i < 30 && reached.size() < 3; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        Gui::Settle();
        if (Keyboard() != reached.back())
            reached.push_back(Keyboard());
    }
    EXPECT_EQ(reached, (Types{Features, Datum, References}));
    EXPECT_EQ(Selected(), Types{References}) << "the selected pane is the one with the keyboard";
}

TEST_F(PageSelection, TabFromThePageItselfGoesIntoTheSelectedPane) {
    Fill();
    page->SelectPane(Position(Datum));
    page->setFocus();
    QTest::keyClick(page, Qt::Key_Tab);
    EXPECT_EQ(Keyboard(), Datum);
    EXPECT_EQ(QApplication::focusWidget(), &Criticality(Datum)) << "past the buttons of the caption";
}

TEST_F(PageSelection, AControlThatGetsTheKeyboardByTabIsScrolledIntoView) {
    Add({101, 102, 105, 107, 118, 201, 301, 203, 401, 406, 407, 307, 309, 313, 602, Features});
    Show();
    page->verticalScrollBar()->setValue(0);
    Gui::Focus(Criticality(Features));
    const QRect place(Criticality(Features).mapTo(page->viewport(), QPoint()), Criticality(Features).size());
    EXPECT_TRUE(page->viewport()->rect().contains(place));
    Gui::Focus(Criticality(101));
    EXPECT_GE(Criticality(101).mapTo(page->viewport(), QPoint()).y(), 0);
}

TEST_F(PageSelection, WhenAPaneGoesTheKeyboardStaysOnThePage) {
    Fill();
    Gui::Focus(Criticality(Datum));
    page->RemoveCheck(Datum, true);
    Gui::Settle();
    EXPECT_TRUE(page->hasFocus());
    EXPECT_EQ(page->GetSelectedPosition(), -1);
    ExpectAgreement();
}

TEST_F(PageSelection, TheWheelOverAnUnfocusedBoxOfChoicesScrollsThePage) {
    WheelGuard guard;
    qApp->installEventFilter(&guard);
    Add({101, 102, 105, 107, 118, 201, 301, 203, 401, 406, 407, 307, 309, 313, 602, Features});
    Show();
    page->setFocus();
    page->verticalScrollBar()->setValue(0);
    const int row = Criticality(101).currentIndex();
    TurnWheelOver(Criticality(101));
    EXPECT_EQ(Criticality(101).currentIndex(), row);
    EXPECT_EQ(page->verticalScrollBar()->value(), 10);
}
