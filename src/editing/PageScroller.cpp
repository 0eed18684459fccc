#include "editing/PageScroller.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>

namespace {

constexpr int Notch = 120;
constexpr int WholePages = -1;
constexpr int LinesOfAQuickTurn = 6;

int KeepProportion(int position, int oldPage, int newPage) {
    return oldPage > 0 ? static_cast<int>(static_cast<qint64>(position) * newPage / oldPage) : position;
}

void ShowInBar(QScrollBar& bar, int display, int page, int position) {
    bar.setSingleStep(CPageScroller::Line);
    bar.setPageStep(page);
    bar.setRange(0, std::max(0, display - page));
    bar.setValue(position);
}

} // namespace

int WheelDistance(int delta, int lines, int page) {
    const int direction = delta > 0 ? -1 : 1;
    if (lines == WholePages)
        return direction * page;
    const int turned = std::abs(delta) / Notch * lines;
    return direction * CPageScroller::Line * (turned < LinesOfAQuickTurn ? 1 : turned / 3);
}

void CPageScroller::SetDisplaySize(QSize size) {
    DisplaySize = size;
    ShowInBars(ScrollPos);
}

void CPageScroller::SetPageSize(QSize size) {
    const QSize before = PageSize;
    PageSize = size;
    ShowInBars({KeepProportion(ScrollPos.x(), before.width(), size.width()),
                KeepProportion(ScrollPos.y(), before.height(), size.height())});
}

void CPageScroller::ScrollTo(int y) {
    Window->verticalScrollBar()->setValue(y);
}

void CPageScroller::Turn(const QWheelEvent& event) {
    const QPoint turned = event.angleDelta();
    const bool isSideways = std::abs(turned.x()) > std::abs(turned.y());
    const int delta = isSideways ? turned.x() : turned.y();
    if (delta == 0)
        return;
    QScrollBar* bar = isSideways ? Window->horizontalScrollBar() : Window->verticalScrollBar();
    bar->setValue(bar->value() + WheelDistance(delta, QApplication::wheelScrollLines(), bar->pageStep()));
}

void CPageScroller::ShowInBars(QPoint position) {
    ShowInBar(*Window->horizontalScrollBar(), DisplaySize.width(), PageSize.width(), position.x());
    ShowInBar(*Window->verticalScrollBar(), DisplaySize.height(), PageSize.height(), position.y());
}
