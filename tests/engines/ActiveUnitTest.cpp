#include "engines/ActiveUnit.h"

#include <gtest/gtest.h>

TEST(ActiveUnit, WithoutADocumentThereIsNone) {
    EXPECT_EQ(ActiveLengthUnit(), NoActiveUnit);
}

TEST(ActiveUnit, IsAskedForAfreshEachTime) {
    int unit = 3;
    SetActiveLengthUnitProvider([&unit] { return unit; });
    EXPECT_EQ(ActiveLengthUnit(), 3);
    unit = 7;
    EXPECT_EQ(ActiveLengthUnit(), 7);
    SetActiveLengthUnitProvider({});
    EXPECT_EQ(ActiveLengthUnit(), NoActiveUnit);
}
