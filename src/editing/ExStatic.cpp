#include "editing/ExStatic.h"

#include "platform/widgets/Look.h"

#include <QMouseEvent>

CExStatic::CExStatic(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void CExStatic::SetHoverColor(unsigned long color) {
    m_hoverColor = QColor(FromColorRef(color));
}

void CExStatic::SetHovered(bool isHovered) {
    if (m_isHovered == isHovered)
        return;
    m_isHovered = isHovered;
    if (m_hoverColor.isValid()) {
        if (isHovered)
            m_ownColor = palette().color(foregroundRole());
        QPalette colors = palette();
        colors.setColor(foregroundRole(), isHovered ? m_hoverColor : m_ownColor);
        setPalette(colors);
    }
    Q_EMIT HoverChanged(isHovered);
}

void CExStatic::enterEvent(QEnterEvent* event) {
    SetHovered(true);
    QLabel::enterEvent(event);
}

void CExStatic::leaveEvent(QEvent* event) {
    SetHovered(false);
    QLabel::leaveEvent(event);
}

// The press goes on to the window around, which may have to select itself first.
void CExStatic::mousePressEvent(QMouseEvent* event) {
    m_isPressed = event->button() == Qt::LeftButton;
    event->ignore();
}

void CExStatic::mouseReleaseEvent(QMouseEvent* event) {
    const bool isClick = m_isPressed && event->button() == Qt::LeftButton && rect().contains(event->pos());
    m_isPressed = false;
    event->ignore();
    if (isClick)
        Q_EMIT Clicked();
}
