#include "editing/GridModel.h"

#include <algorithm>

namespace {

bool Overlap(const GridRange& a, const GridRange& b) {
    return a.top <= b.bottom && b.top <= a.bottom && a.left <= b.right && b.left <= a.right;
}

template <class T> void TakeIfUnset(T& value, const T& base) {
    if (!value)
        value = base;
}

} // namespace

void CellStyle::Complete(const CellStyle& base) {
    TakeIfUnset(textColor, base.textColor);
    TakeIfUnset(interior, base.interior);
    TakeIfUnset(alignment, base.alignment);
    TakeIfUnset(bold, base.bold);
    TakeIfUnset(wrap, base.wrap);
    TakeIfUnset(framed, base.framed);
    TakeIfUnset(control, base.control);
    TakeIfUnset(editor, base.editor);
    TakeIfUnset(choices, base.choices);
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size()) - 1;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_colCount;
}

CString GridModel::SpokenText(int row, int col) const {
    const GridCell& cell = Cell(row, col);
    return cell.spokenText.isEmpty() ? cell.text : cell.spokenText;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + 1;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return Cell(row, index.column()).text;
    case Qt::AccessibleTextRole: return SpokenText(row, index.column());
    default: return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};
    return role == Qt::DisplayRole ? Cell(0, section).text : SpokenText(0, section);
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags base = QAbstractTableModel::flags(index);
    const CellStyle style = ComposeStyleRowCol(index.row() + 1, index.column());
    return style.editor.value_or(EditorNone) == EditorNone ? base : base | Qt::ItemIsEditable;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const int row = index.row() + 1;
    if (role != Qt::EditRole || !Has(row, index.column()))
        return false;
    const CString text = value.toString();
    if (Cell(row, index.column()).text == text)
        return true;
    ChangeCell(row, index.column(), [&text](GridCell& cell) { cell.text = text; });
    if (CellEdited)
        CellEdited(row, index.column());
    return true;
}

void GridModel::BeginReset() {
    if (m_resets++ == 0)
        beginResetModel();
}

void GridModel::EndReset() {
    if (--m_resets == 0)
        endResetModel();
}

GridModel::Row GridModel::MakeRow() const {
    Row row;
    row.cells.resize(static_cast<size_t>(m_colCount));
    return row;
}

void GridModel::SetRowCount(int count) {
    count = std::max(count, 0);
    const int old = rowCount();
    if (count == old)
        return;
    if (m_resets == 0 && count > old)
        beginInsertRows({}, old, count - 1);
    else if (m_resets == 0)
        beginRemoveRows({}, count, old - 1);
    m_rows.resize(static_cast<size_t>(count) + 1, MakeRow());
    ForgetCoversBeyond();
    if (m_resets == 0 && count > old)
        endInsertRows();
    else if (m_resets == 0)
        endRemoveRows();
}

void GridModel::SetColCount(int count) {
    count = std::max(count, 0);
    if (count == m_colCount)
        return;
    BeginReset();
    m_colCount = count;
    for (Row& row : m_rows)
        row.cells.resize(static_cast<size_t>(count));
    m_colStyles.resize(static_cast<size_t>(count));
    m_colWidths.resize(static_cast<size_t>(count), UsualColWidth);
    ForgetCoversBeyond();
    EndReset();
}

void GridModel::ForgetCoversBeyond() {
    std::erase_if(m_covered, [this](const GridRange& range) {
        return range.bottom > rowCount() || range.right >= m_colCount;
    });
}

// Covered ranges below move with their rows; those that hold the place of the change are uncovered.
void GridModel::InsertRow(int row) {
    row = std::clamp(row, 1, rowCount() + 1);
    BeginReset();
    m_rows.insert(m_rows.begin() + row, MakeRow());
    std::erase_if(m_covered,
                  [row](const GridRange& range) { return range.top < row && range.bottom >= row; });
    for (GridRange& range : m_covered) {
        const int moved = range.top >= row ? 1 : 0;
        range.top += moved;
        range.bottom += moved;
    }
    EndReset();
}

void GridModel::RemoveRow(int row) {
    if (row < 1 || row > rowCount())
        return;
    BeginReset();
    m_rows.erase(m_rows.begin() + row);
    std::erase_if(m_covered,
                  [row](const GridRange& range) { return range.top <= row && range.bottom >= row; });
    for (GridRange& range : m_covered) {
        const int moved = range.top > row ? 1 : 0;
        range.top -= moved;
        range.bottom -= moved;
    }
    EndReset();
}

