#include "cli/OpenedStandard.h"

#include "files/Packing.h"
#include "files/StandardFile.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

bool IsArchive(const CString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(2) == "PK";
}

} // namespace

bool OpenedStandard::Refuse(const CString& reason) {
    Reason = reason;
    return false;
}

bool OpenedStandard::Unpack(const CString& path) {
    CString reason;
    if (UnpackStandard(path, WorkingFolder(), nullptr, &reason) == 1)
        return true;
    // What is no archive was meant to be plain XML, and its fault is told as such.
    if (!IsArchive(path)) {
        m_document.Load(path, false);
        reason = m_document.GetLoadError().isEmpty() ? LoadString(2040) : m_document.GetLoadError();
    }
    return Refuse(reason);
}

bool OpenedStandard::Open(const CString& path) {
    if (const CString reason = WhyNotReadable(path); !reason.isEmpty())
        return Refuse(reason);
    HasFailed = !m_folder.isValid() || !QDir().mkpath(WorkingFolder());
    if (HasFailed)
        return Refuse("no temporary folder can be made: " + m_folder.errorString());
    if (!Unpack(path))
        return false;
    m_workingFile = WorkingFolder() + "/" + QFileInfo(path).fileName();
    if (!QFile::exists(m_workingFile))
        return Refuse("the archive holds no standard");
    if (!m_document.Load(m_workingFile, false))
        return Refuse(m_document.GetLoadError());
    if (!m_document.Root->HasBaseName("Standard"))
        return Refuse("the XML in it is not a standard");
    ParseInt(HeaderText("Version"), Version);
    if (Version > ToolVersion)
        return Refuse(LoadString(2409).arg(Version).arg(ToolVersion));
    return Standard.LoadFromFile(m_workingFile) || Refuse(LoadString(2040));
}

CString OpenedStandard::HeaderText(const char* attribute) const {
    CString text;
    if (m_document.Root)
        m_document.Root->GetAttribute(attribute, text);
    return text;
}

CString WhyNotReadable(const CString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        return "there is no such file";
    if (!info.isFile())
        return "this is not a file";
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? CString() : file.errorString();
}

CString NameInside(const CString& target) {
    const CString name = QFileInfo(target).fileName();
    return name.endsWith(".kvstd", Qt::CaseInsensitive) ? name : name + ".kvstd";
}

bool SaveOpenedStandard(OpenedStandard& opened, const CString& target, CString& reason) {
    const QFileInfo info(target);
    const CString working = opened.WorkingFolder() + "/" + NameInside(target);
    if (working != opened.WorkingFile())
        QFile::remove(opened.WorkingFile());
    opened.Standard.SetHeader(info.absoluteFilePath(), LoadedLanguage());
    opened.Standard.SaveToFile(working);
    return PackFolder(target, opened.WorkingFolder(), &reason) == 1;
}
