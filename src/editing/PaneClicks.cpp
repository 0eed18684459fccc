// What clicks and keys do to a pane as a whole, wherever in it they fall.
#include "editing/ExtDialog.h"
#include "editing/PageDialog.h"
#include "editing/PaneCaption.h"

#include <QChildEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

bool IsByKeyboard(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

// Whether a control, or one that it is part of, opens a menu of its own.
bool HasOwnMenu(const QObject* control) {
    for (; control; control = control->parent()) {
        const auto* widget = qobject_cast<const QWidget*>(control);
        if (widget && widget->contextMenuPolicy() == Qt::CustomContextMenu)
            return true;
    }
    return false;
}

bool IsHelpKey(const QEvent* event) {
    const auto* key = static_cast<const QKeyEvent*>(event);
    return key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier;
}

} // namespace

void CExtDialog::WatchClicks(QWidget& window) {
    if (&window != this && window.isWindow())
        return; // the list of a box of choices
    window.installEventFilter(this);
    for (QObject* child : window.children())
        if (child->isWidgetType())
            WatchClicks(static_cast<QWidget&>(*child));
}

bool CExtDialog::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress: OnPress(*static_cast<QMouseEvent*>(event), HasOwnMenu(watched)); break;
    case QEvent::MouseButtonRelease: m_lastPress.reset(); break;
    case QEvent::FocusIn:
        if (IsByKeyboard(static_cast<QFocusEvent*>(event)->reason()))
            SelectByKeyboard();
        break;
    case QEvent::ContextMenu:
        // The page's menu has opened with the press; a field would add one of its own.
        if (watched != this && !HasOwnMenu(watched) &&
            static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Mouse)
            return true;
        break;
    case QEvent::ChildAdded:
        if (QObject* child = static_cast<QChildEvent*>(event)->child(); child->isWidgetType())
            WatchClicks(static_cast<QWidget&>(*child));
        break;
    default: break;
    }
    return QWidget::eventFilter(watched, event);
}

void CExtDialog::OnPress(const QMouseEvent& press, bool hasOwnMenu) {
    // A press that a control leaves alone comes again from each of its parents.
    if (m_lastPress == press.timestamp())
        return;
    m_lastPress = press.timestamp();
    CPageDialog& page = GetHost().GetChecksPage();
    if (press.button() == Qt::RightButton) {
        if (!hasOwnMenu)
            GetHost().ShowContextMenu(press.globalPosition().toPoint());
    } else if (press.button() == Qt::LeftButton && page.GetSelectedPosition() != Position) {
        if (press.modifiers() & Qt::ControlModifier)
            page.ToggleSelection(Position);
        else
            page.SelectPane(Position);
    }
}

// The selected pane is the one with the keyboard, however that came there.
void CExtDialog::SelectByKeyboard() {
    CPageDialog& page = GetHost().GetChecksPage();
    if (page.GetSelectedPosition() != Position)
        page.SelectPane(Position);
}

bool CExtDialog::event(QEvent* event) {
    // Ahead of the help of the whole program.
    if (event->type() == QEvent::ShortcutOverride && HelpTopic() != 0 && IsHelpKey(event)) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void CExtDialog::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape: return; // nothing closes a pane like a dialog
    default: break;
    }
    if (HelpTopic() != 0 && IsHelpKey(event))
        ShowHelpTopic();
    else
        QWidget::keyPressEvent(event);
}

void CExtDialog::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && m_caption->IsOnIcon(event->pos()))
        ToggleExpand();
    else
        QWidget::mouseReleaseEvent(event);
}

// Asked for by the keyboard.
void CExtDialog::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() != QContextMenuEvent::Mouse)
        GetHost().ShowContextMenu(event->globalPos());
}
