// The dialog that makes one standard out of several: the user lists files, of which a later one counts more,
// and chooses where the result goes.
#pragma once

#include "platform/widgets/ControlHost.h"

#include <QDialog>
#include <functional>

class QTreeWidget;

class CMergeDlg : public QDialog, public ControlHost {
    Q_OBJECT

public:
    // Works under `runFolder`. `nameFilters` are those of a standard's file, for the file dialogs.
    CMergeDlg(const CString& runFolder, const CStringArray& nameFilters, QWidget* parent = nullptr);

    // QDialog::Accepted after a merge, and then the result was handed to OpenDocumentFile; else Rejected.
    int DoModal();

    std::function<void(const CString& path)> OpenDocumentFile;
    std::function<void(unsigned command, unsigned topic)> ShowHelp;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void OnAdd();
    void OnRemove();
    void OnMoveUp();
    void OnMoveDown();
    void OnHelp();
    void OnOK();

    void AddFiles(const CStringArray& paths);
    bool IsListed(const CString& path) const;
    void Move(int step, unsigned severalText, unsigned noneText);
    CStringArray ListedPaths() const;
    CString AskTarget();
    void EnableButtons();

    CString m_runFolder;
    CStringArray m_nameFilters;
    QTreeWidget* m_list = nullptr; // null where the template is missing
    CString m_resultPath;
    bool m_isPlaced = false; // whether the columns have their first widths
};
