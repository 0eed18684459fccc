// How the cells of a grid look, and what their tips say.
#include "editing/GridClass.h"
#include "editing/GridColors.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>

constexpr int LongestTip = 1000; // letters; a longer one would fill the screen

CellTextLook CGridClass::TextLook(const CellStyle& style) const {
    CellTextLook look;
    look.font = font();
    look.font.setBold(style.bold.value_or(false));
    const unsigned color = style.textColor.value_or(0);
    look.color = color == 0 ? QColor(GridColors::Text) : ColorOf(color); // 0 is the grid's own
    look.font.setUnderline(color == GridColors::LinkText);
    look.alignment = style.alignment.value_or(Qt::AlignLeft) | Qt::AlignVCenter;
    look.wrap = style.wrap.value_or(true);
    return look;
}

void CGridClass::DrawBackground(QPainter& painter, const QRect& rect, const CellStyle& style) const {
    painter.fillRect(rect, style.interior ? ColorOf(*style.interior) : palette().color(QPalette::Base));
}

const CGXStatic* CGridClass::FindControl(unsigned id) const {
    switch (id) {
    case ControlLayerColor: return &m_color;
    case ControlFramed: return &m_framed;
    default: return &m_static;
    }
}

QRect CGridClass::ContentRect(const QRect& rect, int, int) const {
    return rect;
}

bool CGridClass::EndsGroup(int, int) const {
    return true;
}

void CGridClass::DrawCell(QPainter& painter, const QRect& rect, int row, int col) const {
    const GridCell& cell = m_cells.Cell(row, col);
    const CellStyle style = ComposeStyleRowCol(row, col);
    const unsigned control = style.control.value_or(ControlStatic);
    const QRect inside = rect.adjusted(0, 0, 0, -1);
    if (style.interior && control != ControlLayerColor)
        DrawBackground(painter, inside, style);
    FindControl(control)->Draw(painter, {*this, row, col, ContentRect(inside, row, col), cell, style});
    const bool isFull = EndsGroup(GetMergedCellsRowCol(row, col).bottom, col);
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1),
                     QColor(isFull ? GridColors::Line : GridColors::QuietLine));
    if (style.framed.value_or(false)) {
        painter.setPen(QColor(GridColors::Line));
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
    }
}

CString CGridClass::TipAt(QPoint place) const {
    int row = 0;
    int col = 0;
    if (HitTest(place, row, col) != HitCell)
        return {};
    const GridRange range = GetMergedCellsRowCol(row, col);
    const GridCell& cell = m_cells.Cell(range.top, range.left);
    const CString own = cell.attributes.value(ToolTipAttribute);
    if (!own.isEmpty() || !cell.spokenText.isEmpty())
        return own.isEmpty() ? cell.spokenText : own;
    const QRect rect = CalcRectFromRowCol(row, col).adjusted(0, 0, 0, -1);
    const bool isCut = IsCellTextCut(rect, cell.text, TextLook(ComposeStyleRowCol(range.top, range.left)));
    if (!isCut)
        return {};
    return cell.text.size() > LongestTip ? cell.text.left(LongestTip) + u'\u2026' : cell.text;
}

bool CGridClass::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    // Plain text: a value may look like markup.
    QToolTip::showText(help->globalPos(), Qt::convertFromPlainText(TipAt(help->pos())), viewport());
    return true;
}
