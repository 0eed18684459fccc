#include "files/OperatorLabels.h"

#include "model/Parameter.h"
#include "platform/LanguageLibrary.h"

CString OperatorLabel(int op) {
    switch (op) {
    case OpNone: return LoadString(1632);
    case OpBetween: return LoadString(1657);
    case OpEqual: return "= ";
    case OpNoneOf: return LoadString(1659);
    case OpBelow: return "< ";
    case OpAbove: return "> ";
    case OpAtLeast: return ">= ";
    case OpAtMost: return "<= ";
    case OpContains: return LoadString(1720);
    case OpBeginsWith: return LoadString(1721);
    case OpEndsWith: return LoadString(1722);
    case OpNotEqual: return "!=";
    default: return {};
    }
}
