// A value box as a dialog runs it: the text is checked, and repaired, after every key.
#pragma once

#include "engines/ActiveUnit.h"
#include "engines/ValidateEngine.h"
#include "platform/LanguageLibrary.h"
#include "support/Messages.h"

#include <initializer_list>

class ValueBox {
public:
    explicit ValueBox(const CString& comparison, bool isLength = false)
        : m_operator(comparison), m_isLength(isLength) {}

    // Puts in `keys` one by one at the end of the text.
    ValueBox& Type(const CString& keys) {
        for (const QChar key : keys)
            Paste(key);
        return *this;
    }

    // Puts in the whole text at once.
    ValueBox& Paste(const CString& more) {
        text += more;
        stands = CValidateEngine().ValidateEntry(m_operator, text, m_isLength);
        return *this;
    }

    CString text;
    bool stands = true; // what the last check said
    Messages messages;

private:
    CString m_operator;
    bool m_isLength;
};

// Makes a unit that of the document in front.
class UnitInFront {
public:
    explicit UnitInFront(int unit) {
        SetActiveLengthUnitProvider([unit] { return unit; });
    }
    ~UnitInFront() { SetActiveLengthUnitProvider({}); }
    UnitInFront(const UnitInFront&) = delete;
    UnitInFront& operator=(const UnitInFront&) = delete;
};

inline CStringArray Texts(std::initializer_list<unsigned> ids) {
    CStringArray texts;
    for (const unsigned id : ids)
        texts.append(LoadString(id));
    return texts;
}

inline CString Between() {
    return LoadString(1657);
}

inline CString OneOf() {
    return LoadString(1658);
}

inline CString NoneOf() {
    return LoadString(1659);
}
