#include "engines/TrailingZeros.h"

#include <gtest/gtest.h>

namespace {

CString Stripped(CString text) {
    StripTrailingZeros(text);
    return text;
}

} // namespace

TEST(TrailingZeros, DecimalsLoseTheirLastZerosAndABarePoint) {
    EXPECT_EQ(Stripped("1.500"), "1.5");
    EXPECT_EQ(Stripped("2.000"), "2");
    EXPECT_EQ(Stripped("100.0"), "100");
    EXPECT_EQ(Stripped("0.0000000000"), "0");
    EXPECT_EQ(Stripped("7."), "7");
}

TEST(TrailingZeros, WithoutAPointBehindTheFirstCharacterNothingChanges) {
    EXPECT_EQ(Stripped("10"), "10");
    EXPECT_EQ(Stripped(".500"), ".500");
    EXPECT_EQ(Stripped("."), ".");
    EXPECT_EQ(Stripped("0"), "0");
    EXPECT_EQ(Stripped(""), "");
}
