#include "editing/UnitSettings.h"

#include "engines/UnitConvertor.h"
#include "platform/LanguageLibrary.h"
#include "support/CheckNumbers.h"

#include <gtest/gtest.h>
#include <memory>

TEST(UnitSettings, AChangeOfUnitRewritesTheValueAndItsLabel) {
    QLineEdit value("1, 2 ,x");
    QLabel label("before");
    CUnitSettings settings(&value, &label, 0, DimensionLength);
    settings.ApplyUnitChange(Centimetre, Millimetre);
    EXPECT_EQ(value.text(), "10 , 20");
    EXPECT_EQ(label.text(), LoadString(2010));
    EXPECT_FALSE(label.text().isEmpty());
}

TEST(UnitSettings, AVolumesLabelGetsItsPowerOnlyWithAChange) {
    QLineEdit value("1");
    QLabel label("mm");
    CUnitSettings settings(&value, &label, 2, DimensionLength);
    EXPECT_EQ(label.text(), "mm");
    settings.ApplyUnitChange(Centimetre, Millimetre);
    EXPECT_EQ(label.text(), LoadString(2010) + "^3");
    EXPECT_EQ(value.text(), "1000");
}

TEST(UnitSettings, AnAnglesLabelIsTheUnitsName) {
    QLineEdit value("0");
    QLabel label;
    CUnitSettings(&value, &label, 0, DimensionAngle).ApplyUnitChange(Degree, Radian);
    EXPECT_EQ(label.text(), LoadString(1636));
    EXPECT_EQ(value.text(), "0.0");
}

TEST(UnitSettings, AMissingControlIsLeftOut) {
    QLineEdit value("1");
    QLabel label;
    CUnitSettings(nullptr, &label, 0, DimensionLength).ApplyUnitChange(Centimetre, Millimetre);
    EXPECT_EQ(label.text(), LoadString(2010));
    CUnitSettings(&value, nullptr, 0, DimensionLength).ApplyUnitChange(Centimetre, Millimetre);
    EXPECT_EQ(value.text(), "10");
}

TEST(UnitSettings, ControlsMayGoBeforeTheSettings) {
    auto value = std::make_unique<QLineEdit>("1");
    auto label = std::make_unique<QLabel>();
    CUnitSettings settings(value.get(), label.get(), 0, DimensionLength);
    value.reset();
    label.reset();
    settings.ApplyUnitChange(Centimetre, Millimetre);
    EXPECT_TRUE(settings.ValueControl.isNull());
    EXPECT_TRUE(settings.LabelControl.isNull());
}
