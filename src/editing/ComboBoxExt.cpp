#include "editing/ComboBoxExt.h"

#include "editing/TextTip.h"
#include "platform/widgets/Look.h"

#include <QAbstractItemView>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

namespace {

constexpr int BitmapRole = Qt::UserRole + 1; // the number of a row's picture, 0 for none
constexpr int RowsAtAGlance = 12;            // enough for all styles of arrowheads

} // namespace

CComboBoxExt::CComboBoxExt(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(6);
    setMaxVisibleItems(RowsAtAGlance);
    connect(this, &QComboBox::currentIndexChanged, this, &CComboBoxExt::ShowTooltip);
}

void CComboBoxExt::AddRow(const CString& text, unsigned bitmap) {
    addItem(bitmap ? Look::IconOf(bitmap) : QIcon(), text);
    setItemData(count() - 1, bitmap, BitmapRole);
    setItemData(count() - 1, PlainTip(text), Qt::ToolTipRole);
    if (bitmap)
        setIconSize(iconSize().expandedTo(Look::BitmapSizeOf(bitmap)));
}

// The row may be cut in a narrow column; its text is told in full. What was typed need not be a row.
void CComboBoxExt::ShowTooltip() {
    setToolTip(isEditable() ? CString() : PlainTip(currentText()));
}

int CComboBoxExt::PopupWidth() const {
    int widest = view()->sizeHintForColumn(modelColumn());
    if (count() > maxVisibleItems())
        widest += view()->verticalScrollBar()->sizeHint().width();
    constexpr int Margins = 24;
    return qMin(widest + Margins, qRound(screen()->availableSize().width() * WidestPopup));
}

void CComboBoxExt::showPopup() {
    view()->setMinimumWidth(qMax(width(), PopupWidth()));
    QComboBox::showPopup();
}

// A text that does not fit ends in dots, and what a picture tells stands without its text; in the open list
// both stand in full.
void CComboBoxExt::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    constexpr int Margins = 4;
    const int picture = option.currentIcon.isNull() ? 0 : option.iconSize.width() + 4;
    if (currentData(BitmapRole).toUInt() != 0)
        option.currentText.clear();
    option.currentText =
        option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, field.width() - picture - Margins);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void CComboBoxExt::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
