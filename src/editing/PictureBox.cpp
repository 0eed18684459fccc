#include "editing/PictureBox.h"

#include "editing/Pictures.h"
#include "platform/widgets/Look.h"

CPictureBox::CPictureBox(QWidget* parent) : QCheckBox(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void CPictureBox::SetPicture(unsigned bitmap) {
    m_bitmap = bitmap;
    setIcon(Look::IconOf(bitmap));
    setIconSize(Look::BitmapSizeOf(bitmap));
    setToolTip(PictureText(bitmap));
    setAccessibleName(PictureText(bitmap));
}
