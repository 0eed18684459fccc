// The box of choices in a cell of a grid.
#pragma once

#include "editing/ComboBoxExt.h"

class CCellComboBox : public CComboBoxExt {
    Q_OBJECT

public:
    using CComboBoxExt::CComboBoxExt;

protected:
    bool event(QEvent* event) override;
};
