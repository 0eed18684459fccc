#include "engines/UnitConvertor.h"

#include <cmath>
#include <gtest/gtest.h>
#include <iterator>

namespace {

constexpr unsigned long LengthUnitCount = 11;
const CUnitConvertor Convertor;

void ExpectNear(double actual, double expected) {
    EXPECT_NEAR(actual, expected, std::abs(expected) * 1e-14);
}

} // namespace

TEST(UnitConvertor, EachLengthUnitHasItsFactorPerMetre) {
    const double factors[LengthUnitCount] = {
        1000, 100, 1,   39.370078740157, 3.2808398950131, 39.370078740157,
        1e10, 1e9, 1e6, 39370.078740157, 39370078.740157};
    for (unsigned long unit = 0; unit < LengthUnitCount; ++unit) {
        EXPECT_EQ(Convertor.ConvertFromBase(2.5, unit, DimensionLength), 2.5 * factors[unit]) << unit;
        EXPECT_EQ(Convertor.ConvertToBase(2.5, unit, DimensionLength), 2.5 / factors[unit]) << unit;
    }
}

TEST(UnitConvertor, EachAngleUnitHasItsFactorPerRadian) {
    const double factors[] = {57.295779513082, 3437.7467707849, 206264.8062471, 1, 1};
    for (unsigned long unit = 0; unit < std::size(factors); ++unit) {
        EXPECT_EQ(Convertor.ConvertFromBase(2.5, unit, DimensionAngle), 2.5 * factors[unit]) << unit;
        EXPECT_EQ(Convertor.ConvertToBase(2.5, unit, DimensionAngle), 2.5 / factors[unit]) << unit;
    }
}

TEST(UnitConvertor, EveryPairOfLengthUnitsComesBackUpToRounding) {
    for (unsigned long from = 0; from < LengthUnitCount; ++from)
        for (unsigned long to = 0; to < LengthUnitCount; ++to) {
            const double there = Convertor.Convert(12.75, DimensionLength, from, to);
            ExpectNear(Convertor.Convert(there, DimensionLength, to, from), 12.75);
        }
}

TEST(UnitConvertor, InchesAreTheNumberOfFootAndInch) {
    ExpectNear(Convertor.Convert(1.0, DimensionLength, 3, 5), 1.0);
}

TEST(UnitConvertor, ConversionAlwaysTakesBothSteps) {
    const double inch = 39.370078740157;
    for (const double value : {0.1, 0.3, 0.7, 1.1, 12.7})
        EXPECT_EQ(Convertor.Convert(value, DimensionLength, 3, 3), value / inch * inch);
}

TEST(UnitConvertor, DimensionsWithoutUnitsLeaveTheValue) {
    for (const unsigned long dimension : {0UL, 10UL})
        for (unsigned long from = 0; from < 12; ++from)
            for (unsigned long to = 0; to < 12; ++to)
                EXPECT_EQ(Convertor.Convert(0.1, dimension, from, to), 0.1);
}

TEST(UnitConvertor, AnyOtherDimensionIsALength) {
    for (const unsigned long dimension : {1UL, 4UL, 9UL, 11UL})
        EXPECT_EQ(Convertor.ConvertFromBase(1, 0, dimension), 1000);
}

TEST(UnitConvertor, UnknownUnitsLeaveTheValue) {
    for (const unsigned long unit : {11UL, 1000UL, 0xFFFFFFFFUL, ~0UL}) {
        EXPECT_EQ(Convertor.ConvertFromBase(0.1, unit, DimensionLength), 0.1);
        EXPECT_EQ(Convertor.ConvertToBase(0.1, unit, DimensionLength), 0.1);
        EXPECT_EQ(Convertor.ConvertFromBase(0.1, unit, DimensionAngle), 0.1);
    }
}

TEST(UnitConvertor, MassesGoFromUnitToUnit) {
    const double fromMilligram[] = {3, 3.0 / 1000, 3.0 / 1000000, 3 * 2.2046224760379583e-06};
    const double fromGram[] = {3000, 3, 3.0 / 1000, 3 * 0.0022046224760379584};
    const double fromKilogram[] = {3000000, 3000, 3, 3 * 2.2046224760379585};
    const double fromPound[] = {3 * 453592.4, 3 * 453.5924, 3 * 0.4535924, 3};
    for (unsigned long to = 1; to <= 4; ++to) {
        EXPECT_EQ(Convertor.ConvertMass(3, 1, to), fromMilligram[to - 1]) << to;
        EXPECT_EQ(Convertor.ConvertMass(3, 2, to), fromGram[to - 1]) << to;
        EXPECT_EQ(Convertor.ConvertMass(3, 3, to), fromKilogram[to - 1]) << to;
        EXPECT_EQ(Convertor.ConvertMass(3, 4, to), fromPound[to - 1]) << to;
    }
}

TEST(UnitConvertor, UnknownMassUnitsGiveZero) {
    for (const unsigned long unit : {0UL, 5UL, 0xFFFFFFFFUL}) {
        EXPECT_EQ(Convertor.ConvertMass(3, unit, 1), 0.0);
        EXPECT_EQ(Convertor.ConvertMass(3, 1, unit), 0.0);
        EXPECT_EQ(Convertor.ConvertMass(3, unit, unit), 0.0);
    }
}

TEST(UnitConvertor, RadiansAndDegreesConvertForUnitThreeOnly) {
    EXPECT_EQ(Convertor.RadiansToDegrees(2, 3), 2 * 57.2957779);
    EXPECT_EQ(Convertor.DegreesToRadians(2, 3), 2 / 57.2957779);
    EXPECT_EQ(Convertor.RadiansToDegrees(2, 0), 2);
    EXPECT_EQ(Convertor.DegreesToRadians(2, 0), 2);
}
