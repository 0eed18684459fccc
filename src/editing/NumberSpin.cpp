#include "editing/NumberSpin.h"

#include <QLineEdit>
#include <algorithm>

CNumberSpin::CNumberSpin(QWidget* parent) : QSpinBox(parent) {
    setRange(0, Highest);
}

void CNumberSpin::Show(int number) {
    setRange(qMin(number, 0), qMax(number, Highest));
    setValue(number);
}

QValidator::State CNumberSpin::validate(QString& text, int&) const {
    const bool isDigits =
        std::ranges::all_of(text, [](QChar character) { return character >= u'0' && character <= u'9'; });
    const bool fits = text.size() <= textFromValue(maximum()).size() && text.toInt() <= maximum();
    return isDigits && fits ? QValidator::Acceptable : QValidator::Invalid;
}

void CNumberSpin::focusOutEvent(QFocusEvent* event) {
    QSpinBox::focusOutEvent(event);
    if (lineEdit()->text().isEmpty())
        lineEdit()->setText(textFromValue(value()));
}
