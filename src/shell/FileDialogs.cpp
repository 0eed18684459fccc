#include "shell/FileDialogs.h"

#include "platform/FileLock.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/widgets/NameFilters.h"
#include "shell/AdminModuleDoc.h"

#include <QFileInfo>

namespace {

constexpr unsigned FilterText = 2123;
constexpr char DefaultExtension[] = "kvstd";

} // namespace

CStringArray FileFilters() {
    return NameFiltersOf(LoadString(FilterText));
}

CString AskFileToOpen(QWidget* owner, const CString& folder) {
    QFileDialog dialog(owner);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(FileFilters());
    dialog.setDefaultSuffix(DefaultExtension);
    dialog.setDirectory(folder);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : CString();
}

CExtFileDlg::CExtFileDlg(CAdminModuleDoc& document, const CString& proposed, QWidget* owner)
    : m_document(document), m_proposed(proposed), m_owner(owner) {}

bool CExtFileDlg::DoModal() {
    QFileDialog dialog(m_owner);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(FileFilters());
    dialog.setDefaultSuffix(DefaultExtension);
    if (m_proposed.contains('/'))
        dialog.setDirectory(QFileInfo(m_proposed).path());
    dialog.selectFile(QFileInfo(m_proposed).fileName());
    while (dialog.exec() == QDialog::Accepted) {
        m_path = dialog.selectedFiles().value(0);
        if (OnFileNameOK(m_path))
            return true;
        dialog.selectFile(m_path);
    }
    return false;
}

bool CExtFileDlg::OnFileNameOK(const CString& path) const {
    if (!QFileInfo::exists(path) || path.compare(m_document.GetUserPath(), Qt::CaseInsensitive) == 0)
        return true;
    FileLock lock;
    const LockOutcome outcome = lock.Take(path);
    if (outcome == LockOutcome::Taken || outcome == LockOutcome::NoLocks)
        return true;
    ShowMessage(LoadString(2403).replace("%1", path));
    return false;
}
