// What pages and panes need of the document and the windows they stand in.
#pragma once

#include "editing/UnitSettings.h"
#include "model/Catalogue.h"
#include "model/Standard.h"

#include <QPoint>
#include <memory>
#include <vector>

class CExtDialog;
class CPDCheckInfo;
class CPageDialog;
class CSettingsKey;

using UnitSettingsList = std::vector<std::unique_ptr<CUnitSettings>>;

// The pages of a standard's sheet.
enum SheetPage { ChecksPage = 0, SummaryPage = 1, OptionsPage = 2 };

class EditingHost {
public:
    virtual ~EditingHost() = default;

    virtual CStandard& GetStandard() = 0;
    // The unit-bearing controls of this document's panes, which follow its units.
    virtual UnitSettingsList& GetUnitSettings() = 0;
    // Where panes remember the folders used last; null where nothing is remembered.
    virtual CSettingsKey* GetSettings() { return nullptr; }
    // Whether a standard was just read whose checks are not on the page yet; the flag falls with the
    // question.
    virtual bool TakeLoadedFlag() = 0;

    virtual std::unique_ptr<CExtDialog> MakePane(const PageCheckRow& row) = 0;
    virtual CPageDialog& GetChecksPage() = 0;
    virtual void ActivatePage(SheetPage page) = 0;

    // The catalogue bar: the group in front, and whether checks of other groups are shown as well.
    virtual unsigned CurrentGroup() const = 0;
    virtual void FocusGroup(unsigned group) = 0;
    virtual bool IsShowingAll() const = 0;
    // A check has come to the page or gone from it: menu item and button follow.
    virtual void CheckActiveChanged(const CPDCheckInfo& info) = 0;

    // Command 15 is a topic of the help, 0 its first page.
    virtual void ShowHelp(unsigned command, unsigned topic) = 0;
    virtual void ShowContextMenu(const QPoint& globalPosition) = 0;
    // Something changed outside of an event of the user's.
    virtual void ArmUpdate() = 0;
};
