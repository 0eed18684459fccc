// How the correction of a parameter, the value to which the checker sets a failing item, goes between a check
// and the control that shows it, and how it follows a change of the requirement.
#pragma once

#include "editing/CorrectionChoices.h"
#include "model/Standard.h"

// Sets a record from a parameter: the choices that its values give, and the correction it holds. The record
// is empty for a parameter that is missing or not in force.
void LoadCorrectionControl(const CCheck& check, unsigned parameterID, CorrectionChoices& record);

// Gives the parameter of a scratch check a correction that satisfies it: the one that the check of the same
// type in the standard holds, where it still does, else one made of the values.
void SeedCorrectionValue(const CStandard& standard, CCheck& scratch, unsigned parameterID);

// Writes the correction that a control shows into the parameter of a check. Where the parameter is not in
// force only a text is written. The record learns the operator of whole and decimal numbers.
void StoreCorrectionValue(CCheck& check, unsigned parameterID, CorrectionChoices& record);
