// The base of panes that set parameters: each change of a control writes the whole of what the pane shows.
#pragma once

#include "editing/ExtDialog.h"

class CParameterCheckDlg : public CExtDialog {
    Q_OBJECT

public:
    using CExtDialog::CExtDialog;

    // Lets the corrections follow the requirements that the controls show now, and writes both.
    void OnParameterChanged() override;
    void CommitCheck() override;
    void OnCriticalityChanged() override { CommitCheck(); }
    void FillCheck(CCheck& check) override;
    // To be overridden, and called first there.
    void FillCheckParameters(CCheck& check) override { CExtDialog::FillCheck(check); }
};
