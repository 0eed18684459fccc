// The header of a grid: its row 0.
#pragma once

#include <QHeaderView>

class CGridClass;
class GridModel;

class GridHeader : public QHeaderView {
public:
    GridHeader(const GridModel& cells, CGridClass* grid);

protected:
    void paintEvent(QPaintEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

private:
    static void DrawBand(QPainter& painter, const QRect& rect);

    const GridModel& m_cells;
    CGridClass& m_grid;
};
