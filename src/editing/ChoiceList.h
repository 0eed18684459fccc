// A list box in which any number of rows may be chosen: each click, and the space key, turns one row over.
#pragma once

#include "platform/Text.h"

#include <QListWidget>
#include <QStyledItemDelegate>

class CChoiceList : public QListWidget {
    Q_OBJECT
    Q_PROPERTY(int visibleRows MEMBER m_visibleRows)
    Q_PROPERTY(int columns MEMBER m_columns)

public:
    explicit CChoiceList(QWidget* parent = nullptr);

    CStringArray ChosenTexts() const; // in the order of the rows

    // Chooses these rows and no others, found by their exact texts. A text without a row gets one at the end,
    // or is passed over.
    void Choose(const CStringArray& texts, bool addsMissing);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    static constexpr int RowHeight = 19; // pixels

protected:
    // Draws rows of that height, whatever is in them.
    class RowDelegate : public QStyledItemDelegate {
    public:
        using QStyledItemDelegate::QStyledItemDelegate;
        QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    };

    void resizeEvent(QResizeEvent* event) override;

private:
    int WidestRow() const;
    int ColumnsThatFit() const;

    int m_visibleRows = 4;
    int m_columns = 1; // side by side, filled one after another, where there is room
};
