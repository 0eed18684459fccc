#include "editing/AdminGridClass.h"

#include "editing/GridColors.h"
#include "platform/LanguageLibrary.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

namespace {

constexpr unsigned HandCursor = 1431;
constexpr QPoint FingerTip(12, 4);

QCursor LoadHandCursor(qreal ratio) {
    const QImage image = LoadImageOf(ImageType::Cursor, HandCursor, ratio);
    if (image.isNull())
        return QCursor(Qt::ArrowCursor);
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(ratio);
    return QCursor(pixmap, FingerTip.x(), FingerTip.y());
}

} // namespace

CAdminGridClass::CAdminGridClass(QWidget* parent)
    : CGridClass(parent), m_hand(LoadHandCursor(devicePixelRatioF())) {
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    Controls.RegisterControl(ControlFramed, std::make_unique<CGXStaticControl>());
}

const CGXStatic* CAdminGridClass::FindControl(unsigned id) const {
    const CGXStatic* own = Controls.FindControl(id);
    return own ? own : CGridClass::FindControl(id);
}

// Rows of one check belong together: a full line stands below the last of them.
bool CAdminGridClass::EndsGroup(int row, int) const {
    return GetMergedCellsRowCol(row, 0).bottom == row;
}

// What stands over several rows is shown in the first of them that is in sight, so that the name of a long
// check never scrolls away.
QRect CAdminGridClass::ContentRect(const QRect& rect, int row, int col) const {
    const GridRange range = GetMergedCellsRowCol(row, col);
    if (range.top == range.bottom)
        return rect;
    QRect line = rect;
    line.setTop(std::max(rect.top(), 0));
    line.setHeight(rowHeight(std::clamp(rowAt(line.top()), range.top - 1, range.bottom - 1)) - 1);
    if (line.bottom() > rect.bottom())
        line.moveBottom(rect.bottom());
    return line;
}

void CAdminGridClass::scrollContentsBy(int dx, int dy) {
    CGridClass::scrollContentsBy(dx, dy);
    viewport()->update(); // names keep their place while their rows move
}

int CAdminGridClass::OnHover(QPoint place, bool drag) {
    int row = 0;
    int col = 0;
    if (HitTest(place, row, col) != HitCell || row == 0 || row > GetRowCount()) {
        EndHover();
        return 0;
    }
    if (drag)
        return 0;
    viewport()->setCursor(m_hand);
    const int named = GetMergedCellsRowCol(row, 0).top;
    if (HoverRow == named)
        return 1;
    SetCellTextColor(HoverRow, 0, 0);
    HoverRow = 0;
    if (SetCellTextColor(named, 0, GridColors::LinkText))
        HoverRow = named;
    return 1;
}

void CAdminGridClass::EndHover() {
    viewport()->unsetCursor();
    if (HoverRow <= 0)
        return;
    SetCellTextColor(HoverRow, 0, 0);
    HoverRow = 0;
}

void CAdminGridClass::mouseMoveEvent(QMouseEvent* event) {
    OnHover(event->position().toPoint(), event->buttons() != Qt::NoButton);
    CGridClass::mouseMoveEvent(event);
}

void CAdminGridClass::leaveEvent(QEvent* event) {
    EndHover();
    CGridClass::leaveEvent(event);
}

void CAdminGridClass::mouseReleaseEvent(QMouseEvent* event) {
    CGridClass::mouseReleaseEvent(event);
    int row = 0;
    int col = 0;
    if (event->button() == Qt::LeftButton && RowChosen &&
        HitTest(event->position().toPoint(), row, col) == HitCell)
        RowChosen(row);
}

void CAdminGridClass::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    int row = 0;
    int col = 0;
    const bool chooses = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    if (!chooses || !GetCurrentCell(row, col) || !RowChosen) {
        CGridClass::keyPressEvent(event);
        return;
    }
    event->accept();
    RowChosen(row);
}

// Who comes by the keyboard sees at once where the arrows start.
void CAdminGridClass::focusInEvent(QFocusEvent* event) {
    int row = 0;
    int col = 0;
    if (event->reason() != Qt::MouseFocusReason && GetRowCount() > 0 && !GetCurrentCell(row, col))
        SetCurrentCell(1, 0);
    CGridClass::focusInEvent(event);
}
