// The main window: menu bar, toolbars, the catalogue bar at the left, the documents' windows, the status bar.
#pragma once

#include "platform/Text.h"
#include "platform/widgets/CommandRouter.h"
#include "shell/DocumentView.h"

#include <QMainWindow>
#include <memory>

class CAdminModuleApp;
class CAdminModuleDoc;
class CAlphaToolBar;
class CChildFrame;
class CMDIClientWnd;
class CStatusPanes;
class CTabToolbar;
class DocumentView;
class QMdiSubWindow;
class QToolBar;

class CMainFrame : public QMainWindow, public CommandTarget {
    Q_OBJECT

public:
    explicit CMainFrame(CAdminModuleApp& app);
    ~CMainFrame() override;

    // Opens the window of a document, maximised, with the view in it. Null where the view cannot be made.
    CChildFrame* AddDocumentWindow(CAdminModuleDoc& document, const ViewMaker& makeView);
    CChildFrame* GetActiveChild() const; // or null
    void ActivateChild(CChildFrame& child);

    // The menu bar for the document in front, or for none.
    void PlaceMenus();
    // Shown in the status bar.
    void SetLiveCheckCount(int count);
    // Counts, titles and whatever else follows the commands' states.
    void OnIdle();

    CTabToolbar& GetTabToolbar() const { return *m_catalogueBar; }
    QToolBar& GetMainToolbar() const { return *m_mainToolbar; }
    CAlphaToolBar& GetDisplayToolbar() const { return *m_displayToolbar; }
    CStatusPanes& GetStatusPanes() const { return *m_status; }
    // The pop-up on a right click in a document's pages: what the Edit menu holds.
    void ShowEditMenu(const QPoint& globalPosition);

    // Cascade, Tile, Exit, the recent files and the toolbar.
    bool OnCommand(unsigned id) override;
    bool OnUpdateCommand(unsigned id, CommandState& state) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    QMenu* createPopupMenu() override;

private:
    void CreateToolBars();
    void CreateActions();
    void ShowBarMenu(const QPoint& globalPosition);
    void ListRecentFiles();
    void ListDocuments();
    void OnChildActivated();

    CAdminModuleApp& m_app;
    CMDIClientWnd* m_client;
    CTabToolbar* m_catalogueBar;
    QToolBar* m_mainToolbar = nullptr;
    CAlphaToolBar* m_displayToolbar = nullptr;
    CStatusPanes* m_status;
    QList<QAction*> m_documentActions; // of the window menu
};
