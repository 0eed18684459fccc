// The pictures of the language library on the screen.
#include "platform/LanguageLibrary.h"
#include "platform/widgets/Look.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

namespace {

// A picture at `scale` times its own size. What was drawn once is kept, as pictures are drawn again and
// again.
QPixmap PictureOf(ImageType type, unsigned id, qreal scale) {
    const CString name = CString("ruleward/%1/%2/%3/%4")
                             .arg(LoadedLanguage())
                             .arg(static_cast<int>(type))
                             .arg(id)
                             .arg(qRound(scale * 1000));
    QPixmap picture;
    if (!QPixmapCache::find(name, &picture)) {
        picture = QPixmap::fromImage(LoadImageOf(type, id, scale));
        QPixmapCache::insert(name, picture);
    }
    return picture;
}

QPixmap PictureFor(ImageType type, unsigned id, const QWidget& on) {
    const qreal ratio = on.devicePixelRatioF();
    QPixmap picture = PictureOf(type, id, ratio);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

// Draws a picture as large as it is asked for, from its shapes. One for the disabled state may be given;
// else the style makes it.
class PictureEngine : public QIconEngine {
public:
    PictureEngine(ImageType type, unsigned id, unsigned disabledId)
        : m_type(type), m_id(id), m_disabledId(disabledId) {}

    QIconEngine* clone() const override { return new PictureEngine(*this); }
    QString key() const override { return "ruleward"; }
    bool isNull() override { return OwnSize().isEmpty(); }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {OwnSize()}; }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override {
        return OwnSize().scaled(size, Qt::KeepAspectRatio);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap picture = scaledPixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state, ratio);
        picture.setDevicePixelRatio(ratio);
        QRectF place(QPointF(), picture.deviceIndependentSize());
        place.moveCenter(QRectF(rect).center());
        painter->drawPixmap(place.topLeft(), picture);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1.0);
    }

    // `size` is in pixels of the device.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal) override {
        const bool isOwnDisabled = mode == QIcon::Disabled && m_disabledId != 0;
        const QSize own = OwnSize();
        if (own.isEmpty() || size.isEmpty())
            return {};
        const qreal scale = std::min(qreal(size.width()) / own.width(), qreal(size.height()) / own.height());
        const QPixmap picture = PictureOf(m_type, isOwnDisabled ? m_disabledId : m_id, scale);
        if (mode != QIcon::Disabled || isOwnDisabled)
            return picture;
        QStyleOption option;
        option.palette = QApplication::palette();
        return QApplication::style()->generatedIconPixmap(QIcon::Disabled, picture, &option);
    }

private:
    QSize OwnSize() const { return PictureOf(m_type, m_id, 1.0).size(); }

    ImageType m_type;
    unsigned m_id;
    unsigned m_disabledId;
};

QIcon MakeIcon(ImageType type, unsigned id, unsigned disabledId) {
    if (LoadImageSource(type, id).isEmpty())
        return {};
    return QIcon(new PictureEngine(type, id, disabledId));
}

} // namespace

namespace Look {

QIcon IconOf(unsigned bitmapId, unsigned disabledBitmapId) {
    return MakeIcon(ImageType::Bitmap, bitmapId, disabledBitmapId);
}

QIcon SmallIconOf(unsigned id) {
    return MakeIcon(ImageType::Icon, id, 0);
}

QSize BitmapSizeOf(unsigned id) {
    return PictureOf(ImageType::Bitmap, id, 1.0).size();
}

QPixmap BitmapOf(unsigned id, const QWidget& on) {
    return PictureFor(ImageType::Bitmap, id, on);
}

QPixmap IconPixmapOf(unsigned id, const QWidget& on) {
    return PictureFor(ImageType::Icon, id, on);
}

} // namespace Look
