// Texts in cells: nothing is cut without a sign of it.
#include "editing/CellText.h"

#include <QFontMetrics>
#include <QPainter>
#include <gtest/gtest.h>

namespace {

struct Cell {
    Cell(int width, int height) : rect(0, 0, width, height) { look.font.setPointSize(8); }

    int Advance(const CString& text) const { return QFontMetrics(look.font).horizontalAdvance(text); }
    int Line() const { return QFontMetrics(look.font).height(); }
    bool IsCut(const CString& text) const { return IsCellTextCut(rect, text, look); }
    // The columns of pixels that the text touches.
    QPair<int, int> Inked(const CString& text) const {
        QImage image(rect.size() + QSize(40, 40), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        DrawCellText(painter, rect.translated(20, 20), text, look);
        int first = image.width();
        int last = -1;
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (image.pixelColor(x, y).lightness() < 200) {
                    first = std::min(first, x);
                    last = std::max(last, x);
                }
        return {first - 20, last - 20};
    }

    QRect rect;
    CellTextLook look;
};

const CString Words("several words of one text");

} // namespace

TEST(CellText, AShortTextKeepsItsMargin) {
    Cell cell(200, 23);
    EXPECT_GE(cell.Inked(Words).first, 6);
    EXPECT_LE(cell.Inked(Words).first, 8);
    cell.look.alignment = Qt::AlignRight | Qt::AlignVCenter;
    EXPECT_GE(cell.Inked(Words).second, 190);
    EXPECT_LE(cell.Inked(Words).second, 194);
}

TEST(CellText, ATextThatJustFitsIsNotWrapped) {
    Cell cell(0, 23);
    cell.rect.setWidth(cell.Advance(Words) + 2);
    EXPECT_FALSE(cell.IsCut(Words));
    EXPECT_GE(cell.Inked(Words).first, 0);
    EXPECT_LE(cell.Inked(Words).second, cell.rect.right());
}

TEST(CellText, ALongTextIsWrappedWhereThereIsHeight) {
    Cell cell(0, 0);
    cell.rect.setSize({cell.Advance(Words) * 2 / 3, 2 * cell.Line()});
    EXPECT_FALSE(cell.IsCut(Words));
    cell.rect.setHeight(cell.Line());
    EXPECT_TRUE(cell.IsCut(Words));
    cell.rect.setSize({cell.Advance(Words) * 2 / 3, 2 * cell.Line()});
    cell.look.wrap = false;
    EXPECT_TRUE(cell.IsCut(Words));
}

TEST(CellText, ALongWordIsWrappedWithin) {
    Cell cell(0, 0);
    const CString path("S:\\CAD\\Macros\\FlatPattern.kvp");
    cell.rect.setSize({cell.Advance(path) * 2 / 3, 2 * cell.Line()});
    EXPECT_FALSE(cell.IsCut(path));
}

TEST(CellText, ASingleLineIsSetCloser) {
    Cell cell(0, 18);
    const CString word("Medium");
    cell.look.wrap = false;
    cell.rect.setWidth(cell.Advance(word) * 85 / 100);
    EXPECT_FALSE(cell.IsCut(word));
    EXPECT_LE(cell.Inked(word).second, cell.rect.right());
    cell.rect.setWidth(cell.Advance(word) * 70 / 100);
    EXPECT_TRUE(cell.IsCut(word));
}

TEST(CellText, AVeryLongTextIsShortenedAtOnce) {
    Cell cell(100, 23);
    const CString text = CString("word ").repeated(200'000);
    EXPECT_TRUE(cell.IsCut(text));
    EXPECT_LE(cell.Inked(text).second, cell.rect.right());
}

TEST(CellText, NoRoomAtAll) {
    for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(2, 30), QSize(30, 2)}) {
        Cell cell(size.width(), size.height());
        cell.Inked(Words);
        cell.Inked("");
        cell.IsCut(Words);
    }
    SUCCEED();
}
