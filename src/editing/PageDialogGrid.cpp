#include "editing/PageDialogGrid.h"

#include <QApplication>

CPageDialogGrid::CPageDialogGrid(QWidget* parent) : CGridClass(parent) {
    setEditTriggers(AllEditTriggers);
}

void CPageDialogGrid::RedrawRowCol(int row, int col) {
    viewport()->update(CalcRectFromRowCol(row, col));
}

void CPageDialogGrid::StoreOpenEditor() {
    const QWidget* focus = QApplication::focusWidget();
    int row = 0;
    int col = 0;
    if (!focus || focus == this || !isAncestorOf(focus) || !GetCurrentCell(row, col))
        return;
    if (QWidget* editor = indexWidget(currentIndex())) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    setFocus();
    RedrawRowCol(row, col);
}

void CPageDialogGrid::scrollContentsBy(int dx, int dy) {
    StoreOpenEditor();
    CGridClass::scrollContentsBy(dx, dy);
}
