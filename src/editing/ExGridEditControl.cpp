#include "editing/ExGridEditControl.h"

#include <QRegularExpressionValidator>
#include <utility>

CExGridEditControl::CExGridEditControl(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9.]*"), this));
    connect(this, &QLineEdit::textEdited, this, [this] { Pending = 1; });
}

bool CExGridEditControl::TakePending() {
    return std::exchange(Pending, 0) != 0;
}
