// The words around a comparison: boxes of operators and fields of the numbers that are compared with.
#pragma once

#include "platform/Text.h"

CString OperatorText(unsigned code);              // a row of the box
CString ComparisonName(const CString& parameter); // what the box is called for those who cannot see it

inline constexpr char NumberListCharacters[] = "1234567890,."; // what a field of several numbers takes
