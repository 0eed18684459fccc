// Cells that are edited in place.
#include "editing/PageDialogGrid.h"

#include "editing/ExGridEditControl.h"
#include "support/Gui.h"

#include <QApplication>
#include <QComboBox>
#include <QPaintEvent>
#include <QScrollBar>
#include <QSpinBox>
#include <gtest/gtest.h>

namespace {

struct Editing {
    Editing() {
        grid.resize(600, 200);
        grid.SetColCount(4);
        grid.SetRowCount(50);
        grid.SetCellText(0, 1, "Name");
        grid.SetColEditor(1, EditorText);
        grid.SetColEditor(2, EditorCombo, {"one", "two"});
        grid.SetColEditor(3, EditorNumber);
        grid.CellEdited = [this](int row, int col) { log += CString("edited %1,%2 ").arg(row).arg(col); };
        grid.EditCommitted = [this] { log += "commit(" + grid.GetCellText(1, 3) + ") "; };
        Gui::Show(grid);
    }
    void Open(int row, int col) {
        Gui::ClickAt(*grid.viewport(), grid.CalcRectFromRowCol(row, col).center());
        Gui::Settle();
    }
    template <class T> T* Editor() { return dynamic_cast<T*>(grid.indexWidget(grid.currentIndex())); }

    CString log; // outlives the grid, which may still tell of an editor
    CPageDialogGrid grid;
};

} // namespace

TEST(GridEditing, AClickOpensTheEditorAndEnterStoresIt) {
    Editing editing;
    editing.Open(1, 1);
    auto* edit = editing.Editor<QLineEdit>();
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit->accessibleName(), "Name");
    Gui::Type(*edit, "Weight");
    Gui::Key(*edit, Qt::Key_Return);
    Gui::Settle();
    EXPECT_EQ(editing.grid.GetCellText(1, 1), "Weight");
    EXPECT_EQ(editing.log, "edited 1,1 ");
}

TEST(GridEditing, EscapeLeavesTheCellAsItWas) {
    Editing editing;
    editing.grid.SetCellText(1, 3, "5");
    editing.Open(1, 3);
    Gui::Type(*editing.Editor<QLineEdit>(), "7");
    Gui::Key(*editing.Editor<QLineEdit>(), Qt::Key_Escape);
    Gui::Settle();
    EXPECT_EQ(editing.grid.GetCellText(1, 3), "5");
    EXPECT_EQ(editing.log, "");
}

TEST(GridEditing, ACellWithoutAnEditorStaysClosed) {
    Editing editing;
    editing.Open(1, 0);
    EXPECT_EQ(editing.Editor<QWidget>(), nullptr);
}

TEST(GridEditing, AListOffersItsChoices) {
    Editing editing;
    editing.grid.SetCellText(1, 2, "two");
    editing.Open(1, 2);
    auto* combo = editing.Editor<QComboBox>();
    ASSERT_TRUE(combo);
    EXPECT_EQ(combo->count(), 2);
    EXPECT_EQ(combo->currentText(), "two");
    combo->setCurrentIndex(0);
    editing.Open(2, 0);
    EXPECT_EQ(editing.grid.GetCellText(1, 2), "one");
}

TEST(GridEditing, AListWithoutAChoiceKeepsAStrangeText) {
    Editing editing;
    editing.grid.SetCellText(1, 2, "three");
    editing.Open(1, 2);
    EXPECT_EQ(editing.Editor<QComboBox>()->currentIndex(), -1);
    editing.Open(2, 0);
    EXPECT_EQ(editing.grid.GetCellText(1, 2), "three");
    EXPECT_EQ(editing.log, "");
}

TEST(GridEditing, ChoicesMayDifferFromCellToCell) {
    Editing editing;
    editing.grid.SetCellEditor(2, 2, EditorCombo, {"red"});
    editing.Open(2, 2);
    EXPECT_EQ(editing.Editor<QComboBox>()->itemText(0), "red");
}

TEST(GridEditing, ANumberTakesDigitsAndPointsOnly) {
    Editing editing;
    editing.Open(1, 3);
    auto* number = editing.Editor<CExGridEditControl>();
    ASSERT_TRUE(number);
    EXPECT_EQ(number->Pending, 0);
    Gui::Type(*number, "1a-2,.5 .e");
    EXPECT_EQ(number->text(), "12.5.");
    EXPECT_EQ(number->Pending, 1);
}

