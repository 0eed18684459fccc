#include "editing/ExtRichEditCtrl.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QScopedValueRollback>
#include <QValidator>
#include <memory>

namespace {

// Whether the key is a character and not a command. Ctrl and Alt together reach further characters.
bool IsTyped(const QKeyEvent& event) {
    const Qt::KeyboardModifiers command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return !event.text().isEmpty() && event.text()[0].isPrint() && command != Qt::ControlModifier &&
           command != Qt::AltModifier;
}

} // namespace

// Catches what comes in by another way than a key: a drop, an input method, the context menu, the middle
// button.
class CExtRichEditCtrl::AdmittedText : public QValidator {
public:
    explicit AdmittedText(CExtRichEditCtrl* field) : QValidator(field), m_field(field) {}

    State validate(QString& text, int& caret) const override {
        if (m_field->m_isUserEdit) {
            const CString before = m_field->Filter.Admitted(text.left(caret));
            text = before + m_field->Filter.Admitted(text.mid(caret));
            caret = static_cast<int>(before.size());
        }
        return Acceptable;
    }

private:
    const CExtRichEditCtrl* m_field;
};

CExtRichEditCtrl::CExtRichEditCtrl(QWidget* parent) : QLineEdit(parent) {
    setValidator(new AdmittedText(this));
    // What is longer than the field is seen from its beginning, unless the user is in it.
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!hasFocus())
            setCursorPosition(0);
    });
}

void CExtRichEditCtrl::SetFilter(const CString& text, bool exclude) {
    Filter = {text, exclude};
}

bool CExtRichEditCtrl::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::InputMethod:
    case QEvent::Drop:
    case QEvent::MouseButtonRelease: {
        const QScopedValueRollback<bool> edit(m_isUserEdit, true);
        return QLineEdit::event(event);
    }
    default: return QLineEdit::event(event);
    }
}

void CExtRichEditCtrl::PasteAdmitted() {
    if (!isReadOnly())
        insert(Filter.Admitted(QGuiApplication::clipboard()->text()));
}

void CExtRichEditCtrl::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste)) {
        PasteAdmitted();
        event->accept();
        return;
    }
    if (IsTyped(*event) && Filter.Admitted(event->text()) != event->text()) {
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void CExtRichEditCtrl::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    const QPointer<CExtRichEditCtrl> self(this);
    m_isUserEdit = true;
    menu->exec(event->globalPos());
    if (self)
        m_isUserEdit = false;
}
