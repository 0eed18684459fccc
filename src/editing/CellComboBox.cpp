#include "editing/CellComboBox.h"

#include "editing/EditKeys.h"

#include <QKeyEvent>

bool CCellComboBox::event(QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease && type != QEvent::ShortcutOverride)
        return CComboBoxExt::event(event);
    const auto& key = static_cast<QKeyEvent&>(*event);
    // A letter searches the choices; with Ctrl it is a command of the window, for there is no text here.
    if (IsClipboardLetter(key) && HasCtrl(key)) {
        event->ignore();
        return false;
    }
    CComboBoxExt::event(event);
    if (IsCaretKey(key) || (IsClipboardLetter(key) && type == QEvent::ShortcutOverride))
        event->accept();
    return event->isAccepted();
}
