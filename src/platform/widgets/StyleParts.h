// What the families of controls share in drawing themselves: colours beside those of Look.h, and strokes that
// stay sharp on screens of any scale.
#pragma once

#include "platform/widgets/Look.h"

#include <QPainter>
#include <QRect>
#include <QStyle>
#include <QStyleOption>

namespace StyleTone {

constexpr QRgb Slate = Look::PaletteColors[0];
constexpr QRgb MiddleSlate = Look::PaletteColors[1];
constexpr QRgb PaleSlate = Look::PaletteColors[2]; // of what is chosen or pressed
constexpr QRgb SoftSlate = Look::PaletteColors[3];
constexpr QRgb DarkSlate = qRgb(0x4f, 0x64, 0x76);
constexpr QRgb WindowGround = qRgb(0xe4, 0xe8, 0xec); // of bars and dialogs
constexpr QRgb BarGround = qRgb(0xee, 0xf0, 0xf3);
constexpr QRgb BarLight = qRgb(0xf3, 0xf5, 0xf7);
constexpr QRgb DisabledGround = qRgb(0xe9, 0xed, 0xf0);
constexpr QRgb DisabledLine = qRgb(0xc3, 0xcc, 0xd4);
constexpr QRgb DisabledText = qRgb(0x6b, 0x77, 0x84);
constexpr QRgb Mark = qRgb(0x7d, 0x8b, 0x99); // around boxes that are ticked
constexpr QRgb TextSelection = qRgb(0xa9, 0xc2, 0xdb);
constexpr QRgb BandLeft = qRgb(0x52, 0x55, 0x6e); // behind the tabs of pages
constexpr QRgb BandRight = qRgb(0x73, 0x78, 0x84);

} // namespace StyleTone

// One call of the style: what is to be drawn, and where.
struct StylePart {
    const QStyle& style;
    const QStyleOption& option;
    QPainter& painter;
    const QWidget* widget; // may be null

    bool Is(QStyle::StateFlag state) const { return option.state & state; }
    bool IsEnabled() const { return Is(QStyle::State_Enabled); }
    bool IsHovered() const { return IsEnabled() && Is(QStyle::State_MouseOver); }
    // Only where the keyboard works in the window.
    bool HasFocus() const { return IsEnabled() && Is(QStyle::State_HasFocus); }
    template <class Option> const Option* As() const { return qstyleoption_cast<const Option*>(&option); }
};

namespace StylePaint {

constexpr qreal Radius = 3;

// A box with a border one line wide, on whole pixels of the device.
void DrawBox(QPainter& painter, const QRectF& rect, const QBrush& fill, const QColor& border,
             qreal radius = Radius);
// The frame of what has the keyboard, inside `rect`.
void DrawFocus(QPainter& painter, const QRectF& rect, qreal radius = Radius);
void DrawChevron(QPainter& painter, const QRectF& rect, Qt::ArrowType direction, const QColor& color,
                 qreal width = 7);
void DrawTick(QPainter& painter, const QRectF& box, const QColor& color);
QFont Bold(QFont font);
// A gradient from top to bottom, or from left to right.
QBrush Blend(const QRect& rect, Qt::Orientation along, QRgb from, QRgb to);

} // namespace StylePaint

// Each draws what is its own, and tells whether it did.
namespace StyleFields {
bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part);
bool DrawComplex(QStyle::ComplexControl control, const StylePart& part);
bool PlaceSubControl(QStyle::ComplexControl control, const QStyleOptionComplex& option,
                     QStyle::SubControl sub, QRect& rect);
} // namespace StyleFields

namespace StyleButtons {
bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part);
bool DrawControl(QStyle::ControlElement element, const StylePart& part);
} // namespace StyleButtons

namespace StyleMenus {
bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part);
bool DrawControl(QStyle::ControlElement element, const StylePart& part);
QSize MenuItemSize(const QStyleOptionMenuItem& option, const QSize& contents);
} // namespace StyleMenus

namespace StyleBars {
bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part);
bool DrawControl(QStyle::ControlElement element, const StylePart& part);
bool DrawScrollBar(const StylePart& part);
bool DrawSlider(const StylePart& part);
QRect PlaceInScrollBar(const QStyleOptionSlider& option, QStyle::SubControl sub);
} // namespace StyleBars

namespace StyleTabs {
bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part);
bool DrawControl(QStyle::ControlElement element, const StylePart& part);
} // namespace StyleTabs

namespace StyleViews {
bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part);
bool DrawControl(QStyle::ControlElement element, const StylePart& part);
bool DrawGroupBox(const StylePart& part);
QRect PlaceInGroupBox(const QStyle& style, const QStyleOptionGroupBox& group, QStyle::SubControl sub);
} // namespace StyleViews

namespace StyleMdi {
QSize Size();
QRect Place(const QRect& rect, QStyle::SubControl sub); // empty for another part
bool Draw(const StylePart& part);
} // namespace StyleMdi
