// What a grid shows in one cell, and how.
#pragma once

#include "platform/Text.h"

#include <QColor>
#include <QHash>
#include <QRect>
#include <memory>
#include <optional>

// Rows count from 1; row 0 is the header. Columns count from 0. Both ends belong to the range.
struct GridRange {
    int top = 0;
    int left = 0;
    int bottom = 0;
    int right = 0;

    bool Holds(int row, int col) const { return row >= top && row <= bottom && col >= left && col <= right; }
    bool operator==(const GridRange&) const = default;
};

// The numbers of the controls that draw cells, and of the editors that open in them. A grid may register
// more of both.
constexpr unsigned ControlStatic = 0;
constexpr unsigned ControlLayerColor = 1;
constexpr unsigned ControlFramed = 1763;
constexpr unsigned EditorNone = 0;
constexpr unsigned EditorText = 1;
constexpr unsigned EditorCombo = 2;
constexpr unsigned EditorNumber = 3;

// What is not set is taken from the row, the column and then the grid. Colours are 0x00BBGGRR.
struct CellStyle {
    std::optional<unsigned> textColor;
    std::optional<unsigned> interior;
    std::optional<Qt::Alignment> alignment;
    std::optional<bool> bold;
    std::optional<bool> wrap;
    std::optional<bool> framed;
    std::optional<unsigned> control;
    std::optional<unsigned> editor;
    std::shared_ptr<const CStringArray> choices; // of a list editor

    // Takes from `base` what is not set here.
    void Complete(const CellStyle& base);
};

struct GridCell {
    CString text;
    CString spokenText;   // said by a screen reader, and shown as a tip, where a picture or colour stands
    unsigned picture = 0; // number of a bitmap, 0 for none
    CellStyle style;
    QHash<int, CString> attributes;
};

// 0x00BBGGRR, as colours stand in standards and in the tool's own palette.
inline QColor ColorOf(unsigned color) {
    return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}
