#include "files/MergeTree.h"

#include "engines/ParameterKinds.h"
#include "files/MergeUnits.h"
#include "files/StandardFile.h"
#include "platform/Folders.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/TextNumbers.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace {

constexpr unsigned NoStandardSkipped = 2130; // the path follows
constexpr unsigned NoTypeSkipped = 2131;
constexpr long UnitUnknown = -1;

long UnitOf(const CXmlElement& root, const char* attribute) {
    CString text;
    long unit = UnitUnknown;
    if (root.GetAttribute(attribute, text))
        ParseLong(text, unit);
    return unit;
}

CXmlElement* LoadStandard(CXmlDocument& document, const CString& path) {
    CXmlElement* root = document.Load(path, false);
    return root && root->HasBaseName("Standard") ? root : nullptr;
}

// The type comes from a file that is not trusted: as the name of a folder, only digits cannot lead away.
bool NamesFolder(const CString& type) {
    return !type.isEmpty() &&
           std::all_of(type.begin(), type.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool HasAngles(const CXmlElement& check) {
    const CXmlNodeList parameters = check.SelectNodes("Parameter");
    for (int i = 0; i < parameters.GetCount(); ++i)
        if (ParameterKindOf(*parameters.GetAt(i)) == KindAngle &&
            parameters.GetAt(i)->SelectSingleNode("Value"))
            return true;
    return false;
}

} // namespace

struct MergeTree::Origin {
    const MergeSource& source;
    long unit;
    bool otherAngles; // its angles are in another unit than the base's
};

bool MergeTree::OpenBase(const MergeSource& source) {
    const CXmlElement* root = LoadStandard(m_document, source.xmlPath);
    if (!root)
        return false;
    const CXmlNodeList checks = root->SelectNodes("Check");
    for (int i = 0; i < checks.GetCount(); ++i) {
        CString type;
        if (checks.GetAt(i)->GetAttribute("Type", type))
            m_checks[type].push_back(*checks.GetAt(i));
    }
    NoteVersion(*root, source);
    return true;
}

void MergeTree::MoveSideFoldersOfBase(const MergeSource& base) {
    for (const auto& [type, checks] : m_checks)
        MoveSideFolder(base, type);
}

void MergeTree::Take(const MergeSource& source) {
    CXmlDocument document;
    const CXmlElement* root = LoadStandard(document, source.xmlPath);
    if (!root) {
        ShowMessage(LoadString(NoStandardSkipped) + source.listed);
        return;
    }
    NoteVersion(*root, source);
    const long angles = UnitOf(*root, "AngularUnit");
    const long baseAngles = UnitOf(*m_document.Root, "AngularUnit");
    const Origin origin{source, UnitOf(*root, "Unit"),
                        angles >= 0 && baseAngles >= 0 && angles != baseAngles};
    const CXmlNodeList checks = root->SelectNodes("Check");
    for (int i = 0; i < checks.GetCount(); ++i) {
        if (TakeCheck(*checks.GetAt(i), origin))
            continue;
        m_notes.Warn({MergeRestSkipped, source.listed, {}, {}});
        ShowMessage(LoadString(NoTypeSkipped));
        return;
    }
}

// False for a check without a type.
bool MergeTree::TakeCheck(const CXmlElement& check, const Origin& origin) {
    CString type;
    CString life;
    CString name;
    if (!check.GetAttribute("Type", type))
        return false;
    check.GetAttribute("LifeStatus", life);
    if (life == "1")
        return true; // deleted: it leaves no trace
    if (!check.GetAttribute("Name", name))
        name = type;
    if (RemoveFirst(type))
        m_notes.Replaced(name, origin.source.listed);
    ConvertUnits(check, name, origin);
    m_document.Root->AppendChild(&check);
    m_checks[type].push_back(check);
    MoveSideFolder(origin.source, type);
    return true;
}

bool MergeTree::RemoveFirst(const CString& type) {
    const auto found = m_checks.find(type);
    if (found == m_checks.end() || found->second.empty())
        return false;
    m_document.Root->DestroyChild(&found->second.front());
    found->second.pop_front();
    if (NamesFolder(type))
        DeleteFolderTree(m_folder + "/" + type);
    return true;
}

void MergeTree::ConvertUnits(const CXmlElement& check, const CString& name, const Origin& origin) {
    std::vector<UnitLoss> losses;
    ConvertCheckUnits(check, origin.unit, UnitOf(*m_document.Root, "Unit"), &losses);
    for (const UnitLoss& loss : losses)
        m_notes.Warn({loss.text, origin.source.listed, name, loss.parameter});
    if (origin.otherAngles && HasAngles(check))
        m_notes.Warn({MergeAnglesStay, origin.source.listed, name, {}});
}

void MergeTree::NoteVersion(const CXmlElement& root, const MergeSource& source) {
    CString text;
    int version = 0;
    if (root.GetAttribute("Version", text) && ParseInt(text, version) && version > ToolVersion)
        m_notes.Warn({MergeLaterVersion, source.listed, {}, FormatInt(version)});
}

// Most checks have no side folder, and then there is nothing to move.
void MergeTree::MoveSideFolder(const MergeSource& source, const CString& type) const {
    const QFileInfo from(source.folder + "/" + type);
    const CString to = m_folder + "/" + type;
    if (NamesFolder(type) && from.isDir() && !from.isSymLink() && !QFileInfo::exists(to))
        QDir().rename(from.filePath(), to);
}

CString MergeTree::Save(const CString& path) const {
    try {
        m_document.Save(path);
    } catch (const CXmlError& error) {
        return CString::fromStdString(error.what());
    }
    // Many files together may make more than is ever opened again.
    CXmlDocument again;
    return again.Load(path, false) ? CString() : again.GetLoadError();
}
