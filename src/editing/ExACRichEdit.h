// The field of one line for use inside another control: the keys that move its caret, and those of its
// clipboard, never reach what is around it.
#pragma once

#include "editing/ExtRichEditCtrl.h"

class CExACRichEdit : public CExtRichEditCtrl {
    Q_OBJECT

public:
    using CExtRichEditCtrl::CExtRichEditCtrl;

protected:
    bool event(QEvent* event) override;
};
