#include "editing/ComparisonTexts.h"

#include "engines/UIUtilities.h"
#include "platform/LanguageLibrary.h"

CString OperatorText(unsigned code) {
    CString text;
    CUIUtilities().OperatorText(static_cast<int>(code), text);
    return text;
}

CString ComparisonName(const CString& parameter) {
    constexpr unsigned ComparisonOf = 62120; // %1 the parameter
    return LoadString(ComparisonOf).arg(parameter);
}
