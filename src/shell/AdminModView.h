// The content of a document's window: the sheet with the pages of its standard. It takes the commands to the
// standard and its panes, keeps units in step, and is all that pages and panes know of the shell.
#pragma once

#include "editing/EditingHost.h"
#include "editing/SummarySource.h"
#include "platform/Text.h"
#include "platform/widgets/CommandRouter.h"
#include "shell/DocumentView.h"
#include "shell/PrintStandard.h"

#include <QWidget>
#include <functional>

class CAdminModuleApp;
class CAdminModuleDoc;
class CCheckPropertySheet;
class CPageSheet;
class CRulewardOptions;

// As PrintStandard.
using PrintFunction = std::function<void(CStandard& standard, PrintMode mode, QWidget* parent)>;

class CAdminModView : public QWidget,
                      public DocumentView,
                      public CommandTarget,
                      public EditingHost,
                      private SummarySource {
    Q_OBJECT

public:
    // Both must outlive the view.
    CAdminModView(CAdminModuleApp& app, CAdminModuleDoc& document, QWidget* parent = nullptr,
                  PrintFunction print = PrintStandard);
    ~CAdminModView() override;

    // Of the shell.
    QWidget& Widget() override { return *this; }
    CommandTarget& Commands() override { return *this; }
    void OnInitialUpdate() override;
    void CommitPending() override;
    void RebuildDisplay() override;
    void ApplyUnits(int lengthUnit, int angleUnit) override;
    void OnShownGroupsChanged() override;

    bool OnCommand(unsigned id) override;
    bool OnUpdateCommand(unsigned id, CommandState& state) override;

    // Of pages and panes.
    CStandard& GetStandard() override;
    UnitSettingsList& GetUnitSettings() override;
    CSettingsKey* GetSettings() override;
    bool TakeLoadedFlag() override;
    std::unique_ptr<CExtDialog> MakePane(const PageCheckRow& row) override;
    CPageDialog& GetChecksPage() override { return *m_checks; }
    void ActivatePage(SheetPage page) override;
    unsigned CurrentGroup() const override;
    void FocusGroup(unsigned group) override;
    bool IsShowingAll() const override;
    void CheckActiveChanged(const CPDCheckInfo& info) override;
    void ShowHelp(unsigned command, unsigned topic) override;
    void ShowContextMenu(const QPoint& globalPosition) override;
    void ArmUpdate() override;

    CCheckPropertySheet& GetSheet() const { return *m_sheet; }
    CPageSheet& GetSummaryPage() const;
    CRulewardOptions& GetOptionsPage() const;
    const CString& GetLengthUnitName() const { return LengthUnitText; }
    const CString& GetAngleUnitName() const { return AngleUnitText; }

private:
    // Of the summary.
    std::vector<const CCheck*> ChecksInCatalogueOrder() override;
    int LengthUnit() const override;
    int AngleUnit() const override;
    void ShowCheck(MQC_CheckType_e type) override;

    bool IsChecksPageActive() const;
    CRulewardOptions* MakeOptions();
    void OnCheckCommand(unsigned id);
    void OnFontCheckCommand(CPDCheckInfo& info);
    void ToggleCheck(CPDCheckInfo& info, const CCheck* source);
    void StepHistory(bool isUndo);
    void Print(PrintMode mode);

    void OnEditCopy();
    void OnEditCut();
    void OnEditPaste();
    std::vector<MQC_CheckType_e> SelectedTypes() const;
    void CopyToClipboard(const std::vector<MQC_CheckType_e>& types);
    std::unique_ptr<CCheck> FromClipboard(const CCheck& check) const;
    void PasteOver(const CCheck& check, const CCheck& live);
    void PasteNew(const CCheck& check);

    int CurrentLengthUnit() const;
    int CurrentAngleUnit() const;
    void TakeUnitsOfStandard();
    void ShowUnitNames();
    void OnLengthUnitChanged();
    void OnAngleUnitChanged();
    void SetUnits(int lengthUnit, int angleUnit);
    void ConvertControls(unsigned long dimension, int oldUnit, int newUnit,
                         std::vector<CExtDialog*>& changed);
    void StoreUnitSetting(const char* name, int unit);

    CAdminModuleApp& m_app;
    CAdminModuleDoc& m_document;
    PrintFunction m_print;
    CCheckPropertySheet* m_sheet; // owns the pages
    CPageDialog* m_checks;
    CRulewardOptions* m_options = nullptr; // until it has been seen
    CString LengthUnitText;                // full names of the current units
    CString AngleUnitText;
    unsigned m_shownGroup = 0; // that the page was last laid out for
};
