// The rows by which a check is shown to a reader.
#pragma once

#include "model/Check.h"
#include "model/ParameterWording.h"

#include <vector>

struct CheckRow {
    ParameterRow parameter;
    unsigned criticality; // of the check, or of the entry where each has its own
    int child;            // index of the entry in a container, or -1
};

// None for a check that has nothing in force, or whose type is shown by its summary text alone.
// Units are those of the standard.
std::vector<CheckRow> WordCheck(const CCheck& check, int lengthUnit, int angleUnit);

// The same for the summary page. There a choice of drafting standards without values is not in force, and
// one with values shows the correction that stands beside its codes.
std::vector<CheckRow> WordCheckOfPage(const CCheck& check, int lengthUnit, int angleUnit);
