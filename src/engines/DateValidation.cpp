// Texts of dates, month/day/year, separated by commas.
#include "engines/EntryForm.h"
#include "engines/TextServices.h"
#include "engines/ValidateEngine.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"

bool CValidateEngine::ValidateDateEntry(const CString& operatorText, const CString& valueText) {
    if (valueText.isEmpty())
        return true;
    gtStrtok dates(valueText, ",");
    const EntryForm form = FormOf(operatorText);
    const bool isRange = form == EntryForm::Range;
    const bool isSingle = !isRange && form != EntryForm::List;
    if ((isRange && dates.GetCount() > 2) || (isSingle && dates.GetCount() > 1)) {
        ShowMessage(LoadString(isRange ? 1979 : 1978));
        return false;
    }
    if (isSingle)
        return IsValidDate(dates.GetToken(0));
    for (int i = 0; i < dates.GetCount(); ++i)
        if (!IsValidDate(dates.GetToken(i)))
            return false;
    return true;
}

bool CValidateEngine::IsValidDate(const CString& dateText) {
    gtStrtok parts(dateText, "/");
    long month = 0, day = 0, year = 0;
    const bool valid = parts.GetCount() == 3 && ParseLong(parts.GetToken(0), month) &&
                       ParseLong(parts.GetToken(1), day) && ParseLong(parts.GetToken(2), year) &&
                       month <= 12 && day <= 31 && year >= 1000 && year <= 9999;
    if (!valid)
        ShowMessage(LoadString(2044));
    return valid;
}
