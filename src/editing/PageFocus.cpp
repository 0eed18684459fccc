// The keyboard on the page of checks.
#include "editing/PageDialog.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextEdit>
#include <algorithm>

namespace {

constexpr int RevealMargin = 8; // pixels left free beside a control that was scrolled into view

bool IsTabStop(const QWidget& control) {
    return (control.focusPolicy() & Qt::TabFocus) && !control.focusProxy();
}

// In the order in which Tab reaches them.
std::vector<QWidget*> TabStopsOf(QWidget& pane) {
    std::vector<QWidget*> stops;
    for (QWidget* next = pane.nextInFocusChain(); next != &pane; next = next->nextInFocusChain())
        if (pane.isAncestorOf(next) && IsTabStop(*next))
            stops.push_back(next);
    return stops;
}

QWidget* LastTabStopOf(QWidget& pane) {
    const std::vector<QWidget*> stops = TabStopsOf(pane);
    return stops.empty() ? &pane : stops.back();
}

// Whether Page keys are the control's own: it has pages itself.
bool HasPages(const QObject* control) {
    return qobject_cast<const QAbstractItemView*>(control) || qobject_cast<const QPlainTextEdit*>(control) ||
           qobject_cast<const QTextEdit*>(control);
}

bool IsPageKey(const QKeyEvent& key) {
    return (key.key() == Qt::Key_PageUp || key.key() == Qt::Key_PageDown) &&
           key.modifiers() == Qt::NoModifier;
}

bool IsByKeyboard(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

// Where a view of `length` pixels at `position` goes to so that what is from `begin` to `end` in it is seen.
int Revealed(int position, int length, int begin, int end) {
    if (begin < 0 || end - begin > length)
        return position + begin - RevealMargin;
    return end > length ? std::min(position + end - length + RevealMargin, position + begin) : position;
}

} // namespace

// Tab follows the catalogue, whatever the order in which panes were made.
void CPageDialog::JoinTabOrder(CExtDialog& pane) {
    CExtDialog* earlier = nullptr;
    for (const MQC_CheckType_e type : Infos.Order()) {
        CExtDialog* other = Infos.Find(type)->GetDialog();
        if (other == &pane)
            break;
        if (other && other->HasWindow())
            earlier = other;
    }
    QWidget* before = earlier ? LastTabStopOf(*earlier) : m_firstTabStop;
    const std::vector<QWidget*> stops = TabStopsOf(pane);
    setTabOrder(before, &pane); // a click on the pane itself gives it the keyboard
    before = &pane;
    for (QWidget* stop : stops) {
        setTabOrder(before, stop);
        stop->installEventFilter(this);
        before = stop;
    }
}

bool CPageDialog::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        // A mouse is on what it clicks already.
        if (IsByKeyboard(static_cast<QFocusEvent*>(event)->reason()))
            RevealControl(*static_cast<QWidget*>(object));
    } else if (event->type() == QEvent::ShortcutOverride) {
        // A field would undo its own typing; here a step of the standard is undone.
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    } else if (event->type() == QEvent::KeyPress && !HasPages(object)) {
        auto& key = *static_cast<QKeyEvent*>(event);
        if (IsPageKey(key)) {
            keyPressEvent(&key);
            return true;
        }
    }
    return false;
}

void CPageDialog::RevealControl(const QWidget& control) {
    const QRect place(control.mapTo(viewport(), QPoint()), control.size());
    const QPoint at = Scroller.ScrollPos;
    verticalScrollBar()->setValue(Revealed(at.y(), viewport()->height(), place.top(), place.bottom() + 1));
    horizontalScrollBar()->setValue(Revealed(at.x(), viewport()->width(), place.left(), place.right() + 1));
}

// From the page itself Tab goes into the selected pane, which is where one expects to be.
bool CPageDialog::focusNextPrevChild(bool next) {
    CExtDialog* pane = next && hasFocus() ? PaneAt(SelectedPos) : nullptr;
    if (pane && pane->isVisible())
        for (QWidget* stop : TabStopsOf(*pane))
            // Buttons of the caption are passed over.
            if (stop->parentWidget() != pane && stop->isVisible() && stop->isEnabled()) {
                stop->setFocus(Qt::TabFocusReason);
                return true;
            }
    return QAbstractScrollArea::focusNextPrevChild(next);
}

void CPageDialog::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers() & Qt::ControlModifier)
        event->ignore();
    else if (event->key() == Qt::Key_Home)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
    else if (event->key() == Qt::Key_End)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
    else
        QAbstractScrollArea::keyPressEvent(event);
}
