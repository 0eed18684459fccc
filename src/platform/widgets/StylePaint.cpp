#include "platform/widgets/StyleParts.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace {

class Saved {
public:
    explicit Saved(QPainter& painter) : m_painter(painter) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
    }
    ~Saved() { m_painter.restore(); }
    Saved(const Saved&) = delete;
    Saved& operator=(const Saved&) = delete;

private:
    QPainter& m_painter;
};

// How a line one unit wide comes out on the device: in whole pixels, and its width in units of the painter.
struct DeviceLine {
    qreal pixels;
    qreal width;

    explicit DeviceLine(const QTransform& device) {
        const qreal scale = std::sqrt(std::abs(device.determinant()));
        pixels = std::max(1.0, std::floor(scale));
        width = pixels / std::max(scale, 0.01);
    }
};

// The rectangle whose border, drawn with that line, covers whole pixels just inside `rect`.
QRectF Snapped(const QTransform& device, const QRectF& rect, const DeviceLine& line) {
    const QRectF pixels = device.mapRect(rect);
    const QRectF whole(QPointF(std::round(pixels.left()), std::round(pixels.top())),
                       QPointF(std::round(pixels.right()), std::round(pixels.bottom())));
    const qreal half = line.pixels / 2;
    return device.inverted().mapRect(whole.adjusted(half, half, -half, -half));
}

} // namespace

namespace StylePaint {

void DrawBox(QPainter& painter, const QRectF& rect, const QBrush& fill, const QColor& border, qreal radius) {
    const Saved saved(painter);
    const QTransform device = painter.deviceTransform();
    const DeviceLine line(device);
    painter.setPen(QPen(border, line.width));
    painter.setBrush(fill);
    const QRectF box = Snapped(device, rect, line);
    if (radius > 0)
        painter.drawRoundedRect(box, radius, radius);
    else
        painter.drawRect(box);
}

void DrawFocus(QPainter& painter, const QRectF& rect, qreal radius) {
    QColor halo(Look::Focus);
    halo.setAlpha(70);
    DrawBox(painter, rect, Qt::NoBrush, QColor(Look::Focus), radius);
    DrawBox(painter, rect.adjusted(1, 1, -1, -1), Qt::NoBrush, halo, std::max(0.0, radius - 1));
}

void DrawChevron(QPainter& painter, const QRectF& rect, Qt::ArrowType direction, const QColor& color,
                 qreal width) {
    const Saved saved(painter);
    const qreal half = width / 2;
    const qreal depth = width / 4;
    painter.translate(rect.center());
    switch (direction) {
    case Qt::UpArrow: painter.rotate(180); break;
    case Qt::LeftArrow: painter.rotate(90); break;
    case Qt::RightArrow: painter.rotate(-90); break;
    default: break;
    }
    painter.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF points[] = {{-half, -depth}, {0, depth}, {half, -depth}};
    painter.drawPolyline(points, 3);
}

void DrawTick(QPainter& painter, const QRectF& box, const QColor& color) {
    const Saved saved(painter);
    const auto at = [&box](qreal x, qreal y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    painter.setPen(QPen(color, box.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF points[] = {at(0.25, 0.52), at(0.43, 0.70), at(0.76, 0.31)};
    painter.drawPolyline(points, 3);
}

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

QBrush Blend(const QRect& rect, Qt::Orientation along, QRgb from, QRgb to) {
    const QPointF end = along == Qt::Vertical ? QPointF(rect.left(), rect.bottom() + 1)
                                              : QPointF(rect.right() + 1, rect.top());
    QLinearGradient gradient(rect.topLeft(), end);
    gradient.setColorAt(0, QColor(from));
    gradient.setColorAt(1, QColor(to));
    return gradient;
}

} // namespace StylePaint
