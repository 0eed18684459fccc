// A check box that shows what it stands for by a picture.
#pragma once

#include <QCheckBox>

class CPictureBox : public QCheckBox {
    Q_OBJECT

public:
    explicit CPictureBox(QWidget* parent = nullptr);

    // A bitmap of the choices of a parameter, drawn at its own size; its text is the tip and the name for
    // those who do not see it.
    void SetPicture(unsigned bitmap);
    unsigned Picture() const { return m_bitmap; }

private:
    unsigned m_bitmap = 0;
};
