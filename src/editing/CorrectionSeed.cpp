// How a correction follows its requirement.
#include "editing/CorrectionRules.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <type_traits>

namespace {

// How many numbers above the first are tried for one that is not in the list.
constexpr int FreeNumberTries = 100;

// Nothing where no correction can be derived, and the parameter then stays as it is.
template <class T> using Derived = std::optional<T>;

template <class T> bool Holds(const CGrowArray<T>& values, const T& value) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

// `value` plus `step`, wrapped to 32 bits as all whole numbers of a parameter are.
template <class T> T Stepped(T value, int step) {
    if constexpr (std::is_same_v<T, double>)
        return value + step;
    else if constexpr (std::is_same_v<T, unsigned long>)
        return static_cast<std::uint32_t>(value + static_cast<unsigned long>(step));
    else
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(value) +
                                         static_cast<std::uint32_t>(step));
}

template <class T> Derived<T> FirstFree(const CGrowArray<T>& values) {
    for (int step = 1; step <= FreeNumberTries; ++step)
        if (const T number = Stepped(values[0], step); !Holds(values, number))
            return number;
    return {};
}

// One less than a bound, which a signed number never takes below zero.
template <class T> T Below(T bound) {
    if constexpr (std::is_same_v<T, unsigned long>)
        return Stepped(bound, -1);
    else if constexpr (std::is_same_v<T, double>)
        return bound >= 1.0 ? bound - 1.0 : 0.0;
    else
        return bound > 0 ? Stepped(bound, -1) : 0;
}

template <class T> Derived<T> WithoutEarlier(unsigned op, const CGrowArray<T>& values) {
    switch (op) {
    case OpBetween:
    case OpOneOf:
    case OpEqual:
    case OpAtLeast:
    case OpAtMost: return values[0];
    case OpNoneOf: return FirstFree(values);
    case OpBelow: return Below(values[0]);
    case OpAbove: return Stepped(values[0], 1);
    default: return {};
    }
}

template <class T> Derived<T> WithEarlier(unsigned op, const CGrowArray<T>& values, T earlier) {
    const T first = values[0];
    switch (op) {
    case OpBetween:
        if (values.Count != 2)
            return {};
        return first <= earlier && earlier <= values[1] ? earlier : first;
    case OpOneOf: return Holds(values, earlier) ? earlier : first;
    case OpEqual: return first;
    case OpNoneOf: return Holds(values, earlier) ? FirstFree(values) : Derived<T>(earlier);
    case OpBelow: return earlier < first ? earlier : Below(first);
    case OpAbove: return earlier > first ? earlier : Stepped(first, 1);
    case OpAtLeast: return std::max(earlier, first);
    case OpAtMost: return std::min(earlier, first);
    default: return {};
    }
}

CString TextOf(const CString* text) {
    return text ? *text : CString();
}

bool TextSatisfies(unsigned op, const CString& text, const CString& entry) {
    switch (op) {
    case OpOneOf: return text == entry;
    case OpContains: return text.contains(entry);
    case OpBeginsWith: return text.startsWith(entry);
    case OpEndsWith: return text.endsWith(entry);
    default: return false;
    }
}

// `earlier` is null where there is none.
Derived<CString> DeriveText(unsigned op, const CGrowArray<CString*>& values, const CString* earlier) {
    const CString first = TextOf(values[0]);
    switch (op) {
    case OpEqual: return first;
    case OpOneOf:
    case OpContains:
    case OpBeginsWith:
    case OpEndsWith: {
        const bool stands = earlier && std::any_of(values.begin(), values.end(), [&](const CString* entry) {
                                return TextSatisfies(op, *earlier, TextOf(entry));
                            });
        return stands ? *earlier : first;
    }
    case OpNotEqual: return earlier && *earlier != first ? *earlier : first + u'1';
    default: return {};
    }
}

template <class T> void Hold(CParameter<T>& parameter, T value) {
    parameter.SetCorrection(value);
    parameter.CorrectionKind = CorrectionFixed;
}

// `earlier` is null where the standard holds no correction for the parameter.
template <class T> void Seed(CParameter<T>& parameter, const CParameter<T>* earlier) {
    if (parameter.Operator == OpNone || parameter.Values.Count == 0) {
        parameter.CorrectionKind = CorrectionAbsent;
    } else if constexpr (std::is_same_v<T, CString*>) {
        if (const auto text =
                DeriveText(parameter.Operator, parameter.Values, earlier ? earlier->Correction : nullptr))
            Hold(parameter, new CString(*text));
    } else if constexpr (!std::is_same_v<T, bool>) {
        const Derived<T> value = earlier
                                     ? WithEarlier(parameter.Operator, parameter.Values, earlier->Correction)
                                     : WithoutEarlier(parameter.Operator, parameter.Values);
        if (value)
            Hold(parameter, *value);
    }
}

void Seed(CParameter<COleDateTime*>& parameter, const CParameter<COleDateTime*>*) {
    parameter.CorrectionKind = CorrectionAbsent;
}

} // namespace

void SeedCorrectionValue(const CStandard& standard, CCheck& scratch, unsigned parameterID) {
    const CParameterEntry* entry = scratch.FindParameter(parameterID);
    if (!entry || !entry->Parameter)
        return;
    CCheck* live = nullptr;
    standard.FindLiveByType(scratch.Type, live);
    const CParameterEntry* earlier = live ? live->FindParameter(parameterID) : nullptr;
    const bool isHeld = earlier && earlier->Parameter && earlier->DataType == entry->DataType &&
                        earlier->Parameter->CorrectionKind != CorrectionAbsent;
    VisitParameter(*entry, [&]<class T>(CParameter<T>& parameter) {
        Seed(parameter, isHeld ? static_cast<const CParameter<T>*>(earlier->Parameter.get()) : nullptr);
    });
}
