#include "editing/GridClass.h"

#include "editing/CellEditors.h"
#include "editing/GridColors.h"
#include "editing/GridHeader.h"

#include <QEvent>
#include <QScrollBar>

namespace {

int Pixels(int twips, int dpi) {
    return qRound(twips * dpi / 1440.0);
}

} // namespace

CGridClass::CGridClass(QWidget* parent)
    : QTableView(parent), m_header(new GridHeader(m_cells, this)), m_editors(new CellEditors(*this)) {
    setModel(&m_cells);
    setHorizontalHeader(m_header);
    setItemDelegate(m_editors);
    // Nothing of this header is ever seen, and without updates a resized row costs no walk over all rows.
    verticalHeader()->hide();
    verticalHeader()->setUpdatesEnabled(false);
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setDefaultSectionSize(Pixels(GridModel::UsualRowHeight, logicalDpiY()));
    setShowGrid(false);
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(NoSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalScrollBar()->setSingleStep(Pixels(350, logicalDpiY()));
    setCornerButtonEnabled(false);
    setMouseTracking(true);
    SetBackColor(PageColor);
    m_cells.CellEdited = [this](int row, int col) {
        if (CellEdited)
            CellEdited(row, col);
    };
    connect(&m_cells, &QAbstractItemModel::modelReset, this, [this] { SyncView(); });
    connect(&m_cells, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int first, int last) {
                for (int row = first; row <= last; ++row)
                    SyncRowHeight(row + 1);
            });
}

// The view must be rid of the model, a member, before that goes.
CGridClass::~CGridClass() {
    setModel(nullptr);
}

void CGridClass::SyncView() {
    for (int row = 0; row <= GetRowCount(); ++row)
        SyncRowHeight(row);
    for (int col = 0; col < GetColCount(); ++col)
        SyncColWidth(col);
    clearSpans();
    for (const GridRange& range : m_cells.Covered())
        ApplyCover(range);
}

void CGridClass::SyncRowHeight(int row) {
    const int height = Pixels(m_cells.RowHeight(row), logicalDpiY());
    if (row == 0) {
        m_header->setFixedHeight(std::max(height, 1));
        return;
    }
    setRowHidden(row - 1, height == 0);
    if (height > 0 && rowHeight(row - 1) != height)
        verticalHeader()->resizeSection(row - 1, height);
}

void CGridClass::SyncColWidth(int col) {
    const int width = Pixels(m_cells.ColWidth(col), logicalDpiX());
    setColumnHidden(col, width == 0);
    if (width > 0)
        setColumnWidth(col, width);
}

void CGridClass::ApplyCover(const GridRange& range) {
    if (range.top > 0)
        setSpan(range.top - 1, range.left, range.bottom - range.top + 1, range.right - range.left + 1);
}

void CGridClass::SetRowHeight(int row, int height) {
    m_cells.SetRowHeight(row, height);
    if (m_transactions == 0 && m_cells.Has(row, 0))
        SyncRowHeight(row);
}

void CGridClass::SetColWidth(int col, int width) {
    m_cells.SetColWidth(col, width);
    if (m_transactions == 0 && m_cells.Has(0, col))
        SyncColWidth(col);
}

void CGridClass::HideRow(int row, bool hide) {
    setRowHidden(row - 1, hide);
}

void CGridClass::HideCol(int col, bool hide) {
    setColumnHidden(col, hide);
}

void CGridClass::SetCoveredCellsRowCol(const GridRange& range) {
    m_cells.Cover(range);
    if (m_transactions == 0)
        SyncView();
}

void CGridClass::BeginTrans() {
    if (m_transactions++ == 0)
        m_cells.BeginReset();
}

void CGridClass::CommitTrans() {
    if (--m_transactions == 0)
        m_cells.EndReset();
}

void CGridClass::SetCellText(int row, int col, const CString& text) {
    m_cells.ChangeCell(row, col, [&text](GridCell& cell) {
        cell.text = text;
        cell.picture = 0;
    });
}

void CGridClass::SetCellTextFramed(int row, int col, const CString& text, bool framed) {
    m_cells.ChangeCell(row, col, [&](GridCell& cell) {
        cell.text = text;
        cell.picture = 0;
        cell.style.control = ControlFramed;
        cell.style.framed = framed;
    });
}

void CGridClass::SetCellBitmap(int row, int col, unsigned bitmap) {
    m_cells.ChangeCell(row, col, [bitmap](GridCell& cell) { cell.picture = bitmap; });
}

