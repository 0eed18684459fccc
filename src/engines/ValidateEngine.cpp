#include "engines/ValidateEngine.h"

#include "engines/EntryForm.h"
#include "engines/TextServices.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"

#include <utility>

namespace {

// Walks over a text without blanks, character by character.
class CharacterScan {
public:
    CharacterScan(EntryForm form, const CString& text) : m_form(form), m_text(text) {}

    // The message about the character at `at`, or 0 where it may stand.
    unsigned Judge(qsizetype at) {
        const QChar c = m_text[at];
        if (c >= u'0' && c <= u'9')
            return 0;
        if (c == u'.')
            return JudgePoint();
        if (c == u',' && m_form != EntryForm::Single)
            return JudgeComma(at);
        return 1977;
    }

private:
    unsigned JudgePoint() {
        if (!std::exchange(m_pointSeen, true))
            return 0;
        return m_form == EntryForm::Single ? 1978 : 1974;
    }

    // A comma after a value with a point passes without a look at what stands before it.
    unsigned JudgeComma(qsizetype at) {
        if (std::exchange(m_commaSeen, true) && m_form == EntryForm::Range)
            return 1979;
        if (std::exchange(m_pointSeen, false))
            return 0;
        if (at == 0)
            return 1976;
        return m_text[at - 1] == u',' ? 1975 : 0;
    }

    EntryForm m_form;
    const CString& m_text;
    bool m_pointSeen = false; // in the current value
    bool m_commaSeen = false; // in the whole text
};

// Cuts the character that has `position` in the text once the ends are trimmed and blanks removed.
void CutCharacter(CString& text, int position) {
    qsizetype at = 0;
    while (at < text.size() && text[at].isSpace())
        ++at;
    for (; at < text.size(); ++at)
        if (text[at] != u' ' && position-- == 0)
            break;
    const bool isPair = at + 1 < text.size() && text[at].isHighSurrogate() && text[at + 1].isLowSurrogate();
    text.remove(at, isPair ? 2 : 1);
}

// Nothing is less than a bound of zero or below. A point at the end is spared: the user is still typing.
void RaiseUpperBound(CString& text) {
    if (text.isEmpty() || text.endsWith(u'.'))
        return;
    double number = 0;
    ParseDouble(text, number);
    if (0.0 >= number)
        text = "1";
}

} // namespace

bool CValidateEngine::ValidateEntry(const CString& operatorText, CString& valueText, bool isLength) {
    int badPosition = -2;
    CString scanned = valueText;
    const bool valid = CheckCharacters(operatorText, scanned, badPosition);
    if (badPosition >= 0)
        CutCharacter(valueText, badPosition);
    if (operatorText == "<")
        RaiseUpperBound(valueText);
    return valid && CheckRange(valueText, isLength);
}

bool CValidateEngine::CheckCharacters(const CString& operatorText, CString& valueText, int& badPosition) {
    const auto refuse = [&badPosition](unsigned message, int position) {
        ShowMessage(LoadString(message));
        badPosition = position;
        return false;
    };
    const EntryForm form = FormOf(operatorText);
    if (form == EntryForm::Unknown)
        return refuse(1980, -1);
    valueText = valueText.trimmed().remove(u' ');
    CharacterScan scan(form, valueText);
    for (qsizetype at = 0; at < valueText.size(); ++at)
        if (const unsigned message = scan.Judge(at))
            return refuse(message, static_cast<int>(at));
    return true;
}

bool CValidateEngine::NormalizeForOperator(const CString& operatorText, CString& valueText) {
    gtStrtok values(valueText, ",");
    const EntryForm form = FormOf(operatorText);
    if (form == EntryForm::Range) {
        if (values.GetCount() == 0)
            valueText = "0,0";
        else if (values.GetCount() == 1)
            valueText = "0," + values.GetToken(0);
        else if (values.GetCount() > 2)
            valueText = values.GetToken(0) + "," + values.GetToken(1);
    } else if (operatorText == "<") {
        long number = 0;
        ParseLong(valueText, number);
        if (number <= 0)
            valueText = "1";
    } else if (form != EntryForm::List && values.GetCount() >= 2) {
        valueText = values.GetToken(0);
    }
    return true;
}
