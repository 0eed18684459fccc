#include "files/PageBreaks.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <gtest/gtest.h>

namespace {

PageStretch Stretch(qreal top, qreal bottom, bool keepWithNext = false) {
    PageStretch stretch;
    stretch.top = top;
    stretch.bottom = bottom;
    stretch.keepWithNext = keepWithNext;
    return stretch;
}

// Rows of this height, one below the other.
std::vector<PageStretch> Rows(int count, qreal height, qreal from = 0) {
    std::vector<PageStretch> rows;
    for (int i = 0; i < count; ++i)
        rows.push_back(Stretch(from + i * height, from + (i + 1) * height));
    return rows;
}

std::vector<qreal> Ends(const std::vector<PageSlice>& pages) {
    std::vector<qreal> ends;
    for (const PageSlice& page : pages)
        ends.push_back(page.bottom);
    return ends;
}

using Numbers = std::vector<qreal>;

// The rows of all tables, as they are measured for a page of this width.
std::vector<PageStretch> Measure(QTextDocument& document, const char* html) {
    document.setDocumentMargin(0);
    document.setHtml(html);
    document.setTextWidth(400);
    return MeasureStretches(document);
}

// The same of a page that is a table: its rows.
std::vector<PageStretch> MeasureTable(QTextDocument& document, const char* html) {
    auto rows = Measure(document, html);
    rows.erase(rows.begin()); // an empty paragraph stands in front of every table
    return rows;
}

} // namespace

TEST(PageBreaks, NothingIsOneEmptyPage) {
    EXPECT_EQ(BreakIntoPages({}, 100).size(), 1u);
}

TEST(PageBreaks, RowsStayWhole) {
    EXPECT_EQ(Ends(BreakIntoPages(Rows(7, 30), 100)), (Numbers{90, 180, 210}));
}

TEST(PageBreaks, RowsThatFitExactlyDoSo) {
    EXPECT_EQ(Ends(BreakIntoPages(Rows(4, 50), 100)), (Numbers{100, 200}));
}

TEST(PageBreaks, PagesJoinWithoutGap) {
    const auto pages = BreakIntoPages(Rows(50, 7), 100);
    for (size_t i = 1; i < pages.size(); ++i)
        EXPECT_EQ(pages[i].top, pages[i - 1].bottom);
}

TEST(PageBreaks, RowTallerThanAPageIsCutBetweenItsParts) {
    std::vector<PageStretch> rows{Stretch(0, 50), Stretch(50, 250), Stretch(250, 260)};
    rows[1].parts = Rows(5, 40, 50);
    EXPECT_EQ(Ends(BreakIntoPages(rows, 100)), (Numbers{90, 170, 260}));
}

TEST(PageBreaks, PartTallerThanAPageIsCutWhereThePageEnds) {
    EXPECT_EQ(Ends(BreakIntoPages({Stretch(0, 250)}, 100)), (Numbers{100, 200, 250}));
}

TEST(PageBreaks, HeadingGoesWithItsRow) {
    EXPECT_EQ(Ends(BreakIntoPages({Stretch(0, 70), Stretch(70, 80, true), Stretch(80, 120)}, 100)),
              (Numbers{70, 120}));
}

TEST(PageBreaks, HeadingGoesWithTheFirstPartOfItsRow) {
    std::vector<PageStretch> rows{Stretch(0, 70), Stretch(70, 80, true), Stretch(80, 240)};
    rows[2].parts = Rows(4, 40, 80);
    EXPECT_EQ(Ends(BreakIntoPages(rows, 100)), (Numbers{70, 160, 240}));
}

TEST(PageBreaks, HeadingStaysWhereItsRowFillsAPage) {
    EXPECT_EQ(Ends(BreakIntoPages({Stretch(0, 70), Stretch(70, 80, true), Stretch(80, 180)}, 100)),
              (Numbers{80, 180}));
}