TEST(GridEditing, LeavingAChangedNumberTellsThePaneOnce) {
    Editing editing;
    editing.Open(1, 3);
    Gui::Type(*editing.Editor<QLineEdit>(), "12");
    editing.Open(2, 0);
    EXPECT_EQ(editing.log, "edited 1,3 commit(12) ") << "when the cell has its text";
}

TEST(GridEditing, LeavingAnUnchangedNumberTellsNothing) {
    Editing editing;
    editing.grid.SetCellText(1, 3, "12");
    editing.Open(1, 3);
    editing.Open(2, 0);
    EXPECT_EQ(editing.log, "");
}

TEST(GridEditing, ANumberTypedBackIsStillAChange) {
    Editing editing;
    editing.grid.SetCellText(1, 3, "1");
    editing.Open(1, 3);
    Gui::Key(*editing.Editor<QLineEdit>(), Qt::Key_End);
    Gui::Type(*editing.Editor<QLineEdit>(), "2");
    Gui::Key(*editing.Editor<QLineEdit>(), Qt::Key_Backspace);
    editing.Open(2, 0);
    EXPECT_EQ(editing.log, "commit(1) ");
}

TEST(GridEditing, AnyWidgetMayEditACell) {
    Editing editing;
    editing.grid.RegisterEditor(4711, [](QWidget* parent) { return new QSpinBox(parent); });
    editing.grid.SetColEditor(0, 4711);
    editing.grid.SetCellText(3, 0, "7");
    editing.Open(3, 0);
    auto* box = editing.Editor<QSpinBox>();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->value(), 7);
    box->setValue(9);
    editing.Open(1, 1);
    EXPECT_EQ(editing.grid.GetCellText(3, 0), "9");
}

TEST(GridEditing, APaneMayRefuseToOpenACell) {
    Editing editing;
    CString asked;
    editing.grid.MayEditCell = [&asked](int row, int col) {
        asked += CString("%1,%2 ").arg(row).arg(col);
        return col != 1;
    };
    editing.Open(1, 1);
    EXPECT_EQ(editing.Editor<QWidget>(), nullptr);
    EXPECT_EQ(asked, "1,1 ") << "asked once for a click";
    editing.Open(1, 3);
    EXPECT_TRUE(editing.Editor<QLineEdit>());
}

TEST(GridEditing, ScrollingStoresTheOpenCellFirst) {
    Editing editing;
    editing.Open(1, 3);
    Gui::Type(*editing.Editor<QLineEdit>(), "12");
    editing.grid.verticalScrollBar()->setValue(40);
    EXPECT_EQ(editing.grid.GetCellText(1, 3), "12");
    EXPECT_EQ(editing.log, "edited 1,3 commit(12) ");
    EXPECT_TRUE(editing.grid.hasFocus());
    Gui::Settle();
    EXPECT_EQ(editing.Editor<QWidget>(), nullptr);
}

TEST(GridEditing, ScrollingWithoutAnEditorOnlyScrolls) {
    Editing editing;
    Gui::Focus(editing.grid);
    editing.grid.verticalScrollBar()->setValue(40);
    EXPECT_EQ(editing.grid.verticalScrollBar()->value(), 40);
    EXPECT_EQ(editing.log, "");
}

TEST(GridEditing, TabGoesToTheNextCell) {
    Editing editing;
    editing.Open(1, 1);
    Gui::Type(*editing.Editor<QLineEdit>(), "a");
    Gui::Key(*editing.Editor<QLineEdit>(), Qt::Key_Tab);
    Gui::Settle();
    EXPECT_EQ(editing.grid.GetCellText(1, 1), "a");
    EXPECT_TRUE(editing.Editor<QComboBox>());
}

TEST(GridEditing, ARepaintOfAMergedCellIsOfTheWholeRange) {
    struct Watch : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint)
                painted += static_cast<QPaintEvent*>(event)->region();
            return false;
        }
        QRegion painted;
    } watch;
    Editing editing;
    editing.grid.SetCoveredCellsRowCol({1, 0, 3, 0});
    Gui::Settle();
    editing.grid.viewport()->installEventFilter(&watch);
    editing.grid.RedrawRowCol(3, 0);
    Gui::Settle();
    EXPECT_EQ(watch.painted.boundingRect(), editing.grid.CalcRectFromRowCol(1, 0));
}
