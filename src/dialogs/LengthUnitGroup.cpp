#include "dialogs/LengthUnitGroup.h"

#include "dialogs/UnitRows.h"
#include "editing/ChoiceList.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <QComboBox>

namespace {

enum Place : unsigned { Unit, DecimalPlaces, Format, Denominator, Rounding };

constexpr int FractionalRows[] = {6, 7, 8, 10}; // microinches, mils, inches, and feet and inches

} // namespace

LengthUnitGroup::LengthUnitGroup(CExtDialog& pane, const LengthUnitNumbers& numbers)
    : m_pane(pane), m_numbers(numbers),
      m_formats(pane, Parameter(Format), {{numbers.decimalBox, 1}, {numbers.fractionBox, 2}}),
      m_places(pane, numbers.places, numbers.placesField, Parameter(DecimalPlaces)),
      m_denominator(pane, numbers.denominator, numbers.denominatorField, Parameter(Denominator)) {
    FillCodedRows(pane, numbers.units, UnitRows::Lengths);
    FillYesNo(pane, numbers.rounding, LoadString(Parameter(Rounding)));
    if (auto* units = pane.GetDlgItem<CChoiceList>(numbers.units)) {
        units->setAccessibleName(LoadString(Parameter(Unit)));
        connect(units, &QListWidget::itemSelectionChanged, this, &LengthUnitGroup::Chosen);
    }
    for (const ValueBox& box : m_formats.Boxes())
        connect(pane.GetDlgItem<QAbstractButton>(box.number), &QAbstractButton::clicked, this,
                &LengthUnitGroup::Chosen);
    if (auto* rounding = pane.GetDlgItem<QComboBox>(numbers.rounding))
        connect(rounding, &QComboBox::activated, this, &LengthUnitGroup::Chosen);
    for (NumberPair* pair : {&m_places, &m_denominator}) {
        connect(pair, &NumberPair::OperatorChosen, this, &LengthUnitGroup::Chosen);
        connect(pair, &NumberPair::ValueChanged, this, &LengthUnitGroup::ValueChanged);
        connect(pair, &NumberPair::Left, this, [this, pair] {
            if (pair->NeedsGuard())
                Q_EMIT NumberLeft();
        });
    }
}

bool LengthUnitGroup::IsTicked(int number) const {
    const auto* box = m_pane.GetDlgItem<QAbstractButton>(number);
    return box && box->isChecked();
}

bool LengthUnitGroup::HasFractionalUnit() const {
    const auto* units = m_pane.GetDlgItem<CChoiceList>(m_numbers.units);
    for (const int row : FractionalRows)
        if (const auto* item = units ? units->item(row) : nullptr; item && item->isSelected())
            return true;
    return false;
}

void LengthUnitGroup::ApplyEnableRules(bool isOpen) {
    const bool isFractional = isOpen && HasFractionalUnit();
    const bool isFraction = isFractional && IsTicked(m_numbers.fractionBox);
    if (auto* units = m_pane.GetDlgItem(m_numbers.units))
        units->setEnabled(isOpen);
    if (auto* rounding = m_pane.GetDlgItem(m_numbers.rounding))
        rounding->setEnabled(isFraction);
    m_formats.SetEnabled(isFractional);
    m_places.SetEnabled(isOpen);
    m_denominator.SetEnabled(isFraction);
}

void LengthUnitGroup::GuardBounds() {
    m_places.GuardBound();
    m_denominator.GuardBound();
}

void LengthUnitGroup::Load(const CCheck& check) {
    LoadCodedRows(m_pane, m_numbers.units, check.GetLongParameter(Parameter(Unit)));
    m_formats.Load(check);
    m_denominator.Load(check);
    LoadYesNo(m_pane, m_numbers.rounding, check.GetIntParameter(Parameter(Rounding)));
    m_places.Load(check);
}

void LengthUnitGroup::Store(CCheck& check) const {
    StoreCodedRows(m_pane, m_numbers.units, check.GetLongParameter(Parameter(Unit)));
    m_places.Store(check);
    m_formats.Store(check);
    if (!IsTicked(m_numbers.fractionBox))
        return;
    m_denominator.Store(check);
    StoreYesNo(m_pane, m_numbers.rounding, check.GetIntParameter(Parameter(Rounding)), OpOneOf);
}
