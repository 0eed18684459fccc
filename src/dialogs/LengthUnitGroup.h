// The controls for one kind of length: its unit, and how its numbers are written.
#pragma once

#include "editing/BoxGroup.h"
#include "editing/NumberPair.h"

#include <QObject>

class CChoiceList;
class CExtDialog;

// The numbers of the controls. Their parameters follow each other: unit, decimal places, number format,
// denominator, and whether fractions are rounded.
struct LengthUnitNumbers {
    int units;
    int places, placesField;
    int decimalBox, fractionBox;
    int denominator, denominatorField;
    int rounding;
    unsigned firstParameter;
};

class LengthUnitGroup : public QObject {
    Q_OBJECT

public:
    // Fills the controls of the pane, which outlives this.
    LengthUnitGroup(CExtDialog& pane, const LengthUnitNumbers& numbers);

    // Enables the controls by each other; all are disabled with `isOpen` clear.
    void ApplyEnableRules(bool isOpen);
    // Shows a check; the list tells so.
    void Load(const CCheck& check);
    // Writes what the controls show, enabled or not.
    void Store(CCheck& check) const;
    void GuardBounds();

Q_SIGNALS:
    // By the user:
    void Chosen(); // what is enabled may depend on it
    void ValueChanged();
    void NumberLeft();

private:
    bool IsTicked(int box) const;
    bool HasFractionalUnit() const;
    unsigned Parameter(unsigned place) const { return m_numbers.firstParameter + place; }

    CExtDialog& m_pane;
    LengthUnitNumbers m_numbers;
    BoxGroup m_formats;
    NumberPair m_places;
    NumberPair m_denominator;
};
