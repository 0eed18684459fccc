#include "ShellRoom.h"

#include "platform/LanguageLibrary.h"
#include "shell/AlphaToolBar.h"
#include "shell/ChildFrame.h"
#include "shell/CommandTable.h"
#include "shell/MDIClientWnd.h"
#include "shell/StatusPanes.h"

#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QTimer>
#include <QToolButton>

namespace {

class MainFrame : public ShellRoom {
protected:
    MainFrame() { Start(); }

    CStringArray BarTitles() {
        CStringArray titles;
        for (const QAction* action : Frame().menuBar()->actions())
            titles.append(WithoutMnemonic(action->text()));
        return titles;
    }
    QMenu& Menu(MenuRoot root) { return *app.GetMenu(root).GetMenu(); }
    // The commands of a menu, 0 for a separator.
    std::vector<unsigned> CommandsOf(MenuRoot root) {
        std::vector<unsigned> commands;
        for (const QAction* action : Menu(root).actions())
            commands.push_back(action->isSeparator() ? 0 : action->objectName().toUInt());
        return commands;
    }
    QToolButton& ToolbarButton(unsigned id) {
        return *Frame().GetMainToolbar().findChild<QToolButton*>(CString::number(id));
    }
    bool Drop(const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(400, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.setAccepted(false);
        QApplication::sendEvent(&Frame(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop(QPointF(400, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Frame(), &drop);
        Gui::Settle();
        return true;
    }
};

} // namespace

TEST_F(MainFrame, TheBarHoldsFiveMenusWithADocumentAndTwoWithout) {
    EXPECT_EQ(BarTitles(), CStringArray({"File", "Edit", "Checks", "Window", "Help"}));
    Send(Command::Close);
    EXPECT_EQ(BarTitles(), CStringArray({"File", "Help"}));
    Send(Command::New);
    EXPECT_EQ(BarTitles(), CStringArray({"File", "Edit", "Checks", "Window", "Help"}));
}

TEST_F(MainFrame, TheFileMenuLosesFiveItemsWithoutADocument) {
    EXPECT_EQ(CommandsOf(MenuRoot::FileWithDocument),
              (std::vector<unsigned>{57600, 32920, 57601, 57602, 57603, 57604, 0, 57607, 57609, 57606, 0,
                                     32873, 0, 57616, 0, 57665}));
    EXPECT_EQ(CommandsOf(MenuRoot::FileWithoutDocument),
              (std::vector<unsigned>{57600, 32920, 57601, 0, 57606, 0, 32873, 0, 57616, 0, 57665}));
    EXPECT_EQ(CommandsOf(MenuRoot::Edit), (std::vector<unsigned>{57643, 57644, 0, 57635, 57634, 57637}));
    EXPECT_EQ(CommandsOf(MenuRoot::Help), (std::vector<unsigned>{32865, 57664, 0, 32867}));
}

TEST_F(MainFrame, EachCheckStandsInItsGroupsMenuAtItsPosition) {
    const CMenuItems& checks = app.GetMenu(MenuRoot::Checks);
    ASSERT_EQ(checks.Children.size(), 7u);
    int items = 0;
    for (const auto& [type, info] : app.GetCatalogue()) {
        const CMenuItems& group = *checks.Children[info->GetGroup()];
        ASSERT_LT(info->GetPosition(), group.Children.size());
        EXPECT_EQ(group.Children[info->GetPosition()]->Command, static_cast<int>(info->GetCommandID()));
        ++items;
    }
    EXPECT_EQ(items, 54);
    EXPECT_EQ(checks.Children[1]->Children[2]->Command, 32778); // 301 is an annotation
}

TEST_F(MainFrame, PrintPreviewAndTheWelcomePageStayDisabled) {
    Gui::Settle();
    EXPECT_FALSE(Action(Command::PrintPreview).isEnabled());
    EXPECT_FALSE(Action(Command::Paste).isEnabled()); // nobody answers in the plain view
    EXPECT_TRUE(Action(Command::New).isEnabled());
    EXPECT_TRUE(Action(Command::Save).isEnabled());
    Send(Command::Close);
    EXPECT_FALSE(Action(Command::Save).isEnabled());
    EXPECT_FALSE(Action(Command::Cascade).isEnabled());
    EXPECT_TRUE(Action(Command::Open).isEnabled());
}

TEST_F(MainFrame, TheTitleNamesTheFileAndMarksChanges) {
    Open(PutStandard("Plate rules.kvstd"));
    EXPECT_TRUE(Frame().windowTitle().contains("Plate rules.kvstd")) << Frame().windowTitle().toStdString();
    EXPECT_TRUE(Frame().windowTitle().contains("Ruleward Builder"));
    EXPECT_FALSE(Frame().isWindowModified());
    Edit();
    EXPECT_TRUE(Frame().isWindowModified());
    Send(Command::Save);
    EXPECT_FALSE(Frame().isWindowModified());
}

TEST_F(MainFrame, TheStatusBarCountsLiveChecks) {
    const CStatusPanes& panes = Frame().GetStatusPanes();
    EXPECT_EQ(panes.GetCountPane().text(), "Checks: 0");
    Send(32772);
    Send(32773);
    EXPECT_EQ(panes.GetCountPane().text(), "Checks: 2");
    EXPECT_GE(panes.GetCountPane().width(),
              panes.GetCountPane().fontMetrics().horizontalAdvance("Checks: 2"));
    Send(Command::New);
    EXPECT_EQ(panes.GetCountPane().text(), "Checks: 0");
    for (const char* pane : {"0", "59143", "59137", "59138", "59139"})
        EXPECT_NE(panes.findChild<QLabel*>(pane), nullptr) << pane;
}

TEST_F(MainFrame, KeysThatLockAreShownFaintOrStrong) {
    CStatusPanes& panes = Frame().GetStatusPanes();
    panes.ShowKeyStates({true, false, true});
    EXPECT_TRUE(panes.findChild<QLabel*>("59137")->isEnabled());
    EXPECT_FALSE(panes.findChild<QLabel*>("59138")->isEnabled());
    EXPECT_TRUE(panes.findChild<QLabel*>("59139")->isEnabled());
}

TEST_F(MainFrame, TheToolbarsShareANumberAndAreToldApart) {
    EXPECT_EQ(Frame().findChildren<QToolBar*>(CString::number(Command::MainToolbar)).size(), 2);
    EXPECT_NE(static_cast<QToolBar*>(&Frame().GetMainToolbar()), &Frame().GetDisplayToolbar());
    Send(Command::MainToolbar);
    EXPECT_TRUE(Frame().GetMainToolbar().isHidden());
    EXPECT_FALSE(Frame().GetDisplayToolbar().isHidden());
    Send(Command::MainToolbar);
    EXPECT_FALSE(Frame().GetMainToolbar().isHidden());
}

TEST_F(MainFrame, TheDisplayButtonStaysAtTheRightEdge) {
    QToolButton& button = Frame().GetDisplayToolbar().GetButton();
    for (const int width : {1024, 1500, 1100}) {
        Frame().showNormal();
        Frame().resize(width, 720);
        Gui::Settle();
        const int right = button.mapTo(&Frame(), QPoint(button.width(), 0)).x();
        EXPECT_LE(right, Frame().width());
        EXPECT_GT(right, Frame().width() - 20) << Frame().width();
    }
}

TEST_F(MainFrame, TheDisplayButtonShowsTheChecksOfAllGroups) {
    QToolButton& button = Frame().GetDisplayToolbar().GetButton();
    EXPECT_EQ(button.text(), LoadString(2295));
    EXPECT_EQ(button.toolTip(), LoadString(2296));
    Gui::Click(button);
    EXPECT_TRUE(app.IsShowingAll());
    EXPECT_TRUE(button.isChecked());
    EXPECT_EQ(button.toolTip(), LoadString(2297));
    EXPECT_EQ(View().groupChanges, 1);
    Gui::Click(button);
    EXPECT_FALSE(app.IsShowingAll());
    EXPECT_FALSE(button.isChecked());
}

TEST_F(MainFrame, ToolbarButtonsSendTheirCommands) {
    Gui::Click(ToolbarButton(Command::New));
    EXPECT_EQ(app.GetDocuments().size(), 2u);
    EXPECT_EQ(ToolbarButton(Command::New).toolTip(), "New (Ctrl+N)");
    EXPECT_FALSE(ToolbarButton(Command::Undo).isEnabled());
    EXPECT_EQ(ToolbarButton(Command::New).toolTip(), "New (Ctrl+N)"); // also after updates
    EXPECT_EQ(ToolbarButton(Command::New).accessibleName(), "New");
}

TEST_F(MainFrame, KeysSendTheirCommands) {
    Gui::Key(Frame(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(app.GetDocuments().size(), 2u);
    Gui::Key(Frame(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(app.GetDocuments().size(), 1u);
}

TEST_F(MainFrame, CtrlTabGoesThroughTheDocuments) {
    CAdminModuleDoc* first = &Document();
    CAdminModuleDoc* second = app.OnFileNew();
    CAdminModuleDoc* third = app.OnFileNew();
    EXPECT_EQ(app.GetActiveDocument(), third);
    Gui::Key(*View().box, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(app.GetActiveDocument(), first);
    Gui::Key(*View().box, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(app.GetActiveDocument(), second);
    Gui::Key(*View().box, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(app.GetActiveDocument(), first);
    EXPECT_TRUE(first->GetFrame()->isMaximized());
}

TEST_F(MainFrame, DroppedFilesOpenEachInItsOwnDocument) {
    const QList<QUrl> urls = {QUrl::fromLocalFile(PutStandard("a.kvstd")),
                              QUrl::fromLocalFile(PutStandard("b.kvstd"))};
    EXPECT_TRUE(Drop(urls));
    EXPECT_EQ(app.GetDocuments().size(), 3u);
    EXPECT_EQ(Document().GetTitle(), "b.kvstd");
    EXPECT_NE(app.GetDocuments()[1]->GetTempFolder(), app.GetDocuments()[2]->GetTempFolder());
}

TEST_F(MainFrame, WhatIsNoFileIsNotTaken) {
    EXPECT_FALSE(Drop({QUrl("https://example.org/a.kvstd")}));
    EXPECT_FALSE(Drop({QUrl::fromLocalFile(folder.Path())}));
}

TEST_F(MainFrame, ARightClickOnTheMenuBarShowsOrHidesTheToolbar) {
    const auto choose = [this] {
        QTimer::singleShot(20, &Frame(), [] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            EXPECT_EQ(menu->actions().size(), 1);
            EXPECT_EQ(menu->actions()[0]->text(), LoadString(2118));
            Gui::Key(*menu, Qt::Key_Down);
            Gui::Key(*menu, Qt::Key_Return);
        });
        QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(5, 5),
                                Frame().menuBar()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(Frame().menuBar(), &click);
        Gui::Settle();
    };
    choose();
    EXPECT_TRUE(Frame().GetMainToolbar().isHidden());
    EXPECT_FALSE(Frame().GetDisplayToolbar().isHidden());
    choose();
    EXPECT_FALSE(Frame().GetMainToolbar().isHidden());
}

TEST_F(MainFrame, RecentFilesStandInTheFileMenuByNumber) {
    Open(PutStandard("a.kvstd"));
    Open(PutStandard("b.kvstd"));
    QMenu& menu = Menu(MenuRoot::FileWithDocument);
    menu.popup(QPoint(0, 0));
    Gui::Settle();
    const std::vector<unsigned> commands = CommandsOf(MenuRoot::FileWithDocument);
    const auto first = std::find(commands.begin(), commands.end(), 57616u);
    EXPECT_EQ(*(first + 1), 57617u);
    EXPECT_EQ(Action(57616).text(), "&1 b.kvstd");
    EXPECT_EQ(Action(57617).text(), "&2 a.kvstd");
    EXPECT_TRUE(Action(57617).isEnabled());
    EXPECT_FALSE(Action(57619).isVisible());
    Gui::Key(menu, Qt::Key_2);
    EXPECT_EQ(Document().GetTitle(), "a.kvstd");
    menu.hide();
}

TEST_F(MainFrame, WithoutRecentFilesTheItemIsDisabled) {
    for (const CString& path : CStringArray(app.GetRecentFiles().Paths()))
        app.GetRecentFiles().Remove(path);
    QMenu& menu = Menu(MenuRoot::FileWithDocument);
    menu.popup(QPoint(0, 0));
    Gui::Settle();
    EXPECT_FALSE(Action(57616).isEnabled());
    EXPECT_EQ(Action(57616).text(), LoadString(2095));
    menu.hide();
}

TEST_F(MainFrame, TheWindowMenuListsTheDocuments) {
    app.OnFileNew();
    QMenu& menu = Menu(MenuRoot::Window);
    menu.popup(QPoint(0, 0));
    Gui::Settle();
    const QList<QAction*> actions = menu.actions();
    EXPECT_EQ(actions.value(actions.size() - 2)->text(), "&1 Standard1");
    EXPECT_FALSE(actions.value(actions.size() - 2)->isChecked());
    EXPECT_TRUE(actions.last()->isChecked());
    actions[actions.size() - 2]->trigger();
    menu.hide();
    EXPECT_EQ(Document().GetTitle(), "Standard1");
}

TEST_F(MainFrame, TileAndCascadeShowSeveralDocumentsAtOnce) {
    app.OnFileNew();
    Send(Command::Tile);
    EXPECT_FALSE(Document().GetFrame()->isMaximized());
    EXPECT_TRUE(app.GetDocuments()[0]->GetFrame()->isVisible());
    Send(Command::Cascade);
    EXPECT_NE(app.GetDocuments()[0]->GetFrame()->pos(), app.GetDocuments()[1]->GetFrame()->pos());
}

TEST_F(MainFrame, TheGroundIsADarkGradient) {
    Send(Command::Close);
    const QImage ground = Frame().findChild<CMDIClientWnd*>()->grab().toImage();
    EXPECT_EQ(ground.pixelColor(0, 50), QColor(0x52, 0x55, 0x6e));
    EXPECT_NEAR(ground.pixelColor(ground.width() - 1, 50).red(), 0x73, 1);
    EXPECT_NEAR(ground.pixelColor(ground.width() - 1, 50).blue(), 0x84, 1);
}

TEST_F(MainFrame, HelpTellsThatThereIsNoPageYet) {
    Send(Command::HelpTopics);
    ASSERT_EQ(messages.texts.size(), 1);
    EXPECT_FALSE(messages.texts[0].isEmpty());
}

TEST_F(MainFrame, AboutAndMergeOpenTheirDialogs) {
    for (const unsigned id : {Command::About, Command::Merge}) {
        CString kind;
        Gui::Answer answer([&](QWidget& dialog) {
            kind = dialog.metaObject()->className();
            dialog.close();
        });
        Send(id);
        EXPECT_TRUE(answer.WasAnswered());
        EXPECT_EQ(kind, id == Command::About ? "CAboutDlg" : "CMergeDlg");
    }
    EXPECT_FALSE(Action(Command::WelcomePage).isEnabled());
    EXPECT_FALSE(Action(Command::Learn).isEnabled());
}

TEST_F(MainFrame, PrintSetUpAsksForThePaper) {
    Gui::Answer answer([](QWidget& dialog) { dialog.close(); });
    Send(Command::PrintSetup);
    EXPECT_TRUE(answer.WasAnswered());
}

TEST_F(MainFrame, TheDocumentsButtonsStandInTheMenuBar) {
    QWidget* buttons = Frame().menuBar()->cornerWidget(Qt::TopRightCorner);
    ASSERT_NE(buttons, nullptr);
    EXPECT_TRUE(Frame().menuBar()->rect().contains(buttons->geometry()));
    Open(PutStandard("a.kvstd"));
    Send(Command::Close);
    Send(Command::Close);
    EXPECT_EQ(Frame().menuBar()->cornerWidget(Qt::TopRightCorner), nullptr);
}

TEST_F(MainFrame, TilingDoesNotWidenTheWindow) {
    Frame().showNormal();
    Frame().resize(1024, 700);
    app.OnFileNew();
    Send(Command::Tile);
    EXPECT_EQ(Frame().width(), 1024);
}
