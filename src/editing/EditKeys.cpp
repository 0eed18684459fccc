#include "editing/EditKeys.h"

#include <QKeyEvent>

bool IsCaretKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_End:
    case Qt::Key_Home:
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down: return true;
    default: return false;
    }
}

bool IsClipboardLetter(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_A:
    case Qt::Key_C:
    case Qt::Key_V:
    case Qt::Key_X:
    case Qt::Key_Z: return true;
    default: return false;
    }
}

bool HasCtrl(const QKeyEvent& event) {
    return event.modifiers().testFlag(Qt::ControlModifier);
}
