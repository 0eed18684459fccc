#include "cli/Findings.h"

#include "cli/ParameterFindings.h"
#include "files/StandardFile.h"
#include "model/CheckTypes.h"
#include "platform/Format.h"

#include <QSet>

namespace {

constexpr int HighestCriticality = 3;
constexpr int Deleted = 1;

bool IsNumber(const CString& text, int& number) {
    return ParseInt(text, number);
}

class Finder {
public:
    std::vector<Finding> findings;

    void Standard(const CXmlElement& root) {
        Version(root);
        UnitOf(root, "Unit", "length");
        UnitOf(root, "AngularUnit", "angle");
        CString option;
        if (root.GetAttribute("RunRWConfigOption", option) && (option.size() > 1 || !option[0].isDigit()))
            Add(CString("repaired: of the option \"%1\" only the first digit counts").arg(option));
        const CXmlNodeList checks = root.SelectNodes("Check");
        for (int i = 0; i < checks.GetCount(); ++i)
            Check(*checks.GetAt(i), i + 1);
        m_check.clear();
        Unknown(root, "./*[not(self::Check)]");
    }

private:
    // What nobody reads is gone after the next save.
    void Unknown(const CXmlElement& element, const char* others) {
        const CXmlNodeList elements = element.SelectNodes(others);
        for (int i = 0; i < elements.GetCount(); ++i) {
            CString name;
            elements.GetAt(i)->GetBaseName(name);
            Add(CString("dropped: an element \"%1\" is not known here").arg(name));
        }
    }

    void Add(const CString& what) { findings.push_back({m_check, what}); }

    void Version(const CXmlElement& root) {
        CString text;
        int version = 0;
        if (root.GetAttribute("Version", text))
            ParseInt(text, version);
        if (version < ToolVersion)
            Add(CString("repaired: saved by version %1, and brought to %2 on the next save")
                    .arg(version)
                    .arg(ToolVersion));
    }

    void UnitOf(const CXmlElement& root, const char* attribute, const char* kind) {
        CString text;
        int unit = 0;
        if (!root.GetAttribute(attribute, text) || !IsNumber(text, unit))
            Add(CString("repaired: no %1 unit is given, so values are taken as they stand")
                    .arg(QLatin1String(kind)));
    }

    void Check(const CXmlElement& element, int number) {
        CString name;
        CString text;
        int type = 0;
        element.GetAttribute("Name", name);
        m_check = CString("%1 (%2)").arg(number).arg(name);
        if (!element.GetAttribute("Type", text))
            return Add("dropped: the check has no type");
        if (!IsNumber(text, type))
            Add(CString("repaired: the type \"%1\" is not a number and counts as 0").arg(text));
        const bool isLive = LifeStatus(element);
        if (isLive && m_live.contains(type))
            Add(CString("repaired: a check of type %1 stands earlier, and the tool shows only that one")
                    .arg(type));
        if (isLive)
            m_live.insert(type);
        Criticality(element);
        if (const ContainerType* container = FindContainerType(type))
            Entries(element, *container);
        else if (element.SelectSingleNode("Check"))
            Add("dropped: checks within a check that is no container");
        Parameters(element, type);
    }

    bool LifeStatus(const CXmlElement& element) {
        CString text;
        int life = 0;
        if (!element.GetAttribute("LifeStatus", text))
            Add("repaired: it does not say whether it is deleted, and counts as in force");
        else if (!IsNumber(text, life))
            Add(CString("repaired: the life status \"%1\" is not a number, and the check counts as in force")
                    .arg(text));
        return life != Deleted;
    }

    void Criticality(const CXmlElement& element) {
        CString text;
        int criticality = 1;
        if (element.GetAttribute("Criticality", text) &&
            (!IsNumber(text, criticality) || criticality < 0 || criticality > HighestCriticality))
            Add(CString("repaired: the criticality \"%1\" counts as medium").arg(text));
    }

    void Entries(const CXmlElement& element, const ContainerType& container) {
        const CXmlNodeList children = element.SelectNodes("Check");
        for (int i = 0; i < children.GetCount(); ++i) {
            const CXmlElement& child = *children.GetAt(i);
            CString text;
            int type = container.child;
            if (child.GetAttribute("Type", text) && IsNumber(text, type) && type != container.child)
                Add(CString("repaired: entry %1 is read as type %2").arg(i + 1).arg(container.child));
            Criticality(child);
            if (!HasFirstValue(child, container.child))
                Add(CString("dropped: entry %1 has no value for its first parameter").arg(i + 1));
            else
                Parameters(child, container.child);
        }
    }

    void Parameters(const CXmlElement& element, int type) {
        for (const CString& what : FindParameterFindings(element, type))
            Add(what);
        Unknown(element, "./*[not(self::Check or self::Parameter)]");
        Unknown(element, "./Parameter/*[not(self::Operator or self::ParameterType or self::Value or "
                         "self::Remarks)]");
    }

    CString m_check;
    QSet<int> m_live;
};

} // namespace

std::vector<Finding> FindFindings(const CXmlElement& root) {
    Finder finder;
    finder.Standard(root);
    return std::move(finder.findings);
}
