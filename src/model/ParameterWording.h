// How a parameter is worded for a reader: on the summary page and by the command line.
#pragma once

#include "model/Parameter.h"
#include "platform/Text.h"

#include <vector>

// Stands where a check or parameter says nothing.
inline const CString NothingToSay = QStringLiteral("--");

struct ParameterRow {
    // Pictures: codes of a list whose values are chosen by their picture. Colors: 0x00BBGGRR.
    enum Form { None, Text, Pictures, Colors };

    Form form = None; // None: the parameter is not in force, or dates, which are not shown
    CString parameter;
    CString value;      // of a text row, with its operator in words
    CString correction; // of a text row
    unsigned op = 0;    // OperatorCode
    unsigned parameterType = 0;
    std::vector<unsigned long> codes; // of the other rows
    bool hasCorrectionCode = false;
    unsigned long correctionCode = 0;
};

// Whether the values of a whole number are shown as pictures.
bool IsShownAsPictures(int dataType, unsigned parameterType);

// Units are those of the standard.
ParameterRow WordParameter(const CParameterEntry& entry, int lengthUnit, int angleUnit);
