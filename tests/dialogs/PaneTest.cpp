// What every pane does: its caption, its keys, and how clicks select it.
#include "support/Language.h"
#include "support/PaneRoom.h"

#include "editing/ExStatic.h"
#include "editing/HoverButton.h"
#include "platform/LanguageLibrary.h"
#include "platform/widgets/Look.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>

namespace {

class Pane : public testing::Test {
protected:
    void SetUp() override {
        room.Show();
        room.Add(107);
        room.Add(203);
    }
    CExtDialog& First() { return *room.Pane(107); }
    CExtDialog& Second() { return *room.Pane(203); }
    CPageDialog& Page() { return room.GetChecksPage(); }
    static QWidget& Button(CExtDialog& pane, int number) { return *pane.GetDlgItem<QWidget>(number); }
    static QWidget& Text(CExtDialog& pane) { return *pane.findChild<CExStatic*>("10000"); }
    static QWidget& Combo(CExtDialog& pane) { return *pane.GetDlgItem<QWidget>(1249); }

    PaneRoom room;
};

QPoint Middle(const QWidget& pane) {
    return {pane.width() / 2, Look::CaptionHeight + 4};
}

} // namespace

TEST_F(Pane, StartsUnselectedHiddenAndWithoutAWindow) {
    const CExtDialog& pane = *room.Pane(313);
    EXPECT_FALSE(pane.HasWindow());
    EXPECT_EQ(pane.LogicalSize, -1);
    EXPECT_EQ(pane.DisplayState, CExtDialog::Hidden);
    EXPECT_EQ(pane.GetDisplayHeight(), 0);
    EXPECT_EQ(pane.Criticality, 1u);
    EXPECT_TRUE(pane.Expanded);
    EXPECT_FALSE(pane.Selected);
}

TEST_F(Pane, SizeCountsWithTheCaption) {
    const int height = First().GetDisplayHeight();
    EXPECT_EQ(First().height(), height);
    EXPECT_EQ(First().LogicalSize, height / 20 + 1);
    EXPECT_GT(height, Look::CaptionHeight);
}

TEST_F(Pane, AMissingTemplateMakesNoWindow) {
    class Missing : public CExtDialog {
    public:
        explicit Missing(EditingHost& host) : CExtDialog(host, 65000, 1144, 1581) {}
    } pane(room);
    EXPECT_FALSE(pane.Create(nullptr));
    EXPECT_FALSE(pane.HasWindow());
}

TEST_F(Pane, CaptionButtonsStandAtTheRight) {
    const int right = First().width();
    EXPECT_EQ(Button(First(), 10001).geometry(), QRect(right - 21, 2, 16, 16));
    EXPECT_EQ(Button(First(), 10002).geometry(), QRect(right - 38, 2, 16, 16));
    EXPECT_EQ(Button(First(), 10003).geometry(), QRect(right - 56, 2, 16, 16));
    EXPECT_EQ(Button(First(), 10001).toolTip(), "Close");
    EXPECT_EQ(Button(First(), 10002).toolTip(), "Help");
    EXPECT_EQ(Button(First(), 10003).toolTip(), LoadString(1760));
    EXPECT_EQ(static_cast<QLabel&>(Text(First())).text(), "  " + LoadString(1593));
    EXPECT_TRUE(Text(First()).font().bold());
}

TEST_F(Pane, ExpandButtonCollapsesAndExpands) {
    const int height = First().height();
    Gui::Click(Button(First(), 10003));
    EXPECT_EQ(First().DisplayState, CExtDialog::Collapsed);
    EXPECT_EQ(First().height(), Look::CaptionHeight);
    EXPECT_EQ(Button(First(), 10003).toolTip(), LoadString(1761));
    EXPECT_FALSE(Combo(First()).isVisible()); // nor reached by Tab
    Gui::Click(Button(First(), 10003));
    EXPECT_EQ(First().DisplayState, CExtDialog::ShownWhole);
    EXPECT_EQ(First().height(), height);
    EXPECT_EQ(Button(First(), 10003).toolTip(), LoadString(1760));
    EXPECT_TRUE(Combo(First()).isVisible());
}

TEST_F(Pane, TheExpandButtonIsSetRightByItsFirstUpdate) {
    CExtDialog& pane = *Page().GetPane(313, true);
    const auto& button = *pane.GetDlgItem<CHoverButton>(CExtDialog::ExpandControl);
    EXPECT_EQ(button.Bitmap(), 1413u);
    EXPECT_EQ(button.toolTip(), LoadString(1760));
    EXPECT_TRUE(pane.Expanded);
    room.Add(313);
    Page().UpdateExpandButton(pane);
    EXPECT_EQ(button.Bitmap(), 1415u);
    EXPECT_EQ(button.toolTip(), LoadString(1760));
    pane.ToggleExpand();
    EXPECT_EQ(button.Bitmap(), 1413u);
    EXPECT_EQ(button.toolTip(), LoadString(1761));
}

