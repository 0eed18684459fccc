#include "editing/ExtTreeCtrl.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <utility>

namespace {

// The tree sets the ticks itself, for a click on the text as well as on the box.
class DrawOnlyDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    bool editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&, const QModelIndex&) override {
        return false;
    }
};

void TickBelow(QTreeWidgetItem& item, bool isTicked) {
    for (int i = 0; i < item.childCount(); ++i) {
        CExtTreeCtrl::SetTick(*item.child(i), isTicked);
        TickBelow(*item.child(i), isTicked);
    }
}

bool HasAllTicked(const QTreeWidgetItem& item) {
    for (int i = 0; i < item.childCount(); ++i)
        if (!CExtTreeCtrl::IsTicked(*item.child(i)))
            return false;
    return true;
}

} // namespace

CExtTreeCtrl::CExtTreeCtrl(QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setItemDelegate(new DrawOnlyDelegate(this));
}

QTreeWidgetItem* CExtTreeCtrl::AddItem(const QString& text, QTreeWidgetItem* parent) {
    auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
    item->setText(0, text);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    SetTick(*item, false);
    return item;
}

bool CExtTreeCtrl::IsTicked(const QTreeWidgetItem& item) {
    return item.checkState(0) == Qt::Checked;
}

void CExtTreeCtrl::SetTick(QTreeWidgetItem& item, bool isTicked) {
    item.setCheckState(0, isTicked ? Qt::Checked : Qt::Unchecked);
}

void CExtTreeCtrl::Toggle(QTreeWidgetItem& item) {
    const bool isTicked = !IsTicked(item);
    SetTick(item, isTicked);
    setCurrentItem(&item);
    QTreeWidgetItem* parent = item.parent();
    if (!parent)
        TickBelow(item, isTicked);
    else if (!isTicked || HasAllTicked(*parent))
        SetTick(*parent, isTicked);
    Q_EMIT TreeItemChanged();
}

// The item whose box or text stands at the point; null beside them and on the expand button.
QTreeWidgetItem* CExtTreeCtrl::TickedBy(const QPoint& point) const {
    QTreeWidgetItem* item = itemAt(point);
    if (!item || !item->flags().testFlag(Qt::ItemIsEnabled))
        return nullptr;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualItemRect(item);
    option.features |= QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = item->text(0);
    option.font = item->font(0).resolve(font());
    option.fontMetrics = QFontMetrics(option.font);
    const QRect text = style()->subElementRect(QStyle::SE_ItemViewItemText, &option, this);
    constexpr int Margins = 8;
    const int right = text.left() + option.fontMetrics.horizontalAdvance(option.text) + Margins;
    return point.x() >= option.rect.left() && point.x() <= right ? item : nullptr;
}

void CExtTreeCtrl::mousePressEvent(QMouseEvent* event) {
    m_pressed = event->button() == Qt::LeftButton ? TickedBy(event->pos()) : nullptr;
    QTreeWidget::mousePressEvent(event);
}

void CExtTreeCtrl::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    QTreeWidgetItem* pressed = std::exchange(m_pressed, nullptr);
    if (pressed && event->button() == Qt::LeftButton && TickedBy(event->pos()) == pressed)
        Toggle(*pressed);
}

// The second click of two is a click like the first: it does not fold the branch as well.
void CExtTreeCtrl::mouseDoubleClickEvent(QMouseEvent* event) {
    if (TickedBy(event->pos()))
        mousePressEvent(event);
    else
        QTreeWidget::mouseDoubleClickEvent(event);
}

void CExtTreeCtrl::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && currentItem() && !event->isAutoRepeat())
        Toggle(*currentItem());
    else
        QTreeWidget::keyPressEvent(event);
}
