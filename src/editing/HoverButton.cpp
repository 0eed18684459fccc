#include "editing/HoverButton.h"

#include "platform/widgets/Look.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

// The places of the pictures in the strip, in widths of one.
constexpr int AtRest = 0, Pressed = 1, Hovered = 2, Parts = 3;

} // namespace

CHoverButton::CHoverButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::ArrowCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

bool CHoverButton::SetBitmap(unsigned id) {
    const QSize strip = Look::BitmapSizeOf(id);
    if (strip.isEmpty())
        return false;
    m_bitmap = id;
    m_size = {strip.width() / Parts, strip.height()};
    updateGeometry();
    update();
    return true;
}

void CHoverButton::SetTooltip(const CString& text) {
    setToolTip(text);
    setAccessibleName(text);
}

bool CHoverButton::event(QEvent* event) {
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
        m_isHovered = event->type() == QEvent::Enter;
        update();
    }
    return QAbstractButton::event(event);
}

void CHoverButton::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && !event->isAutoRepeat())
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

int CHoverButton::Part() const {
    if (!isEnabled())
        return AtRest;
    if (isDown())
        return Pressed;
    return m_isHovered || hasFocus() ? Hovered : AtRest;
}

void CHoverButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const qreal scale = devicePixelRatioF();
    const QPixmap strip = Look::BitmapOf(m_bitmap, *this);
    const QRectF source(Part() * m_size.width() * scale, 0, m_size.width() * scale, m_size.height() * scale);
    QRectF target(QPointF(), m_size);
    target.moveTopLeft({(width() - m_size.width()) / 2.0, (height() - m_size.height()) / 2.0});
    if (!isEnabled())
        painter.setOpacity(0.4);
    painter.drawPixmap(target, strip, source);
    if (!hasFocus())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(Look::Heading), 2));
    painter.drawRoundedRect(target.adjusted(1, 1, -1, -1), 2.5, 2.5);
}
