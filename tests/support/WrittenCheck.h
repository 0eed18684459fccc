// What a pane has written into a check, in short forms that tests compare.
#pragma once

#include "model/Check.h"
#include "platform/Text.h"

#include <string>

// "<operator>:<value>,<value>..." of a parameter.
CString Written(const CCheck& check, unsigned parameter);

// The correction of a parameter, or "none".
CString WrittenCorrection(const CCheck& check, unsigned parameter);

// The whole of a check as a file would hold it.
std::string TextOfCheck(const CCheck& check);

// What the correction of a parameter has wrong; empty where it satisfies the requirement, or none has to: a
// parameter that is not in force, that has no values yet, or a range with one bound.
CString CorrectionComplaint(const CParameterEntry& entry);

// All complaints about a check.
CString CorrectionComplaints(const CCheck& check);
