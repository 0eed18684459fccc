// A cell that takes only a number: digits and points.
#pragma once

#include <QLineEdit>

class CExGridEditControl : public QLineEdit {
public:
    explicit CExGridEditControl(QWidget* parent);

    // Whether the text was changed since the last call: on leaving the cell the pane is told to commit.
    bool TakePending();

    int Pending = 0;
};
