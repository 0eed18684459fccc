// The words of a row that the windows show by pictures or colours.
#pragma once

#include "model/ParameterWording.h"

// Values: texts as they stand, the texts of pictures, or colours as "#rrggbb".
CString ValueText(const ParameterRow& row);
CString CorrectionText(const ParameterRow& row);
CString ColorText(unsigned long color); // 0x00BBGGRR
