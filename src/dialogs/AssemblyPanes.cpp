#include "dialogs/AssemblyPanes.h"

#include "editing/ComparisonPair.h"
#include "editing/ComparisonTexts.h"
#include "editing/ExtRichEditCtrl.h"
#include "editing/ValueField.h"
#include "engines/UnitConvertor.h"
#include "engines/UnitText.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>

namespace {

enum ComparisonControl : int { Comparison = 1080, ComparisonValue = 1081, VolumeUnit = 1283 };
enum MateControl : int {
    Maximum = 1002,
    MaximumUnit = 1210,
    NoneAllowedButton = 32940,
    AllAllowedButton,
    MaximumButton,
    SubassembliesBox
};
enum Parameter : unsigned {
    FixedCount = 1586,
    ReferenceState = 1714,
    Volume = 1754,
    InterferenceOption = 1758,
    MatesNotAllowed = 32947,
    MatesAllowed,
    MatesMaximum,
    MatesSubassemblies
};

constexpr int ModeButtons[] = {NoneAllowedButton, AllAllowedButton, MaximumButton}; // by their mode
constexpr unsigned ModeParameters[] = {MatesNotAllowed, MatesAllowed, MatesMaximum};

const QList<unsigned> Operators = {OpNone,   OpEqual,   OpBelow, OpAbove, OpAtLeast,
                                   OpAtMost, OpBetween, OpOneOf, OpNoneOf};
constexpr char WholeNumbers[] = "1234567890,", OneNumber[] = "1234567890.";

constexpr unsigned CubicPower = 2;
// What the checker looks for in texts of the mates check: words of no language.
constexpr char YesWord[] = "Yes", NoWord[] = "No";
constexpr unsigned MatesKind = 1; // of all its parameters

// Gives a parameter of the mates check its one value.
template <class T> void Require(CParameter<T>* parameter, unsigned op, T value) {
    parameter->ClearValues();
    parameter->Name = LoadString(parameter->ID);
    parameter->Operator = op;
    parameter->ParameterType = MatesKind;
    parameter->Values.Add(value);
}

void RequireWord(CCheck& check, unsigned id, unsigned op, const char* word) {
    if (auto* parameter = check.GetStringParameter(id))
        Require(parameter, op, new CString(word));
}

bool HoldsValue(const CCheck& check, unsigned id) {
    bool holds = false;
    if (const CParameterEntry* entry = check.FindParameter(id))
        VisitParameter(*entry, [&](const auto& parameter) { holds = parameter.Values.Count > 0; });
    return holds;
}

} // namespace

CComparisonPane::CComparisonPane(EditingHost& host, const PaneNumbers& numbers, unsigned parameter,
                                 const char* characters)
    : CValuePane(host, numbers, {}), m_parameter(parameter), m_characters(characters) {}

CComparisonPane::~CComparisonPane() = default;

bool CComparisonPane::OnInitDialog() {
    return GetDlgItem<QComboBox>(Comparison) && GetDlgItem<CExtRichEditCtrl>(ComparisonValue) &&
           CValuePane::OnInitDialog();
}

void CComparisonPane::PrepareControls() {
    auto* value = GetDlgItem<CExtRichEditCtrl>(ComparisonValue);
    value->SetFilter(m_characters, false);
    m_pair = std::make_unique<ComparisonPair>(GetDlgItem<QComboBox>(Comparison), value, false);
    m_pair->Fill(Operators);
    m_pair->SetName(LoadString(m_parameter));
    connect(m_pair.get(), &ComparisonPair::Changed, this, &CComparisonPane::OnValue);
}

void CComparisonPane::LoadControls(const CCheck& check) {
    if (const auto* numbers = check.GetDoubleParameter(m_parameter))
        m_pair->Load(*numbers);
    else if (const auto* count = check.GetIntParameter(m_parameter))
        m_pair->Load(*count);
}

void CComparisonPane::StoreControls(CCheck& check) const {
    if (auto* numbers = check.GetDoubleParameter(m_parameter))
        m_pair->Store(*numbers);
    else if (auto* count = check.GetIntParameter(m_parameter))
        m_pair->Store(*count);
}

CAssemblyInterferenceDlg::CAssemblyInterferenceDlg(EditingHost& host)
    : CComparisonPane(host, {1573, 1406, 1753, 1506}, Volume, NumberListCharacters) {}

void CAssemblyInterferenceDlg::PrepareControls() {
    CComparisonPane::PrepareControls();
    m_options.emplace(*this, InterferenceOption, std::vector<ValueBox>{{1281, 0}, {1515, 1}, {1516, 2}});
    for (const ValueBox& box : m_options->Boxes())
        Watch(box.number);
    AttachVolumeUnit();
}

// Unlike other units this one shows its power from the start.
void CAssemblyInterferenceDlg::AttachVolumeUnit() {
    auto* label = GetDlgItem<QLabel>(VolumeUnit);
    GetHost().GetUnitSettings().push_back(std::make_unique<CUnitSettings>(
        GetDlgItem<QLineEdit>(ComparisonValue), label, CubicPower, DimensionLength));
    if (label)
        label->setText(UnitLabelText(CubicPower, DimensionLength,
                                     static_cast<unsigned long>(GetHost().GetStandard().Unit)));
}

