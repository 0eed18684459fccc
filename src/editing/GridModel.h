// The cells of a grid, by the numbers of GridRange, and the sizes of its rows and columns in twips.
#pragma once

#include "editing/GridStyle.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QSet>
#include <functional>
#include <vector>

class GridModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override; // by an editor

    // Between the two nothing is told to the view, which then takes up everything at once. They nest.
    void BeginReset();
    void EndReset();

    int GetRowCount() const { return rowCount(); }
    int GetColCount() const { return m_colCount; }
    void SetRowCount(int count); // without the header
    void SetColCount(int count);
    void InsertRow(int row);
    void RemoveRow(int row);
    // Empties all cells, the header among them, and uncovers them; counts and sizes stay.
    void ClearCells();

    bool Has(int row, int col) const;
    // A cell outside the grid reads as an empty one, and changes nothing.
    const GridCell& Cell(int row, int col) const;
    void ChangeCell(int row, int col, const std::function<void(GridCell&)>& change);
    void ChangeRowStyle(int row, const std::function<void(CellStyle&)>& change);
    void ChangeColStyle(int col, const std::function<void(CellStyle&)>& change);
    CellStyle ComposeStyleRowCol(int row, int col) const;

    // Only markers that were added can be set; false for another.
    void AddUserAttribute(int attribute) { m_attributes.insert(attribute); }
    bool SetUserAttribute(int row, int col, int attribute, const CString& value);

    // The covered ranges; they do not overlap: a new one replaces those it touches.
    void Cover(const GridRange& range);
    const std::vector<GridRange>& Covered() const { return m_covered; }
    GridRange CoveredRangeOf(int row, int col) const; // of a cell that is not covered, the cell

    int RowHeight(int row) const;
    void SetRowHeight(int row, int twips);
    int ColWidth(int col) const;
    void SetColWidth(int col, int twips);

    std::function<void(int row, int col)> CellEdited;

    static constexpr int UsualRowHeight = 340; // twips
    static constexpr int UsualColWidth = 1440;

private:
    struct Row {
        std::vector<GridCell> cells;
        CellStyle style;
        int height = UsualRowHeight;
    };

    Row MakeRow() const;
    void TellChange(int row, int left, int right);
    void ForgetCoversBeyond();
    CString SpokenText(int row, int col) const;

    std::vector<Row> m_rows = std::vector<Row>(1); // the header is the first
    std::vector<CellStyle> m_colStyles;
    std::vector<int> m_colWidths;
    std::vector<GridRange> m_covered; // by their top
    int m_tallest = 1;                // no covered range has more rows
    QSet<int> m_attributes;
    int m_colCount = 0;
    int m_resets = 0;
};
