// One value box and the label of its unit, which follow a change of the current unit.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPointer>

// The controls belong to their window; either may be missing or go before this object does.
class CUnitSettings {
public:
    CUnitSettings(QLineEdit* valueControl, QLabel* labelControl, unsigned long power,
                  unsigned long dimension);
    virtual ~CUnitSettings() = default;

    // Shows the new unit and rewrites the value in it. Unit codes are those of the unit value lists.
    void ApplyUnitChange(unsigned long oldUnit, unsigned long newUnit);

    QPointer<QLineEdit> ValueControl;
    QPointer<QLabel> LabelControl;
    unsigned long Power;     // 0 plain, 1 squared, 2 cubed
    unsigned long Dimension; // 3 angle; any other number is shown as a length
};
