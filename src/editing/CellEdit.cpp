#include "editing/CellEdit.h"

CCellEdit::CCellEdit(const CString& filter, bool filterIsExclude, QWidget* parent) : CExACRichEdit(parent) {
    SetFilter(filter, filterIsExclude);
}
