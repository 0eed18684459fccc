// The whole tool on folders of a test's own, with a plain view in each document.
#pragma once

#include "model/Standard.h"
#include "platform/widgets/CommandRouter.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"
#include "shell/DocumentView.h"
#include "shell/MainFrame.h"
#include "support/Gui.h"
#include "support/Messages.h"
#include "support/TestFolder.h"

#include <QLineEdit>
#include <gtest/gtest.h>

// A view that adds or removes the check of a catalogue command, and has a box for text that is written into
// the standard's author when it is left.
class PlainView : public QWidget, public DocumentView, public CommandTarget {
public:
    PlainView(CAdminModuleApp& app, CAdminModuleDoc& document, QWidget* parent);

    QWidget& Widget() override { return *this; }
    CommandTarget& Commands() override { return *this; }
    void OnInitialUpdate() override { ++initialUpdates; }
    void CommitPending() override { ++commits; }
    void RebuildDisplay() override {}
    void ApplyUnits(int, int) override {}
    void OnShownGroupsChanged() override { ++groupChanges; }
    bool OnCommand(unsigned id) override;
    bool OnUpdateCommand(unsigned id, CommandState& state) override;

    QLineEdit* box;
    int initialUpdates = 0;
    int commits = 0;
    int groupChanges = 0;
    int boxWritten = 0;

private:
    CCheck* LiveCheck(unsigned command) const;

    CAdminModuleApp& m_app;
    CAdminModuleDoc& m_document;
};

// The content of a plain file of a standard with that version; none where it is empty.
QByteArray StandardXml(const QByteArray& version = "2026");

class ShellRoom : public ::testing::Test {
protected:
    ShellRoom();
    ~ShellRoom() override;

    void Start(); // to the first empty standard, with the window shown
    CMainFrame& Frame() { return *app.GetMainFrame(); }
    CAdminModuleDoc& Document() { return *app.GetActiveDocument(); }
    PlainView& View() { return dynamic_cast<PlainView&>(*app.GetActiveView()); }
    void Send(unsigned command);
    void Edit(int times = 1); // changes of the document in front
    CString PutStandard(const CString& name, const QByteArray& version = "2026"); // gives its path
    // The document of the file, or null.
    CAdminModuleDoc* Open(const CString& path);
    QAction& Action(unsigned id) { return *app.GetRouter().ActionOf(id); }

    TestFolder folder;
    Messages messages{MessageAnswer::Discard};
    CAdminModuleApp app;
};