TEST_F(Pane, CaptionTextAndPictureToggleAsWell) {
    Gui::Click(Text(First()));
    EXPECT_EQ(First().height(), Look::CaptionHeight);
    Gui::ClickAt(First(), {10, 10}); // the picture
    EXPECT_EQ(First().DisplayState, CExtDialog::ShownWhole);
    Gui::ClickAt(First(), Middle(First()));
    EXPECT_EQ(First().DisplayState, CExtDialog::ShownWhole);
}

TEST_F(Pane, CaptionButtonsAnswerToTheKeyboard) {
    Gui::Focus(Button(First(), 10003));
    Gui::Key(Button(First(), 10003), Qt::Key_Space);
    EXPECT_EQ(First().DisplayState, CExtDialog::Collapsed);
    Gui::Key(Button(First(), 10003), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Button(First(), 10002));
    Gui::Key(Button(First(), 10002), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Button(First(), 10001));
    // The controls of a collapsed pane are passed over.
    Gui::Key(Button(First(), 10001), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Button(Second(), 10003));
}

TEST_F(Pane, HelpComesFromTheButtonAndFromF1) {
    Gui::Click(Button(First(), 10002));
    Gui::Focus(Combo(Second()));
    Gui::Key(Combo(Second()), Qt::Key_F1);
    const std::vector<std::pair<unsigned, unsigned>> asked = {{15, 1005}, {15, 1104}};
    EXPECT_EQ(room.helpAsked, asked);
}

TEST_F(Pane, ClosingDeletesTheCheckAndGivesThePageTheKeyboard) {
    Gui::Click(Button(First(), 10001));
    EXPECT_EQ(room.Live(107), nullptr);
    EXPECT_TRUE(room.Live(203));
    EXPECT_EQ(First().DisplayState, CExtDialog::Hidden);
    EXPECT_TRUE(Page().hasFocus());
    EXPECT_TRUE(First().HasWindow());
}

TEST_F(Pane, EnterAndEscapeDoNothing) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        Gui::Focus(Combo(First()));
        Gui::Key(Combo(First()), key);
        EXPECT_TRUE(First().isVisible());
        EXPECT_EQ(First().DisplayState, CExtDialog::ShownWhole);
        EXPECT_TRUE(room.Live(107));
    }
}

TEST_F(Pane, APressSelectsWhereverItFalls) {
    EXPECT_TRUE(Second().Selected); // the last that was added
    Gui::ClickAt(First(), Middle(First()));
    EXPECT_TRUE(First().Selected);
    EXPECT_FALSE(Second().Selected);
    Gui::Click(Text(Second()));
    EXPECT_TRUE(Second().Selected);
    auto* label = First().findChild<QLabel*>("text");
    Gui::Click(*label);
    EXPECT_TRUE(First().Selected);
}

TEST_F(Pane, CtrlAddsToTheSelectionAndTakesFromIt) {
    Gui::ClickAt(First(), Middle(First()), Qt::ControlModifier);
    EXPECT_TRUE(First().Selected && Second().Selected);
    EXPECT_EQ(Page().GetSelectedPosition(), First().Position);
    // The other one leaves the selection again.
    Gui::Click(*Second().findChild<QLabel*>("text"), Qt::ControlModifier);
    EXPECT_FALSE(Second().Selected);
    EXPECT_TRUE(First().Selected);
}

TEST_F(Pane, CtrlOnThePaneWithTheKeyboardDoesNotToggleIt) {
    Gui::ClickAt(First(), Middle(First()), Qt::ControlModifier);
    Gui::ClickAt(First(), Middle(First()), Qt::ControlModifier);
    EXPECT_TRUE(First().Selected && Second().Selected);
    EXPECT_EQ(Page().GetSelection().size(), 2u);
}

TEST_F(Pane, TheKeyboardSelectsThePaneItGoesTo) {
    Gui::Focus(Combo(First()));
    EXPECT_TRUE(First().Selected);
    Gui::Key(Combo(First()), Qt::Key_Tab);
    EXPECT_TRUE(Second().Selected);
    EXPECT_FALSE(First().Selected);
}

TEST_F(Pane, SelectingKeepsTheKeyboardOnTheControlThatWasClicked) {
    CExtDialog& standard = room.Add(101);
    Gui::ClickAt(First(), Middle(First()));
    EXPECT_TRUE(First().isAncestorOf(QApplication::focusWidget()) || First().hasFocus());
    QWidget& box = *standard.GetDlgItem<QWidget>(1007);
    box.setFocus(Qt::MouseFocusReason);
    Gui::Click(box);
    EXPECT_TRUE(standard.Selected);
    EXPECT_TRUE(box.hasFocus());
}

TEST_F(Pane, ARightPressOpensThePagesMenuAndSelectsNothing) {
    QWidget& combo = Combo(First());
    Gui::ClickAt(combo, combo.rect().center(), Qt::NoModifier, Qt::RightButton);
    ASSERT_EQ(room.menusAsked.size(), 1u);
    EXPECT_EQ(room.menusAsked[0], combo.mapToGlobal(combo.rect().center()));
    EXPECT_FALSE(First().Selected);
}

