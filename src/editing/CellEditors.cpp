#include "editing/CellEditors.h"

#include "editing/CellComboBox.h"
#include "editing/CellEdit.h"
#include "editing/ExGridEditControl.h"
#include "editing/GridClass.h"
#include "editing/GridColors.h"

#include <QPainter>

CellEditors::CellEditors(CGridClass& grid) : QStyledItemDelegate(&grid), m_grid(grid) {
    constexpr bool ExcludesNothing = true;
    Register(EditorText, [](QWidget* parent) { return new CCellEdit({}, ExcludesNothing, parent); });
    Register(EditorCombo, [](QWidget* parent) { return new CCellComboBox(parent); });
    Register(EditorNumber, [](QWidget* parent) { return new CExGridEditControl(parent); });
}

void CellEditors::Register(unsigned id, std::function<QWidget*(QWidget* parent)> make) {
    m_makers[id] = std::move(make);
}

void CellEditors::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    const bool hasFocus = option.state & QStyle::State_HasFocus;
    if (hasFocus)
        painter->fillRect(option.rect, QColor(GridColors::CurrentGround));
    m_grid.DrawCell(*painter, option.rect, index.row() + 1, index.column());
    if (!hasFocus)
        return;
    painter->setPen(QColor(GridColors::Focus));
    painter->drawRect(option.rect.adjusted(0, 0, -1, -2));
}

QWidget* CellEditors::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                   const QModelIndex& index) const {
    const CellStyle style = m_grid.ComposeStyleRowCol(index.row() + 1, index.column());
    const auto maker = m_makers.find(style.editor.value_or(EditorNone));
    if (maker == m_makers.end())
        return nullptr;
    QWidget* editor = maker->second(parent);
    editor->setAutoFillBackground(true);
    editor->setAccessibleName(m_grid.GetCellText(0, index.column()));
    if (auto* combo = qobject_cast<QComboBox*>(editor); combo && style.choices)
        combo->addItems(*style.choices);
    return editor;
}

void CellEditors::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const CString text = index.data(Qt::EditRole).toString();
    if (auto* combo = qobject_cast<QComboBox*>(editor); combo && !combo->isEditable())
        combo->setCurrentIndex(combo->findText(text));
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void CellEditors::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    const auto* combo = qobject_cast<QComboBox*>(editor);
    const bool hasChoice = !combo || combo->isEditable() || combo->currentIndex() >= 0;
    if (hasChoice)
        QStyledItemDelegate::setModelData(editor, model, index);
    // Its pane commits what the cell shows by now.
    if (auto* number = dynamic_cast<CExGridEditControl*>(editor); number && number->TakePending())
        if (m_grid.EditCommitted)
            m_grid.EditCommitted();
}

void CellEditors::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                       const QModelIndex&) const {
    editor->setGeometry(option.rect.adjusted(0, 0, 0, -1));
}
