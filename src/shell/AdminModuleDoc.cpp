#include "shell/AdminModuleDoc.h"

#include "files/StandardFile.h"
#include "platform/Folders.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/TextNumbers.h"
#include "shell/AdminModuleApp.h"
#include "shell/ChildFrame.h"
#include "shell/CommandTable.h"
#include "shell/MainFrame.h"
#include "shell/TabToolbar.h"

#include <QFileInfo>
#include <utility>

namespace {

// Where no folder can be made, writing into it fails where it happens, and is told there.
CString MakeDocumentFolder(const CString& runFolder) {
    const CString folder = MakeStampFolder(runFolder);
    return folder.isEmpty() ? runFolder + "/" + MakeRunStamp() : folder;
}

} // namespace

CAdminModuleDoc::CAdminModuleDoc(CAdminModuleApp& app, const CString& title)
    : m_app(app), m_title(title), TempFolder(MakeDocumentFolder(app.GetRunFolder())),
      FileVersion(ToolVersion) {
    Standard.StepsDiscarded = [this](int firstIndex) { SavedHistoryIndex.ForgetFrom(firstIndex, Standard); };
}

CAdminModuleDoc::~CAdminModuleDoc() {
    DeleteFolderTree(TempFolder);
}

CAdminModuleDoc* CAdminModuleDoc::GetActiveStandardDoc(const CAdminModuleApp& app) {
    return app.GetActiveDocument();
}

bool CAdminModuleDoc::IsPathOpen(const CString& path) const {
    for (const CAdminModuleDoc* document : m_app.GetDocuments())
        if (document->UserPath.compare(path, Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

void CAdminModuleDoc::UpdateModified() {
    const bool changed = !SavedHistoryIndex.IsAt(Standard) && Standard.GetHistoryIndex() != -1;
    SetModifiedFlag(changed || ForcedModified);
}

bool CAdminModuleDoc::TakeLoadedFlag() {
    return std::exchange(Loaded, 0) != 0;
}

CString CAdminModuleDoc::GetTitle() const {
    return UserPath.isEmpty() ? m_title : QFileInfo(UserPath).fileName();
}

CChildFrame* CAdminModuleDoc::GetFrame() const {
    return m_frame;
}

DocumentView* CAdminModuleDoc::GetView() const {
    return m_frame ? m_frame->GetView() : nullptr;
}

void CAdminModuleDoc::SetFrame(CChildFrame* frame) {
    m_frame = frame;
}

bool CAdminModuleDoc::SaveModified() {
    UpdateModified();
    if (!IsModified())
        return true;
    switch (ShowMessage(LoadString(SaveChangesQuestion).replace("%1", GetTitle()),
                        MessageButtons::SaveDiscardCancel)) {
    case MessageAnswer::Save: return DoFileSave();
    case MessageAnswer::Discard: return true;
    default: return false;
    }
}

void CAdminModuleDoc::OnCloseDocument() {
    if (GetView() && m_app.GetMainFrame())
        m_app.GetMainFrame()->GetTabToolbar().ReleaseButtons(Command::FirstOfCatalogue,
                                                             Command::LastReleasedOnClose);
    UserFileLock.Release();
    WorkingFileLock.Release();
    ReadOnly = 0;
    DeleteFolderTree(TempFolder);
}

bool CAdminModuleDoc::OnCommand(unsigned id) {
    switch (id) {
    case Command::Close: return m_frame && m_frame->close();
    case Command::Save: OnFileSaveStandard(); return true;
    case Command::SaveAs: OnFileSaveAsStandard(); return true;
    default: return false;
    }
}

bool CAdminModuleDoc::OnUpdateCommand(unsigned id, CommandState&) {
    return id == Command::Close || id == Command::Save || id == Command::SaveAs;
}
