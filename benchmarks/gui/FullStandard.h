// The standard that the windows are measured with.
#pragma once

#include "model/Catalogue.h"
#include "platform/Text.h"

inline constexpr MQC_CheckType_e FontCheck = 109; // requires one of FontCount fonts
inline constexpr int FontCount = 500;

// Writes a standard with every check of the catalogue, all filled, and so many rows of custom properties.
// 0 leaves the few rows that a filled check has.
void WriteFullStandard(const CString& path, int propertyRows = 0);
