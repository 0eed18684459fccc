// The pane of the precision and the tolerances of dimensions.
#pragma once

#include "dialogs/ValuePane.h"
#include "editing/BoxGroup.h"
#include "editing/ValueField.h"

#include <memory>
#include <optional>
#include <vector>

class CDimPrecisionDlg : public CValuePane {
    Q_OBJECT

public:
    explicit CDimPrecisionDlg(EditingHost& host);

protected:
    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    void StoreControls(CCheck& check) const override;
    void ApplyEnableRules() override;

private:
    enum Mode { Settings = 0, Tolerances = 1 }; // what the checker compares

    void FillPrecisionCombos();
    void PrepareTolerances();
    Mode PrecisionMode() const;

    std::optional<BoxGroup> m_dimensions;
    std::vector<std::unique_ptr<ValueField>> m_tolerances; // each at the place of its row in the table
};
