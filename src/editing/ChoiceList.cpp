#include "editing/ChoiceList.h"

#include <QHash>
#include <QSet>
#include <algorithm>

namespace {

constexpr int LeastWidth = 120;
constexpr int Margin = 1; // at a scale of 1.5 the rows would cover the frame's thin line

} // namespace

QSize CChoiceList::RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    // In columns a row fills its cell: one row is measured for all, and others may be longer.
    const auto* list = qobject_cast<const QListView*>(option.widget);
    const QSize cell = list ? list->gridSize() : QSize();
    return {cell.isValid() ? cell.width() : QStyledItemDelegate::sizeHint(option, index).width(), RowHeight};
}

CChoiceList::CChoiceList(QWidget* parent) : QListWidget(parent) {
    setItemDelegate(new RowDelegate(this));
    setViewportMargins(Margin, Margin, Margin, Margin);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setSelectionMode(MultiSelection);
    setUniformItemSizes(true); // thousands of rows are never measured one by one
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setResizeMode(Adjust);
}

CStringArray CChoiceList::ChosenTexts() const {
    QModelIndexList chosen = selectionModel()->selectedIndexes();
    std::ranges::sort(chosen, {}, &QModelIndex::row);
    CStringArray texts;
    for (const QModelIndex& index : chosen)
        texts.append(index.data().toString());
    return texts;
}

void CChoiceList::Choose(const CStringArray& texts, bool addsMissing) {
    QHash<CString, int> rows;
    for (int row = count() - 1; row >= 0; --row)
        rows.insert(item(row)->text(), row);
    QItemSelection chosen;
    int first = count() + static_cast<int>(texts.size());
    QSet<int> taken; // a text may be given twice
    for (const CString& text : texts) {
        if (addsMissing && !rows.contains(text)) {
            rows.insert(text, count());
            addItem(text);
        }
        const auto found = rows.constFind(text);
        if (found == rows.constEnd() || taken.contains(*found))
            continue;
        taken.insert(*found);
        const QModelIndex index = model()->index(*found, 0);
        chosen.select(index, index);
        first = qMin(first, *found);
    }
    selectionModel()->select(chosen, QItemSelectionModel::ClearAndSelect);
    if (QListWidgetItem* const topmost = item(first))
        scrollToItem(topmost, PositionAtTop);
}

QSize CChoiceList::sizeHint() const {
    const int room = m_columns > 1 ? 2 : 0; // a column that is filled to the last pixel would be broken early
    const int around = 2 * (frameWidth() + Margin);
    const int columns = m_columns > 1 ? m_columns * WidestRow() : 0;
    return {qMax(LeastWidth, columns + around), m_visibleRows * RowHeight + room + around};
}

int CChoiceList::WidestRow() const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QStyledItemDelegate measure;
    int widest = 0;
    for (int row = 0; row < count(); ++row)
        widest = qMax(widest, measure.sizeHint(option, model()->index(row, 0)).width());
    return widest;
}

// Columns only where all rows are whole and in sight; one column can be scrolled.
int CChoiceList::ColumnsThatFit() const {
    const QSize room = size() - QSize(2, 2) * (frameWidth() + Margin);
    const int rows = (count() + m_columns - 1) / m_columns;
    if (m_columns == 1 || room.height() <= rows * RowHeight)
        return 1;
    return WidestRow() > room.width() / m_columns ? 1 : m_columns;
}

void CChoiceList::resizeEvent(QResizeEvent* event) {
    if (m_columns > 1) {
        const int columns = ColumnsThatFit();
        setWrapping(columns > 1);
        setGridSize(columns > 1 ? QSize(viewport()->width() / columns, RowHeight) : QSize());
    }
    QListWidget::resizeEvent(event);
}
