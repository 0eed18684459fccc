#include "engines/HoleNames.h"

#include <gtest/gtest.h>

TEST(HoleNames, EveryCodeOfTheTableHasItsName) {
    EXPECT_STREQ(HoleNameOf(0), "Binding Head Screw");
    EXPECT_STREQ(HoleNameOf(14), "Flat Head Screw (100)");
    EXPECT_STREQ(HoleNameOf(250), "Straight Pipe Tapped hole");
    EXPECT_STREQ(HoleNameOf(351), "Conduit Tapped Hole");
    EXPECT_STREQ(HoleNameOf(373), "Cross recessed raised countersunk head tapping screws GB/T 847-1985");
    EXPECT_STREQ(HoleNameOf(77777), "Hex Socket Head - DIN 6912");
}

TEST(HoleNames, CodesOutsideTheTableHaveNone) {
    for (const std::uint32_t key : {246U, 251U, 350U, 357U, 374U, 77776U, 77778U, 4294967295U})
        EXPECT_STREQ(HoleNameOf(key), "") << key;
}

TEST(HoleNames, TwoHundredAndSeventyThreeCodesHaveAName) {
    int named = 0;
    for (std::uint32_t key = 0; key <= 80000; ++key)
        named += *HoleNameOf(key) != '\0';
    EXPECT_EQ(named, 273);
}
