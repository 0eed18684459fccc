// The lengths and volumes of a check that moves into a standard of another length unit.
#pragma once

#include "files/XmlElement.h"

#include <vector>

// What a conversion leaves in the old unit, or makes less exact.
struct UnitLoss {
    unsigned text; // its number in the language library, from MergeFiguresCut on
    CString parameter;
};

// Converts the first value of each length and volume of a `Check` element from one length unit to another.
// Nothing happens where either unit is -1 (not told by its file) or both are equal. A value that is not a
// number stays as it is. `losses`, if given, is appended to.
void ConvertCheckUnits(const CXmlElement& check, long from, long to, std::vector<UnitLoss>* losses = nullptr);

// What a parameter of a file measures: its `ParameterType`, KindPlain where it has none.
int ParameterKindOf(const CXmlElement& parameter);
