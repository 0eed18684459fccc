#include "engines/UnitText.h"

#include "Units.h"
#include "engines/UnitConvertor.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>

namespace {

constexpr unsigned long Plain = 0, Squared = 1, Cubed = 2;

CString Lengths(const CString& text, unsigned long power = Plain) {
    return ConvertValueText(text, power, DimensionLength, Centimetre, Millimetre);
}

} // namespace

TEST(UnitText, EachNumberOfAListIsConverted) {
    EXPECT_EQ(Lengths("1.25"), "12.5");
    EXPECT_EQ(Lengths("1,2,,3"), "10 , 20 , 30");
    EXPECT_EQ(Lengths(" -1 , 2e1 "), "-10 , 200");
}

TEST(UnitText, WhatIsNoNumberIsDropped) {
    EXPECT_EQ(Lengths("1, 2 ,x"), "10 , 20");
    EXPECT_EQ(Lengths("x,1"), "10");
    EXPECT_EQ(Lengths("x"), "");
    EXPECT_EQ(Lengths(""), "");
}

TEST(UnitText, AreasConvertTwiceAndVolumesThreeTimes) {
    EXPECT_EQ(Lengths("1", Plain), "10");
    EXPECT_EQ(Lengths("1", Squared), "100");
    EXPECT_EQ(Lengths("1", Cubed), "1000");
    EXPECT_EQ(Lengths("1", 3), "10");
}

TEST(UnitText, ZeroKeepsOneDecimal) {
    EXPECT_EQ(Lengths("0"), "0.0");
    EXPECT_EQ(Lengths("-0"), "0.0");
    EXPECT_EQ(Lengths("0,1"), "0.0 , 10");
    EXPECT_EQ(ConvertValueText("0", Plain, DimensionLength, Metre, Metre), "0.0");
}

TEST(UnitText, ANumberBelowTheDecimalsIsAPlainZero) {
    EXPECT_EQ(ConvertValueText("0.000000001", Plain, DimensionLength, Millimetre, Metre), "0");
}

TEST(UnitText, AnglesUseTheAngleUnits) {
    EXPECT_EQ(ConvertValueText("2", Plain, DimensionAngle, Degree, Minute), "120");
    EXPECT_EQ(ConvertValueText("1", Plain, DimensionAngle, Radian, Degree), "57.2957795131");
}

// A text has ten decimals, so half of the last one may be lost on either way.
TEST(UnitText, EveryLengthUnitTextComesBackUpToItsDecimals) {
    constexpr double Start = 5000, Half = 0.5e-10;
    for (unsigned long from = 0; from < 11; ++from)
        for (unsigned long to = 0; to < 11; ++to) {
            const CString there = ConvertValueText("5000", Plain, DimensionLength, from, to);
            double back = 0;
            ASSERT_TRUE(ParseDouble(ConvertValueText(there, Plain, DimensionLength, to, from), back));
            const double lost = Half * CUnitConvertor().Convert(1, DimensionLength, to, from) + Half;
            EXPECT_NEAR(back, Start, lost + Start * 1e-15) << from << " to " << to;
        }
}

TEST(UnitText, LengthLabelsShowTheShortFormWithItsPower) {
    const CString suffix = LoadString(2010);
    EXPECT_EQ(UnitLabelText(Plain, DimensionLength, Millimetre), suffix);
    EXPECT_EQ(UnitLabelText(Squared, DimensionLength, Millimetre), suffix + "^2");
    EXPECT_EQ(UnitLabelText(Cubed, DimensionLength, Millimetre), suffix + "^3");
    EXPECT_EQ(UnitLabelText(3, DimensionLength, Millimetre), suffix);
    EXPECT_EQ(UnitLabelText(Plain, DimensionNone, Millimetre), suffix);
    EXPECT_EQ(UnitLabelText(Plain, DimensionLength, FootAndInch), "");
}

TEST(UnitText, AngleLabelsShowTheNameWithoutPower) {
    EXPECT_EQ(UnitLabelText(Squared, DimensionAngle, Degree), LoadString(1633));
    EXPECT_EQ(UnitLabelText(Plain, DimensionAngle, Radian), LoadString(1636));
    EXPECT_EQ(UnitLabelText(Plain, DimensionAngle, Minute), "");
}
