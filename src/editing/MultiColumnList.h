// A small list of several columns, whose rows may stand in groups.
#pragma once

#include "platform/Text.h"

#include <QTreeWidget>
#include <vector>

struct CMCCell {
    CString Text;
};

struct CMCColumn {
    CString Title;
    int Share; // of the width, in proportion to the other columns
};

struct CMCRow {
    std::vector<CMCCell> Cells;

    // The text of a column, empty where the row has no such cell.
    CString TextAt(int column) const;
};

class MultiColumnList : public QTreeWidget {
    Q_OBJECT

public:
    explicit MultiColumnList(QWidget* parent = nullptr);

    void SetColumns(const std::vector<CMCColumn>& columns);

    // Adds a row behind the others, or behind those of its group. The list owns the item.
    QTreeWidgetItem* AddRow(const CMCRow& row, QTreeWidgetItem* group = nullptr);

    // Adds the heading of a group; it spans all columns and is not selected.
    QTreeWidgetItem* AddGroup(const CString& title);

    CMCRow RowOf(const QTreeWidgetItem& item) const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShareWidth();

    std::vector<CMCColumn> m_columns;
};
