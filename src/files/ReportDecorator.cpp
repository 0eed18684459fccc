#include "files/ReportDecorator.h"

#include "engines/ParameterKinds.h"
#include "files/ExpectedValues.h"
#include "files/OperatorLabels.h"
#include "model/Parameter.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"

#include <algorithm>

namespace {

// The answers of CEnumEngine::GetValueKind.
enum ValueKind { KindOfText = 0, KindOfNumber = 1, KindOfColour = 2, KindOfPicture = 3 };

// The text in front of a range.
constexpr unsigned RangeText = 1657;

int NumberOfChild(const CXmlElement& element, const char* name) {
    int number = 0;
    if (const auto child = element.SelectSingleNode(name))
        child->GetInt(number);
    return number;
}

CString ColourText(unsigned long colour) {
    return CString::asprintf("%02x%02x%02x", static_cast<unsigned>(colour & 0xFF),
                             static_cast<unsigned>(colour >> 8 & 0xFF),
                             static_cast<unsigned>(colour >> 16 & 0xFF));
}

bool IsAutoCorrected(const CXmlElement& check) {
    CString text;
    return check.GetAttribute("IsACSupported", text) && text == "1";
}

} // namespace

struct ReportDecorator::Parameter {
    int type = KindPlain; // its ParameterType
    int op = OpNone;
    int kind = KindOfText;
    CString label; // what stands in front of each value
};

ReportDecorator::ReportDecorator(int lengthUnit, int angleUnit, CGrowArray<unsigned long>& images)
    : m_lengthUnit(static_cast<unsigned>(lengthUnit)), m_angleUnit(static_cast<unsigned>(angleUnit)),
      m_images(images) {}

void ReportDecorator::Decorate() {
    if (!g_CurrentXmlDocument || !g_CurrentXmlDocument->Root)
        return;
    CXmlElement& root = *g_CurrentXmlDocument->Root;
    m_imageList = root.AddChild("ImageList");
    CXmlNodeList checks = root.SelectNodes("Check");
    for (int i = 0; i < checks.GetCount(); ++i)
        DecorateCheck(*checks.GetAt(i), {});
}

void ReportDecorator::DecorateCheck(CXmlElement& check, const Context& context) {
    CString text;
    if (check.GetAttribute("Criticality", text)) {
        int criticality = -1;
        unsigned long icon = 0;
        ParseInt(text, criticality);
        m_engine.GetCriticalityTextAndIcon(static_cast<unsigned>(criticality), text, icon);
        AddImage(text, icon);
    }
    CXmlNodeList children = check.GetChildNodes();
    for (int i = 0; i < children.GetCount(); ++i)
        DecorateChild(*children.GetAt(i), check, context);
}

void ReportDecorator::DecorateChild(CXmlElement& child, CXmlElement& parent, const Context& context) {
    if (child.HasBaseName("Parameter"))
        DecorateParameter(child, parent, context);
    else if (child.HasBaseName("Check"))
        DecorateCheck(child, context);
    else if (child.HasBaseName("Result"))
        DecorateResult(child, parent);
}

// The checks of a result are compared with the check they belong to, and its first child, again, with the
// result itself.
void ReportDecorator::DecorateResult(CXmlElement& result, CXmlElement& check) {
    CXmlNodeList checks = result.SelectNodes("Check");
    for (int i = 0; i < checks.GetCount(); ++i)
        DecorateCheck(*checks.GetAt(i), {&check, false});
    CXmlNodeList children = result.GetChildNodes();
    if (children.GetCount() > 0)
        DecorateChild(*children.GetAt(0), result, {&result, false});
}

void ReportDecorator::DecorateParameter(CXmlElement& element, const CXmlElement& check,
                                        const Context& context) {
    Parameter parameter;
    parameter.type = NumberOfChild(element, "ParameterType");
    parameter.op = NumberOfChild(element, "Operator");
    m_engine.GetValueKind(parameter.type, parameter.kind);
    if (context.labels)
        parameter.label = OperatorLabel(parameter.op);
    // The first child of a result comes by twice; what it shows by then is no code any more.
    CString text;
    const auto first = element.SelectSingleNode("Value");
    if (!first || !first->GetAttribute("Datatype", text)) {
        ShowValues(element, parameter);
        if (parameter.op != OpBetween && IsAutoCorrected(check))
            DecorateCorrection(element, parameter);
    }
    if (context.expected && ShowsExpectedValue(check))
        AddExpectedValue(element, check, *context.expected);
}

