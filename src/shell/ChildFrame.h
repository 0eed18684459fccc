// The window of one document. It opens maximised, and closing it closes the document.
#pragma once

#include "shell/DocumentView.h"

#include <QMdiSubWindow>

class CChildFrame : public QMdiSubWindow {
    Q_OBJECT

public:
    // `document` must live as long as this window; once it is closed, the window deletes it at its own end.
    CChildFrame(CAdminModuleApp& app, CAdminModuleDoc& document, QWidget* parent = nullptr);
    ~CChildFrame() override;

    // Puts the content in. False where it cannot be made.
    bool Create(const ViewMaker& makeView);

    CAdminModuleDoc& GetDocument() const { return m_document; }
    DocumentView* GetView() const { return m_view; }

    // Shows the document's title, and whether it is modified.
    void UpdateTitle();
    // Closes without a question: what becomes of changes is settled.
    void CloseUnasked();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    CAdminModuleApp& m_app;
    CAdminModuleDoc& m_document;
    DocumentView* m_view = nullptr; // its widget is this window's content
    bool m_isSettled = false;       // no more questions
    bool m_isClosed = false;
};
