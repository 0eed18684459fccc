// What a report prints directly in front of a value.
#pragma once

#include "platform/Text.h"

// The label of an OperatorCode; empty for one that needs none and for one that is not known.
CString OperatorLabel(int op);
