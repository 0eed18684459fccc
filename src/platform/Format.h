// Numbers to text and back, always in the C locale: a desktop with a decimal comma must not reach a file.
#pragma once

#include "platform/Text.h"

CString FormatInt(long value);                   // "%d", "%ld"
CString FormatUnsigned(unsigned long value);     // "%u" of the low 32 bits
CString FormatDouble(double value);              // "%.10lf"
CString FormatFixed(double value, int decimals); // "%.<decimals>lf"; "%lf" and "%f" are 6
CString FormatScientific(double value,
                         int decimals); // "%.<decimals>le"; the exponent has at least two digits

// Each reads the number at the start of `text`, after any white space, and ignores what follows it.
// False, with `out` unchanged, where no number stands there. Whole numbers wrap to 32 bits, so that
// every value that was written as "%u" reads back; a double beyond the range becomes the largest one.
bool ParseInt(QStringView text, int& out);
bool ParseLong(QStringView text, long& out);
bool ParseUnsigned(QStringView text, unsigned long& out); // "%ld" into an unsigned number
bool ParseDouble(QStringView text, double& out);
