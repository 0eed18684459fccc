#include "editing/StaticBitmapCtrl.h"

#include "editing/Pictures.h"

#include <QPainter>

void CStaticBitmapCtrl::SetPicture(ImageType type, unsigned id, const CString& name) {
    m_type = type;
    m_id = id;
    setToolTip(name);
    setAccessibleName(name);
    updateGeometry();
    update();
}

QSize CStaticBitmapCtrl::sizeHint() const {
    return m_id ? PictureSize(m_type, m_id) : QSize();
}

void CStaticBitmapCtrl::paintEvent(QPaintEvent*) {
    const QPixmap pixmap = PixmapOf(m_type, m_id, devicePixelRatioF());
    const QSize size = sizeHint();
    if (pixmap.isNull())
        return;
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.4);
    painter.drawPixmap(QRect(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size),
                       pixmap);
}
