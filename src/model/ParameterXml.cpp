#include "model/ParameterXml.h"

#include "model/DefaultCorrection.h"
#include "model/ParameterValue.h"

namespace {

// Its choice 0 is the empty one and no correction.
constexpr int PropertyTypeId = 1725;

ParameterElements::Item ItemOf(const CXmlElement& element) {
    ParameterElements::Item item;
    CString text;
    item.element = &element;
    item.hasCorrection = element.GetAttribute("CorrectionValue", text);
    item.hasType = element.GetAttribute("Type", text);
    long id = 0;
    if (item.hasType && ParseLong(text, id))
        item.type = static_cast<unsigned>(id);
    else if (!item.hasType)
        element.GetAttribute("Name", item.name);
    return item;
}

bool Matches(const ParameterElements::Item& item, const CParameterBase& parameter) {
    if (item.hasType)
        return item.type == parameter.ID;
    return !item.name.isEmpty() && item.name == parameter.Name;
}

bool IsEmptyPropertyType(const CXmlElement& element, const CString& correction) {
    CString text;
    long type = 0;
    long value = 0;
    if (element.GetAttribute("Type", text))
        ParseLong(text, type);
    ParseLong(correction, value);
    return type == PropertyTypeId && value == 0;
}

template <class T> void ReadValues(const CXmlElement& element, CParameter<T>& parameter) {
    const CXmlNodeList values = element.SelectNodes("Value");
    CString text;
    for (int i = 0; i < values.GetCount(); ++i) {
        values.GetAt(i)->GetText(text);
        parameter.Values.Add(ValueForm<T>::Parse(text));
    }
}

// What the correction is when the file holds none, by the kind of comparison.
template <class T> void DeriveCorrection(CParameter<T>& parameter) {
    switch (parameter.Operator) {
    case OpBetween:
    case OpOneOf:
    case OpEqual:
    case OpAtLeast:
    case OpAtMost:
        parameter.CorrectionKind = CorrectionFixed;
        parameter.SetCorrection(parameter.Values.Count > 0 ? CopyValue(parameter.Values[0]) : T());
        break;
    case OpNoneOf:
    case OpBelow:
    case OpAbove: parameter.CorrectionKind = CorrectionAbsent; break;
    default: break;
    }
}

template <class T> void ReadCorrection(const CXmlElement& element, CParameter<T>& parameter) {
    CString text;
    if (parameter.Operator == OpNone)
        return;
    if (!element.GetAttribute("CorrectionValue", text))
        return DeriveCorrection(parameter);
    if (IsEmptyPropertyType(element, text))
        return;
    parameter.CorrectionKind = CorrectionFixed;
    parameter.SetCorrection(ValueForm<T>::Parse(text));
}

template <class T>
void ReadInto(const std::vector<ParameterElements::Item>& items, CParameter<T>& parameter,
              bool isCorrectable) {
    const CXmlElement* match = nullptr;
    const CXmlElement* corrected = nullptr;
    for (size_t i = 0; i < items.size() && !match; ++i) {
        // Taken before the match is known: one of an earlier element stays where the match has none.
        if (items[i].hasCorrection)
            corrected = items[i].element;
        if (Matches(items[i], parameter))
            match = items[i].element;
    }
    if (corrected) {
        CString text;
        corrected->GetAttribute("CorrectionValue", text);
        parameter.SetCorrection(ValueForm<T>::Parse(text));
    }
    parameter.Operator = OpNone;
    if (!match)
        return;
    int op = OpNone;
    if (const auto element = match->SelectSingleNode("Operator"))
        element->GetInt(op);
    parameter.Operator = static_cast<unsigned>(op);
    ReadValues(*match, parameter);
    if (isCorrectable)
        ReadCorrection(*match, parameter);
    if (!corrected)
        SetDefaultCorrection(parameter);
}

// A range of other than two values is out of force, and so is a comparison with nothing.
template <class T> void CorrectForWriting(CParameter<T>& parameter) {
    const bool isRange = parameter.Operator == OpBetween;
    if (parameter.Values.Count > 0 && isRange && parameter.Values.Count != 2) {
        parameter.Operator = OpNone;
        parameter.ClearValues();
    } else if (parameter.Values.Count == 0 && (parameter.Remarks.isEmpty() || isRange)) {
        parameter.Operator = OpNone;
    }
}

template <class T> void WriteInto(CXmlElement& check, CParameter<T>& parameter) {
    CorrectForWriting(parameter);
    const auto element = check.AddChild("Parameter");
    if (!element)
        return;
    element->SetAttribute("Name", parameter.Name);
    element->SetAttribute("Type", FormatInt(parameter.ID));
    element->AddTextChild("Operator", FormatInt(static_cast<int>(parameter.Operator)));
    element->AddTextChild("ParameterType", FormatInt(parameter.ParameterType));
    element->SetAttribute("CorrectionValue", ValueForm<T>::Format(parameter.Correction));
    for (const T& value : parameter.Values)
        element->AddTextChild("Value", ValueForm<T>::Format(value));
    element->AddTextChild("Remarks", parameter.Remarks);
}

} // namespace

ParameterElements::ParameterElements(const CXmlElement& check) : m_elements(check.SelectNodes("Parameter")) {
    m_items.reserve(static_cast<size_t>(m_elements.GetCount()));
    for (int i = 0; i < m_elements.GetCount(); ++i)
        m_items.push_back(ItemOf(*m_elements.GetAt(i)));
}

void ParameterElements::Read(const CParameterEntry& entry, bool isCorrectable) const {
    VisitParameter(entry, [&](auto& parameter) { ReadInto(m_items, parameter, isCorrectable); });
}

void WriteParameter(const CParameterEntry& entry, CXmlElement& check) {
    VisitParameter(entry, [&check](auto& parameter) { WriteInto(check, parameter); });
}
