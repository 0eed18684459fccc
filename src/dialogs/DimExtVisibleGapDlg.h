// The pane of the gaps between extension lines and what they belong to.
#pragma once

#include "dialogs/ValuePane.h"
#include "editing/ValueField.h"

#include <memory>
#include <vector>

class CDrawingDocDimExtVisibleGapDlg : public CValuePane {
    Q_OBJECT

public:
    explicit CDrawingDocDimExtVisibleGapDlg(EditingHost& host);

protected:
    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    void StoreControls(CCheck& check) const override;
    void ApplyEnableRules() override;

private:
    std::vector<std::unique_ptr<ValueField>> m_gaps; // each at the place of its row in the table
};
