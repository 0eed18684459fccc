// The dialogs in which the user chooses a standard's file.
#pragma once

#include "platform/Text.h"

#include <QFileDialog>

class CAdminModuleDoc;

// Those of a standard's file, as a file dialog takes them.
CStringArray FileFilters();

// The file to open, or an empty text where the user cancelled. It is there.
CString AskFileToOpen(QWidget* owner, const CString& folder);

// Asks where to save a document. A file that somebody else has locked is refused, and the dialog stays.
class CExtFileDlg {
public:
    // `proposed` is a path or a name.
    CExtFileDlg(CAdminModuleDoc& document, const CString& proposed, QWidget* owner);

    bool DoModal(); // false where the user cancelled
    CString GetPathName() const { return m_path; }

private:
    bool OnFileNameOK(const CString& path) const;

    CAdminModuleDoc& m_document;
    CString m_proposed;
    QWidget* m_owner;
    CString m_path;
};
