// The colours of grids, within the tool's palette.
#pragma once

#include "platform/widgets/Look.h"

namespace GridColors {

constexpr QRgb Ground = Look::PageGround;
constexpr QRgb Text = Look::Text;
constexpr QRgb HeaderTop = Look::PaletteColors[2];
constexpr QRgb HeaderBottom = Look::PaletteColors[3];
constexpr QRgb HeaderText = Look::Heading;
constexpr QRgb HeaderLine = Look::PaletteColors[0];
constexpr QRgb Line = Look::PaletteColors[3];      // between rows, and around framed cells
constexpr QRgb QuietLine = qRgb(0xCC, 0xD2, 0xD8); // between rows that belong together
constexpr QRgb ColorFrame = Look::PaletteColors[0];
constexpr QRgb Focus = Look::Focus;
constexpr QRgb CurrentGround = Look::Hover; // of the cell with the focus

// Colours of texts, 0x00BBGGRR as styles of cells hold them.
constexpr unsigned LinkText = 0xFF0000;  // what can be clicked, under the pointer
constexpr unsigned QuietText = 0x7A6A5A; // where nothing is said

} // namespace GridColors
