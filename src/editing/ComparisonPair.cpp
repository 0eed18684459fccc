#include "editing/ComparisonPair.h"

#include "engines/TextServices.h"
#include "engines/UIUtilities.h"
#include "engines/ValidateEngine.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace {

// Whether the key opens the list, in which a choice is made at leisure.
bool OpensList(const QKeyEvent& event) {
    return event.key() == Qt::Key_F4 || event.key() == Qt::Key_Space || event.key() == Qt::Key_Return ||
           event.key() == Qt::Key_Enter || event.modifiers().testFlag(Qt::AltModifier);
}

} // namespace

ComparisonPair::ComparisonPair(QComboBox* comparison, QLineEdit* value, bool isLength, QObject* parent)
    : QObject(parent), m_comparison(comparison), m_value(value), m_isLength(isLength) {
    connect(comparison, &QComboBox::activated, this, &ComparisonPair::OnOperatorChosen);
    connect(value, &QLineEdit::textEdited, this, &ComparisonPair::OnValueEdited);
    comparison->installEventFilter(this);
}

void ComparisonPair::Fill(const QList<unsigned>& operators) {
    m_comparison->clear();
    for (const unsigned code : operators) {
        CString text;
        CUIUtilities().OperatorText(static_cast<int>(code), text);
        m_comparison->addItem(text);
    }
    m_comparison->setCurrentIndex(0);
    SetEnabled(true);
}

unsigned ComparisonPair::Operator() const {
    if (m_comparison->currentIndex() <= 0)
        return 0;
    return static_cast<unsigned>(CUIUtilities().OperatorCode(m_comparison->currentText()));
}

CStringArray ComparisonPair::Values() const {
    gtStrtok tokens(m_value->text(), ",");
    CStringArray values;
    for (int i = 0; i < tokens.GetCount(); ++i)
        values.append(tokens.GetToken(i));
    return values;
}

void ComparisonPair::Show(unsigned comparison, const CString& value) {
    CString text;
    CUIUtilities().OperatorText(static_cast<int>(comparison), text);
    const int row = m_comparison->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    m_comparison->setCurrentIndex(qMax(row, 0));
    m_value->setText(m_comparison->currentIndex() > 0 ? value : CString());
    SetEnabled(true);
}

void ComparisonPair::SetEnabled(bool isEnabled) {
    m_comparison->setEnabled(isEnabled);
    m_value->setEnabled(isEnabled && m_comparison->currentIndex() > 0);
}

bool ComparisonPair::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress)
        m_isByKey = !OpensList(static_cast<QKeyEvent&>(*event));
    else if (event->type() == QEvent::MouseButtonPress)
        m_isByKey = false;
    return QObject::eventFilter(watched, event);
}

// Keeps the caret behind the character that it stood behind.
void ComparisonPair::SetValueText(const CString& text) {
    if (text == m_value->text())
        return;
    const qsizetype behind = m_value->text().size() - m_value->cursorPosition();
    m_value->setText(text);
    m_value->setCursorPosition(static_cast<int>(qMax<qsizetype>(text.size() - behind, 0)));
}

void ComparisonPair::OnOperatorChosen() {
    if (m_comparison->currentIndex() <= 0) {
        m_value->clear();
        m_value->setEnabled(false);
        Q_EMIT Changed();
        return;
    }
    m_value->setEnabled(true);
    CString text = m_value->text();
    CValidateEngine().NormalizeForOperator(m_comparison->currentText(), text);
    SetValueText(text);
    Q_EMIT Changed();
    // One who walks through the operators by the arrows has not chosen yet.
    if (!m_isByKey)
        m_value->setFocus();
}

void ComparisonPair::OnValueEdited() {
    if (m_isChecking)
        return;
    CString text = m_value->text();
    {
        const QScopedValueRollback<bool> checking(m_isChecking, true);
        CValidateEngine().ValidateEntry(m_comparison->currentText(), text, m_isLength);
    }
    if (!m_value)
        return; // the window was closed under the message
    SetValueText(text);
    Q_EMIT Changed();
    m_value->setFocus();
}
