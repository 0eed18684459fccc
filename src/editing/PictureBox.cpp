#include "editing/PictureBox.h"

#include "platform/widgets/Look.h"

void CPictureBox::SetPicture(unsigned bitmap, const CString& text, qreal enlargement) {
    setIcon(Look::IconOf(bitmap));
    setIconSize(Look::BitmapSizeOf(bitmap) * enlargement);
    setToolTip(text);
    setAccessibleName(text);
}
