// The correction of a parameter for which a file holds none.
#pragma once

#include "model/Parameter.h"
#include "model/ParameterValue.h"

#include <algorithm>
#include <array>

// A list of this many numbers in a row, and no more, is searched for a number that is not in it.
constexpr int NoneOfTries = 100;

template <class T> long WholeNumber(const T& value) {
    long number = 0;
    ParseLong(ValueForm<T>::Format(value), number);
    return number;
}

// The next whole number above the first value that is none of the further ones; false where none was found.
template <class T> bool FindNumberOutside(const CGrowArray<T>& values, long& out) {
    const long first = WholeNumber(values[0]);
    std::array<bool, NoneOfTries> taken{};
    for (int i = 1; i < values.Count; ++i) {
        const long step = WholeNumber(values[i]) - first;
        if (step >= 1 && step <= NoneOfTries)
            taken[static_cast<size_t>(step - 1)] = true;
    }
    const auto free = std::find(taken.begin(), taken.end(), false);
    out = first + 1 + (free - taken.begin());
    return free != taken.end();
}

// Does nothing for an empty list; the kind of the correction stays.
template <class T> void SetDefaultCorrection(CParameter<T>& parameter) {
    if (parameter.Values.Count == 0)
        return;
    const auto set = [&parameter](const CString& text) {
        parameter.SetCorrection(ValueForm<T>::Parse(text));
    };
    const T& first = parameter.Values[0];
    long number = 0;
    switch (parameter.Operator) {
    case OpBetween:
    case OpOneOf:
    case OpEqual:
    case OpAtLeast:
    case OpAtMost:
    case OpContains:
    case OpBeginsWith:
    case OpEndsWith:
    case OpNotEqual: set(ValueForm<T>::Format(first)); break;
    case OpBelow: set(FormatInt(WholeNumber(first) - 1)); break;
    case OpAbove: set(FormatInt(WholeNumber(first) + 1)); break;
    case OpNoneOf:
        if (FindNumberOutside(parameter.Values, number))
            set(FormatInt(number));
        break;
    default: break;
    }
}
