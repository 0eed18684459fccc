// The images of toolbars, calculated from one strip: as they are, for a button under the pointer, and for a
// disabled one.
#pragma once

#include <QIcon>
#include <QImage>
#include <memory>

// A darker image: each channel c becomes 255 * (c / 255) ^ 1.4, cut off.
QImage HotImage(const QImage& image);
// A grey image: 255 * sqrt of the brightness in 0..1, cut off.
QImage DisabledImage(const QImage& image);

// The images of a strip of the language library, side by side, each as an icon that is sharp on any screen.
class CAlphaImageList {
public:
    // `size` is the width and height of one image of the strip.
    explicit CAlphaImageList(unsigned bitmapID, int size = 16);

    int GetCount() const { return m_count; }
    // An empty icon for a place that the strip has not.
    QIcon GetIcon(int index) const;

private:
    class Strip;
    class Engine;

    std::shared_ptr<Strip> m_strip; // the icons keep it
    int m_count;
};
