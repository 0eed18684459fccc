#include "files/DecoratedDocument.h"
#include "files/LanguageScope.h"

#include <gtest/gtest.h>
#include <string>
#include <tuple>

namespace {

std::string Ascii(const CString& text) {
    return text.toStdString();
}

struct ValueRow {
    int type; // ParameterType
    int op;
    const char* stored;
    const char* shown;
};

void ExpectStrings(std::initializer_list<ValueRow> rows) {
    for (const ValueRow& row : rows) {
        const DecoratedDocument document(StandardXml(ParameterXml(row.type, row.op, {row.stored})));
        EXPECT_EQ(Ascii(document.Text("//Value")), row.shown) << row.type << " " << row.op;
        EXPECT_EQ(Ascii(document.Attribute("//Value", "Datatype")), "String") << row.type;
    }
}

} // namespace

TEST(ReportDecorator, TextsAndPlainNumbersStandAsTheyAre) {
    ExpectStrings(
        {{0, 2, "12", "12"}, {0, 2, "DIN 7168", "DIN 7168"}, {0, 2, "", ""}, {0, 3, "007", "= 007"}});
}

TEST(ReportDecorator, CodeOfListIsShownByItsText) {
    ExpectStrings({{23, 2, "1", "Yes"}, {23, 2, "0", "No"}, {23, 2, "2", "Yes"}, {19, 2, "99", ""}});
    const DecoratedDocument document(StandardXml(ParameterXml(13, 3, {"1"})));
    EXPECT_EQ(document.Text("//Value"), "= " + LoadString(1695));
}

TEST(ReportDecorator, TextThatIsNoCodeStands) {
    ExpectStrings({{23, 2, "perhaps", "perhaps"}, {23, 3, "", "= "}});
}

TEST(ReportDecorator, FontNamedLikeANumberStands) {
    ExpectStrings({{12, 2, "2", "2"}, {12, 3, "10 Pitch", "= 10 Pitch"}, {12, 2, "Arial", "Arial"}});
}

TEST(ReportDecorator, ListsWithoutValueKindAreShownByTheirTexts) {
    for (const auto& [type, code, text] : {std::tuple{33, "0", 2430u}, {35, "1", 2482u}, {36, "1", 2491u}}) {
        const DecoratedDocument document(StandardXml(ParameterXml(type, 2, {code}, code)));
        EXPECT_EQ(document.Text("//Value"), LoadString(text));
        EXPECT_EQ(document.Attribute("//Value", "Datatype"), "String");
        EXPECT_EQ(document.Attribute("//Parameter", "CorrectionValue"), LoadString(text));
    }
    ExpectStrings({{34, 2, "3", "3"}, {99, 2, "3", "3"}, {-1, 2, "3", "3"}});
}

TEST(ReportDecorator, MeasuredNumberGetsItsUnit) {
    ExpectStrings({{1, 2, "2.5000000000", "2.5mm"},
                   {1, 7, "3.0000000000", ">= 3mm"},
                   {2, 2, "45.0000000000", "45 Degrees"},
                   {31, 2, "2.5000000000", "2.5mm^3"}});
}

TEST(ReportDecorator, UnitsFollowTheStandard) {
    const CString xml = StandardXml(ParameterXml(1, 2, {"2.5"}) + ParameterXml(2, 2, {"1.5"}));
    const DecoratedDocument inch(xml, 3, 3);
    EXPECT_EQ(inch.Text("//Parameter[1]/Value"), "2.5" + LoadString(2015));
    EXPECT_EQ(inch.Text("//Parameter[2]/Value"), "1.5 " + LoadString(1636));
    const DecoratedDocument none(xml, -1, 0);
    EXPECT_EQ(none.Text("//Parameter[1]/Value"), "2.5");
    EXPECT_EQ(none.Text("//Parameter[2]/Value"), "1.5");
}

TEST(ReportDecorator, MeasureThatIsNoNumberStandsWithItsLabel) {
    ExpectStrings({{1, 3, "3 x 20", "= 3 x 20"}, {1, 5, "short", "< short"}, {1, 2, "", ""}});
}

