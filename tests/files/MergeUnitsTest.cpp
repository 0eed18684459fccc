#include "files/MergeUnits.h"

#include "files/XmlDocument.h"
#include "platform/TextNumbers.h"

#include <gtest/gtest.h>

namespace {

constexpr long Millimetre = 0;
constexpr long Metre = 2;
constexpr long Inch = 3;

CString Parameter(int kind, const CString& values, const CString& attributes = {}) {
    return CString("<Parameter Name='Size'%1><ParameterType>%2</ParameterType>%3</Parameter>")
        .arg(attributes)
        .arg(kind)
        .arg(values);
}

struct Conversion {
    CString values; // all values of the check, with "|" between them
    std::vector<unsigned> losses;
};

Conversion Convert(const CString& inside, long from, long to) {
    CXmlDocument document;
    const CXmlElement* check = document.LoadXmlText("<Check IsACSupported='1'>" + inside + "</Check>");
    std::vector<UnitLoss> losses;
    ConvertCheckUnits(*check, from, to, &losses);
    Conversion result;
    const CXmlNodeList values = check->SelectNodes(".//Value");
    for (int i = 0; i < values.GetCount(); ++i) {
        CString text;
        values.GetAt(i)->GetText(text);
        result.values += (i > 0 ? "|" : "") + text;
    }
    for (const UnitLoss& loss : losses)
        result.losses.push_back(loss.text);
    return result;
}

CString Value(const CString& text) {
    return "<Value>" + text + "</Value>";
}

using Losses = std::vector<unsigned>;

} // namespace

TEST(MergeUnits, LengthBecomesTheOtherUnitWithSixDecimals) {
    const Conversion result = Convert(Parameter(1, Value("2")), Inch, Millimetre);
    EXPECT_EQ(result.values, "50.800000");
    EXPECT_EQ(result.losses, Losses());
}

TEST(MergeUnits, VolumeIsScaledByTheCube) {
    EXPECT_EQ(Convert(Parameter(31, Value("2")), Metre, Millimetre).values, "2000000000.000000");
    EXPECT_EQ(Convert(Parameter(31, Value("1")), Inch, Millimetre).values, "16387.064000");
}

TEST(MergeUnits, AnglesAndAllOtherKindsStay) {
    for (int kind = 0; kind <= 40; ++kind)
        if (kind != 1 && kind != 31) {
            EXPECT_EQ(Convert(Parameter(kind, Value("2")), Inch, Millimetre).values, "2") << kind;
        }
}

TEST(MergeUnits, NothingHappensWithoutAUnitOrBetweenEqualOnes) {
    EXPECT_EQ(Convert(Parameter(1, Value("2")), -1, Millimetre).values, "2");
    EXPECT_EQ(Convert(Parameter(1, Value("2")), Inch, -1).values, "2");
    EXPECT_EQ(Convert(Parameter(1, Value("2")), Inch, Inch).values, "2");
}

TEST(MergeUnits, AnUnknownUnitCountsAsMetre) {
    EXPECT_EQ(Convert(Parameter(1, Value("2")), 99, Millimetre).values, "2000.000000");
}

TEST(MergeUnits, ATextThatIsNoNumberStays) {
    for (const char* text : {"", "none", "25 x 40", "3mm", "1,5", "inf", "nan", "0x10", "1e999"})
        EXPECT_EQ(Convert(Parameter(1, Value(text)), Inch, Millimetre).values, text);
    EXPECT_EQ(Convert(Parameter(1, Value(" 2\n")), Inch, Millimetre).values, "50.800000");
    EXPECT_EQ(Convert(Parameter(31, Value("1e307")), Metre, Millimetre).values, "1e307");
}

TEST(MergeUnits, OnlyTheFirstValueIsConvertedAndTheRestIsTold) {
    const Conversion result = Convert(Parameter(1, Value("1") + Value("2") + Value("3")), Inch, Millimetre);
    EXPECT_EQ(result.values, "25.400000|2|3");
    EXPECT_EQ(result.losses, Losses{MergeMoreValues});
}

TEST(MergeUnits, AFirstValueThatIsTextLeavesTheOthers) {
    EXPECT_EQ(Convert(Parameter(1, Value("a") + Value("b")), Inch, Millimetre).losses, Losses());
    const Conversion result = Convert(Parameter(1, Value("a") + Value("2")), Inch, Millimetre);
    EXPECT_EQ(result.values, "a|2");
    EXPECT_EQ(result.losses, Losses{MergeMoreValues});
}

TEST(MergeUnits, CutFiguresAreTold) {
    const Conversion result = Convert(Parameter(1, Value("10")), Millimetre, Inch);
    EXPECT_EQ(result.values, "0.393701");
    EXPECT_EQ(result.losses, Losses{MergeFiguresCut});
    EXPECT_EQ(Convert(Parameter(1, Value("0.00000004")), Inch, Millimetre).losses, Losses{MergeFiguresCut});
}

TEST(MergeUnits, AFixedCorrectionStaysAndIsTold) {
    EXPECT_EQ(Convert(Parameter(1, Value("1"), " CorrectionValue='1.0000000000'"), Inch, Millimetre).losses,
              Losses{MergeCorrectionStays});
    EXPECT_EQ(Convert(Parameter(1, Value("1"), " CorrectionValue='0.0000000000'"), Inch, Millimetre).losses,
              Losses());
}

TEST(MergeUnits, LengthsOfChildChecksStayAndAreTold) {
    const CString child = "<Check>" + Parameter(1, Value("1")) + "</Check>";
    const Conversion result = Convert(child + Parameter(1, Value("1")), Inch, Millimetre);
    EXPECT_EQ(result.values, "1|25.400000");
    EXPECT_EQ(result.losses, Losses{MergeChildrenStay});
    EXPECT_EQ(Convert("<Check>" + Parameter(2, Value("1")) + "</Check>", Inch, Millimetre).losses, Losses());
}

TEST(MergeUnits, AParameterWithoutValueOrKindIsPassedOver) {
    EXPECT_EQ(
        Convert(Parameter(1, {}) + "text<!-- c --><Parameter><Value>2</Value></Parameter>", Inch, Millimetre)
            .values,
        "2");
}
