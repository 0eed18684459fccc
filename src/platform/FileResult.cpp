#include "platform/FileResult.h"

#include "platform/LanguageLibrary.h"

FileResult FileFailure(unsigned text, int error) {
    const CString said = error == 0 ? CString() : qt_error_string(error);
    CString reason = LoadString(text);
    if (reason.isEmpty())
        reason = said;
    else
        reason.replace("%1", said);
    return {false, reason};
}
