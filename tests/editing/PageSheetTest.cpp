// The summary page as a user meets it.
#include "editing/PageSheet.h"

#include "editing/CheckValues.h"
#include "editing/StandardSource.h"
#include "platform/LanguageLibrary.h"
#include "support/Gui.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <gtest/gtest.h>

namespace {

struct Page {
    Page() { sheet.resize(900, 500); }

    void Activate() {
        sheet.OnSetActive(source);
        if (!sheet.isVisible())
            Gui::Show(sheet);
        Gui::Settle();
    }
    CAdminGridClass& Grid() { return *sheet.Grid; }
    CString Text(int row, int col) { return Grid().GetCellText(row, col); }
    void ClickRow(int row, int col) {
        Gui::ClickAt(*Grid().viewport(), Grid().CalcRectFromRowCol(row, col).center());
    }

    StandardSource source;
    CPageSheet sheet;
};

void FillFont(CCheck& check) {
    Set(check, 1700, OpOneOf, {"Arial"}, "Arial");
    Set(check, 1704, OpBetween, {"2.5", "3.5"});
}

} // namespace

TEST(PageSheet, AnEmptyStandardShowsTheHeaderOnly) {
    Page page;
    page.Activate();
    EXPECT_EQ(page.Grid().GetRowCount(), 0);
    EXPECT_EQ(page.sheet.LastRow, 0);
    EXPECT_EQ(page.Grid().GetColCount(), 6);
    const unsigned headers[] = {2395, 2261, 1968, 1907, 2260, 2260};
    for (int col = 0; col < 6; ++col)
        EXPECT_EQ(page.Text(0, col), LoadString(headers[col]));
    EXPECT_EQ(page.Grid().GetRowHeight(0), 300);
    EXPECT_EQ(page.Grid().GetMergedCellsRowCol(0, 5), (GridRange{0, 4, 0, 5})) << "one heading over both";
    page.ClickRow(1, 0);
    Gui::Key(page.Grid(), Qt::Key_Return);
    EXPECT_TRUE(page.source.shown.empty());
}

TEST(PageSheet, ChecksStandInTheOrderOfTheCatalogue) {
    Page page;
    page.source.Add(701);
    page.source.Add(109);
    page.source.Add(101);
    page.Activate();
    EXPECT_EQ(page.sheet.LastRow, 3);
    EXPECT_EQ(
        (CStringArray{page.Text(1, 0), page.Text(2, 0), page.Text(3, 0)}),
        (CStringArray{page.source.standard.MakeCheck(101)->Name, page.source.standard.MakeCheck(109)->Name,
                      page.source.standard.MakeCheck(701)->Name}));
}

TEST(PageSheet, ACheckHasOneNameAndOneCriticality) {
    Page page;
    page.source.Add(107);
    FillFont(page.source.Add(109));
    page.Activate();
    for (const int col : {0, 4, 5})
        EXPECT_EQ(page.Grid().GetMergedCellsRowCol(3, col), (GridRange{2, col, 3, col}));
    for (const int col : {1, 2, 3})
        EXPECT_EQ(page.Grid().GetMergedCellsRowCol(3, col), (GridRange{3, col, 3, col}));
    EXPECT_EQ(page.Grid().GetCellBitmap(2, 4), 1428u);
    EXPECT_EQ(page.Text(2, 5), LoadString(2268));
    EXPECT_EQ(page.Grid().GetMergedCellsRowCol(1, 4), (GridRange{1, 4, 1, 4}));
}

TEST(PageSheet, ACheckThatSaysNothingIsOneRowOfDashes) {
    Page page;
    Set(page.source.Add(107), 1936, OpEqual, {"anything"}); // of a type that shows no values
    Set(page.source.Add(109), 1700, OpNone, {"Arial"}, "Arial");
    page.Activate();
    EXPECT_EQ(page.sheet.LastRow, 2);
    for (const int row : {1, 2}) {
        EXPECT_FALSE(page.Text(row, 0).isEmpty());
        for (const int col : {1, 2, 3})
            EXPECT_EQ(page.Text(row, col), "--") << row << " " << col;
        EXPECT_EQ(page.Grid().GetCellBitmap(row, 4), 1428u);
        EXPECT_EQ(page.Text(row, 5), LoadString(2268));
    }
}

TEST(PageSheet, SeveralPicturesAreCounted) {
    Page page;
    Set(page.source.Add(102), 1558, OpOneOf, {"1", "2", "3"}, "2");
    page.Activate();
    EXPECT_EQ(page.Text(1, 2), "3 " + LoadString(1940));
    EXPECT_EQ(page.Grid().GetCellBitmap(1, 2), 0u);
    EXPECT_EQ(page.Grid().GetCellBitmap(1, 3), 1125u);
}

