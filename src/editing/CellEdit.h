// The text editor in a cell of a grid.
#pragma once

#include "editing/ExACRichEdit.h"

class CCellEdit : public CExACRichEdit {
    Q_OBJECT

public:
    CCellEdit(const CString& filter, bool filterIsExclude, QWidget* parent = nullptr);
};
