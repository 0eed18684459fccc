// Draws the cells of a grid and opens its editors in them.
#pragma once

#include <QStyledItemDelegate>
#include <functional>
#include <map>

class CGridClass;

class CellEditors : public QStyledItemDelegate {
public:
    explicit CellEditors(CGridClass& grid); // which owns it

    // Any widget may edit a cell; its user property holds the text.
    void Register(unsigned id, std::function<QWidget*(QWidget* parent)> make);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

private:
    CGridClass& m_grid;
    std::map<unsigned, std::function<QWidget*(QWidget*)>> m_makers;
};
