// The commands of a document's pages.
#include "dialogs/DocFontCheckPopUpDlg.h"
#include "editing/CheckPropertySheet.h"
#include "editing/PageDialog.h"
#include "shell/AdminModView.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"
#include "shell/CommandTable.h"

#include <algorithm>
#include <span>

namespace {

constexpr unsigned NothingToDo = 32859;
constexpr unsigned FontCommands[] = {32874, 32878, 32896, 32897, 32898, 32899,
                                     32900, 32901, 32902, 32903, 32904};
// In the range of the catalogue, but the application's.
constexpr unsigned ForwardedCommands[] = {Command::CloseAll, Command::HelpTopics, Command::WelcomePage,
                                          Command::Merge, Command::Learn};

bool IsOneOf(std::span<const unsigned> commands, unsigned id) {
    return std::ranges::find(commands, id) != commands.end();
}

bool IsInCatalogueRange(unsigned id) {
    return id >= Command::FirstOfCatalogue && id <= Command::LastOfCatalogue &&
           !IsOneOf(ForwardedCommands, id);
}

} // namespace

bool CAdminModView::OnCommand(unsigned id) {
    switch (id) {
    case Command::Undo: StepHistory(true); return true;
    case Command::Redo: StepHistory(false); return true;
    case Command::Copy: OnEditCopy(); return true;
    case Command::Cut: OnEditCut(); return true;
    case Command::Paste: OnEditPaste(); return true;
    case Command::Print: Print(PrintMode::WithDialog); return true;
    case Command::PrintAtOnce: Print(PrintMode::AtOnce); return true;
    case Command::ShowAllChecks: m_app.FlipShowAll(); return true;
    case NothingToDo: return true;
    default: break;
    }
    if (!IsInCatalogueRange(id))
        return false;
    OnCheckCommand(id);
    return true;
}

bool CAdminModView::OnUpdateCommand(unsigned id, CommandState& state) {
    const bool isChecksPage = IsChecksPageActive();
    switch (id) {
    case Command::Undo: state.enabled = isChecksPage && GetStandard().CanUndo(); return true;
    case Command::Redo: state.enabled = isChecksPage && GetStandard().CanRedo(); return true;
    case Command::Copy:
    case Command::Cut: state.enabled = isChecksPage && GetStandard().CountLiveChecks() > 0; return true;
    case Command::Paste: state.enabled = isChecksPage && m_app.IsPasteEnabled(); return true;
    case Command::Print:
    case Command::PrintAtOnce: return true;
    case Command::ShowAllChecks:
        state.enabled = isChecksPage;
        state.checked = m_app.IsShowingAll();
        // Another document may have been in front when the group was changed.
        if (m_shownGroup != CurrentGroup())
            OnShownGroupsChanged();
        return true;
    default: break;
    }
    if (!IsInCatalogueRange(id))
        return false;
    const CPDCheckInfo* info = m_checks->GetTable().FindByCommand(id);
    state.checked = info && info->IsActive();
    return true;
}

void CAdminModView::OnCheckCommand(unsigned id) {
    CPDCheckInfo* info = m_checks->GetTable().FindByCommand(id);
    if (info && IsOneOf(FontCommands, id)) {
        OnFontCheckCommand(*info);
    } else if (info) {
        ToggleCheck(*info, nullptr);
    } else {
        ActivatePage(ChecksPage);
        m_checks->setFocus();
    }
}

// A font check that is missing is asked for together with others like it.
void CAdminModView::OnFontCheckCommand(CPDCheckInfo& info) {
    if (info.IsActive()) {
        ToggleCheck(info, nullptr);
        return;
    }
    ActivatePage(ChecksPage);
    CDocFontCheckPopUpDlg(*this, info.GetCheckType(), this).DoModal();
    m_checks->setFocus();
}

void CAdminModView::ToggleCheck(CPDCheckInfo& info, const CCheck* source) {
    ActivatePage(ChecksPage);
    if (info.IsActive())
        m_checks->RemoveCheck(info.GetCheckType(), true);
    else
        m_checks->AddCheck(info.GetCheckType(), source);
    m_checks->setFocus();
}

void CAdminModView::StepHistory(bool isUndo) {
    CStandard& standard = GetStandard();
    if (isUndo ? !standard.CanUndo() : !standard.CanRedo())
        return;
    int step = -1;
    const MQC_CheckType_e type = standard.StepHistory(isUndo, step);
    if (type != 0)
        m_checks->ApplyHistoryStep(type, step, isUndo);
}

void CAdminModView::Print(PrintMode mode) {
    m_print(GetStandard(), mode, this);
}
