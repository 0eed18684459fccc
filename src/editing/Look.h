// The colours of the panes' controls, and the style that draws the common ones in them.
#pragma once

#include <QColor>
#include <QPalette>
#include <QProxyStyle>

namespace Look {

// The colour of a number 0x00BBGGRR.
constexpr QRgb FromBgr(unsigned long bgr) {
    return qRgb(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                static_cast<int>((bgr >> 16) & 0xFF));
}

constexpr QRgb Field = qRgb(0xFF, 0xFF, 0xFF);
constexpr QRgb CorrectionField = qRgb(0xFB, 0xFB, 0xF2); // tells a correction from a requirement
constexpr QRgb ValidField = FromBgr(0xFFFFFF);           // while a correction is entered
constexpr QRgb RefusedField = FromBgr(0x9696FF);
constexpr QRgb DisabledField = qRgb(0xE9, 0xED, 0xF0);
constexpr QRgb FieldLine = qRgb(0x9A, 0xA7, 0xB4);
constexpr QRgb DisabledLine = qRgb(0xC3, 0xCC, 0xD4);
constexpr QRgb Text = qRgb(0x1F, 0x27, 0x33);
constexpr QRgb QuietText = qRgb(0x5B, 0x66, 0x74);
constexpr QRgb DisabledText = qRgb(0x8C, 0x97, 0xA3);
constexpr QRgb Mark = qRgb(0x65, 0x7C, 0x8F);   // ticks and arrows
constexpr QRgb Chosen = qRgb(0xC8, 0xD3, 0xDD); // a chosen row
constexpr QRgb Ground = qRgb(0xEE, 0xF1, 0xF4); // of a pane
constexpr QRgb Accent = qRgb(0x00, 0x28, 0x7D); // headings, the focus
constexpr QRgb HoveredLine = qRgb(0x65, 0x7C, 0x8F);

// The light palette of the tool, which it keeps on a dark desktop too.
QPalette ControlPalette();

} // namespace Look

// Draws fields, boxes of choices, tick boxes and radio buttons with quiet round frames. The ground of a field
// is its palette's base colour.
class ControlStyle : public QProxyStyle {
    Q_OBJECT

public:
    ControlStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
};
