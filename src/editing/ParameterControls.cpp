#include "editing/ParameterControls.h"

#include "editing/ChoiceList.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <QComboBox>
#include <algorithm>

namespace {

constexpr unsigned AnyText = 1632, YesText = 1660, NoText = 1661;
constexpr unsigned DocumentParameter = 1690;

bool Holds(const CParameter<long>& parameter, long code) {
    return parameter.Operator != OpNone &&
           std::ranges::find(parameter.Values, code) != parameter.Values.end();
}

bool IsTicked(const ControlHost& pane, int box) {
    const auto* button = pane.GetDlgItem<QAbstractButton>(box);
    return button && button->isChecked();
}

} // namespace

void FillCodedRows(const ControlHost& pane, int number, std::span<const CodedRow> rows) {
    auto* list = pane.GetDlgItem<CChoiceList>(number);
    for (const CodedRow& row : rows) {
        if (!list)
            return;
        auto* item = new QListWidgetItem(LoadString(row.text), list);
        item->setData(Qt::UserRole, static_cast<int>(row.code));
    }
}

void LoadCodedRows(const ControlHost& pane, int number, const CParameter<long>* parameter) {
    auto* list = pane.GetDlgItem<CChoiceList>(number);
    if (!list || !parameter)
        return;
    CStringArray chosen;
    for (int row = 0; row < list->count(); ++row)
        if (Holds(*parameter, list->item(row)->data(Qt::UserRole).toInt()))
            chosen.append(list->item(row)->text());
    list->Choose(chosen, false);
}

void StoreCodedRows(const ControlHost& pane, int number, CParameter<long>* parameter) {
    const auto* list = pane.GetDlgItem<CChoiceList>(number);
    if (!list || !parameter)
        return;
    Emptied(*parameter);
    for (int row = 0; row < list->count(); ++row)
        if (list->item(row)->isSelected())
            parameter->Values.Add(list->item(row)->data(Qt::UserRole).toInt());
    parameter->Operator = parameter->Values.Count > 0 ? OpOneOf : OpNone;
}

void FillYesNo(const ControlHost& pane, int number, const CString& name) {
    if (auto* combo = pane.GetDlgItem<QComboBox>(number)) {
        combo->addItems({LoadString(AnyText), LoadString(YesText), LoadString(NoText)});
        combo->setAccessibleName(name);
    }
}

void LoadYesNo(const ControlHost& pane, int number, const CParameter<int>* parameter) {
    auto* combo = pane.GetDlgItem<QComboBox>(number);
    if (!combo || !parameter)
        return;
    const bool isYes = parameter->Values.Count > 0 && parameter->Values[0] != 0;
    combo->setCurrentIndex(parameter->Operator == OpNone ? 0 : isYes ? 1 : 2);
}

void StoreYesNo(const ControlHost& pane, int number, CParameter<int>* parameter, unsigned op) {
    const auto* combo = pane.GetDlgItem<QComboBox>(number);
    if (!combo || !parameter)
        return;
    Emptied(*parameter);
    if (combo->currentIndex() <= 0)
        return;
    parameter->Values.Add(combo->currentIndex() == 1 ? 1 : 0);
    parameter->Operator = op;
}

void LoadDocumentBox(const ControlHost& pane, int box, const CCheck& check) {
    const auto* parameter = check.GetIntParameter(DocumentParameter);
    if (auto* button = pane.GetDlgItem<QAbstractButton>(box); button && parameter)
        button->setChecked(parameter->Operator != OpNone);
}

bool StoreDocumentBox(const ControlHost& pane, int box, CCheck& check) {
    auto* parameter = check.GetIntParameter(DocumentParameter);
    if (!parameter)
        return false;
    Emptied(*parameter);
    if (!IsTicked(pane, box))
        return false;
    parameter->Values.Add(1);
    parameter->Operator = OpEqual;
    return true;
}
