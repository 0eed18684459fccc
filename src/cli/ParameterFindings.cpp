#include "cli/ParameterFindings.h"

#include "model/CheckTypes.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"

#include <QSet>

namespace {

// The definition that an element is read into: by number, or by label in files of earlier versions.
const ParameterDefinition* Match(const CXmlElement& element, const CheckTypeDefinition* type) {
    CString text;
    const bool hasNumber = element.GetAttribute("Type", text);
    if (!type || (!hasNumber && !element.GetAttribute("Name", text)))
        return nullptr;
    int id = 0;
    ParseInt(text, id);
    for (const ParameterDefinition& definition : type->parameters)
        if (hasNumber ? static_cast<unsigned>(id) == definition.id : text == LoadString(definition.id))
            return &definition;
    return nullptr;
}

CString LabelOf(const CXmlElement& element) {
    CString name;
    CString number;
    element.GetAttribute("Name", name);
    if (name.isEmpty() && element.GetAttribute("Type", number))
        return number;
    return "\"" + name + "\"";
}

bool IsNumberType(DataTypeCode type) {
    return type == DataInt || type == DataLong || type == DataDouble || type == DataUnsigned;
}

// What is wrong with the operator and the values of an element that is read.
CStringArray ValueFindings(const CXmlElement& element, const ParameterDefinition& definition) {
    CStringArray found;
    int op = OpNone;
    const auto opElement = element.SelectSingleNode("Operator");
    const CXmlNodeList values = element.SelectNodes("Value");
    if (!opElement || !opElement->GetInt(op))
        found.append("repaired: it has no operator and is put out of force");
    else if (op < 0 || op > static_cast<int>(OpNotEqual))
        found.append(CString("repaired: operator %1 is not known").arg(op));
    const auto code = static_cast<unsigned>(op);
    const bool isInForce = code != OpNone && code != OpLeftOut;
    if (!isInForce && values.GetCount() > 0)
        found.append("dropped: it is out of force, and its values are not saved again");
    if (code == OpBetween && values.GetCount() != 2)
        found.append("repaired: a range without two values is put out of force on the next save");
    else if (isInForce && code != OpTextOnly && values.GetCount() == 0)
        found.append("repaired: it has no values and is put out of force on the next save");
    for (int i = 0; i < values.GetCount() && IsNumberType(definition.dataType); ++i) {
        CString text;
        double number = 0;
        values.GetAt(i)->GetText(text);
        if (!ParseDouble(text, number))
            found.append(
                CString("repaired: the value \"%1\" is not a number and becomes 0").arg(text.left(60)));
    }
    CString remark;
    if (const auto remarks = element.SelectSingleNode("Remarks"))
        remarks->GetText(remark);
    if (!remark.isEmpty())
        found.append("dropped: its remark");
    return found;
}

} // namespace

CStringArray FindParameterFindings(const CXmlElement& check, int type) {
    CStringArray found;
    QSet<unsigned> seen;
    const CheckTypeDefinition* definitions = FindCheckType(type);
    const CXmlNodeList elements = check.SelectNodes("Parameter");
    for (int i = 0; i < elements.GetCount(); ++i) {
        const CXmlElement& element = *elements.GetAt(i);
        const ParameterDefinition* definition = Match(element, definitions);
        const CString label = "parameter " + LabelOf(element) + " ";
        if (!definition)
            found.append(label + "dropped: it is not known to a check of this type");
        else if (seen.contains(definition->id))
            found.append(label + "dropped: it stands earlier in the check");
        else
            for (const CString& what : ValueFindings(element, *definition))
                found.append(label + what);
        if (definition)
            seen.insert(definition->id);
    }
    return found;
}

bool HasFirstValue(const CXmlElement& check, int type) {
    const CheckTypeDefinition* definitions = FindCheckType(type);
    const CXmlNodeList elements = check.SelectNodes("Parameter");
    for (int i = 0; i < elements.GetCount(); ++i) {
        const ParameterDefinition* definition = Match(*elements.GetAt(i), definitions);
        if (definition && definition == &definitions->parameters[0])
            return elements.GetAt(i)->SelectSingleNode("Value") != nullptr;
    }
    return false;
}
