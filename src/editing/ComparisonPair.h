// The box of a comparison operator and the box of the value beside it, which it watches while the user types.
#pragma once

#include "model/Parameter.h"
#include "platform/Text.h"

#include <QList>
#include <QObject>
#include <QPointer>

class QComboBox;
class QLineEdit;

class ComparisonPair : public QObject {
    Q_OBJECT

public:
    // The controls belong to their window. `isLength` is set for a length in the unit of the document.
    ComparisonPair(QComboBox* comparison, QLineEdit* value, bool isLength, QObject* parent = nullptr);

    // The operators on offer, as codes in their order; the first one is that of no comparison.
    void Fill(const QList<unsigned>& operators);

    // The operator chosen; 0, no comparison, where nothing is.
    unsigned Operator() const;

    // The value box's text, cut at its commas.
    CStringArray Values() const;

    // Shows an operator and a value and tells nobody. An operator that is not on offer is shown as none.
    void Show(unsigned comparison, const CString& value);

    // Shows a parameter and tells nobody: its numbers to six decimals, with commas between them.
    void Load(const CParameter<double>& parameter);
    void Load(const CParameter<int>& parameter);

    // Writes what the boxes show; a part of the text that does not read as a number is left out.
    void Store(CParameter<double>& parameter) const;
    void Store(CParameter<int>& parameter) const;

    // The parameter's name, for those who do not see the boxes.
    void SetName(const CString& name);

    // Enables the boxes by the operator that is shown; both are disabled with `isEnabled` clear.
    void SetEnabled(bool isEnabled);

Q_SIGNALS:
    void Changed(); // by the user; the value box reads as it was repaired

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OnOperatorChosen();
    void OnValueEdited();
    void OnValueCompleted();
    void SetValueText(const CString& text);

    QPointer<QComboBox> m_comparison;
    QPointer<QLineEdit> m_value;
    bool m_isLength;
    bool m_isChecking = false; // a message stands, and the text is about to be repaired
    bool m_isByKey = false;    // the closed box of operators is being walked through
};
