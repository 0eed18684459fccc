#include "editing/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

namespace {

bool IsBox(const QObject* widget) {
    return qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget);
}

// The box that the widget is, or is the field of; null for any other widget and for the rows of an open list.
QWidget* BoxOf(QObject* widget) {
    QObject* box = widget->inherits("QLineEdit") && !IsBox(widget) ? widget->parent() : widget;
    return box && IsBox(box) ? static_cast<QWidget*>(box) : nullptr;
}

bool HasFocusWithin(const QWidget& box) {
    const QWidget* within = box.focusWidget();
    return box.hasFocus() || (within && within->hasFocus());
}

} // namespace

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Polish) {
        // Otherwise the wheel gives the box the focus before it can be asked for it.
        auto* widget = BoxOf(watched) ? static_cast<QWidget*>(watched) : nullptr;
        if (widget && widget->focusPolicy() == Qt::WheelFocus)
            widget->setFocusPolicy(Qt::StrongFocus);
        return false;
    }
    const QWidget* box = event->type() == QEvent::Wheel ? BoxOf(watched) : nullptr;
    if (!box || HasFocusWithin(*box))
        return false;
    event->ignore(); // an ignored event goes on to the parent
    return true;
}
