// A grid whose cells are edited in place: an open editor is stored before the grid scrolls under it.
#pragma once

#include "editing/GridClass.h"

class CPageDialogGrid : public CGridClass {
public:
    explicit CPageDialogGrid(QWidget* parent = nullptr);

    void RedrawRowCol(int row, int col); // with the whole covered range

protected:
    void scrollContentsBy(int dx, int dy) override;

private:
    void StoreOpenEditor();
};
