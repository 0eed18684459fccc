// The first column of the summary grid behaves like a link.
#include "editing/AdminGridClass.h"

#include "support/Gui.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <gtest/gtest.h>

namespace {

constexpr unsigned Blue = 0xFF0000;

struct Hovered {
    Hovered() {
        grid.resize(600, 300);
        grid.BeginTrans();
        grid.SetColCount(3);
        grid.SetRowCount(4);
        for (int row = 1; row <= 4; ++row)
            grid.SetCellText(row, 0, "Name");
        grid.SetCoveredCellsRowCol({2, 0, 4, 0});
        grid.CommitTrans();
        Gui::Show(grid);
    }
    void MoveTo(QPoint place, Qt::MouseButtons buttons = Qt::NoButton) {
        QMouseEvent move(QEvent::MouseMove, place, grid.viewport()->mapToGlobal(place), Qt::NoButton, buttons,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(grid.viewport(), &move);
    }
    void MoveToCell(int row, int col, Qt::MouseButtons buttons = Qt::NoButton) {
        const GridRange range = grid.GetMergedCellsRowCol(row, col);
        const QRect rect = grid.CalcRectFromRowCol(row, col);
        MoveTo({rect.center().x(), rect.top() + 5 + (row - range.top) * grid.rowHeight(0)}, buttons);
    }
    unsigned Color(int row) { return grid.ComposeStyleRowCol(row, 0).textColor.value_or(0); }

    CAdminGridClass grid;
};

} // namespace

TEST(AdminGridClass, TheNameUnderThePointerIsALink) {
    Hovered hovered;
    hovered.MoveToCell(1, 0);
    EXPECT_EQ(hovered.grid.HoverRow, 1);
    EXPECT_EQ(hovered.Color(1), Blue);
}

TEST(AdminGridClass, AnyCellOfACheckMarksItsName) {
    Hovered hovered;
    hovered.MoveToCell(4, 2);
    EXPECT_EQ(hovered.grid.HoverRow, 2);
    EXPECT_EQ(hovered.Color(2), Blue);
    EXPECT_EQ(hovered.Color(4), 0u);
}

TEST(AdminGridClass, OneNameIsMarkedAtATime) {
    Hovered hovered;
    hovered.MoveToCell(1, 1);
    hovered.MoveToCell(3, 0);
    EXPECT_EQ(hovered.Color(1), 0u);
    EXPECT_EQ(hovered.Color(2), Blue);
    hovered.MoveToCell(4, 1);
    EXPECT_EQ(hovered.grid.HoverRow, 2) << "still the same check";
}

TEST(AdminGridClass, BelowTheRowsNothingIsMarked) {
    Hovered hovered;
    hovered.MoveToCell(1, 0);
    hovered.MoveTo({20, hovered.grid.viewport()->height() - 3});
    EXPECT_EQ(hovered.grid.HoverRow, 0);
    EXPECT_EQ(hovered.Color(1), 0u);
}

TEST(AdminGridClass, LeavingTheGridEndsTheMark) {
    Hovered hovered;
    hovered.MoveToCell(1, 0);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&hovered.grid, &leave);
    EXPECT_EQ(hovered.grid.HoverRow, 0);
    EXPECT_EQ(hovered.Color(1), 0u);
}

TEST(AdminGridClass, WithAButtonDownTheMarkStays) {
    Hovered hovered;
    hovered.MoveToCell(1, 0);
    hovered.MoveToCell(3, 0, Qt::LeftButton);
    EXPECT_EQ(hovered.grid.HoverRow, 1);
    EXPECT_EQ(hovered.Color(1), Blue);
}

TEST(AdminGridClass, ThePointerIsAHandOverCellsOnly) {
    Hovered hovered;
    hovered.MoveToCell(1, 2);
    EXPECT_EQ(hovered.grid.viewport()->cursor().shape(), Qt::BitmapCursor);
    EXPECT_EQ(hovered.grid.viewport()->cursor().hotSpot(), QPoint(12, 4));
    hovered.MoveTo({20, hovered.grid.viewport()->height() - 3});
    EXPECT_EQ(hovered.grid.viewport()->cursor().shape(), Qt::ArrowCursor);
}

TEST(AdminGridClass, TheKeyboardStartsAtTheFirstRow) {
    QWidget window;
    CAdminGridClass grid(&window);
    grid.SetColCount(2);
    grid.SetRowCount(2);
    int row = 0;
    int col = 0;
    EXPECT_FALSE(grid.GetCurrentCell(row, col));
    Gui::Show(window);
    Gui::Focus(grid);
    ASSERT_TRUE(grid.GetCurrentCell(row, col));
    EXPECT_EQ(row, 1);
    EXPECT_EQ(col, 0);
}

TEST(AdminGridClass, TabLeavesTheGrid) {
    QWidget window;
    CAdminGridClass grid(&window);
    CAdminGridClass next(&window);
    grid.SetColCount(2);
    grid.SetRowCount(2);
    Gui::Show(window);
    Gui::Focus(grid);
    Gui::Key(grid, Qt::Key_Tab);
    EXPECT_TRUE(next.hasFocus());
}

TEST(AdminGridClass, ARegisteredControlDrawsItsCells) {
    struct Red : CGXStatic {
        void Draw(QPainter& painter, const CellDrawing& drawing) const override {
            painter.fillRect(drawing.rect, Qt::red);
        }
    };
    Hovered hovered;
    hovered.grid.Controls.RegisterControl(4711, std::make_unique<Red>());
    hovered.grid.SetCellControl(1, 1, 4711);
    const QImage image = hovered.grid.viewport()->grab().toImage();
    EXPECT_EQ(image.pixelColor(hovered.grid.CalcRectFromRowCol(1, 1).center()), QColor(Qt::red));
}
