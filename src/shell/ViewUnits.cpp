// The units of a standard, and what follows them.
#include "editing/MyStatic.h"
#include "editing/PageDialog.h"
#include "editing/RulewardOptions.h"
#include "engines/EnumEngine.h"
#include "engines/UnitConvertor.h"
#include "engines/UnitText.h"
#include "shell/AdminModView.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"

#include <QSignalBlocker>
#include <algorithm>

namespace {

constexpr int LengthUnits = 7, AngleUnits = 8; // lists of values
constexpr char LengthUnitSetting[] = "UnitSettings";
constexpr char AngleUnitSetting[] = "AngularUnitSetting";

CString NameOf(int list, int unit) {
    CString name;
    CEnumEngine().GetDisplayString(list, static_cast<unsigned long>(unit), name);
    return name;
}

int UnitOf(int list, const CString& name) {
    unsigned long value = CEnumEngine::NotFound;
    CEnumEngine().FindValueByText(list, name, value);
    return static_cast<int>(value);
}

int SettingOf(const CAdminModuleApp& app, const char* name) {
    int unit = -1;
    if (const CSettingsKey* settings = app.GetSettings())
        settings->GetInt(name, unit);
    return unit;
}

CExtDialog* PaneOf(const QWidget& control) {
    for (QWidget* parent = control.parentWidget(); parent; parent = parent->parentWidget())
        if (auto* pane = qobject_cast<CExtDialog*>(parent))
            return pane;
    return nullptr;
}

} // namespace

int CAdminModView::CurrentLengthUnit() const {
    return UnitOf(LengthUnits, LengthUnitText);
}

int CAdminModView::CurrentAngleUnit() const {
    return UnitOf(AngleUnits, AngleUnitText);
}

// A standard without units takes those that the user chose last.
void CAdminModView::TakeUnitsOfStandard() {
    CStandard& standard = GetStandard();
    if (standard.Unit < 0)
        standard.Unit = SettingOf(m_app, LengthUnitSetting);
    if (standard.AngularUnit < 0)
        standard.AngularUnit = SettingOf(m_app, AngleUnitSetting);
    if (m_options) {
        m_options->LengthUnitIndex = -1;
        m_options->AngleUnitIndex = -1;
    }
    ShowUnitNames();
}

void CAdminModView::ShowUnitNames() {
    LengthUnitText = NameOf(LengthUnits, GetStandard().Unit);
    AngleUnitText = NameOf(AngleUnits, GetStandard().AngularUnit);
    if (m_options)
        m_options->OnSetActive(LengthUnitText, AngleUnitText);
}

void CAdminModView::RebuildDisplay() {
    ActivatePage(ChecksPage);
    ShowUnitNames();
    const CStandard& standard = GetStandard();
    for (const auto& entry : GetUnitSettings()) {
        const int unit = entry->Dimension == DimensionAngle ? standard.AngularUnit : standard.Unit;
        if (entry->LabelControl)
            entry->LabelControl->setText(
                UnitLabelText(0, entry->Dimension, static_cast<unsigned long>(unit)));
    }
    m_checks->RefreshAll();
}

void CAdminModView::OnLengthUnitChanged() {
    LengthUnitText = m_options->LengthUnitName;
    const int unit = CurrentLengthUnit();
    SetUnits(unit, GetStandard().AngularUnit);
    StoreUnitSetting(LengthUnitSetting, unit);
}

void CAdminModView::OnAngleUnitChanged() {
    AngleUnitText = m_options->AngleUnitName;
    const int unit = CurrentAngleUnit();
    SetUnits(GetStandard().Unit, unit);
    StoreUnitSetting(AngleUnitSetting, unit);
}

void CAdminModView::ApplyUnits(int lengthUnit, int angleUnit) {
    const int oldAngleUnit = GetStandard().AngularUnit;
    SetUnits(lengthUnit, angleUnit);
    StoreUnitSetting(LengthUnitSetting, lengthUnit);
    // The angle unit from before the change is what new standards start with.
    StoreUnitSetting(AngleUnitSetting, oldAngleUnit);
    RebuildDisplay();
}

// The checks are converted first, then what the panes show of them. The standard does not convert
// corrections, the panes do: each pane whose text has changed writes what it shows, as one step.
void CAdminModView::SetUnits(int lengthUnit, int angleUnit) {
    CStandard& standard = GetStandard();
    const int oldLength = standard.Unit;
    const int oldAngle = standard.AngularUnit;
    standard.ChangeUnits(lengthUnit, angleUnit);
    std::vector<CExtDialog*> changed;
    if (lengthUnit != oldLength)
        ConvertControls(DimensionLength, oldLength, lengthUnit, changed);
    if (angleUnit != oldAngle)
        ConvertControls(DimensionAngle, oldAngle, angleUnit, changed);
    for (CExtDialog* pane : changed)
        if (m_checks->GetTypePositions().count(pane->CheckType) > 0)
            pane->CommitCheck();
    ArmUpdate();
}

void CAdminModView::ConvertControls(unsigned long dimension, int oldUnit, int newUnit,
                                    std::vector<CExtDialog*>& changed) {
    for (const auto& entry : GetUnitSettings()) {
        if (entry->Dimension != dimension)
            continue;
        QLineEdit* value = entry->ValueControl;
        const CString before = value ? value->text() : CString();
        {
            // Else each control would write the check while others still show the old unit.
            const QSignalBlocker quiet(value);
            const auto from = static_cast<unsigned long>(oldUnit), to = static_cast<unsigned long>(newUnit);
            entry->ApplyUnitChange(from, to);
            // What is behind the field of a correction has the old unit still.
            if (auto* correction = value ? qobject_cast<CMyStatic*>(value->parentWidget()) : nullptr)
                correction->ConvertUnit(entry->Power, dimension, from, to);
        }
        CExtDialog* pane = value && value->text() != before ? PaneOf(*value) : nullptr;
        if (pane && std::ranges::find(changed, pane) == changed.end())
            changed.push_back(pane);
    }
}

void CAdminModView::StoreUnitSetting(const char* name, int unit) {
    if (CSettingsKey* settings = m_app.GetSettings()) {
        settings->SetInt(name, unit);
        settings->WriteAll();
    }
}
