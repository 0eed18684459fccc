#include "shell/RecentFiles.h"

#include "platform/Settings.h"

#include <QFileInfo>

namespace {

constexpr char Key[] = R"(Software\Local AppWizard-Generated Applications\Ruleward Builder\Recent File List)";

CString NameOf(int index) {
    return "File" + CString::number(index + 1);
}

void AddNames(CSettingsKey& key) {
    for (int index = 0; index < CRecentFiles::Size; ++index)
        key.AddString(NameOf(index), {});
}

CString WithoutMnemonics(CString text) {
    return text.replace('&', "&&");
}

} // namespace

void CRecentFiles::Load() {
    CSettingsKey key(Key);
    AddNames(key);
    key.ReadAll();
    m_paths.clear();
    for (int index = 0; index < Size; ++index) {
        CString path;
        if (key.GetString(NameOf(index), path) && !path.isEmpty())
            m_paths.append(path);
    }
}

void CRecentFiles::Add(const CString& path) {
    m_paths.removeAll(path);
    m_paths.prepend(path);
    m_paths = m_paths.mid(0, Size);
    Store();
}

void CRecentFiles::Remove(const CString& path) {
    if (m_paths.removeAll(path) > 0)
        Store();
}

CString CRecentFiles::MenuText(int index) const {
    const QFileInfo file(m_paths[index]);
    CString text = WithoutMnemonics(file.fileName());
    int sameName = 0;
    for (const CString& path : m_paths)
        sameName += QFileInfo(path).fileName() == file.fileName();
    if (sameName > 1)
        text += "  (" + WithoutMnemonics(file.path()) + ")";
    return "&" + CString::number(index + 1) + " " + text;
}

void CRecentFiles::Store() const {
    CSettingsKey key(Key);
    AddNames(key);
    for (int index = 0; index < m_paths.size(); ++index)
        key.SetString(NameOf(index), m_paths[index]);
    key.WriteAll();
}
