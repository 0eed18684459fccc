#include "dialogs/ParameterCheckDlg.h"

#include <utility>

void CParameterCheckDlg::OnParameterChanged() {
    // Without corrections of its own, the scratch check takes those that the standard holds.
    const auto scratch = CStandard::MakeCheck(CheckType);
    FillCheckParameters(*scratch);
    RefreshCorrectionControls(*scratch);
    CommitCheck();
}

void CParameterCheckDlg::CommitCheck() {
    auto check = CStandard::MakeCheck(CheckType);
    FillCheck(*check);
    GetHost().GetStandard().EditCheck(std::move(check));
}

void CParameterCheckDlg::FillCheck(CCheck& check) {
    FillCheckParameters(check);
    StoreCorrections(check);
}
