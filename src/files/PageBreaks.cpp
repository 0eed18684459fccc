#include "files/PageBreaks.h"

namespace {

class Breaker {
public:
    explicit Breaker(qreal pageHeight) : m_pageHeight(pageHeight), m_pages(1) {}

    std::vector<PageSlice> Run(const std::vector<PageStretch>& stretches) {
        if (stretches.empty())
            return m_pages;
        Page().top = stretches.front().top;
        Place(stretches, nullptr, Page().top);
        Page().bottom = stretches.back().bottom;
        return m_pages;
    }

private:
    PageSlice& Page() { return m_pages.back(); }
    qreal End() { return Page().top + m_pageHeight - Page().HeadHeight(); }

    // A head that leaves little room is not repeated.
    qreal RepeatedHead(const PageStretch& row) const {
        const qreal height = row.headBottom - row.headTop;
        return height > m_pageHeight / 3 ? 0 : height;
    }

    void StartPage(qreal at, const PageStretch& row) {
        Page().bottom = at;
        PageSlice next{at, at, 0, 0};
        if (RepeatedHead(row) > 0) {
            next.headTop = row.headTop;
            next.headBottom = row.headBottom;
        }
        m_pages.push_back(next);
    }

    // `row`: the row of a table that the stretches are parts of. `keepFrom`: the top of the headings that
    // stand before the first stretch.
    void Place(const std::vector<PageStretch>& stretches, const PageStretch* row, qreal keepFrom) {
        for (const PageStretch& stretch : stretches) {
            PlaceOne(stretch, row ? *row : stretch, keepFrom);
            if (!stretch.keepWithNext)
                keepFrom = stretch.bottom;
        }
    }

    void PlaceOne(const PageStretch& stretch, const PageStretch& row, qreal keepFrom) {
        if (stretch.bottom <= End())
            return;
        const qreal room = m_pageHeight - RepeatedHead(row);
        if (stretch.bottom - stretch.top > room)
            return Divide(stretch, row, keepFrom);
        const bool keep = keepFrom > Page().top && stretch.bottom - keepFrom <= room;
        StartPage(keep ? keepFrom : stretch.top, row);
    }

    void Divide(const PageStretch& stretch, const PageStretch& row, qreal keepFrom) {
        if (!stretch.parts.empty())
            return Place(stretch.parts, &row, keepFrom);
        while (stretch.bottom > End())
            StartPage(End(), row);
    }

    qreal m_pageHeight;
    std::vector<PageSlice> m_pages;
};

} // namespace

std::vector<PageSlice> BreakIntoPages(const std::vector<PageStretch>& stretches, qreal pageHeight) {
    return Breaker(pageHeight).Run(stretches);
}
