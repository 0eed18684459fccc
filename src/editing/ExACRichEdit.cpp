#include "editing/ExACRichEdit.h"

#include "editing/EditKeys.h"

#include <QKeyEvent>

namespace {

bool EndsHere(const QKeyEvent& event) {
    return IsCaretKey(event) || (IsClipboardLetter(event) && HasCtrl(event));
}

} // namespace

bool CExACRichEdit::event(QEvent* event) {
    const QEvent::Type type = event->type();
    const bool isKey =
        type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::ShortcutOverride;
    if (!isKey || !EndsHere(static_cast<QKeyEvent&>(*event)))
        return CExtRichEditCtrl::event(event);
    // Even where the field has no use for it: an arrow up must not move a grid's current cell.
    CExtRichEditCtrl::event(event);
    event->accept();
    return true;
}
