#include "editing/NumberPair.h"

#include "editing/ComparisonTexts.h"
#include "editing/NumberSpin.h"
#include "engines/UIUtilities.h"
#include "platform/LanguageLibrary.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

namespace {

constexpr unsigned Operators[] = {OpNone, OpEqual, OpBelow, OpAbove, OpAtLeast, OpAtMost};

} // namespace

NumberPair::NumberPair(CACInfoManagerDlg& window, int comparison, int field, unsigned parameter)
    : m_window(window), m_comparisonNumber(comparison), m_fieldNumber(field), m_parameter(parameter),
      m_comparison(window.GetDlgItem<QComboBox>(comparison)), m_value(window.GetDlgItem<CNumberSpin>(field)) {
    if (!IsWhole())
        return;
    for (const unsigned code : Operators)
        m_comparison->addItem(OperatorText(code));
    m_comparison->setAccessibleName(ComparisonName(LoadString(parameter)));
    m_value->setAccessibleName(LoadString(parameter));
    m_value->findChild<QLineEdit*>()->setAccessibleName(LoadString(parameter));
    connect(m_comparison, &QComboBox::activated, this, &NumberPair::OperatorChosen);
    connect(m_value, &QSpinBox::textChanged, this, &NumberPair::ValueChanged);
    connect(m_value, &QSpinBox::editingFinished, this, &NumberPair::Left);
}

unsigned NumberPair::Operator() const {
    if (m_comparison->currentIndex() <= 0)
        return OpNone;
    return static_cast<unsigned>(CUIUtilities().OperatorCode(m_comparison->currentText()));
}

void NumberPair::SetEnabled(bool isEnabled) {
    if (!IsWhole())
        return;
    m_comparison->setEnabled(isEnabled);
    m_value->setEnabled(isEnabled && m_comparison->currentIndex() > 0);
    if (isEnabled)
        GuardBound();
}

bool NumberPair::NeedsGuard() const {
    return IsWhole() && Operator() == OpBelow && m_value->value() <= 0;
}

void NumberPair::GuardBound() {
    if (!IsWhole())
        return;
    const QSignalBlocker quiet(m_value);
    m_window.GuardLessThanBound(m_comparisonNumber, m_fieldNumber);
}

void NumberPair::Load(const CCheck& check) {
    const auto* parameter = check.GetLongParameter(m_parameter);
    if (!IsWhole() || !parameter)
        return;
    const int row =
        m_comparison->findText(OperatorText(parameter->Operator), Qt::MatchExactly | Qt::MatchCaseSensitive);
    m_comparison->setCurrentIndex(parameter->Values.Count > 0 ? qMax(row, 0) : 0);
    const QSignalBlocker quiet(m_value);
    m_value->Show(m_comparison->currentIndex() > 0 ? static_cast<int>(parameter->Values[0]) : 0);
}

void NumberPair::Store(CCheck& check) const {
    auto* parameter = check.GetLongParameter(m_parameter);
    if (!IsWhole() || !parameter)
        return;
    parameter->ClearValues();
    parameter->Operator = Operator();
    if (parameter->Operator != OpNone)
        parameter->Values.Add(m_value->value());
}
