// Date and time of the header, in the form of the user interface's language. Languages are compared without
// regard to case; the default of `when` is the local time now.
#pragma once

#include "platform/Session.h"

CString FormatDateForLanguage(const CString& language, const COleDateTime& when = SessionNow());
CString FormatTimeForLanguage(const CString& language, const COleDateTime& when = SessionNow());
// The date, one blank, the time.
CString FormatNowForLanguage(const CString& language, const COleDateTime& when = SessionNow());
