// The whole tool in a test, worked as a user does: by the catalogue bar, menus, shortcuts, panes and boxes.
#pragma once

#include "editing/ExtDialog.h"
#include "editing/PageDialog.h"
#include "platform/Message.h"
#include "platform/Text.h"
#include "shell/AdminModView.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"
#include "shell/CommandTable.h"
#include "shell/MainFrame.h"

#include <QImage>
#include <memory>

class QAbstractButton;

class GuiTool {
public:
    // Starts the tool with an empty standard, in a window of that size.
    explicit GuiTool(QSize size = {1360, 860});
    ~GuiTool(); // closes it, without saving

    CAdminModuleApp& App() { return *m_app; }
    CMainFrame& Frame() { return *m_app->GetMainFrame(); }
    // Of the document in front.
    CAdminModuleDoc& Document() { return *m_app->GetActiveDocument(); }
    CAdminModView& View();
    CPageDialog& Page() { return View().GetChecksPage(); }
    CStandard& Standard() { return Document().GetStandard(); }

    // A command by its action, as menu and toolbar send it. False where it is disabled.
    bool Do(unsigned command);
    // By mouse: the group's tab and then the check's button.
    void PressCheck(MQC_CheckType_e pageType);
    // The visible pane of a check; null where there is none.
    CExtDialog* Pane(MQC_CheckType_e pageType);
    template <class T> T* Control(MQC_CheckType_e pageType, int number) {
        CExtDialog* pane = Pane(pageType);
        return pane ? pane->GetDlgItem<T>(number) : nullptr;
    }
    void SetCriticality(MQC_CheckType_e pageType, int row);
    void ShowPage(SheetPage page);

    bool SaveAs(const CString& path); // through the dialog
    bool Open(const CString& path);   // through the dialog
    bool Close();                     // discards changes

    QImage Picture();

private:
    std::unique_ptr<CAdminModuleApp> m_app;
};
