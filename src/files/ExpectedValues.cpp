#include "files/ExpectedValues.h"

#include "platform/Format.h"

namespace {

CString NameOf(const CXmlElement& element) {
    CString name;
    element.GetAttribute("Name", name);
    return name;
}

// The last parameter of that name; `found` stays where there is none.
void FindLast(const CXmlNodeList& parameters, const CString& name, std::unique_ptr<CXmlElement>& found) {
    for (int i = parameters.GetCount() - 1; i >= 0; --i)
        if (NameOf(*parameters.GetAt(i)) == name) {
            found = std::make_unique<CXmlElement>(*parameters.GetAt(i));
            return;
        }
}

// A container has no parameters that count here: those of its checks do whose name is part of the name
// of the check that was found.
std::unique_ptr<CXmlElement> FindExpected(const CXmlElement& expected, const CString& checkName,
                                          const CString& name) {
    std::unique_ptr<CXmlElement> found;
    const CXmlNodeList parameters = expected.SelectNodes("Parameter");
    if (parameters.GetCount() > 0) {
        FindLast(parameters, name, found);
        return found;
    }
    const CXmlNodeList checks = expected.SelectNodes("Check");
    for (int i = 0; i < checks.GetCount(); ++i)
        if (checkName.contains(NameOf(*checks.GetAt(i))))
            FindLast(checks.GetAt(i)->SelectNodes("Parameter"), name, found);
    return found;
}

} // namespace

bool ShowsExpectedValue(const CXmlElement& check) {
    CString text;
    int type = 0;
    if (check.GetAttribute("Type", text))
        ParseInt(text, type);
    return type == 104 || type == 124 || type == 304 || type == 308;
}

void AddExpectedValue(CXmlElement& parameter, const CXmlElement& check, const CXmlElement& expected) {
    const auto source = FindExpected(expected, NameOf(check), NameOf(parameter));
    if (!source)
        return;
    const auto target = parameter.AddChild("ExpectedValue");
    const CXmlNodeList values = source->SelectNodes("Value");
    for (int i = 0; i < values.GetCount(); ++i) {
        CString text;
        values.GetAt(i)->GetText(text);
        const auto copy = values.GetAt(i)->CloneDeep();
        target->AppendChild(copy.get());
        copy->SetText(text);
    }
}
