#include "editing/StaticBitmapCtrl.h"

#include "platform/widgets/Look.h"

#include <QPainter>

void CStaticBitmapCtrl::SetPicture(ImageType type, unsigned id, const CString& name) {
    m_type = type;
    m_id = id;
    setToolTip(name);
    setAccessibleName(name);
    updateGeometry();
    update();
}

QPixmap CStaticBitmapCtrl::Picture() const {
    return m_type == ImageType::Icon ? Look::IconPixmapOf(m_id, *this) : Look::BitmapOf(m_id, *this);
}

QSize CStaticBitmapCtrl::sizeHint() const {
    return m_id ? Picture().deviceIndependentSize().toSize() : QSize();
}

void CStaticBitmapCtrl::paintEvent(QPaintEvent*) {
    const QPixmap pixmap = Picture();
    const QSize size = sizeHint();
    if (pixmap.isNull())
        return;
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.4);
    painter.drawPixmap(QRect(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size),
                       pixmap);
}