TEST(PageSheet, CustomChecksHaveACriticalityEach) {
    Page page;
    CCheck& container = page.source.Add(122);
    for (int i = 0; i < 2; ++i) {
        CCheck& child = AddChild(container);
        Set(child, 135, OpEqual, {"Name"});
        Set(child, 132, OpEqual, {"Macro"});
    }
    page.Activate();
    EXPECT_EQ(page.Grid().GetMergedCellsRowCol(2, 4), (GridRange{1, 4, 2, 4}));
    EXPECT_EQ(page.Grid().GetMergedCellsRowCol(3, 5), (GridRange{3, 5, 4, 5}));
    EXPECT_EQ(page.Grid().GetMergedCellsRowCol(4, 0), (GridRange{1, 0, 4, 0})) << "but one name";
}

TEST(PageSheet, ImagesAndColours) {
    Page page;
    Set(page.source.Add(102), 1558, OpOneOf, {"1"}, "0");
    Set(AddChild(page.source.Add(303)), 1564, OpOneOf, {"255"});
    page.Activate();
    EXPECT_EQ(page.Grid().GetCellBitmap(1, 2), 1123u);
    EXPECT_EQ(page.Grid().GetCellBitmap(1, 3), 1124u);
    EXPECT_EQ(page.Grid().GetRowHeight(1), 350);
    EXPECT_EQ(page.Grid().ComposeStyleRowCol(2, 2).interior, 0x0000FFu);
    EXPECT_EQ(page.Text(2, 3), "--");
    const QPoint middle = page.Grid().CalcRectFromRowCol(2, 2).center();
    EXPECT_EQ(page.Grid().viewport()->grab().toImage().pixelColor(middle), QColor(255, 0, 0));
}

TEST(PageSheet, WidthsArePartsOfTheClientWidth) {
    Page page;
    page.Activate();
    for (const int width : {700, 1203}) {
        page.sheet.resize(width, 500);
        Gui::Settle();
        const int base = page.Grid().viewport()->width() / 4 * 1440 / page.Grid().logicalDpiX();
        const double parts[] = {1.18, 1.0, 0.75, 0.75, 0.11, 0.2};
        for (int col = 0; col < 6; ++col)
            EXPECT_EQ(page.Grid().GetColWidth(col), static_cast<int>(base * parts[col])) << col;
        EXPECT_LE(page.Grid().horizontalHeader()->length(), page.Grid().viewport()->width());
    }
}

TEST(PageSheet, HeightsFollowTheWidth) {
    Page page;
    Set(page.source.Add(109), 1700, OpOneOf, {"Arial", "Liberation Sans", "DejaVu Sans Mono", "Verdana"});
    page.Activate();
    const auto expected = [&page] {
        const int pixels = QFontMetrics(page.sheet.Font).horizontalAdvance(page.Text(1, 2));
        return RowHeightFor(pixels, page.Grid().GetColWidth(3), page.Grid().logicalDpiX());
    };
    EXPECT_EQ(page.Grid().GetRowHeight(1), expected());
    const int high = page.Grid().GetRowHeight(1);
    EXPECT_GT(high, 350);
    page.sheet.resize(2400, 500);
    Gui::Settle();
    EXPECT_EQ(page.Grid().GetRowHeight(1), expected());
    EXPECT_LT(page.Grid().GetRowHeight(1), high);
}

TEST(PageSheet, ThePendingEditIsWrittenFirst) {
    Page page;
    CCheck& check = page.source.Add(109);
    page.source.pending = [&check] { FillFont(check); };
    page.Activate();
    EXPECT_EQ(page.sheet.LastRow, 2);
}

TEST(PageSheet, EveryShowingIsBuiltAnew) {
    Page page;
    CCheck& font = page.source.Add(109);
    FillFont(font);
    Set(page.source.Add(102), 1558, OpOneOf, {"1"});
    page.Activate();
    page.source.standard.RemoveCheck(font.Sequence);
    page.Activate();
    EXPECT_EQ(page.sheet.LastRow, 1);
    EXPECT_EQ(page.Grid().GetRowCount(), 1);
    EXPECT_EQ(page.sheet.NameToType.size(), 1);
    EXPECT_EQ(page.Grid().GetMergedCellsRowCol(1, 0), (GridRange{1, 0, 1, 0}));
    EXPECT_EQ(page.Text(0, 0), LoadString(2395)) << "the header is there again";
}

