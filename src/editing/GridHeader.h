// The header of a grid: its row 0.
#pragma once

#include <QHeaderView>

class CGridClass;
class GridModel;

class GridHeader : public QHeaderView {
public:
    GridHeader(const GridModel& cells, CGridClass* grid);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

private:
    const GridModel& m_cells;
    CGridClass& m_grid;
};
