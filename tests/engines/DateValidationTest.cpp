#include "engines/ValueBox.h"

#include <gtest/gtest.h>

namespace {

bool DatesStand(const CString& comparison, const CString& text) {
    return CValidateEngine().ValidateDateEntry(comparison, text);
}

} // namespace

TEST(OneDate, IsValidUpToTheTwelfthMonthAndTheThirtyFirstDay) {
    Messages messages;
    CValidateEngine engine;
    for (const char* date : {"12/31/1000", "1/1/9999", "0/0/2000", "2/31/2000", "-1/5/2000", " 1/ 2/ 2000",
                             "1//2//2000/", "1/2/2000x"})
        EXPECT_TRUE(engine.IsValidDate(date)) << date;
    EXPECT_TRUE(messages.texts.isEmpty());
}

TEST(OneDate, IsRefusedWithOneMessage) {
    for (const char* date : {"13/1/2000", "12/32/2000", "12/31/10000", "12/31/999", "1/2", "1/2/2000/4", "",
                             "a/2/2000", "1/b/2000", "1/2/c", "1.2.2000"}) {
        Messages messages;
        EXPECT_FALSE(CValidateEngine().IsValidDate(date)) << date;
        EXPECT_EQ(messages.texts, Texts({2044})) << date;
    }
}

TEST(DateText, EmptyTextIsValid) {
    for (const CString& comparison : {Between(), OneOf(), CString("="), CString()})
        EXPECT_TRUE(DatesStand(comparison, ""));
}

TEST(DateText, RangeTakesAtMostTwoDates) {
    Messages messages;
    EXPECT_TRUE(DatesStand(Between(), "1/1/2000"));
    EXPECT_TRUE(DatesStand(Between(), "1/1/2000,2/2/2001"));
    EXPECT_TRUE(DatesStand(Between(), ","));
    EXPECT_TRUE(messages.texts.isEmpty());
    EXPECT_FALSE(DatesStand(Between(), "1/1/2000,2/2/2001,x"));
    EXPECT_EQ(messages.texts, Texts({1979}));
}

TEST(DateText, ListTakesAnyNumberOfDates) {
    Messages messages;
    for (const CString& list : {OneOf(), NoneOf()})
        EXPECT_TRUE(DatesStand(list, "1/1/2000,2/2/2001,3/3/2002,"));
    EXPECT_TRUE(messages.texts.isEmpty());
}

TEST(DateText, StopsAtTheFirstBadDate) {
    for (const CString& comparison : {Between(), OneOf(), NoneOf()}) {
        Messages messages;
        EXPECT_FALSE(DatesStand(comparison, "13/1/2000,14/1/2000"));
        EXPECT_EQ(messages.texts, Texts({2044}));
    }
}

TEST(DateText, AnyOtherOperatorTakesOneDate) {
    Messages messages;
    EXPECT_TRUE(DatesStand("<", "1/1/2000"));
    EXPECT_TRUE(DatesStand("?", ",1/1/2000,"));
    EXPECT_TRUE(messages.texts.isEmpty());
    EXPECT_FALSE(DatesStand("=", "1/1/2000,2/2/2001"));
    EXPECT_FALSE(DatesStand("=", ","));
    EXPECT_EQ(messages.texts, Texts({1978, 2044}));
}
