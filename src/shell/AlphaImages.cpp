#include "shell/AlphaImages.h"

#include "platform/LanguageLibrary.h"

#include <QPixmap>
#include <cmath>

namespace {

// The scales of the screens for which images are drawn.
constexpr qreal Scales[] = {1.0, 1.5, 2.0, 3.0};

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

int Darker(int channel) {
    return static_cast<int>(255 * std::pow(channel / 255.0, 1.4));
}

int Grey(QRgb pixel) {
    const double brightness = 0.587 * qGreen(pixel) + 0.299 * qRed(pixel) + 0.114 * qBlue(pixel);
    return static_cast<int>(255 * std::pow(brightness / 255.0, 0.5));
}

} // namespace

QImage HotImage(const QImage& image) {
    return Changed(image, [](QRgb pixel) {
        return qRgba(Darker(qRed(pixel)), Darker(qGreen(pixel)), Darker(qBlue(pixel)), qAlpha(pixel));
    });
}

QImage DisabledImage(const QImage& image) {
    return Changed(image, [](QRgb pixel) {
        const int grey = Grey(pixel);
        return qRgba(grey, grey, grey, qAlpha(pixel));
    });
}

CAlphaImageList::CAlphaImageList(unsigned bitmapID, int size) {
    for (const qreal scale : Scales) {
        const QImage strip = LoadImageOf(ImageType::Bitmap, bitmapID, scale);
        const int side = static_cast<int>(size * scale);
        m_icons.resize(static_cast<size_t>(strip.width() / side));
        for (size_t index = 0; index < m_icons.size(); ++index) {
            const QImage image = strip.copy(static_cast<int>(index) * side, 0, side, side);
            const auto add = [&](const QImage& each, QIcon::Mode mode) {
                QPixmap pixmap = QPixmap::fromImage(each);
                pixmap.setDevicePixelRatio(scale);
                m_icons[index].addPixmap(pixmap, mode);
            };
            add(image, QIcon::Normal);
            add(HotImage(image), QIcon::Active);
            add(DisabledImage(image), QIcon::Disabled);
        }
    }
}

QIcon CAlphaImageList::GetIcon(int index) const {
    return index >= 0 && index < GetCount() ? m_icons[static_cast<size_t>(index)] : QIcon();
}
