#include "editing/CorrectionRules.h"

#include "engines/EnumEngine.h"
#include "engines/ParameterKinds.h"
#include "engines/TrailingZeros.h"
#include "model/ParameterValue.h"
#include "model/ParameterWording.h"
#include "platform/Format.h"

#include <cstdint>
#include <type_traits>

namespace {

// The code of the drafting standard that has a name of its own.
constexpr long OwnDraftingStandard = 8;

std::int32_t Low32(unsigned long value) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

template <class T> constexpr bool IsWhole = std::is_same_v<T, int> || std::is_same_v<T, long>;

template <class T> constexpr int CodeOfWhole = std::is_same_v<T, int> ? DataInt : DataLong;

CString ShownText(unsigned parameterType, long value) {
    CString text;
    CEnumEngine().GetDisplayString(static_cast<int>(parameterType), static_cast<std::uint32_t>(value), text);
    return text;
}

CString ShownText(double value) {
    CString text = FormatDouble(value);
    StripTrailingZeros(text);
    return text;
}

CString TextOf(const CString* text) {
    return text ? *text : CString();
}

void TakeChoice(CorrectionChoices& record, int index, const CString& text) {
    record.Text = text;
    record.HasValue = 1;
    record.SelectedIndex = index;
}

template <class T> int IndexOfCorrection(const CParameter<T>& parameter) {
    for (int i = 0; i < parameter.Values.Count; ++i)
        if (SameValue(parameter.Values[i], parameter.Correction))
            return i;
    return -1;
}

bool HoldsCorrection(const CParameterBase& parameter) {
    return parameter.CorrectionKind == CorrectionFixed;
}

// The values as texts; a correction that is none of them stands as text alone.
template <class T, class ToText>
void LoadTexts(const CParameter<T>& parameter, CorrectionChoices& record, ToText toText) {
    for (const T& value : parameter.Values)
        record.Strings.append(toText(value));
    if (HoldsCorrection(parameter))
        TakeChoice(record, IndexOfCorrection(parameter), toText(parameter.Correction));
}

template <class T> void LoadPictures(const CParameter<T>& parameter, CorrectionChoices& record) {
    for (const T value : parameter.Values) {
        unsigned long number = 0;
        CEnumEngine().GetItemID(static_cast<int>(parameter.ParameterType), static_cast<std::uint32_t>(value),
                                number);
        record.Numbers.append(Low32(number));
    }
    const bool isChoice = parameter.Operator == OpOneOf || parameter.Operator == OpEqual;
    const int index = isChoice && HoldsCorrection(parameter) ? IndexOfCorrection(parameter) : -1;
    if (index < 0)
        return;
    TakeChoice(record, index, FormatInt(record.Numbers[index]));
    record.EntryStyle = ImageEntry;
}

template <class T> void LoadWhole(const CParameter<T>& parameter, CorrectionChoices& record) {
    if (IsShownAsPictures(CodeOfWhole<T>, parameter.ParameterType)) {
        LoadPictures(parameter, record);
        return;
    }
    LoadTexts(parameter, record, [&](T value) { return ShownText(parameter.ParameterType, value); });
    if (std::is_same_v<T, int> && HoldsCorrection(parameter))
        record.Text = FormatInt(parameter.Correction);
}

void LoadUnsigned(const CParameter<unsigned long>& parameter, CorrectionChoices& record) {
    for (const unsigned long value : parameter.Values)
        record.Strings.append(FormatInt(Low32(value)));
    const bool isChoice = parameter.Operator == OpOneOf || parameter.Operator == OpEqual;
    const int index = isChoice && HoldsCorrection(parameter) ? IndexOfCorrection(parameter) : -1;
    if (index >= 0)
        TakeChoice(record, index, record.Strings[index]);
}

void LoadYesNo(const CParameter<bool>& parameter, CorrectionChoices& record) {
    const CString text = ShownText(parameter.ParameterType, parameter.Values[0] ? 1 : 0);
    record.Strings.append(text);
    record.Text = text;
    record.HasValue = 1;
}

template <class T> void LoadRecord(const CParameter<T>& parameter, CorrectionChoices& record) {
    // What must be yes or no shows its value also while it is not in force.
    if (parameter.Values.Count == 0 || (parameter.Operator == OpNone && !std::is_same_v<T, bool>))
        return;
    record.Operator = parameter.Operator;
    if constexpr (IsWhole<T>)
        LoadWhole(parameter, record);
    else if constexpr (std::is_same_v<T, bool>)
        LoadYesNo(parameter, record);
    else if constexpr (std::is_same_v<T, double>)
        LoadTexts(parameter, record, [](double value) { return ShownText(value); });
    else if constexpr (std::is_same_v<T, CString*>)
        LoadTexts(parameter, record, [](const CString* text) { return TextOf(text); });
    else if constexpr (std::is_same_v<T, unsigned long>)
        LoadUnsigned(parameter, record);
    else
        record.Operator = OpNone;
}

// The code of a value that is shown as a picture, whose number stands in the text.
long CodeOfPicture(unsigned parameterType, const CorrectionChoices& record) {
    long number = 0;
    ParseLong(record.Text, number);
    unsigned long code = 0;
    CEnumEngine().FindValueByImage(static_cast<int>(parameterType), static_cast<std::uint32_t>(number), code);
    return Low32(code);
}

// The value of the entry of a list whose text is chosen; false where it is none of them.
template <class T>
bool FindEntry(const CParameter<T>& parameter, const CorrectionChoices& record, long& value) {
    const qsizetype index = record.Strings.indexOf(record.Text);
    if (index < 0 || index >= parameter.Values.Count)
        return false;
    value = static_cast<long>(parameter.Values[static_cast<int>(index)]);
    return true;
}

template <class T> long CodeOfNumber(const CParameter<T>& parameter, const CorrectionChoices& record) {
    long value = 0;
    if (!ParseLong(record.Text, value))
        FindEntry(parameter, record, value);
    return value;
}

long CodeOfText(const CParameter<long>& parameter, const CorrectionChoices& record) {
    unsigned long code = 0;
    if (CEnumEngine().FindValueByText(static_cast<int>(parameter.ParameterType), record.Text, code))
        return Low32(code);
    if (parameter.ParameterType == KindDraftingStandard)
        return OwnDraftingStandard;
    long value = Low32(code);
    FindEntry(parameter, record, value);
    return value;
}

template <class T> long CodeOfWholeNumber(const CParameter<T>& parameter, const CorrectionChoices& record) {
    if (IsShownAsPictures(CodeOfWhole<T>, parameter.ParameterType))
        return CodeOfPicture(parameter.ParameterType, record);
    if constexpr (std::is_same_v<T, long>)
        if (parameter.ParameterType != KindPlain)
            return CodeOfText(parameter, record);
    return CodeOfNumber(parameter, record);
}

bool IsYes(unsigned parameterType, const CString& text) {
    unsigned long number = 0;
    CEnumEngine().FindValueByText(static_cast<int>(parameterType), text, number);
    return number != 0;
}

template <class T> T ReadCorrection(const CParameter<T>& parameter, const CorrectionChoices& record) {
    if constexpr (IsWhole<T>)
        return static_cast<T>(CodeOfWholeNumber(parameter, record));
    else if constexpr (std::is_same_v<T, bool>)
        return IsYes(parameter.ParameterType, record.Text);
    else
        return ValueForm<T>::Parse(record.Text);
}

template <class T> void StoreRecord(CParameter<T>& parameter, CorrectionChoices& record) {
    if (IsWhole<T> || std::is_same_v<T, double>)
        record.Operator = parameter.Operator;
    if (parameter.Operator == OpNone && !std::is_same_v<T, CString*>)
        return;
    parameter.SetCorrection(ReadCorrection(parameter, record));
    parameter.CorrectionKind = record.HasValue > 0 ? CorrectionFixed : CorrectionAbsent;
}

void StoreRecord(CParameter<COleDateTime*>&, CorrectionChoices&) {} // no control shows dates

} // namespace

void LoadCorrectionControl(const CCheck& check, unsigned parameterID, CorrectionChoices& record) {
    const int style = record.EntryStyle;
    record = {};
    record.EntryStyle = style;
    const CParameterEntry* entry = check.FindParameter(parameterID);
    if (entry && entry->Parameter)
        VisitParameter(*entry, [&](const auto& parameter) { LoadRecord(parameter, record); });
}

void StoreCorrectionValue(CCheck& check, unsigned parameterID, CorrectionChoices& record) {
    const CParameterEntry* entry = check.FindParameter(parameterID);
    if (entry && entry->Parameter)
        VisitParameter(*entry, [&](auto& parameter) { StoreRecord(parameter, record); });
}
