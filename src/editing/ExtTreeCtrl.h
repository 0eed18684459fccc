// A tree whose ticks keep a classification and its members in step.
#pragma once

#include <QTreeWidget>

class CExtTreeCtrl : public QTreeWidget {
    Q_OBJECT

public:
    explicit CExtTreeCtrl(QWidget* parent = nullptr);

    // Adds an item with a tick box, unticked. The tree owns it. Without a parent it is a top-level item.
    QTreeWidgetItem* AddItem(const QString& text, QTreeWidgetItem* parent = nullptr);

    static bool IsTicked(const QTreeWidgetItem& item);

    // Sets one tick and no other, and tells nobody: what a program does on loading.
    static void SetTick(QTreeWidgetItem& item, bool isTicked);

    // Does what a click on the item's box or text does.
    void Toggle(QTreeWidgetItem& item);

Q_SIGNALS:
    // The user changed ticks, or selected an item by the tick.
    void TreeItemChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QTreeWidgetItem* TickedBy(const QPoint& point) const;

    QTreeWidgetItem* m_pressed = nullptr;
};
