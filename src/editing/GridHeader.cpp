#include "editing/GridHeader.h"

#include "editing/GridClass.h"
#include "editing/GridColors.h"

#include <QPainter>

GridHeader::GridHeader(const GridModel& cells, CGridClass* grid)
    : QHeaderView(Qt::Horizontal, grid), m_cells(cells), m_grid(*grid) {
    setSectionsClickable(false);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(0);
}

void GridHeader::DrawBand(QPainter& painter, const QRect& rect) {
    QLinearGradient band(rect.topLeft(), rect.bottomLeft());
    band.setColorAt(0, QColor(GridColors::HeaderTop));
    band.setColorAt(1, QColor(GridColors::HeaderBottom));
    painter.fillRect(rect, band);
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), QColor(GridColors::HeaderLine));
}

// The band goes on beside the last column.
void GridHeader::paintEvent(QPaintEvent* event) {
    QHeaderView::paintEvent(event);
    const int end = length() - offset();
    if (end >= viewport()->width())
        return;
    QPainter painter(viewport());
    DrawBand(painter, QRect(end, 0, viewport()->width() - end, viewport()->height()));
}

// Each section of a covered range draws the whole range, so that a repaint of any of them is right.
void GridHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
    const GridRange range = m_cells.CoveredRangeOf(0, logicalIndex);
    QRect whole = rect;
    whole.setLeft(sectionViewportPosition(range.left));
    whole.setRight(sectionViewportPosition(range.right) + sectionSize(range.right) - 1);
    DrawBand(*painter, whole);
    if (range.right + 1 < count())
        painter->fillRect(QRect(whole.right(), whole.top() + 4, 1, whole.height() - 8),
                          QColor(GridColors::HeaderLine));
    CellTextLook look = m_grid.TextLook(m_cells.ComposeStyleRowCol(0, range.left));
    look.color = QColor(GridColors::HeaderText);
    look.wrap = false;
    DrawCellText(*painter, whole.adjusted(0, 0, -1, -1), m_cells.Cell(0, range.left).text, look);
}
