// The documents of the application: made, opened and closed.
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/TextNumbers.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"
#include "shell/ChildFrame.h"
#include "shell/FileDialogs.h"
#include "shell/MainFrame.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace {

// The name of a new document: the third field of the template text, and a number.
CString NewTitle(int number) {
    return LoadString(129).section('\n', 2, 2) + CString::number(number);
}

} // namespace

CAdminModuleDoc* CAdminModuleApp::OnFileNew() {
    return ShowDocument(std::make_unique<CAdminModuleDoc>(*this, NewTitle(++m_newCount)));
}

CAdminModuleDoc* CAdminModuleApp::ShowDocument(std::unique_ptr<CAdminModuleDoc> document) {
    CAdminModuleDoc* shown = document.get();
    m_documents.push_back(shown);
    CChildFrame* child = m_frame->AddDocumentWindow(*shown, m_makeView);
    if (!child) {
        m_documents.pop_back();
        return nullptr;
    }
    document.release();
    child->GetView()->OnInitialUpdate();
    m_router.Arm();
    return shown;
}

CAdminModuleDoc* CAdminModuleApp::OpenDocumentFile(const CString& path) {
    const CString full = QFileInfo(path).absoluteFilePath();
    for (CAdminModuleDoc* open : m_documents) {
        if (open->GetUserPath().compare(full, Qt::CaseInsensitive) == 0 && open->GetFrame()) {
            m_frame->ActivateChild(*open->GetFrame());
            return open;
        }
    }
    if (!QFileInfo::exists(full)) {
        ShowMessage(LoadString(FileMissing).replace("%1", full));
        return nullptr;
    }
    auto document = std::make_unique<CAdminModuleDoc>(*this, QFileInfo(full).fileName());
    if (!document->OnOpenDocument(full))
        return nullptr;
    m_recent.Add(full);
    return ShowDocument(std::move(document));
}

void CAdminModuleApp::OnFileOpenStandard() {
    const CString path = AskFileToOpen(m_frame.get(), FolderToOpenFrom());
    if (path.isEmpty())
        return;
    FirstOpen = false;
    OpenDocumentFile(path);
}

CString CAdminModuleApp::FolderToOpenFrom() const {
    const CString told = FirstOpen ? OpenInitialFolderFromHost() : CString();
    if (!told.isEmpty())
        return told;
    const CStringArray& recent = m_recent.Paths();
    return recent.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                            : QFileInfo(recent.front()).path();
}

void CAdminModuleApp::OpenRecentFile(int index) {
    const CString path = m_recent.Paths().value(index);
    if (!path.isEmpty() && !OpenDocumentFile(path))
        m_recent.Remove(path);
}

bool CAdminModuleApp::SaveAllModified() {
    for (CAdminModuleDoc* document : std::vector(m_documents)) {
        if (CChildFrame* child = document->GetFrame(); child && document->IsModified())
            m_frame->ActivateChild(*child); // so that the user sees what is asked about
        if (!document->SaveModified())
            return false;
    }
    return true;
}

bool CAdminModuleApp::CloseAllDocuments() {
    if (!SaveAllModified())
        return false;
    for (const CAdminModuleDoc* document : std::vector(m_documents))
        if (CChildFrame* child = document->GetFrame())
            child->CloseUnasked();
    return true;
}

bool CAdminModuleApp::OnAppExit() {
    return m_frame->close();
}

void CAdminModuleApp::DropDocument(CAdminModuleDoc& document) {
    std::erase(m_documents, &document);
    m_router.Arm();
}
