#include "files/StandardFile.h"

#include "files/DateForms.h"
#include "files/StandardTree.h"
#include "platform/Format.h"
#include "platform/Session.h"

#include <QFile>

namespace {

// What a file holds for its other readers only.
constexpr const char* NeverRead[] = {"ParameterType", "Remarks", "Status", "IsACSupported", "Summary"};

bool IsStandardRoot(const CXmlElement* root) {
    return root && root->HasBaseName("Standard");
}

int NumberOf(const CXmlElement& element, const char* attribute, int otherwise) {
    CString text;
    int number = otherwise;
    if (element.GetAttribute(attribute, text))
        ParseInt(text, number);
    return number;
}

// Only the first character counts, as one digit.
int FirstDigitOf(const CXmlElement& element, const char* attribute) {
    CString text;
    if (!element.GetAttribute(attribute, text))
        return 0;
    const ushort c = text[0].unicode();
    return c >= u'0' && c <= u'9' ? c - u'0' : 0;
}

} // namespace

int IsStandardFile(const CString& path, bool showError) {
    if (!QFile::exists(path))
        return 0;
    CXmlDocument document;
    return IsStandardRoot(document.Load(path, showError)) ? 1 : 0;
}

int GetFileVersion(const CString& path, int& outVersion) {
    CXmlDocument document;
    const CXmlElement* root = QFile::exists(path) ? document.Load(path, true) : nullptr;
    if (!IsStandardRoot(root))
        return 0;
    outVersion = NumberOf(*root, "Version", 0);
    if (outVersion == ToolVersion)
        return 1;
    return outVersion > ToolVersion ? 2 : 3;
}

void BuildStandardTree(CXmlDocument& document, const CStandard& standard) {
    CheckList checks;
    standard.GetAllChecks(checks);
    const auto root = document.CreateElement("Standard");
    document.AppendRoot(*root);
    root->SetAttribute("Name", standard.Name);
    root->SetAttribute("Createdby", standard.Createdby);
    root->SetAttribute("CreatedOn", standard.CreatedOn);
    root->SetAttribute("Unit", FormatInt(standard.Unit));
    root->SetAttribute("AngularUnit", FormatInt(standard.AngularUnit));
    root->SetAttribute("Version", FormatInt(ToolVersion));
    root->SetAttribute("RunRWConfigOption", FormatInt(standard.RunRWConfigOption));
    for (CCheck* check : checks)
        root->AppendFinished(check->WriteXml());
}

void CStandard::SetHeader(const CString& name, const CString& language) {
    Createdby = SessionUser();
    CreatedOn = FormatNowForLanguage(language);
    Name = name;
}

bool CStandard::SaveToFile(const CString& path) {
    CXmlDocument document(CXmlDocument::Use::OnlyWritten);
    const CurrentXmlDocument current(document);
    BuildStandardTree(document, *this);
    document.Save(path);
    return true;
}

bool CStandard::LoadFromFile(const CString& path) {
    CXmlDocument document;
    const CurrentXmlDocument current(document);
    document.LeaveOut(NeverRead);
    const CXmlElement* root = document.Load(path, true);
    if (root)
        LoadFrom(*root);
    return root != nullptr;
}

bool CStandard::LoadFromXmlText(const CString& text) {
    CXmlDocument document;
    const CurrentXmlDocument current(document);
    document.LeaveOut(NeverRead);
    const CXmlElement* root = document.LoadXmlText(text);
    if (root)
        LoadFrom(*root);
    return root != nullptr;
}

void CStandard::LoadFrom(const CXmlElement& root) {
    const CXmlNodeList checks = root.SelectNodes("Check");
    Unit = NumberOf(root, "Unit", Unit);
    AngularUnit = NumberOf(root, "AngularUnit", AngularUnit);
    RunRWConfigOption = FirstDigitOf(root, "RunRWConfigOption");
    for (int i = 0; i < checks.GetCount(); ++i) {
        unsigned sequence = 0;
        if (auto check = ReadCheck(*checks.GetAt(i)))
            InsertCheck(std::move(check), sequence);
    }
}

std::unique_ptr<CCheck> CStandard::ReadCheck(const CXmlElement& element) const {
    CString text;
    if (!element.GetAttribute("Type", text))
        return nullptr;
    auto check = MakeCheck(NumberOf(element, "Type", 0));
    check->LifeStatus = static_cast<unsigned>(NumberOf(element, "LifeStatus", -1));
    check->ReadXml(element);
    return check;
}
