#include "editing/MultiColumnList.h"

#include "platform/widgets/Look.h"

#include <QHeaderView>

CString CMCRow::TextAt(int column) const {
    return column >= 0 && column < static_cast<int>(Cells.size()) ? Cells[static_cast<size_t>(column)].Text
                                                                  : CString();
}

MultiColumnList::MultiColumnList(QWidget* parent) : QTreeWidget(parent) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideMiddle);
    setTabKeyNavigation(false);
    QFont heading = font();
    heading.setWeight(QFont::DemiBold);
    header()->setFont(heading);
    QPalette colors = header()->palette();
    colors.setColor(QPalette::ButtonText, QColor(Look::Heading));
    header()->setPalette(colors);
    header()->setSectionsMovable(false);
    header()->setHighlightSections(false);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void MultiColumnList::SetColumns(const std::vector<CMCColumn>& columns) {
    m_columns = columns;
    setColumnCount(static_cast<int>(columns.size()));
    QStringList titles;
    for (const CMCColumn& column : columns)
        titles.append(column.Title);
    setHeaderLabels(titles);
    ShareWidth();
}

QTreeWidgetItem* MultiColumnList::AddRow(const CMCRow& row, QTreeWidgetItem* group) {
    auto* item = group ? new QTreeWidgetItem(group) : new QTreeWidgetItem(this);
    for (int column = 0; column < columnCount(); ++column)
        item->setText(column, row.TextAt(column));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return item;
}

QTreeWidgetItem* MultiColumnList::AddGroup(const CString& title) {
    auto* group = new QTreeWidgetItem(this, {title});
    group->setFlags(Qt::ItemIsEnabled);
    group->setFirstColumnSpanned(true);
    group->setForeground(0, QColor(Look::Heading));
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    group->setFont(0, bold);
    group->setExpanded(true);
    return group;
}

CMCRow MultiColumnList::RowOf(const QTreeWidgetItem& item) const {
    CMCRow row;
    for (int column = 0; column < columnCount(); ++column)
        row.Cells.push_back({item.text(column)});
    return row;
}

void MultiColumnList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    ShareWidth();
}

// The last column takes what the others leave.
void MultiColumnList::ShareWidth() {
    int shares = 0;
    for (const CMCColumn& column : m_columns)
        shares += column.Share;
    for (int i = 0; i + 1 < static_cast<int>(m_columns.size()) && shares > 0; ++i)
        header()->resizeSection(i, viewport()->width() * m_columns[static_cast<size_t>(i)].Share / shares);
}