void GridModel::ClearCells() {
    BeginReset();
    for (Row& row : m_rows) {
        row.style = {};
        row.cells.assign(row.cells.size(), GridCell());
    }
    m_covered.clear();
    m_tallest = 1;
    EndReset();
}

bool GridModel::Has(int row, int col) const {
    return row >= 0 && row <= rowCount() && col >= 0 && col < m_colCount;
}

const GridCell& GridModel::Cell(int row, int col) const {
    static const GridCell Nothing;
    return Has(row, col) ? m_rows[static_cast<size_t>(row)].cells[static_cast<size_t>(col)] : Nothing;
}

void GridModel::TellChange(int row, int left, int right) {
    if (m_resets > 0)
        return;
    if (row == 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, left, right);
    else
        Q_EMIT dataChanged(index(row - 1, left), index(row - 1, right));
}

void GridModel::ChangeCell(int row, int col, const std::function<void(GridCell&)>& change) {
    if (!Has(row, col))
        return;
    change(m_rows[static_cast<size_t>(row)].cells[static_cast<size_t>(col)]);
    TellChange(row, col, col);
}

void GridModel::ChangeRowStyle(int row, const std::function<void(CellStyle&)>& change) {
    if (row < 0 || row > rowCount())
        return;
    change(m_rows[static_cast<size_t>(row)].style);
    if (m_colCount > 0)
        TellChange(row, 0, m_colCount - 1);
}

void GridModel::ChangeColStyle(int col, const std::function<void(CellStyle&)>& change) {
    if (col < 0 || col >= m_colCount)
        return;
    change(m_colStyles[static_cast<size_t>(col)]);
    if (m_resets == 0 && rowCount() > 0)
        Q_EMIT dataChanged(index(0, col), index(rowCount() - 1, col));
}

CellStyle GridModel::ComposeStyleRowCol(int row, int col) const {
    if (!Has(row, col))
        return {};
    const Row& line = m_rows[static_cast<size_t>(row)];
    CellStyle style = line.cells[static_cast<size_t>(col)].style;
    style.Complete(line.style);
    if (row > 0)
        style.Complete(m_colStyles[static_cast<size_t>(col)]);
    return style;
}

bool GridModel::SetUserAttribute(int row, int col, int attribute, const CString& value) {
    if (!m_attributes.contains(attribute) || !Has(row, col))
        return false;
    ChangeCell(row, col, [&](GridCell& cell) { cell.attributes.insert(attribute, value); });
    return true;
}

void GridModel::Cover(const GridRange& range) {
    if (!Has(range.top, range.left) || !Has(range.bottom, range.right))
        return;
    // Ranges come from top to bottom nearly always, so that the ones before need no look.
    const bool isBelow = m_covered.empty() || m_covered.back().bottom < range.top;
    if (!isBelow)
        std::erase_if(m_covered, [&range](const GridRange& other) { return Overlap(other, range); });
    if (range.top == range.bottom && range.left == range.right)
        return;
    const auto place = std::upper_bound(m_covered.begin(), m_covered.end(), range.top,
                                        [](int top, const GridRange& other) { return top < other.top; });
    m_covered.insert(place, range);
    m_tallest = std::max(m_tallest, range.bottom - range.top + 1);
}

GridRange GridModel::CoveredRangeOf(int row, int col) const {
    const auto end = std::upper_bound(m_covered.begin(), m_covered.end(), row,
                                      [](int value, const GridRange& range) { return value < range.top; });
    for (auto range = end; range != m_covered.begin() && (range - 1)->top + m_tallest > row;)
        if ((--range)->Holds(row, col))
            return *range;
    return {row, col, row, col};
}

int GridModel::RowHeight(int row) const {
    return row >= 0 && row <= rowCount() ? m_rows[static_cast<size_t>(row)].height : 0;
}

void GridModel::SetRowHeight(int row, int twips) {
    if (row >= 0 && row <= rowCount())
        m_rows[static_cast<size_t>(row)].height = std::max(twips, 0);
}

int GridModel::ColWidth(int col) const {
    return col >= 0 && col < m_colCount ? m_colWidths[static_cast<size_t>(col)] : 0;
}

void GridModel::SetColWidth(int col, int twips) {
    if (col >= 0 && col < m_colCount)
        m_colWidths[static_cast<size_t>(col)] = std::max(twips, 0);
}
