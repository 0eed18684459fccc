#include "engines/UIUtilities.h"

#include "platform/LanguageLibrary.h"

#include <QColor>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

const CUIUtilities Utilities;

using CodeOperation = int (CUIUtilities::*)(const CString&) const;
using TextOperation = void (CUIUtilities::*)(int, CString&) const;

// `rows` are codes with their string numbers; texts and codes outside them are unknown.
void ExpectPair(CodeOperation codeOf, TextOperation textOf, const std::vector<std::pair<int, unsigned>>& rows,
                int unknown = -1) {
    for (const auto& [code, id] : rows) {
        EXPECT_EQ((Utilities.*codeOf)(LoadString(id)), code) << "string " << id;
        CString text = "before";
        (Utilities.*textOf)(code, text);
        EXPECT_EQ(text, LoadString(id)) << "code " << code;
    }
    EXPECT_EQ((Utilities.*codeOf)("no such text"), unknown);
    for (const int code : {-1, 99}) {
        CString text = "before";
        (Utilities.*textOf)(code, text);
        EXPECT_EQ(text, "before") << "code " << code;
    }
}

} // namespace

TEST(UIUtilities, TrailingZerosAreTrimmedBehindAPointOnly) {
    for (const auto& [before, after] : {std::pair("10", "10"), {"1.500", "1.5"}, {"2.000", "2"}}) {
        CString text = before;
        Utilities.TrimTrailingZeros(text);
        EXPECT_EQ(text, after);
    }
}

TEST(UIUtilities, AngleUnitsConvertBothWays) {
    ExpectPair(&CUIUtilities::AngleUnitCode, &CUIUtilities::AngleUnitName, {{0, 1633}, {3, 1636}});
    EXPECT_EQ(Utilities.AngleUnitCode(LoadString(1634)), -1);
}

TEST(UIUtilities, LengthUnitCodesFollowTheRowsOfTheListsNotTheUnitCodes) {
    ExpectPair(&CUIUtilities::LengthUnitCode, &CUIUtilities::LengthUnitText,
               {{6, 1621},
                {7, 1622},
                {8, 1623},
                {0, 1624},
                {1, 1625},
                {2, 1626},
                {10, 1627},
                {9, 1628},
                {3, 1629},
                {4, 1630},
                {5, 1631}});
}

TEST(UIUtilities, LengthUnitsHaveShortForms) {
    const std::vector<std::pair<unsigned, unsigned>> rows{
        {1621, 1821}, {1622, 1735}, {1623, 1997}, {1624, 2010}, {1625, 2011}, {1626, 2012},
        {1627, 2013}, {1628, 2014}, {1629, 2015}, {1630, 2016}, {1631, 0}};
    for (const auto& [name, suffix] : rows) {
        CString text = "before";
        Utilities.LengthUnitAbbreviation(LoadString(name), text);
        EXPECT_EQ(text, LoadString(suffix)) << name;
    }
    for (const CString name : {"", "no such text"}) {
        CString text = "before";
        Utilities.LengthUnitAbbreviation(name, text);
        EXPECT_EQ(text, "");
    }
}

TEST(UIUtilities, MassUnitsConvertBothWays) {
    ExpectPair(&CUIUtilities::MassUnitCode, &CUIUtilities::MassUnitName,
               {{1, 1637}, {2, 1638}, {3, 1639}, {4, 1640}});
}

TEST(UIUtilities, DocumentUnits10ConvertBothWays) {
    ExpectPair(
        &CUIUtilities::DocumentUnit10Code, &CUIUtilities::DocumentUnit10Name,
        {{1, 1641}, {2, 1642}, {3, 1643}, {4, 1644}, {5, 1645}, {6, 1646}, {7, 1647}, {9, 1649}, {10, 1650}});
}

TEST(UIUtilities, DocumentUnit10EightHasNoText) {
    CString text = "before";
    Utilities.DocumentUnit10Name(8, text);
    EXPECT_EQ(text, "before");
    EXPECT_EQ(Utilities.DocumentUnit10Code(LoadString(1648)), -1);
}

TEST(UIUtilities, DocumentUnits11ConvertBothWays) {
    ExpectPair(&CUIUtilities::DocumentUnit11Code, &CUIUtilities::DocumentUnit11Name,
               {{1, 1651}, {3, 1653}, {2, 1652}, {4, 1654}, {5, 1655}, {6, 1656}});
}

TEST(UIUtilities, PropertyTypesConvertBothWays) {
    ExpectPair(&CUIUtilities::PropertyTypeCode, &CUIUtilities::PropertyTypeText,
               {{0, 1632}, {30, 1716}, {64, 1718}, {3, 1717}, {11, 1719}});
}

