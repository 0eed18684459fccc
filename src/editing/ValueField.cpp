#include "editing/ValueField.h"

#include "editing/ComparisonTexts.h"
#include "editing/ExtRichEditCtrl.h"
#include "editing/TextTip.h"
#include "engines/TextServices.h"
#include "engines/TrailingZeros.h"
#include "engines/ValidateEngine.h"
#include "platform/Format.h"

#include <QEvent>
#include <QScopedValueRollback>

ValueField::ValueField(CExtRichEditCtrl* field, unsigned op, const CString& name)
    : m_field(field), m_operator(op) {
    if (!field)
        return;
    field->SetFilter(NumberListCharacters, false);
    field->setAccessibleName(name);
    field->installEventFilter(this);
    connect(field, &QLineEdit::textEdited, this, &ValueField::OnEdited);
}

CString ValueField::Text() const {
    return m_field ? m_field->text() : CString();
}

void ValueField::SetText(const CString& text) {
    if (m_field)
        m_field->setText(text);
}

void ValueField::Load(const CGrowArray<double>& values) {
    CString text;
    for (const double value : values) {
        text += (text.isEmpty() ? CString() : CString(" , ")) + FormatDouble(value);
        StripTrailingZeros(text);
    }
    SetText(text);
}

void ValueField::Store(CGrowArray<double>& values) const {
    gtStrtok tokens(Text(), ",");
    for (int i = 0; i < tokens.GetCount(); ++i)
        if (double value = 0; ParseDouble(tokens.GetToken(i), value))
            values.Add(value);
}

void ValueField::SetEnabled(bool isEnabled) {
    if (m_field)
        m_field->setEnabled(isEnabled);
}

bool ValueField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTip)
        TellTextByTip(*m_field);
    return QObject::eventFilter(watched, event);
}

void ValueField::OnEdited() {
    if (m_isChecking)
        return;
    CString comparison = OperatorText(m_operator), text = m_field->text();
    {
        const QScopedValueRollback<bool> checking(m_isChecking, true);
        CValidateEngine().ValidateEntry(comparison, text, true);
    }
    if (!m_field)
        return; // the window was closed under the message
    if (text != m_field->text()) {
        // The caret stays behind the character that it stood behind.
        const qsizetype behind = m_field->text().size() - m_field->cursorPosition();
        m_field->setText(text);
        m_field->setCursorPosition(static_cast<int>(qMax<qsizetype>(text.size() - behind, 0)));
    }
    Q_EMIT Changed();
    m_field->setFocus();
}
