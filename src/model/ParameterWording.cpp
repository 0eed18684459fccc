#include "model/ParameterWording.h"

#include "engines/EnumEngine.h"
#include "engines/ParameterKinds.h"
#include "engines/UIUtilities.h"
#include "model/ParameterValue.h"

namespace {

// One value in words.
class ValueWords {
public:
    ValueWords(unsigned kind, int lengthUnit, int angleUnit)
        : m_kind(static_cast<int>(kind)), m_length(static_cast<unsigned>(lengthUnit)),
          m_angle(static_cast<unsigned>(angleUnit)) {}

    CString operator()(double value) const {
        CString text;
        m_engine.FormatMeasuredValue(m_kind, value, m_length, m_angle, text);
        return text;
    }
    CString operator()(const CString* value) const { return ValueForm<CString*>::Format(value); }
    CString operator()(const COleDateTime*) const { return {}; }
    template <class T>
    requires std::is_integral_v<T> CString operator()(T code) const {
        CString text;
        m_engine.GetDisplayString(m_kind, static_cast<unsigned long>(code), text);
        return text;
    }

private:
    CEnumEngine m_engine;
    int m_kind;
    unsigned m_length;
    unsigned m_angle;
};

template <class T> CString JoinValues(const CParameter<T>& parameter, const ValueWords& words) {
    CStringArray texts;
    for (const T& value : parameter.Values)
        texts.append(words(value));
    if constexpr (std::is_same_v<T, bool>)
        texts = texts.mid(0, 1);
    return texts.join(std::is_same_v<T, CString*> ? "," : " , ");
}

// The operator in front of the values. A list or an equality shows only the values, but for yes and no.
CString WithOperator(unsigned op, const CString& values, int dataType) {
    CString text;
    if (dataType == DataBool || (op != OpOneOf && op != OpEqual))
        CUIUtilities().OperatorText(static_cast<int>(op), text);
    if (values.isEmpty() || text.isEmpty())
        return values;
    return op == OpBetween ? text + "(" + values + ")" : text + " " + values;
}

template <class T>
void WordAsText(const CParameter<T>& parameter, int dataType, const ValueWords& words, ParameterRow& row) {
    row.form = ParameterRow::Text;
    row.value = WithOperator(parameter.Operator, JoinValues(parameter, words), dataType);
    row.correction = NothingToSay;
    if (parameter.CorrectionKind != CorrectionFixed)
        return;
    if constexpr (std::is_same_v<T, CString*>) {
        if (!parameter.Correction)
            return;
    }
    row.correction = words(parameter.Correction);
}

template <class T>
void WordAsCodes(const CParameter<T>& parameter, ParameterRow::Form form, ParameterRow& row) {
    if constexpr (std::is_arithmetic_v<T>) {
        row.form = form;
        for (const T& value : parameter.Values)
            row.codes.push_back(static_cast<unsigned long>(value));
        row.hasCorrectionCode = parameter.CorrectionKind == CorrectionFixed;
        row.correctionCode = static_cast<unsigned long>(parameter.Correction);
    }
}

} // namespace

bool IsShownAsPictures(int dataType, unsigned parameterType) {
    switch (parameterType) {
    case KindArrowStyle:
    case KindLineThickness:
    case KindLineStyle: return dataType == DataInt || dataType == DataLong;
    case KindDisplayMode:
    case KindTextAlign1:
    case KindTextAlign2:
    case KindTextAlign3:
    case KindTextAlign4:
    case KindSharpDisplay: return dataType == DataLong;
    default: return false;
    }
}

ParameterRow WordParameter(const CParameterEntry& entry, int lengthUnit, int angleUnit) {
    ParameterRow row;
    if (!entry.Parameter || entry.Parameter->Operator == OpNone || entry.DataType == DataDate)
        return row;
    row.parameter = entry.Parameter->Name;
    row.op = entry.Parameter->Operator;
    row.parameterType = entry.Parameter->ParameterType;
    const ValueWords words(row.parameterType, lengthUnit, angleUnit);
    VisitParameter(entry, [&](const auto& parameter) {
        if (entry.DataType == DataUnsigned)
            WordAsCodes(parameter, ParameterRow::Colors, row);
        else if (IsShownAsPictures(entry.DataType, row.parameterType))
            WordAsCodes(parameter, ParameterRow::Pictures, row);
        else
            WordAsText(parameter, entry.DataType, words, row);
    });
    return row;
}
