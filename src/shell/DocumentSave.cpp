// How a document's standard comes into the user's file. The working copy is written first, then the folder in
// which it lies is packed over the file; a failure at any point leaves the file and the document as they
// were.
#include "files/Packing.h"
#include "files/StandardFile.h"
#include "files/XmlDocument.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/TextNumbers.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"
#include "shell/ChildFrame.h"
#include "shell/FileDialogs.h"
#include "shell/MainFrame.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

// What a failed save puts back.
struct CAdminModuleDoc::Place {
    CString userPath;
    CString workingFile;
    SavedPlace saved;
    int fileVersion;
    int readOnly;
    CString name;
    CString author;
    CString date;
};

CAdminModuleDoc::Place CAdminModuleDoc::GetPlace() const {
    return {UserPath, WorkingFile,   SavedHistoryIndex,  FileVersion,
            ReadOnly, Standard.Name, Standard.Createdby, Standard.CreatedOn};
}

namespace {

// A control that is being edited gives up its text when it loses the keyboard, and then goes on being edited.
void LetControlsWrite() {
    const QPointer<QWidget> focus = QApplication::focusWidget();
    if (!focus)
        return;
    focus->clearFocus();
    if (focus)
        focus->setFocus(Qt::OtherFocusReason);
}

} // namespace

bool CAdminModuleDoc::OnFileSaveStandard() {
    LetControlsWrite();
    if (ReadOnly || WorkingFile.isEmpty())
        return OnFileSaveAsStandard();
    return WriteAndPack(WorkingFile);
}

bool CAdminModuleDoc::OnFileSaveAsStandard() {
    SaveAs = true;
    CExtFileDlg dialog(*this, UserPath.isEmpty() ? GetTitle() : UserPath, m_app.GetMainFrame());
    return dialog.DoModal() && SaveStandardAs(dialog.GetPathName());
}

bool CAdminModuleDoc::SaveStandardAs(const CString& path) {
    const Place before = GetPlace();
    UserPath = QFileInfo(path).absoluteFilePath();
    // A copy under another name is writable, wherever it lies.
    if (SaveAs && UserPath != before.userPath)
        ReadOnly = 0;
    const CString workingPath = WorkingPathOf(UserPath);
    MoveWorkingFile(workingPath);
    if (WriteAndPack(workingPath))
        return true;
    UserPath = before.userPath;
    ReadOnly = before.readOnly;
    WorkingFile = workingPath;
    MoveWorkingFile(before.workingFile);
    if (!WorkingFile.isEmpty())
        WorkingFileLock.Take(WorkingFile);
    return false;
}

// The folder never holds two standards. Without a path the document has no file, and the working copy goes.
void CAdminModuleDoc::MoveWorkingFile(const CString& path) {
    if (WorkingFile == path)
        return;
    WorkingFileLock.Release();
    if (path.isEmpty())
        QFile::remove(WorkingFile);
    else if (!WorkingFile.isEmpty())
        QFile::rename(WorkingFile, path);
    WorkingFile = path;
}

// Writes the standard and packs it over the user's file. Where that fails, the user is told why.
bool CAdminModuleDoc::WriteAndPack(const CString& workingPath) {
    const Place before = GetPlace();
    if (OnSaveDocument(workingPath) && Pack()) {
        SetPathName(UserPath);
        return true;
    }
    SavedHistoryIndex = before.saved;
    FileVersion = before.fileVersion;
    Standard.Name = before.name;
    Standard.Createdby = before.author;
    Standard.CreatedOn = before.date;
    m_app.GetRouter().Arm();
    return false;
}

bool CAdminModuleDoc::OnSaveDocument(const CString& workingPath) {
    if (DocumentView* view = GetView())
        view->CommitPending();
    WorkingFileLock.Release();
    Standard.SetHeader(UserPath, m_app.GetLanguageName());
    SavedHistoryIndex.Note(Standard);
    try {
        Standard.SaveToFile(workingPath);
    } catch (const CXmlError& error) {
        TellFailure(CString::fromUtf8(error.what()));
        return false;
    }
    WorkingFileLock.Take(workingPath);
    WorkingFile = workingPath;
    FileVersion = ToolVersion;
    return true;
}

bool CAdminModuleDoc::Pack() {
    CString reason;
    // A lock that is held moves to the new file without a gap in which another run could take it.
    if (PackFolder(UserPath, TempFolder, &reason, &UserFileLock) != 1) {
        TellFailure(reason);
        return false;
    }
    if (!reason.isEmpty())
        ShowMessage(UserPath + "\n" + reason);
    if (!UserFileLock.IsHeld())
        UserFileLock.Take(UserPath);
    return true;
}

void CAdminModuleDoc::TellFailure(const CString& reason) const {
    ShowMessage(LoadString(SaveFailed).replace("%1", UserPath) + "\n" + reason);
}

void CAdminModuleDoc::SetPathName(const CString& path) {
    m_app.GetRecentFiles().Add(path);
    UpdateModified();
    if (m_frame)
        m_frame->UpdateTitle();
    m_app.GetRouter().Arm();
}

bool CAdminModuleDoc::DoFileSave() {
    const QFileInfo file(UserPath);
    const bool isWritable = !UserPath.isEmpty() && file.exists() && file.isWritable();
    return isWritable ? OnFileSaveStandard() : OnFileSaveAsStandard();
}