TEST(ReportDecorator, LabelOfOperatorStandsDirectlyBeforeTheValue) {
    ExpectStrings({{0, 0, "a", "Anya"},
                   {0, 1, "a", "betweena"},
                   {0, 2, "a", "a"},
                   {0, 3, "a", "= a"},
                   {0, 4, "a", "none ofa"},
                   {0, 5, "a", "< a"},
                   {0, 6, "a", "> a"},
                   {0, 7, "a", ">= a"},
                   {0, 8, "a", "<= a"},
                   {0, 9, "a", "containsa"},
                   {0, 10, "a", "begins witha"},
                   {0, 11, "a", "ends witha"},
                   {0, 12, "a", "a"},
                   {0, 13, "a", "a"},
                   {0, 14, "a", "!=a"},
                   {0, 99, "a", "a"}});
}

TEST(ReportDecorator, EveryValueHasTheLabel) {
    const DecoratedDocument document(StandardXml(ParameterXml(1, 4, {"1", "2"})));
    EXPECT_EQ(document.Text("//Value[1]"), "none of1mm");
    EXPECT_EQ(document.Text("//Value[2]"), "none of2mm");
}

TEST(ReportDecorator, ColourKeepsItsNumberAndTellsRedGreenBlue) {
    struct {
        const char* stored;
        const char* rgb;
    } const rows[] = {{"255", "ff0000"}, {"65280", "00ff00"}, {"16711680", "0000ff"},
                      {"0", "000000"},   {"66051", "030201"}, {"4294967295", "ffffff"}};
    for (const auto& row : rows) {
        const DecoratedDocument document(StandardXml(ParameterXml(5, 3, {row.stored}, row.stored)));
        EXPECT_EQ(document.Text("//Value"), row.stored); // without a label
        EXPECT_EQ(document.Attribute("//Value", "Datatype"), "Color");
        EXPECT_EQ(Ascii(document.Attribute("//Value", "RGB")), row.rgb);
        EXPECT_EQ(Ascii(document.Attribute("//Parameter", "CorrectionValue")), row.rgb);
    }
}

TEST(ReportDecorator, PictureIsNamedNumberedAndListed) {
    const DecoratedDocument document(StandardXml(ParameterXml(25, 3, {"2", "0"})));
    EXPECT_EQ(document.Text("//Value[1]"), "1360");
    EXPECT_EQ(document.Attribute("//Value[1]", "FileName"), LoadString(1746));
    EXPECT_EQ(document.Attribute("//Value[1]", "Datatype"), "Image");
    EXPECT_EQ(document.Text("ImageList/Image[ResourceID=1360]/FileName"), LoadString(1746));
    EXPECT_EQ(document.Text("ImageList/Image[ResourceID=1362]/FileName"), LoadString(1744));
}

TEST(ReportDecorator, RangeBecomesOneText) {
    const DecoratedDocument length(StandardXml(ParameterXml(1, 1, {"1.5", "20"}, "1.5")));
    EXPECT_EQ(length.Text("//Value"), "between(1.5mm,20mm)");
    EXPECT_EQ(length.Count("//Value"), 1);
    EXPECT_EQ(length.Attribute("//Value", "Datatype"), "String");
    EXPECT_EQ(length.Attribute("//Parameter", "CorrectionValue"), "1.5"); // of a range it stays
    const DecoratedDocument plain(StandardXml(ParameterXml(0, 1, {"3", "5.50"})));
    EXPECT_EQ(plain.Text("//Value"), "between(3,5.5)");
}

TEST(ReportDecorator, RangeOfDatesIsNotCut) {
    const DecoratedDocument dates(StandardXml(ParameterXml(0, 1, {"01/02/2026", "05/02/2026"})));
    EXPECT_EQ(dates.Text("//Value"), "between(01/02/2026,05/02/2026)");
}

TEST(ReportDecorator, CorrectionIsShownByKind) {
    const auto correctionOf = [](int type, const char* stored) {
        const DecoratedDocument document(StandardXml(ParameterXml(type, 3, {"1"}, stored)));
        return Ascii(document.Attribute("//Parameter", "CorrectionValue"));
    };
    EXPECT_EQ(correctionOf(0, "1"), "1");
    EXPECT_EQ(correctionOf(23, "1"), "Yes");
    EXPECT_EQ(correctionOf(12, "7"), "7");
    EXPECT_EQ(correctionOf(1, "2.5000000000"), "2.5mm");
    EXPECT_EQ(correctionOf(5, "65280"), "00ff00");
    EXPECT_EQ(correctionOf(25, "1"), Ascii(LoadString(1745)));
    for (const int type : {0, 1, 5, 23, 25})
        EXPECT_EQ(correctionOf(type, ""), "") << type;
}

