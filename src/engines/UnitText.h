// What a change of unit does to the text of a value and to the label beside it.
#pragma once

#include "platform/Text.h"

// `power` is 0 for a plain unit, 1 for its square, 2 for its cube; `dimension` as in CUnitConvertor.

// The comma-separated numbers of `text` in the new unit, joined with " , ". What does not read as a number
// is dropped. A result of exactly zero is "0.0"; any other has up to ten decimals.
CString ConvertValueText(const CString& text, unsigned long power, unsigned long dimension,
                         unsigned long oldUnit, unsigned long newUnit);

// The name of an angle unit, or the short form of a length unit with its power, such as "mm^2".
CString UnitLabelText(unsigned long power, unsigned long dimension, unsigned long unit);
