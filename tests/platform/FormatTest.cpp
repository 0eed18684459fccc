#include "platform/Format.h"

#include <gtest/gtest.h>

TEST(Format, NumbersNeverFollowTheDesktopsLocale) {
    EXPECT_EQ(FormatDouble(2.5), "2.5000000000");
    EXPECT_EQ(FormatFixed(1234567.125, 6), "1234567.125000");
    EXPECT_EQ(FormatScientific(0.0000123, 2), "1.23e-05");
    double value = 0;
    EXPECT_TRUE(ParseDouble(u" 2.5,7", value));
    EXPECT_EQ(value, 2.5);
}

TEST(Format, ParsingReadsTheLeadingNumberOnly) {
    int number = 7;
    EXPECT_TRUE(ParseInt(u"  -12abc", number));
    EXPECT_EQ(number, -12);
    EXPECT_FALSE(ParseInt(u"abc", number));
    EXPECT_FALSE(ParseInt(u"", number));
    EXPECT_EQ(number, -12);
    double value = 1;
    EXPECT_TRUE(ParseDouble(u"+1e2e3", value));
    EXPECT_EQ(value, 100);
    EXPECT_TRUE(ParseDouble(u"5.e", value));
    EXPECT_EQ(value, 5);
    EXPECT_FALSE(ParseDouble(u".", value));
    EXPECT_FALSE(ParseDouble(u"-", value));
    EXPECT_FALSE(ParseDouble(u"nan", value));
    EXPECT_FALSE(ParseDouble(u"inf", value));
}

TEST(Format, WholeNumbersWrapTo32Bits) {
    unsigned long colour = 0;
    EXPECT_TRUE(ParseUnsigned(u"4294967295", colour));
    EXPECT_EQ(colour, 4294967295UL);
    EXPECT_EQ(FormatUnsigned(colour), "4294967295");
    long number = 0;
    EXPECT_TRUE(ParseLong(u"4294967296", number));
    EXPECT_EQ(number, 0);
    EXPECT_TRUE(ParseLong(u"-99999999999999999999999", number));
}

TEST(Format, DoublesBeyondTheRangeBecomeTheLargestOrZero) {
    double value = 0;
    EXPECT_TRUE(ParseDouble(u"-1e999", value));
    EXPECT_EQ(value, -1.7976931348623157e308);
    EXPECT_TRUE(ParseDouble(u"1e-999", value));
    EXPECT_EQ(value, 0);
    double again = 1;
    EXPECT_TRUE(ParseDouble(FormatDouble(1.7976931348623157e308), again));
    EXPECT_EQ(again, 1.7976931348623157e308);
}
