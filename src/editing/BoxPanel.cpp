#include "editing/BoxPanel.h"

#include <QAbstractButton>
#include <QChildEvent>

CBoxPanel::CBoxPanel(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::TabFocus);
}

void CBoxPanel::childEvent(QChildEvent* event) {
    QWidget::childEvent(event);
    if (auto* box = qobject_cast<QAbstractButton*>(event->child()); event->polished() && box && !focusProxy())
        setFocusProxy(box);
}
