#include "editing/PictureBox.h"

#include "platform/widgets/Look.h"

#include <QStyle>

void CPictureBox::SetPicture(unsigned bitmap, const CString& text) {
    setIcon(Look::IconOf(bitmap));
    setIconSize(Look::BitmapSizeOf(bitmap));
    setToolTip(text);
    setAccessibleName(text);
}

QSize CPictureBox::sizeHint() const {
    const int mark = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
                     style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
    constexpr int FocusFrame = 2;
    return {mark + iconSize().width() + FocusFrame, QCheckBox::sizeHint().height()};
}