TEST(ReportDecorator, PictureOfCorrectionIsListed) {
    const DecoratedDocument document(StandardXml(ParameterXml(25, 3, {}, "1")));
    EXPECT_EQ(document.Text("ImageList/Image[ResourceID=1361]/FileName"), LoadString(1745));
}

TEST(ReportDecorator, CorrectionStaysWhereTheCheckerCannotCorrect) {
    for (const char* attribute : {"IsACSupported='0'", ""}) {
        const DecoratedDocument document(CString("<Standard><Check Type='1' ") + attribute + ">" +
                                         ParameterXml(23, 3, {"1"}, "1") + "</Check></Standard>");
        EXPECT_EQ(document.Attribute("//Parameter", "CorrectionValue"), "1");
        EXPECT_EQ(document.Text("//Value"), "= Yes");
    }
}

TEST(ReportDecorator, CriticalityListsItsPicture) {
    struct {
        const char* criticality;
        int image;
        unsigned text;
    } const rows[] = {{"0", 1425, 2267}, {"1", 1424, 2268}, {"2", 1423, 2269},
                      {"3", 1422, 2270}, {"9", 1424, 2268}, {"-1", 1424, 2268}};
    for (const auto& row : rows) {
        const DecoratedDocument document(
            CString("<Standard><Check Criticality='%1'/></Standard>").arg(row.criticality));
        ASSERT_EQ(document.Count("ImageList/Image"), 1);
        EXPECT_EQ(document.Text("ImageList/Image/ResourceID"), FormatInt(row.image));
        EXPECT_EQ(document.Text("ImageList/Image/FileName"), LoadString(row.text));
    }
    EXPECT_EQ(DecoratedDocument("<Standard><Check/></Standard>").Count("ImageList/Image"), 0);
}

TEST(ReportDecorator, PictureIsListedOnce) {
    const DecoratedDocument document(
        StandardXml(ParameterXml(25, 2, {"1", "1"}) + ParameterXml(25, 2, {"1"})));
    EXPECT_EQ(document.Count("ImageList/Image[ResourceID=1361]"), 1);
    EXPECT_EQ(document.images.Count, 2); // with the criticality's
}

TEST(ReportDecorator, ImageListStandsBehindTheChecks) {
    const DecoratedDocument document("<Standard><Check/><Check/></Standard>");
    EXPECT_EQ(document.Xml(), "<Standard><Check/><Check/><ImageList/></Standard>");
}

TEST(ReportDecorator, ChildChecksAreDecoratedToo) {
    const DecoratedDocument document("<Standard><Check Type='105'><Check Type='104' Criticality='2' "
                                     "IsACSupported='1'>" +
                                     ParameterXml(23, 3, {"1"}, "0") + "</Check></Check></Standard>");
    EXPECT_EQ(document.Text("//Value"), "= Yes");
    EXPECT_EQ(document.Attribute("//Parameter", "CorrectionValue"), "No");
    EXPECT_EQ(document.Count("ImageList/Image"), 1);
}

TEST(ReportDecorator, TextsAreInTheLanguageOfTheTool) {
    const LanguageScope german("German");
    const DecoratedDocument document(StandardXml(ParameterXml(1, 1, {"1.5", "20"}) +
                                                 ParameterXml(23, 2, {"1"}) + ParameterXml(20, 2, {"0"})));
    EXPECT_EQ(document.Text("//Parameter[1]/Value"), "zwischen(1.5mm,20mm)"); // with a decimal point
    EXPECT_EQ(document.Text("//Parameter[2]/Value"), "Ja");
    EXPECT_EQ(document.Attribute("//Parameter[3]/Value", "FileName"), LoadString(1843));
    EXPECT_NE(LoadString(1843), "Thin");
}

TEST(ReportDecorator, WithoutDocumentNothingHappens) {
    CGrowArray<unsigned long> images;
    ReportDecorator(0, 0, images).Decorate();
    EXPECT_EQ(images.Count, 0);
}
