#include "shell/ChildFrame.h"

#include "platform/widgets/Look.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"

#include <QCloseEvent>
#include <QMenu>
#include <utility>

namespace {

constexpr unsigned DocumentIcon = 129;

} // namespace

CChildFrame::CChildFrame(CAdminModuleApp& app, CAdminModuleDoc& document, QWidget* parent)
    : QMdiSubWindow(parent), m_app(app), m_document(document) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("DocumentWindow");
    setMinimumSize(200, 150);
    setWindowIcon(QIcon(Look::IconPixmapOf(DocumentIcon, *this)));
    // The window's own menu would take keys that are the program's.
    for (QAction* action : systemMenu()->actions())
        action->setShortcut({});
    m_document.SetFrame(this);
    UpdateTitle();
}

CChildFrame::~CChildFrame() {
    m_view = nullptr;
    // The view goes before the document that it shows.
    delete widget();
    if (m_isClosed)
        delete &m_document;
}

bool CChildFrame::Create(const ViewMaker& makeView) {
    m_view = makeView ? makeView(m_app, m_document, this) : nullptr;
    if (m_view)
        setWidget(&m_view->Widget());
    return m_view != nullptr;
}

void CChildFrame::UpdateTitle() {
    const CString title = m_document.GetTitle() + "[*]";
    if (windowTitle() != title)
        setWindowTitle(title);
    if (isWindowModified() != m_document.IsModified())
        setWindowModified(m_document.IsModified());
}

void CChildFrame::CloseUnasked() {
    m_isSettled = true;
    close();
}

void CChildFrame::closeEvent(QCloseEvent* event) {
    if (!m_isClosed && !m_isSettled && !m_document.SaveModified()) {
        event->ignore();
        return;
    }
    if (!std::exchange(m_isClosed, true)) {
        m_document.OnCloseDocument();
        m_app.DropDocument(m_document);
    }
    QMdiSubWindow::closeEvent(event);
}
