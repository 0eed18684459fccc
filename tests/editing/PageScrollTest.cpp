// The page scrolls.
#include "editing/PageRoom.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QScrollBar>

namespace {

constexpr MQC_CheckType_e First = 101, Middle = 203, Last = 701;

class PageScroll : public PageRoom {
protected:
    // Far more than fits.
    void Fill() {
        Add({First, 102, 105, 107, 118, 201, 301, Middle, 401, 406, 407, 307, 309, 313, 602, Last});
        Show();
        page->verticalScrollBar()->setValue(0);
    }
    int Y() const { return page->verticalScrollBar()->value(); }
    int End() const { return page->verticalScrollBar()->maximum(); }
};

} // namespace

TEST(PageWheel, ASlowTurnIsOneLineAndAQuickOneAThirdOfItsLines) {
    EXPECT_EQ(WheelDistance(-120, 3, 500), 10);
    EXPECT_EQ(WheelDistance(120, 3, 500), -10);
    EXPECT_EQ(WheelDistance(-120, 5, 500), 10);
    EXPECT_EQ(WheelDistance(-120, 6, 500), 20);
    EXPECT_EQ(WheelDistance(-240, 3, 500), 20);
    EXPECT_EQ(WheelDistance(-600, 3, 500), 50);
    EXPECT_EQ(WheelDistance(-40, 3, 500), 10) << "less than a notch is a line as well";
}

TEST(PageWheel, WholePagesArePages) {
    EXPECT_EQ(WheelDistance(-120, -1, 500), 500);
    EXPECT_EQ(WheelDistance(360, -1, 500), -500);
}

TEST_F(PageScroll, AShortStackDoesNotScroll) {
    Add({Middle});
    Show();
    EXPECT_EQ(End(), 0);
    EXPECT_EQ(Pane(Middle).y(), 0);
}

TEST_F(PageScroll, TheWheelMovesThePanes) {
    Fill();
    ASSERT_GT(End(), 500);
    Gui::Wheel(*page->viewport(), -120);
    EXPECT_EQ(Y(), 10);
    EXPECT_EQ(Pane(First).y(), -10);
    Gui::Wheel(*page->viewport(), 120);
    Gui::Wheel(*page->viewport(), 120);
    EXPECT_EQ(Y(), 0) << "not beyond the beginning";
}

TEST_F(PageScroll, PageKeysScrollByPages) {
    Fill();
    page->setFocus();
    Gui::Key(*page, Qt::Key_PageDown);
    EXPECT_EQ(Y(), page->viewport()->height());
    Gui::Key(*page, Qt::Key_PageUp);
    EXPECT_EQ(Y(), 0);
    Gui::Key(*page, Qt::Key_End);
    EXPECT_EQ(Y(), End());
    Gui::Key(*page, Qt::Key_Home);
    EXPECT_EQ(Y(), 0);
}

TEST_F(PageScroll, PageKeysScrollWhileABoxOfChoicesHasTheKeyboard) {
    Fill();
    auto* combo = Pane(First).GetDlgItem<QComboBox>(1249);
    Gui::Focus(*combo);
    page->verticalScrollBar()->setValue(0);
    const int row = combo->currentIndex();
    Gui::Key(*combo, Qt::Key_PageDown);
    EXPECT_EQ(Y(), page->viewport()->height());
    EXPECT_EQ(combo->currentIndex(), row);
}

TEST_F(PageScroll, AShownPaneIsAtTheTop) {
    Fill();
    page->ShowPane(Pane(Middle), 0);
    EXPECT_EQ(Y(), Pane(Middle).Top);
    EXPECT_EQ(Pane(Middle).y(), 0);
}

TEST_F(PageScroll, ALayoutKeepsThePlaceAndEndsAtTheLastPane) {
    Fill();
    page->verticalScrollBar()->setValue(200);
    page->RelayoutKeepScroll();
    EXPECT_EQ(Y(), 200);
    page->verticalScrollBar()->setValue(End());
    for (const MQC_CheckType_e type : Seen())
        if (type != Last)
            page->RemoveCheck(type, true);
    EXPECT_EQ(End(), 0);
    EXPECT_EQ(Y(), 0);
    EXPECT_EQ(Pane(Last).y(), 0);
}

TEST_F(PageScroll, AnotherHeightKeepsTheProportion) {
    Fill();
    const int page1 = page->viewport()->height();
    page->verticalScrollBar()->setValue(300);
    Resize(1000, 400);
    EXPECT_EQ(Y(), 300 * page->viewport()->height() / page1);
    EXPECT_EQ(Pane(First).y(), -Y());
    Resize(1000, 20000);
    EXPECT_EQ(Y(), 0);
    EXPECT_EQ(Pane(First).y(), 0);
}

TEST_F(PageScroll, PanesAreAsWideAsThePageButNotNarrowerThanTheFirst) {
    Add({Middle, First});
    Show();
    Resize(1400, 900);
    EXPECT_EQ(Pane(First).width(), page->viewport()->width() - 1);
    EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0);
    Resize(300, 900);
    EXPECT_EQ(Pane(First).width(), Pane(Middle).GetTemplateWidth() - 1);
    EXPECT_GT(page->horizontalScrollBar()->maximum(), 0);
    page->horizontalScrollBar()->setValue(40);
    EXPECT_EQ(Pane(First).x(), -40);
    // A little less than the template is given way to.
    const int barWidth = page->width() - page->viewport()->width();
    Resize(Pane(Middle).GetTemplateWidth() - 10 + barWidth, 900);
    EXPECT_EQ(Pane(First).width(), page->viewport()->width() - 1);
}

TEST_F(PageScroll, ARightClickOnThePageAsksForItsMenu) {
    Show();
    QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 20},
                            page->viewport()->mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(page->viewport(), &event);
    EXPECT_EQ(host.menus.size(), 1u);
}
