#include "files/DateForms.h"

#include "support/FixedSession.h"

#include <gtest/gtest.h>

namespace {

const COleDateTime Afternoon(QDate(2026, 3, 5), QTime(14, 7, 9));

CString TimeAt(const char* language, int hour, int minute) {
    return FormatTimeForLanguage(language, COleDateTime(QDate(2026, 3, 5), QTime(hour, minute, 9)));
}

} // namespace

TEST(DateForms, DateByLanguage) {
    EXPECT_EQ(FormatDateForLanguage("Chinese-Simplified", Afternoon), "2026/03/05");
    for (const char* language : {"Russian", "Spanish", "French"})
        EXPECT_EQ(FormatDateForLanguage(language, Afternoon), "05/03/26");
    EXPECT_EQ(FormatDateForLanguage("German", Afternoon), "05.03.26");
    for (const char* language : {"English", "Chinese", "Korean", "Italian", ""})
        EXPECT_EQ(FormatDateForLanguage(language, Afternoon), "03/05/2026");
}

TEST(DateForms, JapaneseYearsAreCountedFrom1988) {
    EXPECT_EQ(FormatDateForLanguage("Japanese", Afternoon), "38/03/05");
    EXPECT_EQ(FormatDateForLanguage("Japanese", COleDateTime(QDate(1995, 12, 31), QTime())), "07/12/31");
    EXPECT_EQ(FormatDateForLanguage("Japanese", COleDateTime(QDate(2099, 1, 1), QTime())), "111/01/01");
}

TEST(DateForms, ShortYearHasTwoDigits) {
    EXPECT_EQ(FormatDateForLanguage("French", COleDateTime(QDate(2107, 11, 23), QTime())), "23/11/07");
}

TEST(DateForms, TimeByLanguage) {
    EXPECT_EQ(FormatTimeForLanguage("Chinese-Simplified", Afternoon), "2:07pm");
    for (const char* language : {"Russian", "Spanish", "German", "French"})
        EXPECT_EQ(FormatTimeForLanguage(language, Afternoon), "2.07pm");
    for (const char* language : {"English", "Chinese", "Korean", "Japanese", ""})
        EXPECT_EQ(FormatTimeForLanguage(language, Afternoon), "14:07:09");
}

TEST(DateForms, TwelveHoursAndTheirHalves) {
    EXPECT_EQ(TimeAt("German", 0, 0), "12.00am");
    EXPECT_EQ(TimeAt("German", 1, 30), "1.30am");
    EXPECT_EQ(TimeAt("German", 11, 59), "11.59am");
    EXPECT_EQ(TimeAt("German", 12, 0), "12.00pm");
    EXPECT_EQ(TimeAt("German", 13, 5), "1.05pm");
    EXPECT_EQ(TimeAt("German", 23, 59), "11.59pm");
    EXPECT_EQ(TimeAt("English", 0, 0), "00:00:09");
}

TEST(DateForms, LanguageIsComparedWithoutCase) {
    EXPECT_EQ(FormatDateForLanguage("gERMAN", Afternoon), "05.03.26");
    EXPECT_EQ(FormatTimeForLanguage("chinese-simplified", Afternoon), "2:07pm");
    EXPECT_EQ(FormatDateForLanguage("JAPANESE", Afternoon), "38/03/05");
}

TEST(DateForms, NowIsDateBlankTime) {
    EXPECT_EQ(FormatNowForLanguage("English", Afternoon), "03/05/2026 14:07:09");
    const FixedSession session("user", Afternoon);
    EXPECT_EQ(FormatNowForLanguage("German"), "05.03.26 2.07pm");
}

TEST(Session, UserIsNamedAndTheClockRuns) {
    EXPECT_FALSE(SessionUser().isEmpty());
    const COleDateTime before = QDateTime::currentDateTime();
    EXPECT_GE(SessionNow(), before);
    const FixedSession session("designer", Afternoon);
    EXPECT_EQ(SessionUser(), "designer");
    EXPECT_EQ(SessionNow(), Afternoon);
}
