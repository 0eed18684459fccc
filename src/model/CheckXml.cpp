// How a check reads and writes its own element of a standard file.
#include "files/XmlDocument.h"
#include "model/CheckManager.h"
#include "model/CheckTypes.h"
#include "model/ParameterXml.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"

namespace {

// What the parsing of a number leaves that is none.
constexpr int Unreadable = -1;

int ParsedAttribute(const CString& text) {
    int value = Unreadable;
    ParseInt(text, value);
    return value;
}

// The attributes of both forms up to `Criticality`, in the order of the file.
void WriteHead(const CCheck& check, CXmlElement& element) {
    element.SetAttribute("Type", FormatInt(check.Type));
    element.SetAttribute("Name", check.Name);
    element.SetAttribute("Status", FormatInt(static_cast<int>(check.Status)));
    element.SetAttribute("LifeStatus", FormatInt(static_cast<int>(check.LifeStatus)));
    element.SetAttribute("Criticality", FormatInt(static_cast<int>(check.Criticality)));
}

// An entry of an illegal data type has no parameter; it is let through, so that the writer tells of it.
bool IsInForce(const CParameterEntry& entry) {
    const CParameterBase* parameter = entry.Parameter.get();
    return !parameter || (parameter->Operator != OpNone && parameter->Operator != OpLeftOut);
}

// The first parameter decides whether a child is kept.
bool HasFirstValue(const CCheck& child) {
    int count = 0;
    if (child.Parameters.Count > 0)
        VisitParameter(*child.Parameters[0],
                       [&count](const auto& parameter) { count = parameter.Values.Count; });
    return count > 0;
}

} // namespace

void CCheck::ReadXml(const CXmlElement& element) {
    element.GetAttribute("Name", Name);
    CString text;
    Criticality =
        element.GetAttribute("Criticality", text) ? static_cast<unsigned>(ParsedAttribute(text)) : 1;
    ReadParameters(element);
}

void CCheck::ReadParameters(const CXmlElement& element) {
    const ParameterElements elements(element);
    for (const CParameterEntry* entry : Parameters)
        elements.Read(*entry, IsACSupported());
}

std::unique_ptr<CXmlElement> CCheck::WriteXml() {
    if (!g_CurrentXmlDocument)
        return nullptr;
    auto element = g_CurrentXmlDocument->CreateElement("Check");
    WriteHead(*this, *element);
    element->SetAttribute("IsACSupported", FormatInt(IsACSupported() ? 1 : 0));
    element->SetAttribute("Summary", {});
    WriteSummary(*element);
    WriteParameters(*element);
    return element;
}

void CCheck::WriteParameters(CXmlElement& element) {
    for (const CParameterEntry* entry : Parameters)
        if (IsInForce(*entry))
            WriteParameter(*entry, element);
}

void CCheck::WriteSummary(CXmlElement& element) const {
    if (const unsigned text = SummaryTextOf(Type))
        element.SetAttribute("Summary", LoadString(text));
}

void CCheckManager::ReadXml(const CXmlElement& element) {
    CString text;
    Criticality =
        element.GetAttribute("Criticality", text) ? static_cast<unsigned>(ParsedAttribute(text)) : 1;
    const CXmlNodeList checks = element.SelectNodes("Check");
    for (int i = 0; i < checks.GetCount(); ++i) {
        auto child = MakeChild();
        if (!child)
            break;
        child->Criticality = Criticality;
        child->ReadXml(*checks.GetAt(i));
        if (HasFirstValue(*child))
            Children.Add(child.release());
    }
    ReadParameters(element);
}

std::unique_ptr<CXmlElement> CCheckManager::WriteXml() {
    if (!g_CurrentXmlDocument)
        return nullptr;
    auto element = g_CurrentXmlDocument->CreateElement("Check");
    WriteHead(*this, *element);
    element->SetAttribute("Summary", {});
    for (CCheck* child : Children)
        if (HasFirstValue(*child))
            element->AppendFinished(child->WriteXml());
    WriteParameters(*element);
    return element;
}
