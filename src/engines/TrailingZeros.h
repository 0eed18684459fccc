// The short form of a decimal number.
#pragma once

#include "platform/Text.h"

// Drops the zeros at the end, and then a point at the end, where a point stands behind the first character.
void StripTrailingZeros(CString& text);
