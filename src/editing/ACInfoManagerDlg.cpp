// What panes do with the controls of corrections.
#include "editing/CorrectionRules.h"
#include "editing/ExtDialog.h"
#include "editing/MyStatic.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

namespace {

constexpr unsigned CorrectionOf = 62102; // %1 the parameter

} // namespace

void CACInfoManagerDlg::BindCorrectionControl(int templateControlID, unsigned parameterID, int mode,
                                              int extra) {
    auto* control = GetDlgItem<CMyStatic>(templateControlID);
    if (!control)
        return;
    control->RefreshDisplay();
    control->SetMode(mode, extra);
    control->SetName(LoadString(CorrectionOf).arg(LoadString(parameterID)));
    CorrectionControls[parameterID] = control;
    QObject::connect(control, &CMyStatic::Committed, control, [this] { CommitCheck(); });
}

void CACInfoManagerDlg::LoadCorrectionControls(const CCheck& check) {
    for (const auto& [parameterID, control] : CorrectionControls) {
        LoadCorrectionControl(check, parameterID, control->Choices);
        control->RefreshDisplay();
    }
}

void CACInfoManagerDlg::RefreshCorrectionControls(CCheck& scratch) {
    for (const auto& [parameterID, control] : CorrectionControls)
        RefreshCorrectionControl(scratch, parameterID, *control);
}

void CACInfoManagerDlg::RefreshCorrectionControl(CCheck& scratch, unsigned parameterID, CMyStatic& control) {
    SeedCorrectionValue(GetHost().GetStandard(), scratch, parameterID);
    CorrectionChoices record;
    record.EntryStyle = control.Mode();
    LoadCorrectionControl(scratch, parameterID, record);
    control.SetChoices(record);
}

void CACInfoManagerDlg::StoreCorrections(CCheck& check) {
    for (const auto& [parameterID, control] : CorrectionControls)
        StoreCorrectionValue(check, parameterID, control->Choices);
}

void CACInfoManagerDlg::GuardLessThanBound(int operatorCombo, int valueControl) {
    const auto* combo = GetDlgItem<QComboBox>(operatorCombo);
    if (!combo || combo->currentText() != u"<")
        return;
    const auto isAboveZero = [](const CString& text) {
        double number = 0;
        ParseDouble(text, number);
        return number > 0;
    };
    if (auto* edit = GetDlgItem<QLineEdit>(valueControl); edit && !isAboveZero(edit->text()))
        edit->setText("1");
    if (auto* box = GetDlgItem<QSpinBox>(valueControl); box && box->value() <= 0)
        box->setValue(1);
    if (auto* list = GetDlgItem<QComboBox>(valueControl); list && !isAboveZero(list->currentText()))
        list->setEditText("1");
}
