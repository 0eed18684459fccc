// A standard with a check of every type, every parameter of which is in force.
#pragma once

#include "model/Standard.h"

// The values go through the lists of their kinds and the operators through all comparisons.
void FillStandard(CStandard& standard);

// A live check of the type whose parameter `id` has these values, in the text form of a file.
CCheck& AddCheckWith(CStandard& standard, MQC_CheckType_e type, unsigned id, OperatorCode op,
                     const CStringArray& values);

// Gives a check's parameter operator and values.
void SetParameter(CCheck& check, unsigned id, OperatorCode op, const CStringArray& values);
