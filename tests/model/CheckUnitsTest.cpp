#include "engines/UnitConvertor.h"
#include "model/Check.h"
#include "support/CheckNumbers.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

namespace {

double Converted(int type, unsigned id, double value) {
    CCheck check(type, 0, 0, 0, 1);
    check.GetDoubleParameter(id)->Values.Add(value);
    check.ConvertUnits(Centimetre, Millimetre, Degree, Radian);
    return check.GetDoubleParameter(id)->Values[0];
}

} // namespace

TEST(CheckUnits, EachValueOfALengthIsConverted) {
    CCheck check(102, 0, 0, 0, 1);
    CParameter<double>& lengths = *check.GetDoubleParameter(1552);
    lengths.Values.Add(1.0);
    lengths.Values.Add(25.4);
    lengths.Correction = 25.4;
    check.ConvertUnits(Millimetre, Inch, Degree, Radian);
    EXPECT_NEAR(lengths.Values[0], 1 / 25.4, 1e-12);
    EXPECT_NEAR(lengths.Values[1], 1.0, 1e-12);
    EXPECT_EQ(lengths.Correction, 25.4) << "the correction stays";
}

TEST(CheckUnits, VolumeIsConvertedThreeTimes) {
    EXPECT_NEAR(Converted(607, 1754, 2.0), 2000.0, 1e-9);
}

TEST(CheckUnits, AngleFollowsTheAngleUnit) {
    EXPECT_NEAR(Converted(409, 2309, 57.295779513082), 1.0, 1e-12);
}

TEST(CheckUnits, BothStepsAreTakenEvenWithinOneUnit) {
    CCheck check(102, 0, 0, 0, 1);
    CParameter<double>& lengths = *check.GetDoubleParameter(1552);
    lengths.Values.Add(0.3);
    check.ConvertUnits(Inch, Inch, Degree, Degree);
    EXPECT_EQ(lengths.Values[0], CUnitConvertor().Convert(0.3, DimensionLength, Inch, Inch));
}

TEST(CheckUnits, TextOfALengthListAndOtherValuesStay) {
    CCheck check(302, 0, 0, 0, 1);
    check.GetLongParameter(1618)->Values.Add(5);
    check.GetStringParameter(2498)->Values.Add(new CString("12"));
    check.GetStringParameter(2498)->ParameterType = 1;
    check.ConvertUnits(Millimetre, Inch, Degree, Radian);
    EXPECT_EQ(check.GetLongParameter(1618)->Values[0], 5);
    EXPECT_EQ(*check.GetStringParameter(2498)->Values[0], "12");
}

TEST(CheckUnits, DoubleThatIsNoMeasureStays) {
    CCheck check(102, 0, 0, 0, 1);
    CParameter<double>& plain = *check.GetDoubleParameter(1553);
    plain.ParameterType = 0;
    plain.Values.Add(3.5);
    check.ConvertUnits(Millimetre, Inch, Degree, Radian);
    EXPECT_EQ(plain.Values[0], 3.5);
}
