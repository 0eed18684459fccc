#include "editing/UnitSettings.h"

#include "engines/UnitText.h"

CUnitSettings::CUnitSettings(QLineEdit* valueControl, QLabel* labelControl, unsigned long power,
                             unsigned long dimension)
    : ValueControl(valueControl), LabelControl(labelControl), Power(power), Dimension(dimension) {}

void CUnitSettings::ApplyUnitChange(unsigned long oldUnit, unsigned long newUnit) {
    if (LabelControl)
        LabelControl->setText(UnitLabelText(Power, Dimension, newUnit));
    if (ValueControl)
        ValueControl->setText(ConvertValueText(ValueControl->text(), Power, Dimension, oldUnit, newUnit));
}
