#include "support/WrittenCheck.h"

#include "model/Standard.h"
#include "support/StandardText.h"

#include <algorithm>
#include <type_traits>
#include <vector>

namespace {

template <class T> CString TextOfValue(const T& value) {
    if constexpr (std::is_same_v<T, CString*>)
        return value ? *value : CString();
    else if constexpr (std::is_arithmetic_v<T>)
        return QString::number(value);
    else
        return "?";
}

bool TextSatisfies(unsigned op, const CString& text, const std::vector<CString>& values) {
    switch (op) {
    case OpOneOf:
    case OpEqual: return std::ranges::find(values, text) != values.end();
    case OpContains:
        return std::ranges::any_of(values, [&](const CString& value) { return text.contains(value); });
    case OpBeginsWith:
        return std::ranges::any_of(values, [&](const CString& value) { return text.startsWith(value); });
    case OpEndsWith:
        return std::ranges::any_of(values, [&](const CString& value) { return text.endsWith(value); });
    case OpNotEqual: return text != values[0];
    default: return true;
    }
}

bool NumberSatisfies(unsigned op, double number, const std::vector<double>& values) {
    const bool isListed = std::ranges::find(values, number) != values.end();
    switch (op) {
    case OpBetween: {
        const auto [low, high] = std::ranges::minmax(values);
        return values.size() != 2 || (number >= low && number <= high);
    }
    case OpOneOf: return isListed;
    case OpEqual: return number == values[0];
    case OpNoneOf: return !isListed;
    case OpBelow: return number < values[0] || values[0] <= 0; // a correction is never below zero
    case OpAbove: return number > values[0];
    case OpAtLeast: return number >= values[0];
    case OpAtMost: return number <= values[0];
    case OpNotEqual: return number != values[0];
    default: return true;
    }
}

template <class T> bool CorrectionSatisfies(const CParameter<T>& parameter) {
    if constexpr (std::is_same_v<T, CString*>) {
        std::vector<CString> values;
        for (const CString* value : parameter.Values)
            values.push_back(value ? *value : CString());
        return parameter.Correction && TextSatisfies(parameter.Operator, *parameter.Correction, values);
    } else if constexpr (std::is_arithmetic_v<T>) {
        const std::vector<double> values(parameter.Values.begin(), parameter.Values.end());
        return NumberSatisfies(parameter.Operator, static_cast<double>(parameter.Correction), values);
    } else {
        return true;
    }
}

} // namespace

CString Written(const CCheck& check, unsigned parameter) {
    CString text;
    VisitParameter(*check.FindParameter(parameter), [&]<class T>(const CParameter<T>& found) {
        CStringArray values;
        for (const T& value : found.Values)
            values.append(TextOfValue(value));
        text = QString::number(found.Operator) + u':' + values.join(u',');
    });
    return text;
}

CString WrittenCorrection(const CCheck& check, unsigned parameter) {
    CString text = "none";
    VisitParameter(*check.FindParameter(parameter), [&](const auto& found) {
        if (found.CorrectionKind == CorrectionFixed)
            text = TextOfValue(found.Correction);
    });
    return text;
}

std::string TextOfCheck(const CCheck& check) {
    CStandard standard;
    unsigned sequence = 0;
    standard.InsertCheck(CStandard::CloneCheck(check), sequence);
    return LiveTextOf(standard).toStdString();
}

CString CorrectionComplaint(const CParameterEntry& entry) {
    CString wrong;
    VisitParameter(entry, [&](const auto& parameter) {
        const bool isRangeInTheMaking = parameter.Operator == OpBetween && parameter.Values.Count != 2;
        if (parameter.Operator == OpNone || parameter.Values.Count == 0 || isRangeInTheMaking)
            return;
        if (parameter.CorrectionKind != CorrectionFixed || !CorrectionSatisfies(parameter))
            wrong = parameter.Name + " has no good correction";
    });
    return wrong;
}

CString CorrectionComplaints(const CCheck& check) {
    CStringArray wrong;
    for (const CParameterEntry* entry : check.Parameters)
        if (const CString complaint = CorrectionComplaint(*entry); !complaint.isEmpty())
            wrong.append(complaint);
    return wrong.join("; ");
}
