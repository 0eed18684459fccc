// A small whole number, typed as digits or stepped through.
#pragma once

#include <QSpinBox>

class CNumberSpin : public QSpinBox {
    Q_OBJECT

public:
    explicit CNumberSpin(QWidget* parent = nullptr);

    // Shows any number, also one that a file brought and that the user could not enter.
    void Show(int number);

    static constexpr int Highest = 8; // that the user can enter; the lowest is 0

protected:
    // Nothing but digits is taken. An empty field counts as 0.
    QValidator::State validate(QString& text, int& caret) const override;
    int valueFromText(const QString& text) const override { return text.toInt(); }
    void focusOutEvent(QFocusEvent* event) override;
};
