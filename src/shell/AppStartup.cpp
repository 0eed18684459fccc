// Start-up and end of the program.
#include "engines/FolderServices.h"
#include "platform/Folders.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"
#include "shell/FileType.h"
#include "shell/MainFrame.h"

#include <QApplication>
#include <QDir>

namespace {

constexpr unsigned ApplicationName = 1938;
constexpr unsigned StandardFileIcon = 1245;

CString ParentOf(const CString& folder) {
    return folder.left(folder.lastIndexOf('/'));
}

} // namespace

bool CAdminModuleApp::InitInstance() {
    Settings = std::make_unique<CChkbldsetting>();
    Settings->ReadAll();
    PasteEnabled = true;
    RunFolder = PrepareRunFolder();
    FindFolders();
    if (!LoadTexts())
        return false; // no message: there is nothing to take one from
    m_recent.Load();
    if (!MakeFrame())
        return false;
    m_frame->showMaximized();
    OnFileNew();
    return true;
}

void CAdminModuleApp::FindFolders() {
    ModuleFolder = QCoreApplication::applicationDirPath();
    if (LanguageName.isEmpty())
        LanguageName = CurrentLanguage();
    LanguageFolder = ParentOf(ModuleFolder) + "/Lang/" + LanguageName;
    QDir::setCurrent(ParentOf(ModuleFolder));
}

bool CAdminModuleApp::LoadTexts() {
    if (!LoadLanguage(ModuleFolder, LanguageName))
        return false;
    QApplication::setApplicationDisplayName(LoadString(ApplicationName));
    return true;
}

bool CAdminModuleApp::MakeFrame() {
    BuildMenuSet();
    m_frame = std::make_unique<CMainFrame>(*this);
    m_router.AfterUpdate = [this] { m_frame->OnIdle(); };
    return true;
}

int CAdminModuleApp::ExitInstance() {
    m_router.AfterUpdate = nullptr;
    m_frame.reset();
    for (CAdminModuleDoc* document : std::exchange(m_documents, {}))
        delete document;
    m_menus.clear();
    Settings.reset();
    m_clipboard.checks.clear();
    DeleteFolderTree(RunFolder);
    return 0;
}

bool CAdminModuleApp::CheckMaterialFolder() {
    const CString folder = ParentOf(ModuleFolder) + "/Lang/" + LanguageName + "/kvmaterials";
    CString found;
    if (FindInFolder(folder, ".kvmat", found))
        return true;
    ShowMessage(LoadString(2007));
    return false;
}

bool CAdminModuleApp::RegisterStandardFileType() {
    WriteFileAssociation(QCoreApplication::applicationFilePath(),
                         LoadImageSource(ImageType::Icon, StandardFileIcon));
    return true;
}
