// Bars: tool and status bars, scroll bars, progress, splitters, sliders.
#include "platform/widgets/StyleParts.h"

#include <QAbstractScrollArea>
#include <QMainWindow>
#include <algorithm>

namespace {

constexpr int ShortestThumb = 28;

void DrawToolBar(const StylePart& part) {
    const QRect rect = part.option.rect;
    const auto* bar = part.As<QStyleOptionToolBar>();
    const auto area = bar ? bar->toolBarArea : Qt::TopToolBarArea;
    if (part.Is(QStyle::State_Horizontal)) {
        part.painter.fillRect(
            rect, StylePaint::Blend(rect, Qt::Vertical, StyleTone::BarLight, StyleTone::WindowGround));
        part.painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1),
                              QColor(StyleTone::SoftSlate));
        return;
    }
    part.painter.fillRect(rect, QColor(StyleTone::WindowGround));
    const int edge = area == Qt::RightToolBarArea ? rect.left() : rect.right();
    part.painter.fillRect(QRect(edge, rect.top(), 1, rect.height()), QColor(StyleTone::SoftSlate));
}

void DrawToolBarSeparator(const StylePart& part) {
    const QRect rect = part.option.rect;
    const QColor color(StyleTone::SoftSlate);
    if (part.Is(QStyle::State_Horizontal))
        part.painter.fillRect(QRect(rect.center().x(), rect.top() + 4, 1, rect.height() - 8), color);
    else
        part.painter.fillRect(QRect(rect.left() + 4, rect.center().y(), rect.width() - 8, 1), color);
}

void DrawHandle(const StylePart& part) {
    const QPoint center = part.option.rect.center();
    const bool isAcross = part.Is(QStyle::State_Horizontal);
    for (int step = -2; step <= 2; ++step) {
        const QPoint at =
            isAcross ? QPoint(center.x(), center.y() + 4 * step) : QPoint(center.x() + 4 * step, center.y());
        part.painter.fillRect(QRect(at, QSize(2, 2)), QColor(StyleTone::SoftSlate));
    }
}

bool DrawSplitter(const StylePart& part) {
    const QRect rect = part.option.rect;
    const bool isHot = part.IsHovered() || part.Is(QStyle::State_Sunken);
    part.painter.fillRect(rect, QColor(isHot ? StyleTone::PaleSlate : StyleTone::WindowGround));
    // For a splitter, horizontal is the way in which its parts stand side by side.
    const QPoint center = rect.center();
    for (int step = -1; step <= 1; ++step) {
        const QPoint at = part.Is(QStyle::State_Horizontal) ? QPoint(center.x(), center.y() + 5 * step)
                                                            : QPoint(center.x() + 5 * step, center.y());
        part.painter.fillRect(QRect(at, QSize(2, 2)),
                              QColor(isHot ? StyleTone::Slate : StyleTone::MiddleSlate));
    }
    return true;
}

bool DrawProgressGroove(const StylePart& part) {
    StylePaint::DrawBox(part.painter, part.option.rect, QColor(Look::FieldGround), QColor(Look::Line), 4);
    return true;
}

bool DrawProgressContents(const StylePart& part) {
    const auto* bar = part.As<QStyleOptionProgressBar>();
    if (!bar)
        return false;
    QRectF rect = QRectF(bar->rect).adjusted(2, 2, -2, -2);
    const bool isAcross = part.Is(QStyle::State_Horizontal);
    const qreal range = qreal(bar->maximum) - bar->minimum;
    const qreal share = range > 0 ? std::clamp((bar->progress - bar->minimum) / range, 0.0, 1.0) : 0.3;
    if (share <= 0)
        return true;
    if (isAcross) {
        rect.setWidth(rect.width() * share);
        if (bar->invertedAppearance != (bar->direction == Qt::RightToLeft))
            rect.moveRight(bar->rect.right() - 1);
    } else
        rect.setTop(rect.bottom() - rect.height() * share);
    const QColor color(part.IsEnabled() ? StyleTone::MiddleSlate : StyleTone::SoftSlate);
    StylePaint::DrawBox(part.painter, rect, color, color, 2);
    return true;
}

bool DrawProgressLabel(const StylePart& part) {
    const auto* bar = part.As<QStyleOptionProgressBar>();
    if (!bar)
        return false;
    if (bar->textVisible) {
        part.painter.setPen(QColor(Look::Text));
        part.painter.drawText(bar->rect, Qt::AlignCenter | Qt::TextSingleLine, bar->text);
    }
    return true;
}

} // namespace

namespace StyleBars {

bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part) {
    const QRect rect = part.option.rect;
    switch (element) {
    case QStyle::PE_IndicatorToolBarSeparator: DrawToolBarSeparator(part); return true;
    case QStyle::PE_IndicatorToolBarHandle: DrawHandle(part); return true;
    case QStyle::PE_PanelStatusBar:
        part.painter.fillRect(rect, QColor(StyleTone::WindowGround));
        part.painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), 1), QColor(StyleTone::SoftSlate));
        return true;
    case QStyle::PE_FrameStatusBarItem:
        part.painter.fillRect(QRect(rect.left(), rect.top() + 3, 1, rect.height() - 6),
                              QColor(StyleTone::DisabledLine));
        return true;
    case QStyle::PE_PanelScrollAreaCorner:
        part.painter.fillRect(rect, QColor(StyleTone::BarGround));
        return true;
    default: return false;
    }
}

