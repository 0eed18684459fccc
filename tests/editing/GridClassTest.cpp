// Grids: their shape, the looks of cells, and what costs little in large ones.
#include "editing/ExtendedGrid.h"

#include "editing/GridColors.h"
#include "support/Gui.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <gtest/gtest.h>

namespace {

struct Grid : CGridClass {
    Grid(int rows, int cols) {
        resize(600, 300);
        SetColCount(cols);
        SetRowCount(rows);
    }
    int Pixels(int twips) const { return qRound(twips * logicalDpiX() / 1440.0); }
    QRect Rect(int row, int col) const { return CalcRectFromRowCol(row, col); }
    QImage Image() { return viewport()->grab().toImage(); }
};

} // namespace

TEST(GridClass, RowsCountFromOneAndTheHeaderIsRowZero) {
    Grid grid(2, 3);
    grid.SetCellText(0, 1, "Head");
    grid.SetCellText(1, 1, "First");
    grid.SetCellText(3, 1, "beyond");
    grid.SetCellText(1, 3, "beyond");
    EXPECT_EQ(grid.GetRowCount(), 2);
    EXPECT_EQ(grid.GetColCount(), 3);
    EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal), "Head");
    EXPECT_EQ(grid.model()->index(0, 1).data(), "First");
    EXPECT_EQ(grid.GetCellText(1, 1), "First");
    EXPECT_EQ(grid.GetCellText(3, 1), "");
}

TEST(GridClass, SizesAreTwips) {
    Grid grid(2, 2);
    grid.SetRowHeight(0, 300);
    grid.SetRowHeight(1, 350);
    grid.SetColWidth(1, 1440);
    EXPECT_EQ(grid.GetRowHeight(1), 350);
    EXPECT_EQ(grid.rowHeight(0), grid.Pixels(350));
    EXPECT_EQ(grid.columnWidth(1), grid.logicalDpiX());
    EXPECT_EQ(grid.horizontalHeader()->height(), grid.Pixels(300));
    EXPECT_EQ(grid.GetColWidth(1), 1440);
}

TEST(GridClass, RowsAndColumnsWithoutSizeAreHidden) {
    Grid grid(2, 2);
    grid.SetRowHeight(2, 0);
    grid.SetColWidth(1, 0);
    EXPECT_TRUE(grid.isRowHidden(1));
    EXPECT_TRUE(grid.isColumnHidden(1));
    grid.SetRowHeight(2, 340);
    EXPECT_FALSE(grid.isRowHidden(1));
    EXPECT_EQ(grid.rowHeight(1), grid.Pixels(340));
    grid.HideRow(1, true);
    grid.HideCol(0, true);
    EXPECT_TRUE(grid.isRowHidden(0));
    EXPECT_TRUE(grid.isColumnHidden(0));
}

TEST(GridClass, InsertedRowsCarryTheirCellsAndSizes) {
    Grid grid(2, 1);
    grid.SetCellText(1, 0, "a");
    grid.SetCellText(2, 0, "trailing");
    grid.SetRowHeight(2, 0);
    grid.InsertRow(2);
    grid.SetCellText(2, 0, "b");
    EXPECT_EQ(grid.GetCellText(3, 0), "trailing");
    EXPECT_TRUE(grid.isRowHidden(2));
    EXPECT_FALSE(grid.isRowHidden(1));
    grid.RemoveRow(1);
    EXPECT_EQ(grid.GetRowCount(), 2);
    EXPECT_EQ(grid.GetCellText(1, 0), "b");
    EXPECT_TRUE(grid.isRowHidden(1));
}

TEST(GridClass, ACoveredRangeIsOneCell) {
    Grid grid(4, 3);
    grid.SetCoveredCellsRowCol({2, 0, 4, 0});
    EXPECT_EQ(grid.GetMergedCellsRowCol(3, 0), (GridRange{2, 0, 4, 0}));
    EXPECT_EQ(grid.GetMergedCellsRowCol(3, 1), (GridRange{3, 1, 3, 1}));
    EXPECT_EQ(grid.rowSpan(1, 0), 3);
    EXPECT_EQ(grid.Rect(4, 0).height(), 3 * grid.rowHeight(0));
}

TEST(GridClass, ALaterCoverReplacesThoseItTouches) {
    Grid grid(6, 2);
    grid.SetCoveredCellsRowCol({1, 0, 3, 0});
    grid.SetCoveredCellsRowCol({4, 0, 6, 0});
    grid.SetCoveredCellsRowCol({3, 0, 4, 1});
    EXPECT_EQ(grid.GetMergedCellsRowCol(1, 0), (GridRange{1, 0, 1, 0}));
    EXPECT_EQ(grid.GetMergedCellsRowCol(4, 1), (GridRange{3, 0, 4, 1}));
    EXPECT_EQ(grid.GetMergedCellsRowCol(6, 0), (GridRange{6, 0, 6, 0}));
    grid.SetCoveredCellsRowCol({3, 0, 3, 0});
    EXPECT_EQ(grid.GetMergedCellsRowCol(4, 1), (GridRange{4, 1, 4, 1})) << "a single cell is not covered";
}