void ReportDecorator::ShowValues(CXmlElement& element, const Parameter& parameter) {
    CXmlNodeList values = element.SelectNodes("Value");
    if (parameter.op == OpBetween && values.GetCount() == 2)
        return MergeRange(element, parameter, values);
    for (int i = 0; i < values.GetCount(); ++i)
        DecorateValue(*values.GetAt(i), parameter);
}

void ReportDecorator::MergeRange(CXmlElement& element, const Parameter& parameter,
                                 CXmlNodeList& values) const {
    CString low;
    CString high;
    values.GetAt(0)->GetText(low);
    values.GetAt(1)->GetText(high);
    values.GetAt(0)->SetText(LoadString(RangeText) + "(" + MeasuredText(parameter, low) + "," +
                             MeasuredText(parameter, high) + ")");
    values.GetAt(0)->SetAttribute("Datatype", "String");
    element.RemoveChild(values.GetAt(1));
}

void ReportDecorator::DecorateValue(CXmlElement& value, const Parameter& parameter) {
    CString text;
    value.GetText(text);
    unsigned long number = 0;
    const bool isNumber = ParseUnsigned(text, number);
    if (parameter.kind == KindOfColour && isNumber) {
        value.SetAttribute("Datatype", "Color");
        value.SetAttribute("RGB", ColourText(number));
    } else if (parameter.kind == KindOfPicture && isNumber) {
        ShowPicture(value, parameter, text);
    } else {
        const bool measured = parameter.kind == KindOfNumber;
        value.SetText(parameter.label +
                      (measured ? MeasuredText(parameter, text) : TextOfCode(parameter, text)));
        value.SetAttribute("Datatype", "String");
    }
}

void ReportDecorator::ShowPicture(CXmlElement& value, const Parameter& parameter, const CString& text) {
    const CString label = TextOfCode(parameter, text);
    value.SetText(FormatInt(static_cast<long>(AddImageOf(parameter, text, label))));
    value.SetAttribute("FileName", label);
    value.SetAttribute("Datatype", "Image");
}

void ReportDecorator::DecorateCorrection(CXmlElement& element, const Parameter& parameter) {
    CString text;
    unsigned long number = 0;
    if (!element.GetAttribute("CorrectionValue", text))
        return;
    CString shown;
    switch (parameter.kind) {
    case KindOfNumber: shown = MeasuredText(parameter, text); break;
    case KindOfColour: shown = ParseUnsigned(text, number) ? ColourText(number) : text; break;
    default: shown = TextOfCode(parameter, text);
    }
    if (parameter.kind == KindOfPicture && ParseUnsigned(text, number))
        AddImageOf(parameter, text, shown);
    element.ChangeAttribute("CorrectionValue", shown);
}

unsigned long ReportDecorator::AddImageOf(const Parameter& parameter, const CString& text,
                                          const CString& label) {
    unsigned long code = 0;
    unsigned long id = 0;
    ParseUnsigned(text, code);
    m_engine.GetItemID(parameter.type, code, id);
    AddImage(label, id);
    return id;
}

void ReportDecorator::AddImage(const CString& label, unsigned long id) {
    if (std::find(m_images.begin(), m_images.end(), id) != m_images.end())
        return;
    m_images.Add(id);
    const auto image = m_imageList->AddChild("Image");
    image->AddChild("FileName")->SetText(label);
    image->AddChild("ResourceID")->SetText(FormatInt(static_cast<long>(id)));
}

// The stored text stands where it is no number and where the list shows none: a font may be named "2".
CString ReportDecorator::TextOfCode(const Parameter& parameter, const CString& text) const {
    unsigned long code = 0;
    CString shown;
    if (parameter.type != KindPlain && ParseUnsigned(text, code) &&
        m_engine.GetDisplayString(parameter.type, code, shown))
        return shown;
    return text;
}

// Only a text that is a number as a whole is one: a date or a size such as "3 x 20" must not be cut.
CString ReportDecorator::MeasuredText(const Parameter& parameter, const CString& text) const {
    bool isNumber = false;
    text.toDouble(&isNumber);
    double number = 0;
    if (!isNumber || !ParseDouble(text, number))
        return text;
    CString shown;
    m_engine.FormatMeasuredValue(parameter.type, number, m_lengthUnit, m_angleUnit, shown);
    return shown;
}
