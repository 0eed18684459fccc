// The box of a comparison operator and the box of the whole number beside it.
#pragma once

#include "editing/ExtDialog.h"
#include "model/Parameter.h"

#include <QObject>

class CNumberSpin;
class QComboBox;

class NumberPair : public QObject {
    Q_OBJECT

public:
    // The numbers of the two controls of a window that outlives this, and of their parameter. The box of
    // operators is filled.
    NumberPair(CACInfoManagerDlg& window, int comparison, int field, unsigned parameter);

    // Enables the boxes by the operator that is shown; both are disabled with `isEnabled` clear.
    void SetEnabled(bool isEnabled);
    // Nothing is less than zero: under "<" a zero becomes 1.
    void GuardBound();
    bool NeedsGuard() const;

    // Shows the parameter of a check and tells nobody. An operator that is not on offer is shown as none, and
    // of several values the first.
    void Load(const CCheck& check);
    // Writes what the boxes show.
    void Store(CCheck& check) const;

Q_SIGNALS:
    // By the user:
    void OperatorChosen();
    void ValueChanged();
    void Left(); // the number is complete

private:
    bool IsWhole() const { return m_comparison && m_value; }
    unsigned Operator() const; // 0, no comparison, where nothing is chosen

    CACInfoManagerDlg& m_window;
    int m_comparisonNumber;
    int m_fieldNumber;
    unsigned m_parameter;
    QComboBox* m_comparison; // either may be missing in a damaged template
    CNumberSpin* m_value;
};