TEST_F(Pane, AFieldAddsNoMenuOfItsOwnToThePages) {
    CExtDialog& standard = room.Add(101);
    QWidget& field = *standard.GetDlgItem<QWidget>(1315);
    Gui::ClickAt(field, field.rect().center(), Qt::NoModifier, Qt::RightButton);
    QContextMenuEvent event(QContextMenuEvent::Mouse, field.rect().center(), field.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&field, &event);
    Gui::Settle();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(room.menusAsked.size(), 1u);
}

TEST_F(Pane, TheMenuKeyOpensThePagesMenu) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {3, 3}, First().mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&First(), &event);
    EXPECT_EQ(room.menusAsked.size(), 1u);
}

TEST_F(Pane, SelectedAndOtherPanesLookApart) {
    const auto groundOf = [](CExtDialog& pane) {
        return pane.grab().toImage().pixelColor(pane.width() / 2, pane.GetDisplayHeight() - 3).rgb();
    };
    EXPECT_EQ(groundOf(First()), Look::PaneGround);
    EXPECT_EQ(groundOf(Second()), Look::SelectedPaneGround);
    const auto captionOf = [](CExtDialog& pane) { return pane.grab().toImage().pixelColor(1, 19).rgb(); };
    EXPECT_EQ(captionOf(First()), qRgb(0x91, 0x9a, 0xb9));
    EXPECT_EQ(captionOf(Second()), qRgb(0x66, 0x73, 0x9d));
    const auto frameOf = [](CExtDialog& pane) { return pane.grab().toImage().pixelColor(0, 40).rgb(); };
    EXPECT_EQ(frameOf(First()), FromColorRef(0xA19290));
    EXPECT_EQ(frameOf(Second()), FromColorRef(0xA14A4A));
}

TEST_F(Pane, ThePointerOnTheCaptionChangesItsLook) {
    const auto caption = [this] { return First().grab(QRect(0, 0, First().width(), 20)).toImage(); };
    const QImage before = caption();
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QApplication::sendEvent(&Text(First()), &enter);
    Gui::Settle();
    EXPECT_NE(caption(), before);
    EXPECT_EQ(Text(First()).palette().color(Text(First()).foregroundRole()).rgb(), FromColorRef(0x951313));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&Text(First()), &leave);
    Gui::Settle();
    EXPECT_EQ(caption(), before);
}

TEST_F(Pane, SelectionUnderThePointerLeavesTheRightTextColour) {
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QApplication::sendEvent(&Text(First()), &enter);
    Gui::Click(Text(First())); // selects it, too
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&Text(First()), &leave);
    EXPECT_EQ(Text(First()).palette().color(Text(First()).foregroundRole()), QColor(Qt::white));
}

TEST_F(Pane, CriticalityHasFourRowsWithPictures) {
    auto& combo = static_cast<QComboBox&>(Combo(First()));
    ASSERT_EQ(combo.count(), 4);
    const unsigned pictures[] = {1425, 1424, 1426, 1427};
    for (int row = 0; row < 4; ++row) {
        EXPECT_EQ(combo.itemText(row), LoadString(2267 + static_cast<unsigned>(row)));
        const QImage shown = combo.itemIcon(row).pixmap(16, 16).toImage();
        EXPECT_FALSE(shown.isNull());
        EXPECT_EQ(shown, Look::SmallIconOf(pictures[row]).pixmap(16, 16).toImage()) << row;
    }
    EXPECT_EQ(combo.currentIndex(), 1);
}

TEST_F(Pane, TheCustomCheckHasNoCriticalityOfItsOwn) {
    CExtDialog& pane = room.Add(122);
    EXPECT_EQ(static_cast<QComboBox&>(Combo(pane)).count(), 0);
    auto check = CStandard::MakeCheck(122);
    check->Criticality = 3;
    pane.LoadCheck(*check);
    EXPECT_EQ(pane.Criticality, 1u);
    EXPECT_EQ(static_cast<QComboBox&>(Combo(pane)).count(), 0);
}

TEST_F(Pane, AWheelOverTheCriticalityChangesNothing) {
    Gui::Wheel(Combo(First()), -120);
    EXPECT_EQ(room.Live(107)->Criticality, 1u);
}

TEST_F(Pane, AnUnknownCriticalityShowsAsMediumAndStays) {
    CCheck check(107, 0, 0, 0, 9);
    First().LoadCheck(check);
    EXPECT_EQ(static_cast<QComboBox&>(Combo(First())).currentIndex(), 1);
    EXPECT_EQ(First().Criticality, 9u);
}

TEST_F(Pane, AnUndoneCriticalityShowsAgain) {
    Gui::ChooseRow(Combo(First()), 3);
    EXPECT_EQ(room.Live(107)->Criticality, 3u);
    int step = 0;
    const MQC_CheckType_e type = room.standard.StepHistory(true, step);
    Page().ApplyHistoryStep(type, LifeEdited, true);
    Gui::Settle();
    EXPECT_NE(static_cast<QComboBox&>(Combo(First())).currentIndex(), 3);
}
