// The standard that the windows are measured with.
#pragma once

#include "platform/Text.h"

// Writes a standard with every check of the catalogue, all filled, and so many rows of custom properties.
// 0 leaves the few rows that a filled check has.
void WriteFullStandard(const CString& path, int propertyRows = 0);