TEST(UIUtilities, FontStylesConvertBothWays) {
    ExpectPair(&CUIUtilities::FontStyleCode, &CUIUtilities::FontStyleText,
               {{1, 1695}, {2, 1696}, {3, 1697}, {4, 1698}});
}

TEST(UIUtilities, SheetSizesConvertBothWaysAndAnyOtherTextIsASizeOfOnesOwn) {
    ExpectPair(&CUIUtilities::SheetSizeCode, &CUIUtilities::SheetSizeText,
               {{11, 1606},
                {0, 1607},
                {1, 1608},
                {2, 1609},
                {3, 1610},
                {4, 1611},
                {5, 1612},
                {10, 1613},
                {9, 1614},
                {8, 1615},
                {6, 1616},
                {7, 1617},
                {12, 1930}},
               12);
}

TEST(UIUtilities, OperatorWordsConvertBothWays) {
    ExpectPair(&CUIUtilities::OperatorCode, &CUIUtilities::OperatorText,
               {{0, 1632}, {1, 1657}, {2, 1658}, {4, 1659}, {9, 1720}, {10, 1721}, {11, 1722}}, 0);
}

TEST(UIUtilities, OperatorSignsConvertBothWays) {
    const std::vector<std::pair<CString, int>> signs{{"<", 5},  {"<=", 8}, {">", 6},
                                                     {">=", 7}, {"=", 3},  {"!=", 14}};
    for (const auto& [sign, code] : signs) {
        EXPECT_EQ(Utilities.OperatorCode(sign), code);
        CString text;
        Utilities.OperatorText(code, text);
        EXPECT_EQ(text, sign);
    }
}

TEST(UIUtilities, AnUnknownOperatorReadsAsNotTested) {
    EXPECT_EQ(Utilities.OperatorCode("=="), 0);
    EXPECT_EQ(Utilities.OperatorCode(""), 0);
}

TEST(UIUtilities, OperatorsWithoutAWordLeaveTheText) {
    for (const int code : {12, 13, 15}) {
        CString text = "before";
        Utilities.OperatorText(code, text);
        EXPECT_EQ(text, "before") << code;
    }
}

TEST(UIUtilities, LineStylesAndWidthsHaveBitmaps) {
    const int styles[] = {148, 150, 151, 149, 154, 152, 153};
    for (int code = 0; code < 7; ++code)
        EXPECT_EQ(Utilities.LineStyleBitmap(code), styles[code]);
    for (int code = 0; code < 8; ++code)
        EXPECT_EQ(Utilities.LineWidthBitmap(code), 157 + code);
    for (const int code : {-1, 8}) {
        EXPECT_EQ(Utilities.LineStyleBitmap(code), -1);
        EXPECT_EQ(Utilities.LineWidthBitmap(code), -1);
    }
    EXPECT_EQ(Utilities.LineStyleBitmap(7), -1);
}

TEST(UIUtilities, OneColourOfAPictureIsReplaced) {
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(qRgb(0x11, 0x22, 0x33));
    picture.setPixel(1, 0, qRgb(0x33, 0x22, 0x11));
    Utilities.ReplaceBitmapColor(picture, 0x00AABBCC, 0x00332211);
    EXPECT_EQ(picture.pixel(0, 0), qRgb(0xCC, 0xBB, 0xAA));
    EXPECT_EQ(picture.pixel(1, 1), qRgb(0xCC, 0xBB, 0xAA));
    EXPECT_EQ(picture.pixel(1, 0), qRgb(0x33, 0x22, 0x11));
}

TEST(UIUtilities, ReplacingAColourKeepsTransparency) {
    QImage picture(2, 1, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setPixel(1, 0, qPremultiply(qRgba(0, 0, 0, 128)));
    Utilities.ReplaceBitmapColor(picture, 0x000000FF, 0x00000000);
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(picture.pixelColor(1, 0), QColor(255, 0, 0, 128));
}

TEST(UIUtilities, APictureOfPaletteColoursAndNoPictureAtAllAreTaken) {
    QImage picture(1, 1, QImage::Format_Indexed8);
    picture.setColorTable({qRgb(255, 0, 0)});
    picture.fill(0);
    Utilities.ReplaceBitmapColor(picture, 0x0000FF00, 0x000000FF);
    EXPECT_EQ(picture.pixel(0, 0), qRgb(0, 255, 0));
    QImage none;
    Utilities.ReplaceBitmapColor(none, 1, 2);
    EXPECT_TRUE(none.isNull());
}
