#include "shell/AlphaImages.h"

#include "platform/LanguageLibrary.h"

#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <array>
#include <cmath>

namespace {

// Works on plain channels: those of a half-transparent pixel are not reduced by its transparency.
template <class Change> QImage Changed(const QImage& image, Change change) {
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x)
            line[x] = change(line[x]);
    }
    return result;
}

using Channels = std::array<int, 256>;

// Calculated once: the power costs more than all the rest of an image.
const Channels& Darker() {
    static const Channels darker = [] {
        Channels made{};
        for (size_t channel = 0; channel < made.size(); ++channel)
            made[channel] = static_cast<int>(255 * std::pow(static_cast<double>(channel) / 255.0, 1.4));
        return made;
    }();
    return darker;
}

int Grey(QRgb pixel) {
    const double brightness = 0.587 * qGreen(pixel) + 0.299 * qRed(pixel) + 0.114 * qBlue(pixel);
    return static_cast<int>(255 * std::sqrt(brightness / 255.0));
}

} // namespace

// Draws itself from its shapes at each size that is asked for, and keeps what it has drawn.
class CAlphaImageList::Strip {
public:
    Strip(unsigned bitmapID, int size) : m_bitmapID(bitmapID), m_size(size) {}

    int Size() const { return m_size; }
    int Count() { return AtSide(m_size).width() / m_size; }
    // `side` is in pixels of the device.
    QImage Image(int index, int side) { return AtSide(side).copy(index * side, 0, side, side); }

private:
    const QImage& AtSide(int side) {
        const auto known = m_drawn.constFind(side);
        if (known != m_drawn.constEnd())
            return *known;
        return *m_drawn.insert(side, LoadImageOf(ImageType::Bitmap, m_bitmapID, qreal(side) / m_size));
    }

    unsigned m_bitmapID;
    int m_size;
    QHash<int, QImage> m_drawn;
};

// One image of a strip. Most of them are never seen under the pointer or disabled, nor on a second screen.
class CAlphaImageList::Engine : public QIconEngine {
public:
    Engine(std::shared_ptr<Strip> strip, int index) : m_strip(std::move(strip)), m_index(index) {}

    QIconEngine* clone() const override { return new Engine(*this); }
    QString key() const override { return "ruleward-strip"; }
    bool isNull() override { return false; }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {OwnSize()}; }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override {
        return OwnSize().scaled(size, Qt::KeepAspectRatio);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap image = scaledPixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state, ratio);
        image.setDevicePixelRatio(ratio);
        QRectF place(QPointF(), image.deviceIndependentSize());
        place.moveCenter(QRectF(rect).center());
        painter->drawPixmap(place.topLeft(), image);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1.0);
    }

    // `size` is in pixels of the device.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal) override {
        const int side = std::min(size.width(), size.height());
        if (side <= 0)
            return {};
        const QImage image = m_strip->Image(m_index, side);
        switch (mode) {
        case QIcon::Active: return QPixmap::fromImage(HotImage(image));
        case QIcon::Disabled: return QPixmap::fromImage(DisabledImage(image));
        default: return QPixmap::fromImage(image);
        }
    }

private:
    QSize OwnSize() const { return {m_strip->Size(), m_strip->Size()}; }

    std::shared_ptr<Strip> m_strip;
    int m_index;
};

QImage HotImage(const QImage& image) {
    const Channels& darker = Darker();
    return Changed(image, [&](QRgb pixel) {
        const auto of = [&](int channel) { return darker[static_cast<size_t>(channel)]; };
        return qRgba(of(qRed(pixel)), of(qGreen(pixel)), of(qBlue(pixel)), qAlpha(pixel));
    });
}

QImage DisabledImage(const QImage& image) {
    return Changed(image, [](QRgb pixel) {
        const int grey = Grey(pixel);
        return qRgba(grey, grey, grey, qAlpha(pixel));
    });
}

CAlphaImageList::CAlphaImageList(unsigned bitmapID, int size)
    : m_strip(std::make_shared<Strip>(bitmapID, size)), m_count(m_strip->Count()) {}

QIcon CAlphaImageList::GetIcon(int index) const {
    return index >= 0 && index < m_count ? QIcon(new Engine(m_strip, index)) : QIcon();
}
