#include "model/ParameterCompare.h"

#include "model/ParameterValue.h"

#include <algorithm>

namespace {

template <class T> bool SameValues(const CParameter<T>& a, const CParameter<T>& b) {
    return std::equal(a.Values.begin(), a.Values.end(), b.Values.begin(), b.Values.end(),
                      [](const T& x, const T& y) { return SameValue(x, y); });
}

// The correction is compared with the other's kind, not with its correction: files and undo steps of all
// these years rely on which edits count as a change.
template <class T> bool SameCorrection(const CParameter<T>& from, const CParameter<T>& to) {
    return from.Correction == static_cast<T>(to.CorrectionKind);
}
bool SameCorrection(const CParameter<double>& from, const CParameter<double>& to) {
    return from.Correction == to.CorrectionKind;
}
bool SameCorrection(const CParameter<bool>& from, const CParameter<bool>& to) {
    return static_cast<int>(from.Correction) == to.CorrectionKind;
}
bool SameCorrection(const CParameter<CString*>& from, const CParameter<CString*>& to) {
    return from.Correction && to.Correction && *from.Correction == *to.Correction;
}

template <class T> bool Same(const CParameter<T>& from, const CParameter<T>& to) {
    return from.Operator == to.Operator && from.Values.Count == to.Values.Count &&
           from.CorrectionKind == to.CorrectionKind && SameCorrection(from, to) && SameValues(from, to);
}

bool HasSameType(const CParameterEntry& a, const CParameterEntry& b) {
    return a.DataType == b.DataType && (b.Parameter || a.Parameter == nullptr);
}

} // namespace

void AssignParameter(const CParameterEntry& from, CParameterEntry& to) {
    if (!HasSameType(from, to))
        return;
    VisitParameter(from, [&to](auto& parameter) {
        static_cast<std::decay_t<decltype(parameter)>&>(*to.Parameter) = parameter;
    });
}

bool ApplyParameter(const CParameterEntry& from, CParameterEntry& to) {
    bool changed = false;
    if (!HasSameType(from, to) || from.DataType == DataDate)
        return changed;
    VisitParameter(from, [&]<class T>(CParameter<T>& parameter) {
        if constexpr (!std::is_same_v<T, COleDateTime*>) {
            auto& target = static_cast<CParameter<T>&>(*to.Parameter);
            changed = !Same(parameter, target);
            target = parameter;
        }
    });
    return changed;
}
