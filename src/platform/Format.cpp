#include "platform/Format.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

namespace {

// The largest double has 309 digits before the point.
using DoubleBuffer = std::array<char, 400>;

CString FormatWith(double value, std::chars_format format, int decimals) {
    DoubleBuffer buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, decimals);
    return QString::fromLatin1(buffer.data(), result.ptr - buffer.data());
}

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

qsizetype SkipBlanks(QStringView text) {
    qsizetype at = 0;
    while (at < text.size() && text[at].isSpace())
        ++at;
    return at;
}

qsizetype SkipDigits(QStringView text, qsizetype at) {
    while (at < text.size() && IsDigit(text[at]))
        ++at;
    return at;
}

// Reads a whole number, saturating at 64 bits.
bool ParseWide(QStringView text, std::int64_t& out) {
    qsizetype at = SkipBlanks(text);
    bool negative = false;
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        negative = text[at++] == u'-';
    if (at >= text.size() || !IsDigit(text[at]))
        return false;
    constexpr std::int64_t Last = (std::numeric_limits<std::int64_t>::max() - 9) / 10;
    std::int64_t number = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at)
        number = number > Last ? std::numeric_limits<std::int64_t>::max() - 9
                               : number * 10 + (text[at].unicode() - u'0');
    out = negative ? -number : number;
    return true;
}

// The end of the decimal number that starts at `start`, or `start` where none does.
qsizetype EndOfDouble(QStringView text, qsizetype start) {
    qsizetype at = start;
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        ++at;
    const qsizetype whole = SkipDigits(text, at);
    qsizetype digits = whole - at;
    at = whole;
    if (at < text.size() && text[at] == u'.') {
        const qsizetype fraction = SkipDigits(text, at + 1);
        digits += fraction - (at + 1);
        at = fraction;
    }
    if (digits == 0)
        return start;
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        qsizetype exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == u'-' || text[exponent] == u'+'))
            ++exponent;
        const qsizetype end = SkipDigits(text, exponent);
        if (end > exponent)
            at = end;
    }
    return at;
}

// Whether a number that no double can hold is too small, and not too large.
bool IsTiny(const QByteArray& ascii) {
    const qsizetype exponent = ascii.toLower().indexOf('e');
    if (exponent >= 0)
        return ascii.mid(exponent + 1).startsWith('-');
    return ascii.startsWith("0.") || ascii.startsWith("-0.") || ascii.startsWith('.') ||
           ascii.startsWith("-.");
}

} // namespace

CString FormatInt(long value) {
    // Codes and flags, of which a file has hundreds of thousands, share their texts.
    static const std::array<CString, 256> small = [] {
        std::array<CString, 256> texts;
        for (size_t i = 0; i < texts.size(); ++i)
            texts[i] = QString::number(i);
        return texts;
    }();
    if (value >= 0 && value < static_cast<long>(small.size()))
        return small[static_cast<size_t>(value)];
    return QString::number(static_cast<qlonglong>(value));
}

CString FormatUnsigned(unsigned long value) {
    return QString::number(static_cast<std::uint32_t>(value));
}

CString FormatDouble(double value) {
    return FormatWith(value, std::chars_format::fixed, 10);
}

CString FormatFixed(double value, int decimals) {
    return FormatWith(value, std::chars_format::fixed, decimals);
}

CString FormatScientific(double value, int decimals) {
    return FormatWith(value, std::chars_format::scientific, decimals);
}

bool ParseInt(QStringView text, int& out) {
    std::int64_t number = 0;
    if (!ParseWide(text, number))
        return false;
    out = static_cast<std::int32_t>(static_cast<std::uint64_t>(number));
    return true;
}

bool ParseLong(QStringView text, long& out) {
    int number = 0;
    if (!ParseInt(text, number))
        return false;
    out = number;
    return true;
}

bool ParseUnsigned(QStringView text, unsigned long& out) {
    int number = 0;
    if (!ParseInt(text, number))
        return false;
    out = static_cast<std::uint32_t>(number);
    return true;
}

bool ParseDouble(QStringView text, double& out) {
    const qsizetype start = SkipBlanks(text);
    const qsizetype end = EndOfDouble(text, start);
    if (end == start)
        return false;
    QByteArray ascii = text.mid(start, end - start).toLatin1();
    if (ascii.startsWith('+'))
        ascii.remove(0, 1); // from_chars knows no plus sign
    double number = 0;
    const auto result = std::from_chars(ascii.constData(), ascii.constData() + ascii.size(), number);
    if (result.ec == std::errc::result_out_of_range) {
        number = IsTiny(ascii) ? 0.0 : std::numeric_limits<double>::max();
        if (ascii.startsWith('-'))
            number = -number;
    }
    out = number;
    return true;
}