void CAssemblyInterferenceDlg::LoadControls(const CCheck& check) {
    CComparisonPane::LoadControls(check);
    m_options->Load(check);
}

void CAssemblyInterferenceDlg::StoreControls(CCheck& check) const {
    CComparisonPane::StoreControls(check);
    m_options->Store(check);
}

CAssemblyFixedPartDlg::CAssemblyFixedPartDlg(EditingHost& host)
    : CComparisonPane(host, {1070, 1173, 1585, 1503}, FixedCount, WholeNumbers) {}

CAssemblyMisalignConcentricMatesDlg::CAssemblyMisalignConcentricMatesDlg(EditingHost& host)
    : CValuePane(host, {32935, 32960, 32939, 1506}, {}) {}

CAssemblyMisalignConcentricMatesDlg::~CAssemblyMisalignConcentricMatesDlg() = default;

void CAssemblyMisalignConcentricMatesDlg::PrepareControls() {
    auto* field = GetDlgItem<CExtRichEditCtrl>(Maximum);
    m_maximum = std::make_unique<ValueField>(field, OpAtMost, LoadString(MatesMaximum));
    if (field)
        field->SetFilter(OneNumber, false);
    connect(m_maximum.get(), &ValueField::Changed, this, &CAssemblyMisalignConcentricMatesDlg::OnValue);
    for (const int number :
         {int(NoneAllowedButton), int(AllAllowedButton), int(MaximumButton), int(SubassembliesBox)})
        Watch(number);
    if (auto* first = GetDlgItem<QAbstractButton>(NoneAllowedButton))
        first->setChecked(true);
    AttachUnitLabel(Maximum, MaximumUnit, 0, DimensionLength);
}

CAssemblyMisalignConcentricMatesDlg::Mode CAssemblyMisalignConcentricMatesDlg::CheckMode() const {
    return IsChecked(MaximumButton) ? UpToMaximum : IsChecked(AllAllowedButton) ? AllAllowed : NoneAllowed;
}

void CAssemblyMisalignConcentricMatesDlg::ApplyEnableRules() {
    m_maximum->SetEnabled(CheckMode() == UpToMaximum);
    Enable(MaximumUnit, CheckMode() == UpToMaximum);
}

void CAssemblyMisalignConcentricMatesDlg::LoadControls(const CCheck& check) {
    int mode = NoneAllowed;
    while (mode <= UpToMaximum && !HoldsValue(check, ModeParameters[mode]))
        ++mode;
    if (auto* button = GetDlgItem<QAbstractButton>(ModeButtons[mode <= UpToMaximum ? mode : NoneAllowed]))
        button->setChecked(true);
    m_maximum->SetText({});
    if (const auto* maximum = check.GetDoubleParameter(MatesMaximum); maximum && mode == UpToMaximum)
        m_maximum->Load(maximum->Values);
    const auto* inside = check.GetStringParameter(MatesSubassemblies);
    if (auto* box = GetDlgItem<QAbstractButton>(SubassembliesBox))
        box->setChecked(inside && inside->Values.Count > 0 && inside->Values[0] &&
                        *inside->Values[0] == YesWord);
}

void CAssemblyMisalignConcentricMatesDlg::StoreControls(CCheck& check) const {
    switch (CheckMode()) {
    case NoneAllowed: RequireWord(check, MatesNotAllowed, OpOneOf, YesWord); return;
    case AllAllowed: RequireWord(check, MatesAllowed, OpTextOnly, YesWord); break;
    case UpToMaximum: StoreMaximum(check); break;
    }
    RequireWord(check, MatesSubassemblies, OpOneOf, IsChecked(SubassembliesBox) ? YesWord : NoWord);
}

// Of several numbers the last one counts; without any it is zero.
void CAssemblyMisalignConcentricMatesDlg::StoreMaximum(CCheck& check) const {
    CGrowArray<double> numbers;
    m_maximum->Store(numbers);
    if (auto* maximum = check.GetDoubleParameter(MatesMaximum))
        Require(maximum, OpAtMost, numbers.Count > 0 ? numbers[numbers.Count - 1] : 0.0);
}

CExternalReferenceDlg::CExternalReferenceDlg(EditingHost& host)
    : CValuePane(host, {1081, 1176, 1713, 1504}, {}) {}

// The value 2 has no box.
void CExternalReferenceDlg::PrepareControls() {
    m_states.emplace(*this, ReferenceState,
                     std::vector<ValueBox>{{1140, 0}, {1144, 5}, {1142, 3}, {1141, 1}, {1143, 4}});
    for (const ValueBox& box : m_states->Boxes())
        Watch(box.number);
}

void CExternalReferenceDlg::LoadControls(const CCheck& check) {
    m_states->Load(check);
}

void CExternalReferenceDlg::StoreControls(CCheck& check) const {
    m_states->Store(check);
}
