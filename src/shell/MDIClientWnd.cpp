#include "shell/MDIClientWnd.h"

#include <QLinearGradient>
#include <QPainter>

CMDIClientWnd::CMDIClientWnd(QWidget* parent) : QMdiArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setActivationOrder(QMdiArea::CreationOrder);
}

void CMDIClientWnd::paintEvent(QPaintEvent*) {
    QLinearGradient ground(0, 0, viewport()->width(), 0);
    ground.setColorAt(0, QColor(0x52, 0x55, 0x6e));
    ground.setColorAt(1, QColor(0x73, 0x78, 0x84));
    QPainter(viewport()).fillRect(viewport()->rect(), ground);
}
