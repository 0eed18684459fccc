#include "platform/Settings.h"

#include <utility>

namespace {

constexpr char ToolKey[] = R"(Software\Kortavo\Kortavo 2026\Ruleward\RulewardBuilder)";
constexpr char CommonKey[] = R"(Software\Kortavo\Kortavo 2026\Ruleward\CommonSettings)";
constexpr char HostKey[] = R"(Software\Kortavo\Kortavo 2026\ExtReferences)";

} // namespace

CSettingsKey::CSettingsKey(const CString& subkey, const CString& name) : CSettingsNode(name) {
    m_place.subkey = subkey;
}

template <class Value, class Data> void CSettingsKey::Add(const CString& name, const Data& value) {
    m_children.insert(m_children.begin(), std::make_unique<Value>(name, value));
}

template <class Value> Value* CSettingsKey::Find(const CString& name) const {
    for (const auto& child : m_children) {
        if (const auto* key = dynamic_cast<const CSettingsKey*>(child.get())) {
            if (Value* value = key->Find<Value>(name))
                return value;
        } else if (child->Name == name) {
            if (auto* value = dynamic_cast<Value*>(child.get()))
                return value;
        }
    }
    return nullptr;
}

template <class Value, class Data> bool CSettingsKey::Get(const CString& name, Data& out) const {
    const Value* value = Find<Value>(name);
    if (value)
        out = value->Value;
    return value != nullptr;
}

template <class Value, class Data> bool CSettingsKey::Set(const CString& name, const Data& data) {
    Value* value = Find<Value>(name);
    if (value)
        value->Value = data;
    return value != nullptr;
}

void CSettingsKey::AddInt(const CString& name, int value) {
    Add<CIntValue>(name, value);
}

void CSettingsKey::AddColor(const CString& name, std::uint32_t value) {
    Add<CColorValue>(name, value);
}

void CSettingsKey::AddDouble(const CString& name, double value) {
    Add<CDoubleValue>(name, value);
}

void CSettingsKey::AddString(const CString& name, const CString& value) {
    Add<CStringValue>(name, value);
}

void CSettingsKey::AddPoint(const CString& name, const QPoint& value) {
    Add<CPointValue>(name, value);
}

void CSettingsKey::AddRect(const CString& name, const QRect& value) {
    Add<CRectValue>(name, value);
}

CSettingsKey& CSettingsKey::AddKey(std::unique_ptr<CSettingsKey> key) {
    CSettingsKey& added = *key;
    m_children.insert(m_children.begin(), std::move(key));
    return added;
}

bool CSettingsKey::GetInt(const CString& name, int& out) const {
    return Get<CIntValue>(name, out);
}

bool CSettingsKey::GetColor(const CString& name, std::uint32_t& out) const {
    return Get<CColorValue>(name, out);
}

bool CSettingsKey::GetDouble(const CString& name, double& out) const {
    return Get<CDoubleValue>(name, out);
}

bool CSettingsKey::GetString(const CString& name, CString& out) const {
    return Get<CStringValue>(name, out);
}

bool CSettingsKey::GetPoint(const CString& name, QPoint& out) const {
    return Get<CPointValue>(name, out);
}

bool CSettingsKey::GetRect(const CString& name, QRect& out) const {
    return Get<CRectValue>(name, out);
}

bool CSettingsKey::SetInt(const CString& name, int value) {
    return Set<CIntValue>(name, value);
}

bool CSettingsKey::SetColor(const CString& name, std::uint32_t value) {
    return Set<CColorValue>(name, value);
}

bool CSettingsKey::SetDouble(const CString& name, double value) {
    return Set<CDoubleValue>(name, value);
}

bool CSettingsKey::SetString(const CString& name, const CString& value) {
    return Set<CStringValue>(name, value);
}

bool CSettingsKey::SetPoint(const CString& name, const QPoint& value) {
    return Set<CPointValue>(name, value);
}

bool CSettingsKey::SetRect(const CString& name, const QRect& value) {
    return Set<CRectValue>(name, value);
}

bool CSettingsKey::ReadAll() {
    for (const auto& child : m_children) {
        if (auto* key = dynamic_cast<CSettingsKey*>(child.get()))
            key->ReadAll();
        else if (auto* value = dynamic_cast<CSettingsValue*>(child.get()))
            value->Read(m_place);
    }
    return true;
}

bool CSettingsKey::WriteAll() const {
    for (const auto& child : m_children) {
        if (const auto* key = dynamic_cast<const CSettingsKey*>(child.get()))
            key->WriteAll();
        else if (const auto* value = dynamic_cast<const CSettingsValue*>(child.get()))
            value->Write(m_place);
    }
    return true;
}

CSettingsKey* CSettingsKey::FindKey(const CString& name) {
    for (const auto& child : m_children) {
        auto* key = dynamic_cast<CSettingsKey*>(child.get());
        if (!key)
            continue;
        if (key->Name == name)
            return key;
        if (CSettingsKey* nested = key->FindKey(name))
            return nested;
    }
    return nullptr;
}

SettingsRoot CSettingsKey::SetRoot(SettingsRoot root) {
    return std::exchange(m_place.root, root);
}

CChkbldsetting::CChkbldsetting() : CSettingsKey(ToolKey) {
    AddInt("UnitSettings", 2);
    AddInt("ShowWelcomePgAtStartup", 1);
    AddString("LastAccessedBendTableFolder", {});
    AddString("LastAccessedSheetFormatFolder", {});
    AddInt("AngularUnitSetting", 0);
    ReadAll();
}

CCommonRegSetting::CCommonRegSetting() : CSettingsKey(CommonKey) {
    AddString("CurrentLanguage", {});
    AddString("LastAccessedLearnChkFileExtension", {});
    AddString("LastAccessedLearnChkFolderPath", {});
    ReadAll();
}

CString CurrentLanguage() {
    CString language;
    CCommonRegSetting().GetString("CurrentLanguage", language);
    return language.isEmpty() ? CString("English") : language;
}

CString OpenInitialFolderFromHost() {
    CStringValue folder("Ruleward File", {});
    folder.Read({SettingsRoot::CurrentUser, HostKey});
    const qsizetype end = folder.Value.indexOf(u';');
    return end > 0 ? folder.Value.left(end) : folder.Value;
}
