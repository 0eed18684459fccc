#include "dialogs/ParameterCheckDlg.h"

#include <utility>

void CParameterCheckDlg::OnParameterChanged() {
    // Without corrections of its own, the scratch check takes those that the standard holds.
    CCheck scratch(CheckType, 0, 0, 0, 1);
    FillCheckParameters(scratch);
    RefreshCorrectionControls(scratch);
    CommitCheck();
}

void CParameterCheckDlg::CommitCheck() {
    auto check = std::make_unique<CCheck>(CheckType, 0, 0, 0, 1);
    FillCheck(*check);
    GetHost().GetStandard().EditCheck(std::move(check));
}

void CParameterCheckDlg::FillCheck(CCheck& check) {
    FillCheckParameters(check);
    StoreCorrections(check);
}
