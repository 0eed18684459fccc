#include "editing/ExACStatic.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

CExACStatic::CExACStatic(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

bool CExACStatic::IsCut() const {
    return fontMetrics().size(Qt::TextShowMnemonic, text()).width() > contentsRect().width();
}

QSize CExACStatic::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 4, QLabel::minimumSizeHint().height()};
}

void CExACStatic::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    setToolTip(IsCut() ? text() : QString());
}

void CExACStatic::paintEvent(QPaintEvent* event) {
    if (!IsCut()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QString cut =
        fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width(), Qt::TextShowMnemonic);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()) | Qt::TextShowMnemonic,
                          palette(), isEnabled(), cut, foregroundRole());
}
