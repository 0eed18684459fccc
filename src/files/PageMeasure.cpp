#include "files/PageBreaks.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextTable>
#include <algorithm>

namespace {

using Stretches = std::vector<PageStretch>;

// Two neighbours may touch by this much, in layout units, without standing side by side.
constexpr qreal Tolerance = 0.5;

void MeasureFrame(const QTextDocument& document, QTextFrame::iterator from, Stretches& stretches);

bool IsSideBySide(const PageStretch& one, const PageStretch& other) {
    return other.top < one.bottom - Tolerance;
}

Stretches Arrange(Stretches stretches);

// Stretches that stand side by side become one, which can be cut only where none of them is hurt.
PageStretch Join(Stretches&& members) {
    if (members.size() == 1)
        return std::move(members.front());
    PageStretch whole{members.front().top, members.front().bottom, false, 0, 0, {}};
    Stretches parts;
    bool divisible = false;
    for (PageStretch& member : members) {
        whole.bottom = std::max(whole.bottom, member.bottom);
        divisible = divisible || !member.parts.empty();
        if (member.parts.empty())
            parts.push_back(std::move(member));
        else
            std::move(member.parts.begin(), member.parts.end(), std::back_inserter(parts));
    }
    if (divisible)
        whole.parts = Arrange(std::move(parts));
    return whole;
}

// Sorts what stands in several cells of one row into a single column of stretches.
Stretches Arrange(Stretches stretches) {
    std::stable_sort(stretches.begin(), stretches.end(),
                     [](const PageStretch& a, const PageStretch& b) { return a.top < b.top; });
    Stretches column;
    Stretches group;
    qreal bottom = 0;
    for (PageStretch& next : stretches) {
        if (!group.empty() && !IsSideBySide({0, bottom, false, 0, 0, {}}, next)) {
            column.push_back(Join(std::move(group)));
            group.clear();
        }
        bottom = group.empty() ? next.bottom : std::max(bottom, next.bottom);
        group.push_back(std::move(next));
    }
    if (!group.empty())
        column.push_back(Join(std::move(group)));
    return column;
}

void MeasureBlock(const QTextDocument& document, const QTextBlock& block, Stretches& stretches) {
    const QRectF rect = document.documentLayout()->blockBoundingRect(block);
    if (!block.isValid() || rect.height() <= 0)
        return;
    PageStretch stretch{rect.top(), rect.bottom(), false, 0, 0, {}};
    const QTextLayout* lines = block.layout();
    const qreal origin = rect.top() - lines->boundingRect().top();
    for (int i = 0; lines->lineCount() > 1 && i < lines->lineCount(); ++i) {
        const QRectF line = lines->lineAt(i).rect().translated(0, origin);
        stretch.parts.push_back({line.top(), line.bottom(), false, 0, 0, {}});
    }
    stretches.push_back(std::move(stretch));
}

PageStretch MeasureRow(const QTextDocument& document, const QTextTable& table, int row) {
    Stretches content;
    for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCell cell = table.cellAt(row, column);
        if (cell.row() == row && cell.column() == column)
            MeasureFrame(document, cell.begin(), content);
    }
    PageStretch whole;
    if (content.empty())
        return whole;
    content = Arrange(std::move(content));
    whole.top = content.front().top;
    whole.bottom = content.back().bottom;
    if (content.size() == 1)
        content = Stretches(std::move(content.front().parts));
    whole.parts = std::move(content);
    const QTextTableCell first = table.cellAt(row, 0);
    whole.keepWithNext = table.columns() > 1 && first.columnSpan() == table.columns();
    return whole;
}

// A head is a first row on a ground of its own.
bool HasHead(const QTextTable& table) {
    return table.rows() > 1 && table.cellAt(0, 0).format().background().style() != Qt::NoBrush;
}

void MeasureTable(const QTextDocument& document, const QTextTable& table, Stretches& stretches) {
    const QRectF rect = document.documentLayout()->frameBoundingRect(const_cast<QTextTable*>(&table));
    Stretches rows;
    for (int row = 0; row < table.rows(); ++row) {
        PageStretch stretch = MeasureRow(document, table, row);
        if (stretch.bottom > stretch.top)
            rows.push_back(std::move(stretch));
    }
    if (rows.empty())
        return;
    // Frame and spacing around the first and last row belong to them.
    rows.front().top = rect.top();
    rows.back().bottom = rect.bottom();
    if (HasHead(table) && rows.size() > 1) {
        rows.front().keepWithNext = true;
        const qreal headBottom = (rows[0].bottom + rows[1].top) / 2;
        for (size_t i = 1; i < rows.size(); ++i) {
            rows[i].headTop = rect.top();
            rows[i].headBottom = headBottom;
        }
    }
    std::move(rows.begin(), rows.end(), std::back_inserter(stretches));
}

void MeasureFrame(const QTextDocument& document, QTextFrame::iterator at, Stretches& stretches) {
    for (; !at.atEnd(); ++at) {
        if (const auto* table = qobject_cast<QTextTable*>(at.currentFrame()))
            MeasureTable(document, *table, stretches);
        else if (!at.currentFrame())
            MeasureBlock(document, at.currentBlock(), stretches);
    }
}

// Each gap is cut in its middle, so that the borders on both sides stay with their rows.
void CloseGaps(Stretches& stretches, qreal top, qreal bottom) {
    for (size_t i = 0; i + 1 < stretches.size(); ++i) {
        const qreal middle = (stretches[i].bottom + stretches[i + 1].top) / 2;
        stretches[i].bottom = stretches[i + 1].top = middle;
    }
    if (stretches.empty())
        return;
    stretches.front().top = top;
    stretches.back().bottom = bottom;
    for (PageStretch& stretch : stretches)
        CloseGaps(stretch.parts, stretch.top, stretch.bottom);
}

} // namespace

std::vector<PageStretch> MeasureStretches(const QTextDocument& document) {
    Stretches stretches;
    MeasureFrame(document, document.rootFrame()->begin(), stretches);
    CloseGaps(stretches, 0, document.documentLayout()->documentSize().height());
    return stretches;
}
