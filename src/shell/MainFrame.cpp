#include "shell/MainFrame.h"

#include "platform/LanguageLibrary.h"
#include "platform/widgets/Look.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"
#include "shell/AlphaToolBar.h"
#include "shell/ChildFrame.h"
#include "shell/CommandTable.h"
#include "shell/MDIClientWnd.h"
#include "shell/StatusPanes.h"
#include "shell/TabToolbar.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QUrl>

namespace {

constexpr unsigned CaptionText = 128;
constexpr unsigned FrameIcon = 128;

// The files of a drag; empty where something else is dragged.
CStringArray FilesOf(const QMimeData& data) {
    CStringArray files;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile())
            files.append(url.toLocalFile());
    return files;
}

bool IsLockingKey(int key) {
    return key == Qt::Key_CapsLock || key == Qt::Key_NumLock || key == Qt::Key_ScrollLock;
}

} // namespace

CMainFrame::CMainFrame(CAdminModuleApp& app)
    : m_app(app), m_client(new CMDIClientWnd), m_catalogueBar(new CTabToolbar(app)),
      m_status(new CStatusPanes(this)) {
    setObjectName("MainFrame");
    setWindowTitle(LoadString(CaptionText));
    setWindowIcon(QIcon(Look::IconPixmapOf(FrameIcon, *this)));
    setMinimumSize(1024, 700);
    CreateToolBars();

    auto* centre = new QWidget(this);
    auto* row = new QHBoxLayout(centre);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_catalogueBar);
    row->addWidget(m_client, 1);
    setCentralWidget(centre);
    setStatusBar(m_status);

    CreateActions();
    menuBar()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(menuBar(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) { ShowBarMenu(menuBar()->mapToGlobal(place)); });
    connect(m_client, &QMdiArea::subWindowActivated, this, &CMainFrame::OnChildActivated);
    setAcceptDrops(true);
    qApp->installEventFilter(this);
    PlaceMenus();
}

CMainFrame::~CMainFrame() {
    qApp->removeEventFilter(this);
    // The windows of documents go while this frame is still whole.
    disconnect(m_client, nullptr, this, nullptr);
    delete centralWidget();
}

CChildFrame* CMainFrame::AddDocumentWindow(CAdminModuleDoc& document, const ViewMaker& makeView) {
    auto child = std::make_unique<CChildFrame>(m_app, document);
    if (!child->Create(makeView))
        return nullptr;
    CChildFrame* shown = child.release();
    m_client->addSubWindow(shown);
    shown->showMaximized();
    OnChildActivated();
    return shown;
}

CChildFrame* CMainFrame::GetActiveChild() const {
    return qobject_cast<CChildFrame*>(m_client->currentSubWindow());
}

void CMainFrame::ActivateChild(CChildFrame& child) {
    m_client->setActiveSubWindow(&child);
    if (child.isMinimized())
        child.showNormal();
}

void CMainFrame::OnChildActivated() {
    PlaceMenus();
    m_app.GetRouter().Arm();
}

void CMainFrame::SetLiveCheckCount(int count) {
    m_status->SetLiveCheckCount(count);
}

void CMainFrame::OnIdle() {
    for (CAdminModuleDoc* document : m_app.GetDocuments()) {
        document->UpdateModified();
        if (CChildFrame* child = document->GetFrame())
            child->UpdateTitle();
    }
    const CAdminModuleDoc* active = m_app.GetActiveDocument();
    SetLiveCheckCount(active ? active->GetStandard().CountLiveChecks() : 0);
    const CString tip = LoadString(m_app.IsShowingAll() ? 2297 : 2296);
    QAction* showAll = m_app.GetRouter().ActionOf(Command::ShowAllChecks);
    if (showAll->toolTip() != tip)
        showAll->setToolTip(tip);
}

bool CMainFrame::OnCommand(unsigned id) {
    switch (id) {
    case Command::Cascade: m_client->cascadeSubWindows(); return true;
    case Command::Tile: m_client->tileSubWindows(); return true;
    case Command::Exit: m_app.OnAppExit(); return true;
    case Command::MainToolbar: m_mainToolbar->setVisible(m_mainToolbar->isHidden()); return true;
    default: break;
    }
    if (id < Command::FirstRecentFile || id > Command::LastRecentFile)
        return false;
    m_app.OpenRecentFile(static_cast<int>(id - Command::FirstRecentFile));
    return true;
}

bool CMainFrame::OnUpdateCommand(unsigned id, CommandState& state) {
    switch (id) {
    case Command::Cascade:
    case Command::Tile: state.enabled = !m_client->subWindowList().isEmpty(); return true;
    case Command::Exit: return true;
    case Command::MainToolbar: state.checked = !m_mainToolbar->isHidden(); return true;
    default: break;
    }
    if (id < Command::FirstRecentFile || id > Command::LastRecentFile)
        return false;
    state.enabled = static_cast<int>(id - Command::FirstRecentFile) < m_app.GetRecentFiles().Paths().size();
    return true;
}

void CMainFrame::closeEvent(QCloseEvent* event) {
    event->setAccepted(m_app.CloseAllDocuments());
}

void CMainFrame::dragEnterEvent(QDragEnterEvent* event) {
    if (!FilesOf(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void CMainFrame::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    for (const CString& path : FilesOf(*event->mimeData()))
        m_app.OpenDocumentFile(path);
}

void CMainFrame::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_status->ShowKeyStates(ReadKeyStates());
    QMainWindow::changeEvent(event);
}

bool CMainFrame::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyRelease && IsLockingKey(static_cast<QKeyEvent*>(event)->key()))
        m_status->ShowKeyStates(ReadKeyStates());
    return QMainWindow::eventFilter(object, event);
}

// The frame's own list of bars would show up wherever nothing else answers a right click.
QMenu* CMainFrame::createPopupMenu() {
    return nullptr;
}
