#include "files/MergeUnits.h"

#include "engines/ParameterKinds.h"
#include "engines/UnitConvertor.h"
#include "platform/Format.h"
#include "platform/TextNumbers.h"

#include <cmath>

namespace {

constexpr long UnitUnknown = -1;

bool IsMeasure(int kind) {
    return kind == KindLength || kind == KindVolume;
}

// The whole text must be a number: texts such as "25 x 40" stand in parameters of this kind, too.
bool ReadNumber(const CXmlElement& value, double& out) {
    CString text;
    value.GetText(text);
    bool isNumber = false;
    out = text.toDouble(&isNumber);
    return isNumber && std::isfinite(out);
}

double Converted(double value, int kind, long from, long to) {
    const CUnitConvertor convertor;
    const auto fromUnit = static_cast<unsigned long>(from);
    const auto toUnit = static_cast<unsigned long>(to);
    const int dimensions = kind == KindVolume ? 3 : 1;
    for (int i = 0; i < dimensions; ++i)
        value = convertor.Convert(value, DimensionLength, fromUnit, toUnit);
    return value;
}

// False where figures were cut. Ten decimals are what a standard keeps of a value.
bool ConvertValue(CXmlElement& value, int kind, long from, long to) {
    double number = 0;
    if (!ReadNumber(value, number))
        return true;
    number = Converted(number, kind, from, to);
    if (!std::isfinite(number))
        return true;
    const CString text = FormatFixed(number, 6);
    value.SetText(text);
    return FormatDouble(number) == text + "0000";
}

bool HasMoreNumbers(const CXmlNodeList& values) {
    double number = 0;
    for (int i = 1; i < values.GetCount(); ++i)
        if (ReadNumber(*values.GetAt(i), number))
            return true;
    return false;
}

bool HasFixedCorrection(const CXmlElement& check, const CXmlElement& parameter) {
    CString text;
    double correction = 0;
    return check.GetAttribute("IsACSupported", text) && text == "1" &&
           parameter.GetAttribute("CorrectionValue", text) && ParseDouble(text, correction) &&
           correction != 0;
}

bool HasMeasuresInChildren(const CXmlElement& check) {
    const CXmlNodeList parameters = check.SelectNodes("./Check/Parameter[Value]");
    for (int i = 0; i < parameters.GetCount(); ++i)
        if (IsMeasure(ParameterKindOf(*parameters.GetAt(i))))
            return true;
    return false;
}

void ConvertParameter(const CXmlElement& check, const CXmlElement& parameter, long from, long to,
                      std::vector<UnitLoss>& losses) {
    const int kind = ParameterKindOf(parameter);
    if (!IsMeasure(kind))
        return;
    CXmlNodeList values = parameter.SelectNodes("Value");
    CString name;
    parameter.GetAttribute("Name", name);
    if (values.GetCount() > 0 && !ConvertValue(*values.GetAt(0), kind, from, to))
        losses.push_back({MergeFiguresCut, name});
    if (HasMoreNumbers(values))
        losses.push_back({MergeMoreValues, name});
    if (HasFixedCorrection(check, parameter))
        losses.push_back({MergeCorrectionStays, name});
}

} // namespace

int ParameterKindOf(const CXmlElement& parameter) {
    int kind = KindPlain;
    if (const auto element = parameter.SelectSingleNode("ParameterType"))
        element->GetInt(kind);
    return kind;
}

void ConvertCheckUnits(const CXmlElement& check, long from, long to, std::vector<UnitLoss>* losses) {
    if (from == UnitUnknown || to == UnitUnknown || from == to)
        return;
    std::vector<UnitLoss> found;
    const CXmlNodeList children = check.GetChildNodes();
    for (int i = 0; i < children.GetCount(); ++i)
        ConvertParameter(check, *children.GetAt(i), from, to, found);
    if (!losses)
        return;
    if (HasMeasuresInChildren(check))
        found.push_back({MergeChildrenStay, {}});
    losses->insert(losses->end(), found.begin(), found.end());
}
