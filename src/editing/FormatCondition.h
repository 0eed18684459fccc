// How a cell is written: its text, its font and its colours.
#pragma once

#include "platform/Text.h"

#include <QFont>
#include <cstdint>

class QWidget;

class CFormatCondition {
public:
    // Takes the font of the window; without one, that of the desktop.
    explicit CFormatCondition(const QWidget* window = nullptr);

    CString Text;
    std::int32_t Format = 0;
    std::int32_t Alignment = 0;
    std::int64_t LowerValue = 0;
    std::int64_t UpperValue = 0;
    QFont FontHandle;
    CString FontName;
    int FontHeight; // in pixels
    int DotsPerInch;
    bool IsBold;
    bool IsItalic;
    bool IsUnderlined;
    bool IsStruckOut;
    unsigned long BackgroundColor; // 0x00BBGGRR
    unsigned long TextColor;       // 0x00BBGGRR
};
