#include "engines/EntryForm.h"

#include "platform/LanguageLibrary.h"

EntryForm FormOf(const CString& operatorText) {
    if (operatorText == LoadString(1657))
        return EntryForm::Range;
    if (operatorText == LoadString(1658) || operatorText == LoadString(1659))
        return EntryForm::List;
    for (const char* single : {"<", ">", "<=", ">=", "=", "!="})
        if (operatorText == QLatin1String(single))
            return EntryForm::Single;
    return EntryForm::Unknown;
}