TEST(GridClass, CoversMoveWithTheirRows) {
    Grid grid(5, 1);
    grid.SetCoveredCellsRowCol({1, 0, 2, 0});
    grid.SetCoveredCellsRowCol({4, 0, 5, 0});
    grid.InsertRow(3);
    EXPECT_EQ(grid.GetMergedCellsRowCol(1, 0), (GridRange{1, 0, 2, 0}));
    EXPECT_EQ(grid.GetMergedCellsRowCol(5, 0), (GridRange{5, 0, 6, 0}));
    grid.RemoveRow(2);
    EXPECT_EQ(grid.GetMergedCellsRowCol(1, 0), (GridRange{1, 0, 1, 0}));
    EXPECT_EQ(grid.GetMergedCellsRowCol(4, 0), (GridRange{4, 0, 5, 0}));
    grid.SetRowCount(4);
    EXPECT_EQ(grid.GetMergedCellsRowCol(4, 0), (GridRange{4, 0, 4, 0}));
}

TEST(GridClass, ClearAllEmptiesEveryCell) {
    Grid grid(2, 2);
    grid.SetCellText(0, 0, "Head");
    grid.SetCellText(2, 1, "text");
    grid.SetCellBitmap(1, 0, 1429);
    grid.SetCellInterior(1, 1, 0xFF);
    grid.SetCoveredCellsRowCol({1, 0, 2, 0});
    grid.SetRowHeight(1, 500);
    grid.ClearAll();
    EXPECT_EQ(grid.GetCellText(0, 0), "");
    EXPECT_EQ(grid.GetCellText(2, 1), "");
    EXPECT_EQ(grid.GetCellBitmap(1, 0), 0u);
    EXPECT_FALSE(grid.ComposeStyleRowCol(1, 1).interior);
    EXPECT_EQ(grid.GetMergedCellsRowCol(1, 0), (GridRange{1, 0, 1, 0}));
    EXPECT_EQ(grid.GetRowCount(), 2);
    EXPECT_EQ(grid.GetRowHeight(1), 500);
}

TEST(GridClass, ClearAllWithoutRowsDoesNothing) {
    Grid grid(0, 2);
    grid.SetCellText(0, 0, "Head");
    grid.ClearAll();
    EXPECT_EQ(grid.GetCellText(0, 0), "Head");
}

TEST(GridClass, StylesOfCellRowAndColumnAreComposed) {
    Grid grid(2, 2);
    grid.SetColAlignment(1, Qt::AlignRight);
    grid.SetColWrap(1, false);
    grid.SetRowBold(2);
    grid.SetCellTextColor(2, 1, 0x123456);
    const CellStyle style = grid.ComposeStyleRowCol(2, 1);
    EXPECT_EQ(style.alignment, Qt::AlignRight);
    EXPECT_EQ(style.wrap, false);
    EXPECT_EQ(style.bold, true);
    EXPECT_EQ(style.textColor, 0x123456u);
    EXPECT_FALSE(grid.ComposeStyleRowCol(1, 0).bold);
    EXPECT_FALSE(grid.ComposeStyleRowCol(0, 1).alignment) << "the header has its own";
}

TEST(GridClass, OnlyAddedMarkersAreKept) {
    Grid grid(1, 1);
    EXPECT_FALSE(grid.SetUserAttribute(1, 0, 7, "x"));
    EXPECT_EQ(grid.GetUserAttribute(1, 0, 7), "");
    grid.AddUserAttribute(7);
    EXPECT_TRUE(grid.SetUserAttribute(1, 0, 7, "x"));
    EXPECT_EQ(grid.GetUserAttribute(1, 0, 7), "x");
    EXPECT_FALSE(grid.SetUserAttribute(2, 0, 7, "x"));
}

TEST(GridClass, HitTestFindsTheCell) {
    Grid grid(2, 2);
    Gui::Show(grid);
    int row = 7;
    int col = 7;
    EXPECT_EQ(grid.HitTest({grid.columnWidth(0) + 5, grid.rowHeight(0) + 5}, row, col), CGridClass::HitCell);
    EXPECT_EQ(row, 2);
    EXPECT_EQ(col, 1);
    EXPECT_EQ(grid.HitTest({5, grid.viewport()->height() - 1}, row, col), 0);
    EXPECT_EQ(row, 2);
}

TEST(GridClass, AColourCellShowsItsColour) {
    Grid grid(1, 2);
    grid.SetCellControl(1, 0, ControlLayerColor);
    grid.SetCellInterior(1, 0, 0x00FF00);
    grid.SetCellInterior(1, 1, 0xFF0000);
    Gui::Show(grid);
    const QImage image = grid.Image();
    EXPECT_EQ(image.pixelColor(grid.Rect(1, 0).center()), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(grid.Rect(1, 0).topLeft() + QPoint(6, 4)), QColor(GridColors::ColorFrame))
        << "with a frame";
    EXPECT_EQ(image.pixelColor(grid.Rect(1, 1).topLeft() + QPoint(1, 1)), QColor(0, 0, 255));
}

