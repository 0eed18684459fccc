// A box to tick that shows by a picture what it stands for.
#pragma once

#include "platform/Text.h"

#include <QCheckBox>

class CPictureBox : public QCheckBox {
    Q_OBJECT

public:
    explicit CPictureBox(QWidget* parent = nullptr) : QCheckBox(parent) {}

    // A bitmap of the language library, in its own size, and what it means, which is told by the tip and to
    // those who do not see the picture.
    void SetPicture(unsigned bitmap, const CString& text);

    QSize sizeHint() const override; // no wider than mark and picture, which stand in rows
};
