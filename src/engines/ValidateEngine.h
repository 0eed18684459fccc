// Watches what the user types into the value box beside a comparison operator, keystroke by keystroke.
// It repairs what it can in place and tells the rest in a message. Separator is the comma, decimal mark
// the point. It holds no state: each call stands alone.
#pragma once

#include "platform/Text.h"

class CValidateEngine {
public:
    virtual ~CValidateEngine() = default;

    // Called on every change of the value box. `isLength` is set when the value is a length in the
    // document's unit, clear for a plain number. True when the text, as it now reads, may stand.
    bool ValidateEntry(const CString& operatorText, CString& valueText, bool isLength);

    // Called when another operator is chosen: makes the text fit the number of values it takes. Always true.
    bool NormalizeForOperator(const CString& operatorText, CString& valueText);

    // Checks a text of dates.
    bool ValidateDateEntry(const CString& operatorText, const CString& valueText);

    // Checks one date, month/day/year. The day may be up to 31 in every month, the year is 1000 to 9999.
    bool IsValidDate(const CString& dateText);

    // Removes all blanks from the text and looks for the first character that may not stand in it.
    // `badPosition` takes its position in the text without blanks, or -1 for an unknown operator.
    bool CheckCharacters(const CString& operatorText, CString& valueText, int& badPosition);

    // Checks each value against its bounds. A plain number out of bounds is cut to six characters, a
    // length is emptied. What is not a number is dropped, but where nothing is one, the text stands.
    bool CheckRange(CString& valueText, bool isLength);
};
