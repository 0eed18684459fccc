// Where a laid-out text of any length is cut into pages, so that rows of tables stay whole.
#pragma once

#include <QTextDocument>
#include <vector>

// A stretch of the text, from top to bottom, that should stand on one page. All figures are in the units
// of the layout.
struct PageStretch {
    qreal top = 0;
    qreal bottom = 0;
    bool keepWithNext = false; // a heading
    qreal headTop = 0;         // the head of the table that it is a row of; empty: no head
    qreal headBottom = 0;
    std::vector<PageStretch> parts; // where to cut if it is taller than a page
};

// What a page shows: the table head first, where the page begins inside a table.
struct PageSlice {
    qreal top = 0;
    qreal bottom = 0;
    qreal headTop = 0;
    qreal headBottom = 0;

    qreal HeadHeight() const { return headBottom - headTop; }
};

// The stretches of a text that is laid out without pages, from its beginning to its end without a gap.
std::vector<PageStretch> MeasureStretches(const QTextDocument& document);

// The pages, at least one. A stretch taller than a page is cut between its parts, and one without parts
// where the page ends.
std::vector<PageSlice> BreakIntoPages(const std::vector<PageStretch>& stretches, qreal pageHeight);
