// Checks that were copied, and the units that were in force then. It belongs to the application, so that
// checks can be pasted into any document and outlive the one they came from.
#pragma once

#include "model/Check.h"

#include <memory>
#include <vector>

struct CheckClipboard {
    std::vector<std::unique_ptr<CCheck>> checks;
    int lengthUnit = 2; // row of the list of length units: millimetres
    int angleUnit = 3;  // row of the list of angle units
};
