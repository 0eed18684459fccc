#include "dialogs/ValuePane.h"

#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <QScopedValueRollback>

CValuePane::CValuePane(EditingHost& host, const PaneNumbers& numbers,
                       std::span<const CorrectionRow> corrections)
    : CParameterCheckDlg(host, numbers.templateID, numbers.iconID, numbers.captionStringID),
      m_helpTopic(numbers.helpTopic), m_corrections(corrections) {}

bool CValuePane::OnInitDialog() {
    PrepareControls();
    CreateCorrectionControls();
    ApplyEnableRules();
    return true;
}

void CValuePane::CreateCorrectionControls() {
    for (const CorrectionRow& row : m_corrections)
        BindCorrectionControl(row.control, row.parameter, row.mode, row.extra);
}

void CValuePane::FillCheckParameters(CCheck& check) {
    CParameterCheckDlg::FillCheckParameters(check);
    StoreControls(check);
}

void CValuePane::LoadCheck(const CCheck& check) {
    const QScopedValueRollback<bool> loading(m_isLoading, true);
    LoadCorrectionControls(check);
    LoadControls(check);
    ApplyEnableRules();
    CParameterCheckDlg::LoadCheck(check);
}

void CValuePane::Watch(int number) {
    if (auto* button = GetDlgItem<QAbstractButton>(number))
        connect(button, &QAbstractButton::clicked, this, &CValuePane::OnChosen);
    if (auto* combo = GetDlgItem<QComboBox>(number))
        connect(combo, &QComboBox::activated, this, &CValuePane::OnChosen);
    if (auto* list = GetDlgItem<QListWidget>(number))
        connect(list, &QListWidget::itemSelectionChanged, this, &CValuePane::OnChosen);
}

void CValuePane::SetName(int number, unsigned text) {
    if (auto* control = GetDlgItem(number))
        control->setAccessibleName(LoadString(text));
}

void CValuePane::Enable(int number, bool isEnabled) {
    if (auto* control = GetDlgItem(number))
        control->setEnabled(isEnabled);
}

bool CValuePane::IsChecked(int number) const {
    const auto* button = GetDlgItem<QAbstractButton>(number);
    return button && button->isChecked();
}

void CValuePane::OnChosen() {
    if (m_isLoading)
        return;
    ApplyEnableRules();
    OnParameterChanged();
}

void CValuePane::OnValue() {
    if (!m_isLoading)
        OnParameterChanged();
}
