#include "shell/AdminModuleApp.h"

#include "dialogs/AboutDlg.h"
#include "dialogs/MergeDlg.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/TextNumbers.h"
#include "platform/widgets/Look.h"
#include "shell/AdminModuleDoc.h"
#include "shell/ChildFrame.h"
#include "shell/CommandTable.h"
#include "shell/FileDialogs.h"
#include "shell/MainFrame.h"
#include "shell/PrintStandard.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>
#include <algorithm>

CAdminModuleApp::CAdminModuleApp(ViewMaker makeView)
    : m_makeView(std::move(makeView)), m_router([this] { return Chain(); }) {
    for (const AppCheckRow& row : AppChecks())
        AddCatalogueEntry(row.type, row.info);
    for (const QRgb color : Look::PaletteColors)
        m_brushes.emplace_back(QColor(color));
    m_brushes.emplace_back(Qt::NoBrush);
    qApp->installEventFilter(&m_wheelGuard);
}

CAdminModuleApp::~CAdminModuleApp() {
    m_router.AfterUpdate = nullptr;
    m_frame.reset(); // with all windows and what they show
    for (CAdminModuleDoc* document : m_documents)
        delete document;
}

void CAdminModuleApp::AddCatalogueEntry(MQC_CheckType_e type, const CAppCheckInfo& info) {
    m_catalogue.emplace_back(type, std::make_unique<CAppCheckInfo>(info));
}

std::vector<CommandTarget*> CAdminModuleApp::Chain() {
    DocumentView* view = GetActiveView();
    return {view ? &view->Commands() : nullptr, GetActiveDocument(), m_frame.get(), this};
}

CAdminModuleDoc* CAdminModuleApp::GetActiveDocument() const {
    const CChildFrame* child = m_frame ? m_frame->GetActiveChild() : nullptr;
    return child ? &child->GetDocument() : nullptr;
}

DocumentView* CAdminModuleApp::GetActiveView() const {
    const CChildFrame* child = m_frame ? m_frame->GetActiveChild() : nullptr;
    return child ? child->GetView() : nullptr;
}

void CAdminModuleApp::FlipShowAll() {
    ShowAll = !ShowAll;
    for (const CAdminModuleDoc* document : m_documents)
        if (DocumentView* view = document->GetView())
            view->OnShownGroupsChanged();
    m_router.Arm();
}

void CAdminModuleApp::OnMerge() {
    CMergeDlg dialog(RunFolder, FileFilters(), m_frame.get());
    dialog.OpenDocumentFile = [this](const CString& path) { OpenDocumentFile(path); };
    dialog.ShowHelp = [this](unsigned command, unsigned topic) { ShowHelp(command, topic); };
    dialog.DoModal();
}

void CAdminModuleApp::ShowHelp(unsigned command, unsigned topic) {
    const CString name = command == 0 ? CString("index") : CString::number(topic);
    const CString page = LanguageFolder + "/help/" + name + ".html";
    if (QFileInfo::exists(page))
        QDesktopServices::openUrl(QUrl::fromLocalFile(page));
    else
        ShowMessage(LoadString(HelpPageMissing).replace("%1", name));
}

bool CAdminModuleApp::OnCommand(unsigned id) {
    switch (id) {
    case Command::New: OnFileNew(); return true;
    case Command::Open: OnFileOpenStandard(); return true;
    case Command::PrintSetup: SetUpPrinter(m_frame.get()); return true;
    case Command::HelpTopics: ShowHelp(0, 0); return true;
    case Command::CloseAll: CloseAllDocuments(); return true;
    case Command::Merge: OnMerge(); return true;
    case Command::About: CAboutDlg(m_frame.get()).exec(); return true;
    default: return false;
    }
}

bool CAdminModuleApp::OnUpdateCommand(unsigned id, CommandState& state) {
    switch (id) {
    case Command::New:
    case Command::Open:
    case Command::PrintSetup:
    case Command::Merge:
    case Command::About:
    case Command::HelpTopics: return true;
    case Command::CloseAll: state.enabled = !m_documents.empty(); return true;
    default: return false;
    }
}
