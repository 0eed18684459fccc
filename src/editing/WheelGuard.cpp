#include "editing/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

namespace {

// The box that the widget is, or is the field of; null for any other widget and for the rows of an open list.
QWidget* BoxOf(QObject* widget) {
    if (qobject_cast<QComboBox*>(widget) || qobject_cast<QAbstractSpinBox*>(widget))
        return static_cast<QWidget*>(widget);
    QObject* parent = widget->inherits("QLineEdit") ? widget->parent() : nullptr;
    return parent ? BoxOf(parent) : nullptr;
}

} // namespace

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel)
        return false;
    const QWidget* box = BoxOf(watched);
    if (!box || box->hasFocus() || (box->focusWidget() && box->focusWidget()->hasFocus()))
        return false;
    // An event that is ignored goes on to the parent.
    event->ignore();
    return true;
}
