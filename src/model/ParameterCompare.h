// Copying one parameter onto another of the same place in a check of the same type.
#pragma once

#include "model/Parameter.h"

// Copies everything of the parameter, its values and correction deeply.
void AssignParameter(const CParameterEntry& from, CParameterEntry& to);

// The same for an edit; true if the two differed before. An edit with a fixed correction other than 1 or 2
// always counts as a change. Dates are neither compared nor copied.
bool ApplyParameter(const CParameterEntry& from, CParameterEntry& to);