TEST(GridClass, APictureIsDrawn) {
    Grid grid(1, 1);
    Gui::Show(grid);
    const QImage before = grid.Image();
    grid.SetCellBitmap(1, 0, 1427);
    EXPECT_NE(grid.Image(), before);
    grid.SetCellBitmap(1, 0, 4711);
    EXPECT_EQ(grid.Image(), before) << "a picture that does not exist leaves the cell empty";
}

TEST(GridClass, AFramedCellHasABorder) {
    Grid grid(2, 2);
    grid.SetCellTextFramed(2, 0, "", true);
    grid.SetCellTextFramed(2, 1, "", false);
    Gui::Show(grid);
    const QImage image = grid.Image();
    EXPECT_EQ(image.pixelColor(grid.Rect(2, 0).left(), grid.Rect(2, 0).center().y()),
              QColor(GridColors::Line));
    EXPECT_EQ(image.pixelColor(grid.Rect(2, 1).left(), grid.Rect(2, 1).center().y()),
              QColor(GridColors::Ground));
    EXPECT_EQ(grid.ComposeStyleRowCol(2, 0).control, ControlFramed);
}

TEST(GridClass, AStaticCellHasItsGroundUnlessItIsNarrow) {
    Grid grid(1, 1);
    const GridCell cell;
    CellStyle style;
    style.interior = 0x0000FF;
    const auto draw = [&](QRect rect) {
        QImage image(10, 10, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        CGXStaticControl().Draw(painter, {grid, 1, 0, rect, cell, style});
        return image.pixelColor(rect.topLeft()) == QColor(Qt::red);
    };
    EXPECT_TRUE(draw({2, 2, 2, 2}));
    EXPECT_FALSE(draw({2, 2, 1, 5}));
    EXPECT_FALSE(draw({2, 2, 5, 1}));
}

TEST(GridClass, ATransactionCostsOneRebuild) {
    Grid grid(1, 2);
    int resets = 0;
    int changes = 0;
    QObject::connect(grid.model(), &QAbstractItemModel::modelReset, [&resets] { ++resets; });
    QObject::connect(grid.model(), &QAbstractItemModel::dataChanged, [&changes] { ++changes; });
    grid.BeginTrans();
    grid.BeginTrans();
    grid.SetRowCount(100);
    for (int row = 1; row <= 100; ++row)
        grid.SetCellText(row, 0, "x");
    grid.SetRowHeight(50, 700);
    grid.SetCoveredCellsRowCol({1, 0, 9, 0});
    grid.CommitTrans();
    EXPECT_EQ(resets, 0);
    grid.CommitTrans();
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(grid.rowHeight(49), grid.Pixels(700));
    EXPECT_EQ(grid.rowSpan(0, 0), 9);
}

// Bounds that only a cost that grows with the square of the rows can break.
TEST(GridClass, TenThousandRowsAreQuick) {
    Grid grid(0, 6);
    Gui::Show(grid);
    QElapsedTimer timer;
    timer.start();
    grid.BeginTrans();
    grid.SetRowCount(10'000);
    for (int row = 1; row <= 10'000; ++row) {
        for (int col = 0; col < 6; ++col)
            grid.SetCellText(row, col, "text");
        grid.SetRowHeight(row, 300 + row % 200);
        if (row % 5 == 0)
            grid.SetCoveredCellsRowCol({row - 4, 0, row, 0});
    }
    grid.CommitTrans();
    for (int row = 1; row <= 10'000; ++row)
        grid.SetRowHeight(row, 300 + row % 300);
    Gui::Settle();
    for (int step = 0; step < 20; ++step) {
        grid.verticalScrollBar()->setValue(step * grid.verticalScrollBar()->maximum() / 20);
        grid.viewport()->repaint();
    }
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(grid.GetMergedCellsRowCol(9'999, 0), (GridRange{9'996, 0, 10'000, 0}));
}

TEST(GridClass, ATipTellsWhatIsCut) {
    Grid grid(1, 3);
    grid.AddUserAttribute(CGridClass::ToolTipAttribute);
    grid.SetColWidth(0, 600);
    grid.SetRowHeight(1, 300);
    const CString text("A text that does not fit into its cell in any way <b>at all</b>");
    grid.SetCellText(1, 0, text);
    grid.SetCellText(1, 1, "fits");
    grid.SetCellText(1, 2, "x");
    grid.SetUserAttribute(1, 2, CGridClass::ToolTipAttribute, "own");
    Gui::Show(grid);
    EXPECT_EQ(grid.TipAt(grid.Rect(1, 0).center()), text);
    EXPECT_EQ(grid.TipAt(grid.Rect(1, 1).center()), "");
    EXPECT_EQ(grid.TipAt(grid.Rect(1, 2).center()), "own");
    EXPECT_EQ(grid.TipAt({5, grid.viewport()->height() - 1}), "");
}

TEST(GridClass, TheExtendedGridIsAGrid) {
    CxExtendedGrid grid;
    grid.SetColCount(6);
    grid.SetColWidth(5, 0);
    EXPECT_TRUE(grid.isColumnHidden(5));
}
