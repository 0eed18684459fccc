#include "editing/ComparisonPair.h"

#include "editing/ComparisonTexts.h"
#include "editing/TextTip.h"
#include "engines/TextServices.h"
#include "engines/TrailingZeros.h"
#include "engines/UIUtilities.h"
#include "engines/ValidateEngine.h"
#include "platform/Format.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace {

constexpr int ShownDecimals = 6;

CString ListText(const CGrowArray<double>& values) {
    CString text;
    for (const double value : values) {
        text += (text.isEmpty() ? CString() : CString(" , ")) + FormatFixed(value, ShownDecimals);
        StripTrailingZeros(text);
    }
    return text;
}

// Both bounds of a range: a single one is the lower and the upper.
CString WithBothBounds(const CString& entered) {
    CString text = entered;
    if (entered.trimmed().endsWith(u',')) {
        text = entered.trimmed();
        text.chop(1);
    }
    return text.contains(u',') ? text : text + u',' + text;
}

// Whether the field lost the keyboard for good, and not to a menu that is opened over it.
bool IsLeft(const QEvent& event) {
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

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
    value->installEventFilter(this);
}

void ComparisonPair::Fill(const QList<unsigned>& operators) {
    m_comparison->clear();
    for (const unsigned code : operators)
        m_comparison->addItem(OperatorText(code));
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
    const int row =
        m_comparison->findText(OperatorText(comparison), Qt::MatchExactly | Qt::MatchCaseSensitive);
    m_comparison->setCurrentIndex(qMax(row, 0));
    m_value->setText(m_comparison->currentIndex() > 0 ? value : CString());
    SetEnabled(true);
}

void ComparisonPair::Load(const CParameter<double>& parameter) {
    Show(parameter.Operator, parameter.Operator == OpNone ? CString() : ListText(parameter.Values));
}

void ComparisonPair::Load(const CParameter<int>& parameter) {
    CStringArray numbers;
    if (parameter.Operator != OpNone)
        for (const int value : parameter.Values)
            numbers.append(FormatInt(value));
    Show(parameter.Operator, numbers.join(" , "));
}

void ComparisonPair::Store(CParameter<double>& parameter) const {
    parameter.ClearValues();
    parameter.Operator = Operator();
    for (const CString& token : Values()) {
        double value = 0;
        if (ParseDouble(token, value))
            parameter.Values.Add(value);
    }
}

void ComparisonPair::Store(CParameter<int>& parameter) const {
    parameter.ClearValues();
    parameter.Operator = Operator();
    for (const CString& token : Values()) {
        int value = 0;
        if (ParseInt(token, value))
            parameter.Values.Add(value);
    }
}

void ComparisonPair::SetName(const CString& name) {
    m_comparison->setAccessibleName(ComparisonName(name));
    m_value->setAccessibleName(name);
}

void ComparisonPair::SetEnabled(bool isEnabled) {
    m_comparison->setEnabled(isEnabled);
    m_value->setEnabled(isEnabled && m_comparison->currentIndex() > 0);
}

bool ComparisonPair::eventFilter(QObject* watched, QEvent* event) {
    const bool isValue = watched == m_value;
    if (isValue && event->type() == QEvent::FocusOut && IsLeft(*event))
        OnValueCompleted();
    else if (isValue && event->type() == QEvent::ToolTip)
        TellTextByTip(*m_value);
    else if (!isValue && event->type() == QEvent::KeyPress)
        m_isByKey = !OpensList(static_cast<QKeyEvent&>(*event));
    else if (!isValue && event->type() == QEvent::MouseButtonPress)
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

// A comparison without a value is none; a range has two bounds.
void ComparisonPair::OnValueCompleted() {
    if (!m_value->isEnabled() || m_isChecking)
        return;
    const CString text = m_value->text();
    if (text.isEmpty()) {
        m_comparison->setCurrentIndex(0);
        m_value->setEnabled(false);
        Q_EMIT Changed();
    } else if (const CString whole = Operator() == OpBetween ? WithBothBounds(text) : text; whole != text) {
        m_value->setText(whole);
        Q_EMIT Changed();
    }
}
