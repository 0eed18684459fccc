// Texts and pictures fitted into a cell, so that nothing is cut without a sign of it.
#pragma once

#include "platform/Text.h"

#include <QColor>
#include <QFont>
#include <QRect>

class QPainter;

struct CellTextLook {
    QFont font;
    QColor color;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool wrap = true;
};

// Keeps a margin where there is room for one. A text that is too wide is wrapped between words, then within
// them; one that has room for a single line only is set a little closer, and at last ends in an ellipsis.
void DrawCellText(QPainter& painter, const QRect& cell, const CString& text, const CellTextLook& look);

// Whether DrawCellText would have to leave out a part of the text.
bool IsCellTextCut(const QRect& cell, const CString& text, const CellTextLook& look);

// Draws the bitmap of a number at its own size, or smaller where it has no room. Sharp on every screen.
void DrawCellPicture(QPainter& painter, const QRect& cell, unsigned bitmap, Qt::Alignment alignment);
