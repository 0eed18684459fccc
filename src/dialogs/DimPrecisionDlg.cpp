#include "dialogs/DimPrecisionDlg.h"

#include "editing/ExtRichEditCtrl.h"
#include "editing/ParameterControls.h"
#include "engines/EnumEngine.h"
#include "engines/ParameterKinds.h"
#include "engines/UnitConvertor.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <QComboBox>
#include <algorithm>
#include <iterator>

namespace {

enum Control : int { SettingsButton = 1321, TolerancesButton = 1323, LinearBox = 1338, AngularBox };

constexpr unsigned Comparison = 2314;
constexpr long SettingsValue = 9, TolerancesValue = 10; // of the comparison, beside those of the boxes
constexpr ValueBox Dimensions[] = {{LinearBox, 11}, {AngularBox, 12}};
constexpr int PrecisionCount = 9; // codes from 0, which are the rows

struct PrecisionRow {
    int combo;
    unsigned parameter;
};

constexpr PrecisionRow Precisions[] = {{1257, 2281}, {1256, 2282}, {1262, 2283},
                                       {1260, 2284}, {1273, 2404}, {1272, 2405}};

struct ToleranceRow {
    int field;
    unsigned parameter;
    int unit;
    unsigned long dimension;
};

constexpr ToleranceRow ToleranceRows[] = {{1328, 2307, 1333, DimensionLength},
                                          {1329, 2308, 1335, DimensionLength},
                                          {1331, 2309, 1334, DimensionAngle},
                                          {1332, 2310, 1337, DimensionAngle}};
constexpr char NoTolerance[] = "0.0";

constexpr CorrectionRow Corrections[] = {{1297, 2281, TextEntry}, {1304, 2282, TextEntry},
                                         {1299, 2283, TextEntry}, {1298, 2284, TextEntry},
                                         {1301, 2404, TextEntry}, {1300, 2405, TextEntry}};

} // namespace

CDimPrecisionDlg::CDimPrecisionDlg(EditingHost& host)
    : CValuePane(host, {1569, 1258, 2273, 1208}, Corrections) {
    CheckType = 409;
}

void CDimPrecisionDlg::PrepareControls() {
    FillPrecisionCombos();
    PrepareTolerances();
    m_dimensions.emplace(*this, Comparison, std::vector(std::begin(Dimensions), std::end(Dimensions)));
    for (const ValueBox& box : m_dimensions->Boxes()) {
        GetDlgItem<QAbstractButton>(box.number)->setChecked(true);
        Watch(box.number);
    }
    for (const int button : {SettingsButton, TolerancesButton})
        Watch(button);
}

void CDimPrecisionDlg::FillPrecisionCombos() {
    for (const auto& [number, parameter] : Precisions) {
        SetName(number, parameter);
        Watch(number);
        auto* combo = GetDlgItem<QComboBox>(number);
        for (unsigned long code = 0; combo && code < PrecisionCount; ++code) {
            CString text;
            CEnumEngine().GetDisplayString(KindDecimalPrecision, code, text);
            combo->addItem(text);
        }
    }
}

void CDimPrecisionDlg::PrepareTolerances() {
    for (const ToleranceRow& row : ToleranceRows) {
        auto field = std::make_unique<ValueField>(GetDlgItem<CExtRichEditCtrl>(row.field), OpEqual,
                                                  LoadString(row.parameter));
        field->SetText(NoTolerance);
        connect(field.get(), &ValueField::Changed, this, &CDimPrecisionDlg::OnValue);
        AttachUnitLabel(row.field, row.unit, 0, row.dimension);
        m_tolerances.push_back(std::move(field));
    }
}

CDimPrecisionDlg::Mode CDimPrecisionDlg::PrecisionMode() const {
    return IsChecked(TolerancesButton) ? Tolerances : Settings;
}

void CDimPrecisionDlg::ApplyEnableRules() {
    for (const PrecisionRow& row : Precisions)
        Enable(row.combo, PrecisionMode() == Settings);
    for (const auto& field : m_tolerances)
        field->SetEnabled(PrecisionMode() == Tolerances);
}

void CDimPrecisionDlg::LoadControls(const CCheck& check) {
    const auto* comparison = check.GetLongParameter(Comparison);
    const bool comparesTolerances =
        comparison && std::ranges::find(comparison->Values, TolerancesValue) != comparison->Values.end();
    if (auto* button = GetDlgItem<QAbstractButton>(comparesTolerances ? TolerancesButton : SettingsButton))
        button->setChecked(true);
    m_dimensions->Load(check);
    for (const auto& [number, id] : Precisions) {
        const auto* parameter = check.GetLongParameter(id);
        const long row = parameter && parameter->Values.Count > 0 ? parameter->Values[0] : 0;
        if (auto* combo = GetDlgItem<QComboBox>(number))
            combo->setCurrentIndex(row >= 0 && row < combo->count() ? static_cast<int>(row) : 0);
    }
    for (size_t i = 0; i < m_tolerances.size(); ++i) {
        const auto* parameter = check.GetDoubleParameter(ToleranceRows[i].parameter);
        if (parameter && parameter->Operator != OpNone && parameter->Values.Count > 0)
            m_tolerances[i]->Load(parameter->Values);
        else
            m_tolerances[i]->SetText(NoTolerance);
    }
}

void CDimPrecisionDlg::StoreControls(CCheck& check) const {
    for (size_t i = 0; i < m_tolerances.size() && PrecisionMode() == Tolerances; ++i) {
        // An empty field is a tolerance of zero; what does not read as a number is none.
        const CString text = m_tolerances[i]->Text();
        double value = 0;
        auto* parameter = check.GetDoubleParameter(ToleranceRows[i].parameter);
        if (!parameter || (!text.isEmpty() && !ParseDouble(text, value)))
            continue;
        Emptied(*parameter).Values.Add(value);
        parameter->Operator = OpEqual;
    }
    for (const auto& [number, id] : Precisions) {
        const auto* combo = GetDlgItem<QComboBox>(number);
        auto* parameter = check.GetLongParameter(id);
        if (!combo || !parameter)
            continue;
        Emptied(*parameter).Values.Add(combo->currentIndex());
        parameter->Operator = OpEqual;
    }
    if (auto* comparison = check.GetLongParameter(Comparison)) {
        m_dimensions->Store(check);
        comparison->Values.Add(PrecisionMode() == Tolerances ? TolerancesValue : SettingsValue);
        comparison->Operator = OpOneOf;
    }
}
