// What the frames and the document need of the view that shows a standard. The shell knows no more of it, so
// that frames and documents work with any content.
#pragma once

#include <functional>

class CAdminModuleApp;
class CAdminModuleDoc;
class CommandTarget;
class QWidget;

class DocumentView {
public:
    virtual ~DocumentView() = default;

    // The window that fills the child frame; the child frame owns it.
    virtual QWidget& Widget() = 0;
    // First in the chain of those who answer commands, while the view's frame is the active one. A catalogue
    // command's state is checked while its check stands on the page.
    virtual CommandTarget& Commands() = 0;

    // Once, when the document is made or read and the frame stands.
    virtual void OnInitialUpdate() = 0;
    // Before saving: what the current pane has not written yet goes into the standard.
    virtual void CommitPending() = 0;
    // New content came into the standard from outside.
    virtual void RebuildDisplay() = 0;
    // Sets both units of the standard and shows them.
    virtual void ApplyUnits(int lengthUnit, int angleUnit) = 0;
    // Another group is in front in the catalogue bar, or the checks of all groups are shown or no longer so.
    virtual void OnShownGroupsChanged() = 0;
};

// Makes the view of a document as a child of `parent`, which owns it. Null where it cannot be made.
using ViewMaker =
    std::function<DocumentView*(CAdminModuleApp& app, CAdminModuleDoc& document, QWidget* parent)>;
