// A box to tick that shows by a picture what it stands for.
#pragma once

#include "platform/Text.h"

#include <QCheckBox>

class CPictureBox : public QCheckBox {
    Q_OBJECT

public:
    explicit CPictureBox(QWidget* parent = nullptr) : QCheckBox(parent) {}

    // A bitmap of the language library, and what it means, which is told by the tip and to those who do not
    // see it. Where there is room pictures are larger than in a list, to be told apart at a glance.
    void SetPicture(unsigned bitmap, const CString& text, qreal enlargement = 1.25);
};
