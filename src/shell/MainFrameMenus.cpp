// What stands in the menu bar of the main window, and the lists in its menus that change.
#include "platform/LanguageLibrary.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"
#include "shell/ChildFrame.h"
#include "shell/CommandTable.h"
#include "shell/MDIClientWnd.h"
#include "shell/MainFrame.h"

#include <QMenuBar>

void CMainFrame::PlaceMenus() {
    const bool hasDocument = GetActiveChild() != nullptr;
    QList<QAction*> wanted;
    const auto add = [&](MenuRoot root) { wanted.append(m_app.GetMenu(root).GetMenu()->menuAction()); };
    add(hasDocument ? MenuRoot::FileWithDocument : MenuRoot::FileWithoutDocument);
    if (hasDocument)
        for (const MenuRoot root : {MenuRoot::Edit, MenuRoot::Checks, MenuRoot::Window})
            add(root);
    add(MenuRoot::Help);
    if (menuBar()->actions() != wanted) {
        for (QAction* action : menuBar()->actions())
            menuBar()->removeAction(action);
        menuBar()->addActions(wanted);
    }
    for (const MenuRoot root : {MenuRoot::FileWithDocument, MenuRoot::FileWithoutDocument})
        connect(m_app.GetMenu(root).GetMenu(), &QMenu::aboutToShow, this, &CMainFrame::ListRecentFiles,
                Qt::UniqueConnection);
    connect(m_app.GetMenu(MenuRoot::Window).GetMenu(), &QMenu::aboutToShow, this, &CMainFrame::ListDocuments,
            Qt::UniqueConnection);
}

// The one item of the told menu becomes a list of files while there are any.
void CMainFrame::ListRecentFiles() {
    const CRecentFiles& files = m_app.GetRecentFiles();
    QAction* first = m_app.GetRouter().ActionOf(Command::FirstRecentFile);
    auto* menu = qobject_cast<QMenu*>(sender());
    const QList<QAction*> actions = menu->actions();
    QAction* behind = actions.value(actions.indexOf(first) + 1);
    for (int index = 0; index < CRecentFiles::Size; ++index) {
        QAction* action = m_app.GetRouter().ActionOf(Command::FirstRecentFile + static_cast<unsigned>(index));
        const bool isFile = index < files.Paths().size();
        action->setText(isFile ? files.MenuText(index) : LoadString(2095));
        action->setStatusTip(isFile ? files.Paths()[index] : CString());
        action->setToolTip(action->statusTip());
        if (index == 0)
            continue;
        if (isFile && !menu->actions().contains(action))
            menu->insertAction(menu->actions().value(menu->actions().indexOf(behind)), action);
        action->setVisible(isFile);
    }
    m_app.GetRouter().UpdateNow();
}

// All documents by name, so that each is reached without the mouse.
void CMainFrame::ListDocuments() {
    QMenu* menu = m_app.GetMenu(MenuRoot::Window).GetMenu();
    qDeleteAll(m_documentActions);
    m_documentActions.clear();
    m_documentActions.append(menu->addSeparator());
    int number = 0;
    for (CAdminModuleDoc* document : m_app.GetDocuments()) {
        CChildFrame* child = document->GetFrame();
        if (!child)
            continue;
        const CString title = document->GetTitle().replace('&', "&&") + (document->IsModified() ? "*" : "");
        const CString mnemonic = ++number < 10 ? "&" : "";
        QAction* action = menu->addAction(mnemonic + CString::number(number) + " " + title, child,
                                          [this, child] { ActivateChild(*child); });
        action->setCheckable(true);
        action->setChecked(child == GetActiveChild());
        m_documentActions.append(action);
    }
    m_app.GetRouter().UpdateNow();
}

void CMainFrame::ShowBarMenu(const QPoint& globalPosition) {
    QMenu menu(this);
    QAction* action = m_app.GetRouter().ActionOf(Command::MainToolbar);
    action->setCheckable(true);
    m_app.GetRouter().UpdateNow();
    menu.addAction(action);
    menu.exec(globalPosition);
}

void CMainFrame::ShowEditMenu(const QPoint& globalPosition) {
    m_app.GetMenu(MenuRoot::Edit).GetMenu()->popup(globalPosition);
}
