// What draws the content of a cell.
#pragma once

#include "editing/GridStyle.h"

#include <map>
#include <memory>

class CGridClass;
class QPainter;

// One cell that is drawn. `rect` has no lines in it.
struct CellDrawing {
    const CGridClass& grid;
    int row;
    int col;
    QRect rect;
    const GridCell& cell;
    const CellStyle& style;
};

// The text of a cell, or its picture.
class CGXStatic {
public:
    virtual ~CGXStatic() = default;
    virtual void Draw(QPainter& painter, const CellDrawing& drawing) const;
};

// The same on the grid's own ground.
class CGXStaticControl : public CGXStatic {
public:
    void Draw(QPainter& painter, const CellDrawing& drawing) const override;
};

// A colour: the interior of the cell, with a frame of its own. A cell without one shows its text.
class CGXLayerColorControl : public CGXStatic {
public:
    void Draw(QPainter& painter, const CellDrawing& drawing) const override;
};

// The controls that a grid has besides the built-in ones, by their numbers.
class CAdminControlManager {
public:
    void RegisterControl(unsigned id, std::unique_ptr<CGXStatic> control);
    const CGXStatic* FindControl(unsigned id) const; // null where there is none

private:
    std::map<unsigned, std::unique_ptr<CGXStatic>> m_controls;
};
