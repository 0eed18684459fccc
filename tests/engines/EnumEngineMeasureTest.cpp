// Measured numbers and their units.
#include "engines/EnumEngine.h"

#include "Units.h"
#include "engines/ParameterKinds.h"
#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>
#include <iterator>

namespace {

constexpr unsigned long NoUnit = 0xFFFFFFFF;

CString Measured(int type, double value, unsigned long lengthUnit, unsigned long angleUnit = Degree) {
    CString text;
    EXPECT_TRUE(CEnumEngine().FormatMeasuredValue(type, value, lengthUnit, angleUnit, text));
    return text;
}

CString Bare(int type, double value, unsigned long lengthUnit) {
    CString text;
    EXPECT_FALSE(CEnumEngine().FormatMeasuredValue(type, value, lengthUnit, Degree, text));
    return text;
}

const CString& Cubic() {
    static const CString text = LoadString(2010) + "^3";
    return text;
}

} // namespace

TEST(EnumEngineMeasure, EveryLengthUnitButFootAndInchHasAShortForm) {
    const unsigned suffixes[] = {2010, 2011, 2012, 2015, 2016, 0, 1821, 1735, 1997, 2014, 2013};
    for (unsigned long unit = 0; unit < std::size(suffixes); ++unit) {
        CString text = "before";
        CEnumEngine().GetUnitSuffix(unit, text);
        EXPECT_EQ(text, LoadString(suffixes[unit])) << unit;
        EXPECT_EQ(text.isEmpty(), unit == FootAndInch) << unit;
    }
    CString text = "before";
    CEnumEngine().GetUnitSuffix(11, text);
    EXPECT_EQ(text, "");
}

TEST(EnumEngineMeasure, OnlyALengthGetsItsSuffixAppended) {
    CString text = "5";
    CEnumEngine().AppendUnitSuffix(KindLength, Metre, text);
    EXPECT_EQ(text, "5" + LoadString(2012));
    CEnumEngine().AppendUnitSuffix(KindAngle, Metre, text);
    CEnumEngine().AppendUnitSuffix(KindVolume, Metre, text);
    EXPECT_EQ(text, "5" + LoadString(2012));
}

TEST(EnumEngineMeasure, ALengthCarriesItsSuffixWithoutABlank) {
    EXPECT_EQ(Measured(KindLength, 2.5, Millimetre), "2.5" + LoadString(2010));
    EXPECT_EQ(Measured(KindLength, -0.00000000004, Millimetre), "-0" + LoadString(2010));
    EXPECT_EQ(Measured(KindLength, 100, Millimetre), "100" + LoadString(2010));
}

TEST(EnumEngineMeasure, FootAndInchHasNoSuffixSoTheNumberStandsAlone) {
    EXPECT_EQ(Measured(KindLength, 2.5, FootAndInch), "2.5");
}

TEST(EnumEngineMeasure, AnAngleCarriesItsUnitBehindABlank) {
    EXPECT_EQ(Measured(KindAngle, 30, Millimetre, Degree), "30 " + LoadString(1633));
    EXPECT_EQ(Measured(KindAngle, 30, Millimetre, Minute), "30 ");
}

TEST(EnumEngineMeasure, AnAngleWithoutALengthUnitIsABareNumber) {
    EXPECT_EQ(Bare(KindAngle, 2.5, NoUnit), "2.5");
    EXPECT_EQ(Bare(KindAngle, 2.5, static_cast<unsigned long>(-1)), "2.5");
}

TEST(EnumEngineMeasure, OtherTypesAreBareNumbers) {
    EXPECT_EQ(Bare(KindPlain, 2.5, Millimetre), "2.5");
    EXPECT_EQ(Bare(KindLength, 1.0 / 3, NoUnit), "0.3333333333");
}

TEST(EnumEngineMeasure, AVolumeFromOneOnHasTwoDecimals) {
    EXPECT_EQ(Measured(KindVolume, 1.0, Millimetre), "1" + Cubic());
    EXPECT_EQ(Measured(KindVolume, 1234.567, Millimetre), "1234.57" + Cubic());
    EXPECT_EQ(Measured(KindVolume, 2.5, FootAndInch), "2.5^3");
}

TEST(EnumEngineMeasure, ASmallVolumeRepeatsADigitBeforeItsExponent) {
    EXPECT_EQ(Measured(KindVolume, 0.0000123, Millimetre), "1.233e-05" + Cubic());
    EXPECT_EQ(Measured(KindVolume, 0.5, Millimetre), "50e-01" + Cubic());
    EXPECT_EQ(Measured(KindVolume, 0.0, Millimetre), "00e+00" + Cubic());
}

TEST(EnumEngineMeasure, ANegativeVolumeCountsAsSmall) {
    EXPECT_EQ(Measured(KindVolume, -12.3, Millimetre), "-1.2323e+01" + Cubic());
}
