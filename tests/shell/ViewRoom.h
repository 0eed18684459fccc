// The whole tool on folders of a test's own, with the true view in each document.
#pragma once

#include "editing/CheckPropertySheet.h"
#include "editing/PageDialog.h"
#include "editing/RulewardOptions.h"
#include "platform/Message.h"
#include "shell/AdminModView.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"
#include "shell/ChildFrame.h"
#include "shell/CommandTable.h"
#include "shell/MainFrame.h"
#include "shell/TabToolbar.h"
#include "support/CheckNumbers.h"
#include "support/Gui.h"
#include "support/TestFolder.h"

#include <QComboBox>
#include <gtest/gtest.h>

class ViewRoom : public ::testing::Test {
protected:
    ViewRoom()
        : messages([this](const CString& text, MessageButtons buttons) {
              told.append(text);
              return buttons == MessageButtons::SaveDiscardCancel ? MessageAnswer::Discard : answer;
          }),
          app([this](CAdminModuleApp& owner, CAdminModuleDoc& document, QWidget* parent) {
              return new CAdminModView(owner, document, parent,
                                       [this](CStandard& printed, PrintMode mode, QWidget*) {
                                           prints.emplace_back(&printed, mode);
                                       });
          }) {}
    ~ViewRoom() override { app.ExitInstance(); }

    void SetUp() override {
        ASSERT_TRUE(app.InitInstance());
        app.GetMainFrame()->resize(1280, 900);
        Gui::Show(*app.GetMainFrame());
    }

    CAdminModuleDoc& Document() { return *app.GetActiveDocument(); }
    CAdminModView& View() { return dynamic_cast<CAdminModView&>(*app.GetActiveView()); }
    CPageDialog& Page() { return View().GetChecksPage(); }
    CStandard& Standard() { return Document().GetStandard(); }
    CExtDialog& Pane(MQC_CheckType_e type) { return *Page().GetPane(type, false); }
    CCheck* Live(MQC_CheckType_e type) {
        CCheck* check = nullptr;
        Standard().FindLiveByType(type, check);
        return check;
    }
    int Position(MQC_CheckType_e type) {
        const auto entry = Page().GetTypePositions().find(type);
        return entry == Page().GetTypePositions().end() ? -1 : entry->second;
    }
    // As from a menu or a key; false where the command is disabled.
    bool Send(unsigned command) {
        const bool isSent = app.GetRouter().Send(command);
        Gui::Settle();
        return isSent;
    }
    bool IsEnabled(unsigned command) {
        Gui::Settle();
        QAction* action = app.GetRouter().ActionOf(command);
        app.GetRouter().UpdateNow();
        return action->isEnabled();
    }
    void New() {
        app.OnFileNew();
        Gui::Settle();
    }
    void SetCriticality(MQC_CheckType_e type, int row) {
        auto& combo = *Pane(type).GetDlgItem<QComboBox>(CExtDialog::CriticalityControl);
        combo.setCurrentIndex(row);
        Q_EMIT combo.activated(row);
        Gui::Settle();
    }

    CStringArray told;
    MessageAnswer answer = MessageAnswer::Yes;
    std::vector<std::pair<CStandard*, PrintMode>> prints;
    MessageScope messages;
    CAdminModuleApp app;
};
