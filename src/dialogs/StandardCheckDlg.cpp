#include "dialogs/StandardCheckDlg.h"

#include "editing/ExtRichEditCtrl.h"
#include "editing/MyStatic.h"
#include "editing/TextTip.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <algorithm>

namespace {

// The boxes, in the order of the values that they write, from 1.
constexpr int Boxes[CStandardCheckDlg::BoxCount] = {1005, 1007, 1009, 1011, 1021, 1017, 1019, 1020};
constexpr int CustomValue = CStandardCheckDlg::BoxCount;
constexpr int NameField = 1315;
constexpr int Correction = 1304;

constexpr unsigned StandardsParameter = 1578, NameParameter = 0;
constexpr unsigned CustomText = 2422; // stands for the custom standard in the list of corrections
constexpr qsizetype LongestTooltip = 80;

} // namespace

CStandardCheckDlg::CStandardCheckDlg(EditingHost& host) : CParameterCheckDlg(host, 1078, 1144, 1581) {}

bool CStandardCheckDlg::OnInitDialog() {
    if (auto* name = GetDlgItem<CExtRichEditCtrl>(NameField)) {
        name->SetFilter({}, true);
        name->setEnabled(false);
    }
    for (const int box : Boxes)
        On(box, ControlEvent::Clicked, &CStandardCheckDlg::OnEntryChanged);
    On(NameField, ControlEvent::Change, &CStandardCheckDlg::OnEntryChanged);
    CreateCorrectionControls();
    return true;
}

void CStandardCheckDlg::CreateCorrectionControls() {
    BindCorrectionControl(Correction, StandardsParameter, TextEntry, -1);
}

void CStandardCheckDlg::DoDataExchange(DataExchange& exchange) {
    for (int i = 0; i < BoxCount; ++i)
        exchange.Check(Boxes[i], m_boxes[static_cast<size_t>(i)]);
    exchange.Text(NameField, m_customName);
}

void CStandardCheckDlg::OnEntryChanged() {
    UpdateData(true);
    OnParameterChanged();
}

void CStandardCheckDlg::FillCheckParameters(CCheck& check) {
    UpdateData(true);
    CParameterCheckDlg::FillCheckParameters(check);
    auto* standards = check.GetLongParameter(StandardsParameter);
    if (!standards)
        return;
    standards->ClearValues();
    standards->Operator = OpNone;
    if (std::ranges::all_of(m_boxes, [](int box) { return box == 0; }))
        return;
    standards->Operator = OpOneOf;
    for (int value = 1; value < CustomValue; ++value)
        if (m_boxes[static_cast<size_t>(value - 1)] != 0)
            standards->Values.Add(value);
    if (!IsCustomTicked())
        return;
    const CString text = m_customName.trimmed();
    if (auto* name = check.GetStringParameter(NameParameter); name && !text.isEmpty()) {
        name->ClearValues();
        name->Operator = OpEqual;
        name->Values.Add(new CString(text));
    }
    standards->Values.Add(CustomValue);
}

void CStandardCheckDlg::FillCheck(CCheck& check) {
    CParameterCheckDlg::FillCheck(check);
    UpdateCustomEntry();
}

// The list of corrections shows the name of the custom standard; only its box lets the name be entered.
void CStandardCheckDlg::UpdateCustomEntry() {
    const auto bound = CorrectionControls.find(StandardsParameter);
    if (IsCustomTicked() && !m_customName.isEmpty() && bound != CorrectionControls.end()) {
        std::ranges::replace(bound->second->Choices.Strings, LoadString(CustomText), m_customName);
        bound->second->RefreshDisplay();
    }
    auto* name = GetDlgItem<QWidget>(NameField);
    if (!name)
        return;
    name->setToolTip(PlainTip(m_customName.left(LongestTooltip)));
    name->setEnabled(IsCustomTicked());
    if (IsCustomTicked())
        name->setFocus(Qt::OtherFocusReason);
}

void CStandardCheckDlg::LoadCheck(const CCheck& check) {
    LoadCorrectionControls(check);
    m_boxes.fill(0);
    const auto* standards = check.GetLongParameter(StandardsParameter);
    for (int i = 0; standards && i < standards->Values.Count; ++i) {
        const long value = standards->Values[i];
        if (value < 1 || value > BoxCount)
            continue;
        m_boxes[static_cast<size_t>(value - 1)] = 1;
        const auto* name = check.GetStringParameter(NameParameter);
        // A check without a name must not keep that of another state of the check.
        if (value == CustomValue)
            m_customName = name && name->Values.Count > 0 && name->Values[0] ? *name->Values[0] : CString();
    }
    UpdateCustomEntry();
    CParameterCheckDlg::LoadCheck(check);
    UpdateData(false);
}
