// The toolbars of the main window, and the actions that its keys reach.
#include "platform/LanguageLibrary.h"
#include "platform/widgets/Look.h"
#include "shell/AdminModuleApp.h"
#include "shell/AlphaImages.h"
#include "shell/AlphaToolBar.h"
#include "shell/CommandTable.h"
#include "shell/MDIClientWnd.h"
#include "shell/MainFrame.h"

#include <QShortcut>
#include <QToolButton>

namespace {

constexpr unsigned MainToolbarStrip = 1089;
constexpr char ToolbarNumber[] = "59392"; // of both toolbars
constexpr int ButtonWidth = 23;
constexpr int ButtonHeight = 22;
constexpr int ImageSize = 16;

// What the button does, and its keys.
CString TipOf(const QAction& action) {
    const CString text = WithoutMnemonic(action.text());
    const CString keys = action.shortcut().toString(QKeySequence::NativeText);
    return keys.isEmpty() ? text : text + " (" + keys + ")";
}

} // namespace

void CMainFrame::CreateToolBars() {
    m_mainToolbar = new QToolBar(LoadString(2119), this);
    m_mainToolbar->setObjectName(ToolbarNumber);
    m_mainToolbar->setAccessibleName(LoadString(2119));
    m_mainToolbar->setIconSize({ImageSize, ImageSize});
    const CAlphaImageList images(MainToolbarStrip);
    int image = 0;
    for (const unsigned id : MainToolbarCommands()) {
        if (id == 0) {
            m_mainToolbar->addSeparator();
            continue;
        }
        QAction* action = m_app.GetRouter().ActionOf(id);
        auto* button = new QToolButton(m_mainToolbar);
        button->setObjectName(CString::number(id));
        button->setDefaultAction(action);
        button->setIcon(images.GetIcon(image++));
        button->setAutoRaise(true);
        button->setMinimumSize(ButtonWidth, ButtonHeight);
        button->setToolTip(TipOf(*action));
        button->setAccessibleName(WithoutMnemonic(action->text()));
        // The action's own image is that of the menu; a change of its state would bring that one here.
        connect(action, &QAction::changed, button, [button, icon = button->icon(), tip = button->toolTip()] {
            button->setIcon(icon);
            button->setToolTip(tip);
        });
        m_mainToolbar->addWidget(button);
    }
    addToolBar(Qt::TopToolBarArea, m_mainToolbar);

    QAction* showAll = m_app.GetRouter().ActionOf(Command::ShowAllChecks);
    m_displayToolbar = new CAlphaToolBar(*showAll, LoadString(2295), this);
    m_displayToolbar->setObjectName(ToolbarNumber);
    addToolBar(Qt::TopToolBarArea, m_displayToolbar);
}

void CMainFrame::CreateActions() {
    // Reachable by their keys, whichever menus stand in the bar.
    for (const ToolCommand& row : ToolCommands())
        if (row.id != 0)
            addAction(m_app.GetRouter().ActionOf(row.id));

    const auto step = [this](const char* keys, void (QMdiArea::*to)()) {
        auto* shortcut = new QShortcut(QKeySequence::fromString(keys), this);
        connect(shortcut, &QShortcut::activated, m_client, to);
    };
    step("Ctrl+Tab", &QMdiArea::activateNextSubWindow);
    step("Ctrl+F6", &QMdiArea::activateNextSubWindow);
    step("Ctrl+Shift+Tab", &QMdiArea::activatePreviousSubWindow);
    step("Ctrl+Shift+F6", &QMdiArea::activatePreviousSubWindow);
}
