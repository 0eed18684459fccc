// What holds for any text in a value box, whatever is chosen beside it.
#pragma once

#include "engines/ActiveUnit.h"
#include "engines/UnitText.h"
#include "engines/ValidateEngine.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"

#include <QByteArray>
#include <array>
#include <string>

class ValueTextProperty {
public:
    // The first byte chooses the operator, the second the unit; the rest is the text. Result: what did not
    // hold, empty when all did.
    static std::string Try(const QByteArray& bytes) {
        if (bytes.size() < 2)
            return {};
        const MessageScope silence([](const CString&, MessageButtons) { return MessageAnswer::Ok; });
        const auto choice = static_cast<unsigned char>(bytes[0]);
        const int unit = static_cast<unsigned char>(bytes[1]) % 14 - 2;
        SetActiveLengthUnitProvider([unit] { return unit; });
        const ValueTextProperty property(OperatorText(choice), bytes[1] & 0x40,
                                         QString::fromUtf8(bytes.mid(2)));
        std::string problem = property.Settles();
        if (problem.empty())
            problem = property.FitsOperatorAtOnce();
        if (problem.empty())
            problem = property.SurvivesUnits(static_cast<unsigned>(unit));
        SetActiveLengthUnitProvider({});
        return problem;
    }

private:
    ValueTextProperty(const CString& operatorText, bool isLength, const CString& text)
        : m_operator(operatorText), m_isLength(isLength), m_text(text) {}

    static CString OperatorText(unsigned char choice) {
        const std::array<CString, 10> texts = {
            LoadString(1657), LoadString(1658), LoadString(1659), "<", ">", "<=", ">=", "=", "!=",
            "no operator"};
        return texts[choice % texts.size()];
    }

    // Each repair takes something away, so that repeating it comes to an end, with a text of numbers.
    std::string Settles() const {
        CString text = m_text;
        const qsizetype most = text.size() + 8;
        for (qsizetype i = 0; i <= most; ++i) {
            const CString before = text;
            CValidateEngine().ValidateEntry(m_operator, text, m_isLength);
            if (text == before)
                return IsMadeOfNumbers(text) ? ""
                                             : "what is left is no list of numbers: " + text.toStdString();
        }
        return "the text never settles: " + text.toStdString();
    }

    bool IsMadeOfNumbers(const CString& text) const {
        if (m_operator == "no operator")
            return text == m_text;
        const CString trimmed = text.trimmed();
        for (const QChar c : trimmed)
            if (!QStringView(u"0123456789., ").contains(c))
                return false;
        return true;
    }

    std::string FitsOperatorAtOnce() const {
        CString once = m_text;
        CValidateEngine().NormalizeForOperator(m_operator, once);
        CString twice = once;
        CValidateEngine().NormalizeForOperator(m_operator, twice);
        CValidateEngine().ValidateDateEntry(m_operator, m_text);
        return once == twice ? "" : "fitting the operator twice differs: " + twice.toStdString();
    }

    // Once converted, a text has its final form: converting it to the unit that it is in keeps its length.
    std::string SurvivesUnits(unsigned unit) const {
        const CString converted = ConvertValueText(m_text, 0, 2, unit, 2);
        const CString again = ConvertValueText(converted, 0, 2, 2, 2);
        const bool same = converted.count(u',') == again.count(u',') || converted.contains("inf");
        return same ? "" : "a conversion lost a value: " + converted.toStdString();
    }

    CString m_operator;
    bool m_isLength;
    CString m_text;
};
