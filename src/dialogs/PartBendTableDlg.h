// The pane of the bend tables of which a part may use one.
#pragma once

#include "dialogs/ValuePane.h"

class FileList;

class CPartBendTableDlg : public CValuePane {
    Q_OBJECT

public:
    explicit CPartBendTableDlg(EditingHost& host);

protected:
    bool OnInitDialog() override;
    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    void StoreControls(CCheck& check) const override;
    void ApplyEnableRules() override;

private:
    void AskForTables();

    FileList* m_tables = nullptr;
};
