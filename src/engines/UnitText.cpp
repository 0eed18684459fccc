#include "engines/UnitText.h"

#include "engines/EnumEngine.h"
#include "engines/ParameterKinds.h"
#include "engines/TrailingZeros.h"
#include "engines/UnitConvertor.h"
#include "platform/Format.h"

namespace {

// An area is converted twice and a volume three times.
int ConversionsOf(unsigned long power) {
    return power == 1 || power == 2 ? static_cast<int>(power) + 1 : 1;
}

CString NumberText(double value) {
    if (value == 0.0)
        return FormatFixed(0.0, 1);
    CString text = FormatDouble(value);
    StripTrailingZeros(text);
    return text;
}

} // namespace

CString ConvertValueText(const CString& text, unsigned long power, unsigned long dimension,
                         unsigned long oldUnit, unsigned long newUnit) {
    const CUnitConvertor convertor;
    CStringArray numbers;
    const CStringArray tokens = text.split(u',', Qt::SkipEmptyParts);
    for (const CString& token : tokens) {
        double value = 0;
        if (!ParseDouble(token, value))
            continue;
        for (int i = 0; i < ConversionsOf(power); ++i)
            value = convertor.Convert(value, dimension, oldUnit, newUnit);
        numbers.append(NumberText(value));
    }
    return numbers.join(" , ");
}

CString UnitLabelText(unsigned long power, unsigned long dimension, unsigned long unit) {
    const CEnumEngine engine;
    CString text;
    if (dimension == DimensionAngle) {
        engine.GetDisplayString(KindAngleUnit, unit, text);
        return text;
    }
    engine.GetUnitSuffix(unit, text);
    if (power == 1)
        text += "^2";
    else if (power == 2)
        text += "^3";
    return text;
}
