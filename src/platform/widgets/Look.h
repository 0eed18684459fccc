// The look of the tool: its colours, its measures, its fonts and the style that draws the standard controls.
// The tool keeps its own light colours, whatever the desktop's theme.
#pragma once

#include "platform/Text.h"

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <cstdint>

class QApplication;
class QWidget;

// A colour as the tool's tables write it, 0x00BBGGRR.
constexpr QRgb FromColorRef(std::uint32_t color) {
    return qRgb(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

namespace Look {

// The palette of the tool, in its own order.
constexpr QRgb PaletteColors[5] = {FromColorRef(0x8F7C65), FromColorRef(0xAD9C87), FromColorRef(0xDDD3C8),
                                   FromColorRef(0xC7BDB2), FromColorRef(0xFF0000)};
constexpr QRgb PageGround = FromColorRef(0xE3E1DE);
constexpr QRgb PaneGround = qRgb(0xec, 0xf0, 0xf3);         // of a pane that is not selected
constexpr QRgb SelectedPaneGround = qRgb(0xf8, 0xf9, 0xfb); // of the selected one
constexpr QRgb FieldGround = qRgb(0xff, 0xff, 0xff);
constexpr QRgb CorrectionGround = qRgb(0xfb, 0xfb, 0xf2); // of a field that holds a correction
constexpr QRgb WrongGround = FromColorRef(0x9696FF);      // of a field whose text may not stand
constexpr QRgb Line = qRgb(0xa9, 0xb5, 0xc2);             // around fields
constexpr QRgb FaintLine = qRgb(0xd3, 0xd9, 0xdf);        // between rows and sections
constexpr QRgb Focus = qRgb(0x4a, 0x4a, 0xa1);            // around what has the keyboard
constexpr QRgb Text = qRgb(0x22, 0x26, 0x2b);
constexpr QRgb FaintText = qRgb(0x5a, 0x6a, 0x7a); // units and hints
constexpr QRgb Heading = FromColorRef(0x7D2800);   // of groups and columns
constexpr QRgb Hover = qRgb(0xee, 0xf2, 0xf5);

// Measures in pixels of a screen of 96 dots per inch, which Qt scales.
constexpr int Margin = 8;
constexpr int CaptionHeight = 20; // of a pane
constexpr int RowHeight = 24;     // of a field

// The face of every page and pane: "Segoe UI", or for Japanese what the host's setting says. Where the face
// is not installed the desktop's own sans-serif face stands in for it.
QFont PageFont();   // 8 point
QFont WindowFont(); // of menus, bars and dialogs

// Style, palette and font of the whole program. To be called once, before the first window.
void ApplyTo(QApplication& application);

// Pictures of the language library, sharp at the scale of any screen. Empty where there is none.
QIcon IconOf(unsigned bitmapId, unsigned disabledBitmapId = 0); // of a bitmap
QIcon SmallIconOf(unsigned id);                                 // of an icon
QPixmap BitmapOf(unsigned id, const QWidget& on);
QPixmap IconPixmapOf(unsigned id, const QWidget& on); // of an icon
QSize BitmapSizeOf(unsigned id);                      // in pixels of the window

} // namespace Look