bool DrawControl(QStyle::ControlElement element, const StylePart& part) {
    switch (element) {
    case QStyle::CE_ToolBar: DrawToolBar(part); return true;
    case QStyle::CE_Splitter: return DrawSplitter(part);
    case QStyle::CE_ProgressBarGroove: return DrawProgressGroove(part);
    case QStyle::CE_ProgressBarContents: return DrawProgressContents(part);
    case QStyle::CE_ProgressBarLabel: return DrawProgressLabel(part);
    default: return false;
    }
}

QRect PlaceInScrollBar(const QStyleOptionSlider& option, QStyle::SubControl sub) {
    const bool isAcross = option.orientation == Qt::Horizontal;
    const int length = isAcross ? option.rect.width() : option.rect.height();
    const auto along = [&option, isAcross](int from, int size) {
        const QRect rect =
            isAcross ? QRect(option.rect.left() + from, option.rect.top(), size, option.rect.height())
                     : QRect(option.rect.left(), option.rect.top() + from, option.rect.width(), size);
        return QStyle::visualRect(option.direction, option.rect, rect);
    };
    const qint64 range = qint64(option.maximum) - option.minimum;
    int thumb = length;
    if (range > 0) {
        thumb = static_cast<int>(qint64(option.pageStep) * length / (range + option.pageStep));
        thumb = std::clamp(thumb, std::min(ShortestThumb, length), length);
    }
    const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      length - thumb, option.upsideDown);
    switch (sub) {
    case QStyle::SC_ScrollBarGroove: return along(0, length);
    case QStyle::SC_ScrollBarSlider: return along(start, thumb);
    case QStyle::SC_ScrollBarSubPage: return along(0, start);
    case QStyle::SC_ScrollBarAddPage: return along(start + thumb, length - start - thumb);
    default: return {}; // there are no arrows at the ends
    }
}

bool DrawScrollBar(const StylePart& part) {
    const auto* bar = part.As<QStyleOptionSlider>();
    if (!bar)
        return false;
    const QRect rect = bar->rect;
    const bool isAcross = bar->orientation == Qt::Horizontal;
    part.painter.fillRect(rect, QColor(StyleTone::BarGround));
    part.painter.fillRect(isAcross ? QRect(rect.left(), rect.top(), rect.width(), 1)
                                   : QRect(rect.left(), rect.top(), 1, rect.height()),
                          QColor(StyleTone::PaleSlate));
    if (bar->maximum <= bar->minimum)
        return true;
    const QRect slider = PlaceInScrollBar(*bar, QStyle::SC_ScrollBarSlider);
    const QRectF thumb =
        QRectF(slider).adjusted(isAcross ? 2 : 4, isAcross ? 4 : 2, isAcross ? -2 : -3, isAcross ? -3 : -2);
    const bool isOnThumb = bar->activeSubControls & QStyle::SC_ScrollBarSlider;
    QRgb tone = Look::Line;
    if (isOnThumb && part.Is(QStyle::State_Sunken))
        tone = StyleTone::Slate;
    else if (isOnThumb && part.IsHovered())
        tone = StyleTone::MiddleSlate;
    part.painter.save();
    part.painter.setRenderHint(QPainter::Antialiasing);
    part.painter.setPen(Qt::NoPen);
    part.painter.setBrush(QColor(part.IsEnabled() ? tone : StyleTone::DisabledLine));
    const qreal radius = std::min(thumb.width(), thumb.height()) / 2;
    part.painter.drawRoundedRect(thumb, radius, radius);
    part.painter.restore();
    return true;
}

bool DrawSlider(const StylePart& part) {
    const auto* slider = part.As<QStyleOptionSlider>();
    if (!slider)
        return false;
    const QRect groove =
        part.style.subControlRect(QStyle::CC_Slider, slider, QStyle::SC_SliderGroove, part.widget);
    const QRect handle =
        part.style.subControlRect(QStyle::CC_Slider, slider, QStyle::SC_SliderHandle, part.widget);
    QRectF track(groove);
    if (slider->orientation == Qt::Horizontal)
        track = QRectF(groove.left(), groove.center().y() - 1, groove.width(), 4);
    else
        track = QRectF(groove.center().x() - 1, groove.top(), 4, groove.height());
    StylePaint::DrawBox(part.painter, track, QColor(StyleTone::PaleSlate), QColor(Look::Line), 2);
    const int side = std::min(handle.width(), handle.height());
    QRectF knob(0, 0, side, side);
    knob.moveCenter(QRectF(handle).center());
    StylePaint::DrawBox(part.painter, knob, QColor(part.IsHovered() ? Look::Hover : Look::FieldGround),
                        QColor(part.IsEnabled() ? StyleTone::Slate : StyleTone::DisabledLine), side / 2.0);
    if (part.HasFocus())
        StylePaint::DrawFocus(part.painter, knob, side / 2.0);
    return true;
}

} // namespace StyleBars
