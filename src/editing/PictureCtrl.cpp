#include "editing/PictureCtrl.h"

#include "platform/widgets/Look.h"

#include <QImageReader>
#include <QPainter>

namespace {

// A preview is never worth more memory than this, however large its file says it is.
constexpr int LargestSide = 4096;

} // namespace

void CPictureCtrl::SetPicture(const QImage& picture) {
    m_picture = picture;
    update();
}

bool CPictureCtrl::SetPictureFile(const CString& path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.width() > LargestSide || size.height() > LargestSide)
        reader.setScaledSize(size.scaled(LargestSide, LargestSide, Qt::KeepAspectRatio));
    SetPicture(reader.read());
    return HasPicture();
}

void CPictureCtrl::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(QColor(isEnabled() ? Look::Line : Look::FaintLine));
    painter.setBrush(QColor(HasPicture() && isEnabled() ? Look::FieldGround : Look::PaneGround));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    if (!HasPicture())
        return;
    constexpr int Margin = 4;
    const QRect room = rect().adjusted(Margin, Margin, -Margin, -Margin);
    const qreal scale = devicePixelRatioF();
    const QImage fitted =
        m_picture.scaled(room.size() * scale, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QRectF target(QPointF(), QSizeF(fitted.size()) / scale);
    target.moveCenter(QRectF(room).center());
    painter.drawImage(target, fitted);
}
