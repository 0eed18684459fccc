// The picker of a folder.
#pragma once

#include "platform/Text.h"

class QWidget;

class CFolderPathDialog {
public:
    // `owner` may be null. The picker has a title and options of its own: `title` and `flags` belong
    // to the record that callers fill.
    CFolderPathDialog(const CString& title, const CString& initialFolder, QWidget* owner = nullptr,
                      unsigned flags = 0);

    // Opens the picker on the initial folder. True when the user chose a folder; anything else is a cancel.
    bool DoModal();

    CString Title;
    CString InitialFolder;
    CString ChosenFolder; // without a separator at its end; empty until a folder is chosen
    QWidget* Owner;
    unsigned Flags;
};