TEST(PageSheet, AClickOnAnyCellShowsTheCheck) {
    Page page;
    page.source.Add(107);
    FillFont(page.source.Add(109));
    page.Activate();
    page.ClickRow(3, 0);
    page.ClickRow(3, 3);
    page.ClickRow(1, 5);
    EXPECT_EQ(page.source.shown, (std::vector<MQC_CheckType_e>{109, 109, 107}));
}

TEST(PageSheet, AClickBelowTheRowsOrOnTheHeaderDoesNothing) {
    Page page;
    page.source.Add(107);
    page.Activate();
    Gui::ClickAt(*page.Grid().viewport(), QPoint(50, page.Grid().viewport()->height() - 5));
    Gui::ClickAt(*page.Grid().horizontalHeader()->viewport(), QPoint(50, 8));
    Gui::ClickAt(*page.Grid().viewport(), page.Grid().CalcRectFromRowCol(1, 0).center(), Qt::NoModifier,
                 Qt::RightButton);
    EXPECT_TRUE(page.source.shown.empty());
}

TEST(PageSheet, OfTwoEqualNamesTheLaterIsShown) {
    Page page;
    page.source.Add(109).Name = "Same";
    page.source.Add(110).Name = "Same";
    page.Activate();
    page.ClickRow(1, 0);
    EXPECT_EQ(page.source.shown, std::vector<MQC_CheckType_e>{110});
}

TEST(PageSheet, KeysMoveFromCheckToCheckAndShowIt) {
    Page page;
    page.source.Add(101);
    FillFont(page.source.Add(109));
    page.source.Add(701);
    page.Activate();
    Gui::Focus(page.Grid());
    Gui::Key(page.Grid(), Qt::Key_Return);
    Gui::Key(page.Grid(), Qt::Key_Down);
    Gui::Key(page.Grid(), Qt::Key_Space);
    Gui::Key(page.Grid(), Qt::Key_Down);
    Gui::Key(page.Grid(), Qt::Key_Enter);
    Gui::Key(page.Grid(), Qt::Key_Home, Qt::ControlModifier);
    Gui::Key(page.Grid(), Qt::Key_Return);
    EXPECT_EQ(page.source.shown, (std::vector<MQC_CheckType_e>{101, 109, 701, 101}));
}

TEST(PageSheet, NothingCanBeTyped) {
    Page page;
    FillFont(page.source.Add(109));
    page.Activate();
    Gui::Focus(page.Grid());
    Gui::Type(page.Grid(), "x");
    Gui::Key(page.Grid(), Qt::Key_F2);
    EXPECT_EQ(page.Grid().findChild<QLineEdit*>(), nullptr);
    EXPECT_EQ(page.Text(1, 0), page.source.standard.MakeCheck(109)->Name);
}

TEST(PageSheet, TheGridIsControl1005WithAName) {
    Page page;
    EXPECT_EQ(Gui::FindNumber(page.sheet, 1005), nullptr) << "not shown yet";
    page.Activate();
    EXPECT_EQ(Gui::FindNumber(page.sheet, 1005), page.sheet.Grid);
    EXPECT_TRUE(page.Grid().accessibleName().contains(LoadString(1968)));
    EXPECT_EQ(page.Grid().model()->headerData(3, Qt::Horizontal, Qt::AccessibleTextRole), LoadString(1907));
}

TEST(PageSheet, PicturesAreSpoken) {
    Page page;
    Set(page.source.Add(102), 1558, OpOneOf, {"1"});
    page.Activate();
    const auto spoken = [&page](int row, int col) {
        return page.Grid().model()->index(row - 1, col).data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(spoken(1, 2), LoadString(1833));
    EXPECT_EQ(spoken(1, 3), "--");
    EXPECT_EQ(spoken(1, 4), LoadString(2268));
}

TEST(PageSheet, TheNameOfALongCheckStaysInSight) {
    Page page;
    CCheck& container = page.source.Add(105);
    for (int i = 0; i < 60; ++i)
        Set(AddChild(container), 1724, OpEqual, {"Weight"});
    page.Activate();
    page.Grid().verticalScrollBar()->setValue(600);
    Gui::Settle();
    const QImage image = page.Grid().viewport()->grab(QRect(0, 0, 120, 24)).toImage();
    const QColor ground = image.pixelColor(1, 1);
    int inked = 0;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
            inked += image.pixelColor(x, y).lightness() < ground.lightness() / 2;
    EXPECT_GT(inked, 50);
}
