// The common base of all grids: one look, and told numbers: row 0 is the header, rows count from 1,
// columns from 0; sizes are twips, 1440 to the inch; colours are 0x00BBGGRR.
#pragma once

#include "editing/CellText.h"
#include "editing/GridControls.h"
#include "editing/GridModel.h"

#include <QTableView>
#include <functional>

class CellEditors;
class GridHeader;

class CGridClass : public QTableView {
public:
    explicit CGridClass(QWidget* parent = nullptr);
    ~CGridClass() override;

    void SetRowCount(int count) { m_cells.SetRowCount(count); }
    void SetColCount(int count) { m_cells.SetColCount(count); }
    int GetRowCount() const { return m_cells.GetRowCount(); }
    int GetColCount() const { return m_cells.GetColCount(); }
    void InsertRow(int row) { m_cells.InsertRow(row); } // before the row that stands there
    void RemoveRow(int row) { m_cells.RemoveRow(row); }
    // A row or column of size 0 is hidden.
    void SetRowHeight(int row, int height);
    void SetColWidth(int col, int width);
    int GetRowHeight(int row) const { return m_cells.RowHeight(row); }
    int GetColWidth(int col) const { return m_cells.ColWidth(col); }
    void HideRow(int row, bool hide);
    void HideCol(int col, bool hide);
    void SetCoveredCellsRowCol(const GridRange& range);
    GridRange GetMergedCellsRowCol(int row, int col) const { return m_cells.CoveredRangeOf(row, col); }

    // Many changes between the two cost one rebuild of the view. They nest.
    void BeginTrans();
    void CommitTrans();

    void SetCellText(int row, int col, const CString& text);
    void SetCellTextFramed(int row, int col, const CString& text, bool framed);
    void SetCellBitmap(int row, int col, unsigned bitmap);
    void SetCellInterior(int row, int col, unsigned color);
    void SetCellControl(int row, int col, unsigned control);
    void SetCellEditor(int row, int col, unsigned editor, const CStringArray& choices = {});
    void SetCellSpokenText(int row, int col, const CString& text);
    bool SetCellTextColor(int row, int col, unsigned color); // false where there is no such cell
    void SetColAlignment(int col, Qt::Alignment alignment);
    void SetColEditor(int col, unsigned editor, const CStringArray& choices = {});
    void SetColWrap(int col, bool wrap);
    void SetRowBold(int row);
    void SetColBold(int col);
    void ClearAll();
    void AddUserAttribute(int attribute) { m_cells.AddUserAttribute(attribute); }
    bool SetUserAttribute(int row, int col, int attribute, const CString& value);
    CString GetUserAttribute(int row, int col, int attribute) const;

    const CString& GetCellText(int row, int col) const { return m_cells.Cell(row, col).text; }
    unsigned GetCellBitmap(int row, int col) const { return m_cells.Cell(row, col).picture; }
    CellStyle ComposeStyleRowCol(int row, int col) const { return m_cells.ComposeStyleRowCol(row, col); }

    bool GetCurrentCell(int& row, int& col) const; // false where there is none
    void SetCurrentCell(int row, int col);
    // HitCell with the cell at a place of the viewport, 0 with nothing changed beside all cells.
    int HitTest(QPoint place, int& row, int& col) const;
    QRect CalcRectFromRowCol(int row, int col) const; // in the viewport, of the whole covered range
    // The tip of the cell at a place of the viewport: its own, or what is cut or not in words; or empty.
    CString TipAt(QPoint place) const;
    void RegisterEditor(unsigned id, std::function<QWidget*(QWidget* parent)> make);
    void SetBackColor(unsigned color);
    void SetBaseFont(const QFont& font); // of header and cells
    void EnableTrackColWidth(bool enable);

    // Drawing, for the controls of cells.
    CellTextLook TextLook(const CellStyle& style) const;
    void DrawBackground(QPainter& painter, const QRect& rect, const CellStyle& style) const;
    void DrawCell(QPainter& painter, const QRect& rect, int row, int col) const;

    std::function<void(int row, int col)> CellEdited;  // an editor has stored another text
    std::function<bool(int row, int col)> MayEditCell; // asked before an editor opens; unset: always
    std::function<void()> EditCommitted;               // a numeric cell that was changed is left
    std::function<void()> Resized;

    static constexpr unsigned PageColor = 0xE3E1DE;
    static constexpr int HitCell = 4;
    static constexpr int ToolTipAttribute = 51022; // a cell's own tip

protected:
    virtual const CGXStatic* FindControl(unsigned id) const;
    // The part of a cell in which its content stands; `rect` is all of it.
    virtual QRect ContentRect(const QRect& rect, int row, int col) const;
    virtual bool EndsGroup(int row, int col) const; // whether a full line stands below the cell
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QModelIndex IndexOf(int row, int col) const { return m_cells.index(row - 1, col); }

private:
    void SyncView();
    void SyncRowHeight(int row);
    void SyncColWidth(int col);
    void ApplyCover(const GridRange& range);

    GridModel m_cells;
    GridHeader* m_header; // of Qt's ownership, as the editors
    CellEditors* m_editors;
    CGXStatic m_static;
    CGXStaticControl m_framed;
    CGXLayerColorControl m_color;
    int m_transactions = 0;
};