TEST(PageBreaks, TableHeadIsRepeatedAndTakesItsRoom) {
    std::vector<PageStretch> rows = Rows(7, 30, 10);
    rows.insert(rows.begin(), Stretch(0, 10, true));
    for (size_t i = 1; i < rows.size(); ++i)
        rows[i].headBottom = 10;
    const auto pages = BreakIntoPages(rows, 100);
    EXPECT_EQ(Ends(pages), (Numbers{100, 190, 220}));
    EXPECT_EQ(pages[0].HeadHeight(), 0);
    EXPECT_EQ(pages[1].HeadHeight(), 10);
}

TEST(PageBreaks, LargeTableHeadIsNotRepeated) {
    std::vector<PageStretch> rows{Stretch(0, 50, true), Stretch(50, 140)};
    rows[1].headBottom = 50;
    EXPECT_EQ(BreakIntoPages(rows, 100)[1].HeadHeight(), 0);
}

TEST(PageMeasure, StretchesCoverTheTextWithoutGap) {
    QTextDocument document;
    const auto stretches = Measure(document, "<p>one</p><table border=1><tr><td>a</td><td>b<br>c</td></tr>"
                                             "<tr><td>d</td><td>e</td></tr></table><p>two</p>");
    ASSERT_GE(stretches.size(), 4u);
    EXPECT_EQ(stretches.front().top, 0);
    for (size_t i = 1; i < stretches.size(); ++i)
        EXPECT_EQ(stretches[i].top, stretches[i - 1].bottom);
    EXPECT_EQ(stretches.back().bottom, document.documentLayout()->documentSize().height());
}

TEST(PageMeasure, HeadAndHeadingRowsAreKnown) {
    QTextDocument document;
    const auto rows =
        MeasureTable(document, "<table><tr><td bgcolor=#000088>A</td><td bgcolor=#000088>B</td></tr>"
                               "<tr><td colspan=2>heading</td></tr><tr><td>a</td><td>b</td></tr></table>");
    ASSERT_GE(rows.size(), 3u);
    EXPECT_TRUE(rows[0].keepWithNext);
    EXPECT_TRUE(rows[1].keepWithNext);
    EXPECT_FALSE(rows[2].keepWithNext);
    EXPECT_EQ(rows[0].headBottom, 0);
    EXPECT_EQ(rows[1].headBottom, rows[0].bottom);
    EXPECT_EQ(rows[2].headBottom, rows[0].bottom);
}

TEST(PageMeasure, NestedRowsArePartsOfTheirRow) {
    QTextDocument document;
    const auto rows =
        MeasureTable(document, "<table><tr><td>name</td><td><table><tr><td>1</td></tr><tr><td>2</td></tr>"
                               "<tr><td>3</td></tr><tr><td>4</td></tr></table></td></tr></table>");
    ASSERT_FALSE(rows.empty());
    EXPECT_EQ(rows[0].parts.size(), 4u);
    EXPECT_EQ(rows[0].parts.front().top, rows[0].top);
    EXPECT_EQ(rows[0].parts.back().bottom, rows[0].bottom);
}

TEST(PageMeasure, CutSparesTheLinesOfTheNeighbourCell) {
    QTextDocument document; // the large lines of the name reach from row to row of the values beside it
    const auto rows =
        MeasureTable(document, "<table><tr><td><font size=7>a<br>b</font></td><td><table>"
                               "<tr><td>1</td></tr><tr><td>2</td></tr><tr><td>3</td></tr>"
                               "<tr><td>4</td></tr><tr><td>5</td></tr></table></td></tr></table>");
    ASSERT_FALSE(rows.empty());
    const auto& parts = rows[0].parts;
    EXPECT_GE(parts.size(), 2u);
    EXPECT_LT(parts.size(), 5u);
    const QTextBlock name = document.find("a").block();
    const qreal top = document.documentLayout()->blockBoundingRect(name).top();
    for (int i = 0; i < name.layout()->lineCount(); ++i)
        for (size_t part = 1; part < parts.size(); ++part) {
            const QRectF line = name.layout()->lineAt(i).rect().translated(0, top);
            EXPECT_FALSE(parts[part].top > line.top() + 1 && parts[part].top < line.bottom() - 1)
                << i << part;
        }
}
