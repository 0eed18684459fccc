#include "files/DateForms.h"

namespace {

// Years of the Japanese era that the form counts in, for good.
constexpr int JapaneseEra = 1988;

bool IsOneOf(const CString& language, const CStringArray& names) {
    return names.contains(language, Qt::CaseInsensitive);
}

CString Padded(int number, int digits) {
    return QString::number(number).rightJustified(digits, u'0');
}

} // namespace

CString FormatDateForLanguage(const CString& language, const COleDateTime& when) {
    const QDate date = when.date();
    const CString year = Padded(date.year(), 4);
    const CString shortYear = Padded(date.year() % 100, 2);
    const CString month = Padded(date.month(), 2);
    const CString day = Padded(date.day(), 2);
    if (IsOneOf(language, {"Chinese-Simplified"}))
        return year + "/" + month + "/" + day;
    if (IsOneOf(language, {"Russian", "Spanish", "French"}))
        return day + "/" + month + "/" + shortYear;
    if (IsOneOf(language, {"German"}))
        return day + "." + month + "." + shortYear;
    if (IsOneOf(language, {"Japanese"}))
        return Padded(date.year() - JapaneseEra, 2) + "/" + month + "/" + day;
    return month + "/" + day + "/" + year;
}

CString FormatTimeForLanguage(const CString& language, const COleDateTime& when) {
    const QTime time = when.time();
    const int hour = time.hour() > 12 ? time.hour() - 12 : time.hour() == 0 ? 12 : time.hour();
    const CString suffix = time.hour() >= 12 ? "pm" : "am";
    const CString minutes = Padded(time.minute(), 2);
    if (IsOneOf(language, {"Chinese-Simplified"}))
        return QString::number(hour) + ":" + minutes + suffix;
    if (IsOneOf(language, {"Russian", "Spanish", "German", "French"}))
        return QString::number(hour) + "." + minutes + suffix;
    return Padded(time.hour(), 2) + ":" + minutes + ":" + Padded(time.second(), 2);
}

CString FormatNowForLanguage(const CString& language, const COleDateTime& when) {
    return FormatDateForLanguage(language, when) + " " + FormatTimeForLanguage(language, when);
}