void CGridClass::SetCellInterior(int row, int col, unsigned color) {
    m_cells.ChangeCell(row, col, [color](GridCell& cell) { cell.style.interior = color; });
}

void CGridClass::SetCellControl(int row, int col, unsigned control) {
    m_cells.ChangeCell(row, col, [control](GridCell& cell) { cell.style.control = control; });
}

void CGridClass::SetCellEditor(int row, int col, unsigned editor, const CStringArray& choices) {
    m_cells.ChangeCell(row, col, [&](GridCell& cell) {
        cell.style.editor = editor;
        cell.style.choices = std::make_shared<const CStringArray>(choices);
    });
}

void CGridClass::SetCellSpokenText(int row, int col, const CString& text) {
    m_cells.ChangeCell(row, col, [&text](GridCell& cell) { cell.spokenText = text; });
}

bool CGridClass::SetCellTextColor(int row, int col, unsigned color) {
    m_cells.ChangeCell(row, col, [color](GridCell& cell) { cell.style.textColor = color; });
    return m_cells.Has(row, col);
}

void CGridClass::SetColAlignment(int col, Qt::Alignment alignment) {
    m_cells.ChangeColStyle(col, [alignment](CellStyle& style) { style.alignment = alignment; });
}

void CGridClass::SetColEditor(int col, unsigned editor, const CStringArray& choices) {
    m_cells.ChangeColStyle(col, [&](CellStyle& style) {
        style.editor = editor;
        style.choices = std::make_shared<const CStringArray>(choices);
    });
}

void CGridClass::SetColWrap(int col, bool wrap) {
    m_cells.ChangeColStyle(col, [wrap](CellStyle& style) { style.wrap = wrap; });
}

void CGridClass::SetRowBold(int row) {
    m_cells.ChangeRowStyle(row, [](CellStyle& style) { style.bold = true; });
}

void CGridClass::SetColBold(int col) {
    m_cells.ChangeColStyle(col, [](CellStyle& style) { style.bold = true; });
}

void CGridClass::ClearAll() {
    if (GetRowCount() > 0 && GetColCount() > 0)
        m_cells.ClearCells();
}

bool CGridClass::SetUserAttribute(int row, int col, int attribute, const CString& value) {
    return m_cells.SetUserAttribute(row, col, attribute, value);
}

CString CGridClass::GetUserAttribute(int row, int col, int attribute) const {
    return m_cells.Cell(row, col).attributes.value(attribute);
}

bool CGridClass::GetCurrentCell(int& row, int& col) const {
    const QModelIndex current = currentIndex();
    if (!current.isValid())
        return false;
    row = current.row() + 1;
    col = current.column();
    return true;
}

void CGridClass::SetCurrentCell(int row, int col) {
    setCurrentIndex(IndexOf(row, col));
}

int CGridClass::HitTest(QPoint place, int& row, int& col) const {
    const int modelRow = rowAt(place.y());
    const int modelCol = columnAt(place.x());
    if (modelRow < 0 || modelCol < 0)
        return 0;
    row = modelRow + 1;
    col = modelCol;
    return HitCell;
}

QRect CGridClass::CalcRectFromRowCol(int row, int col) const {
    const GridRange range = GetMergedCellsRowCol(row, col);
    return visualRect(IndexOf(range.top, range.left));
}

void CGridClass::RegisterEditor(unsigned id, std::function<QWidget*(QWidget* parent)> make) {
    m_editors->Register(id, std::move(make));
}

void CGridClass::SetBackColor(unsigned color) {
    QPalette colors = palette();
    colors.setColor(QPalette::Base, ColorOf(color));
    colors.setColor(QPalette::Text, QColor(GridColors::Text));
    setPalette(colors);
}

void CGridClass::SetBaseFont(const QFont& font) {
    setFont(font);
    m_header->setFont(font);
}

void CGridClass::EnableTrackColWidth(bool enable) {
    m_header->setSectionResizeMode(enable ? QHeaderView::Interactive : QHeaderView::Fixed);
}

bool CGridClass::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const bool opens = index.isValid() && (trigger & editTriggers()) &&
                       (index.flags() & Qt::ItemIsEditable) && !indexWidget(index) &&
                       (!event || event->type() != QEvent::MouseButtonRelease);
    if (opens && MayEditCell && !MayEditCell(index.row() + 1, index.column()))
        return false;
    return QTableView::edit(index, trigger, event);
}

void CGridClass::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (Resized)
        Resized();
}
