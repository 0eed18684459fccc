#include "editing/GridControls.h"

#include "editing/CellText.h"
#include "editing/GridClass.h"
#include "editing/GridColors.h"

#include <QPainter>

void CGXStatic::Draw(QPainter& painter, const CellDrawing& drawing) const {
    if (drawing.cell.picture != 0)
        DrawCellPicture(painter, drawing.rect, drawing.cell.picture,
                        drawing.style.alignment.value_or(Qt::AlignLeft));
    else
        DrawCellText(painter, drawing.rect, drawing.cell.text, drawing.grid.TextLook(drawing.style));
}

void CGXStaticControl::Draw(QPainter& painter, const CellDrawing& drawing) const {
    // In a narrower cell there is no ground to see.
    if (drawing.rect.width() >= 2 && drawing.rect.height() > 1)
        drawing.grid.DrawBackground(painter, drawing.rect, drawing.style);
    CGXStatic::Draw(painter, drawing);
}

void CGXLayerColorControl::Draw(QPainter& painter, const CellDrawing& drawing) const {
    if (!drawing.style.interior || !drawing.cell.text.isEmpty()) {
        CGXStatic::Draw(painter, drawing);
        return;
    }
    const QRect swatch = drawing.rect.adjusted(6, 4, -6, -4);
    painter.fillRect(swatch, QColor(GridColors::ColorFrame));
    painter.fillRect(swatch.adjusted(1, 1, -1, -1), ColorOf(*drawing.style.interior));
}

void CAdminControlManager::RegisterControl(unsigned id, std::unique_ptr<CGXStatic> control) {
    m_controls[id] = std::move(control);
}

const CGXStatic* CAdminControlManager::FindControl(unsigned id) const {
    const auto found = m_controls.find(id);
    return found == m_controls.end() ? nullptr : found->second.get();
}
