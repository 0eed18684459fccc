#include "editing/PictureBox.h"

#include "platform/widgets/Look.h"

CPictureBox::CPictureBox(QWidget* parent) : QCheckBox(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void CPictureBox::SetPicture(unsigned bitmap, const CString& text, qreal enlargement) {
    setIcon(Look::IconOf(bitmap));
    setIconSize(Look::BitmapSizeOf(bitmap) * enlargement);
    setToolTip(text);
    setAccessibleName(text);
}
