// Fields: line edits, combo boxes, spin boxes.
#include "platform/widgets/StyleParts.h"

#include <QAbstractSpinBox>
#include <QApplication>

namespace {

constexpr int ButtonWidth = 22; // of the arrow of a combo box, and of the arrows of a spin box

QColor LineColor(const StylePart& part) {
    if (!part.IsEnabled())
        return QColor(StyleTone::DisabledLine);
    return QColor(part.IsHovered() ? StyleTone::Slate : Look::Line);
}

QBrush Ground(const StylePart& part) {
    return part.option.palette.brush(part.IsEnabled() ? QPalette::Active : QPalette::Disabled,
                                     QPalette::Base);
}

// A field that may be read but not written has the ground of what it stands on.
void DrawField(const StylePart& part) {
    StylePaint::DrawBox(part.painter, part.option.rect, Ground(part), LineColor(part));
    if (part.HasFocus())
        StylePaint::DrawFocus(part.painter, part.option.rect);
}

QColor ArrowColor(const StylePart& part) {
    return QColor(part.IsEnabled() ? StyleTone::Slate : StyleTone::MiddleSlate);
}

bool DrawComboBox(const StylePart& part) {
    const auto* combo = part.As<QStyleOptionComboBox>();
    if (!combo)
        return false;
    if (combo->frame)
        DrawField(part);
    else
        part.painter.fillRect(combo->rect, Ground(part));
    const QRect arrow = part.style.subControlRect(QStyle::CC_ComboBox, combo, QStyle::SC_ComboBoxArrow);
    StylePaint::DrawChevron(part.painter, arrow, Qt::DownArrow, ArrowColor(part));
    return true;
}

void DrawSpinArrow(const StylePart& part, const QStyleOptionSpinBox& spin, QStyle::SubControl sub) {
    const bool isUp = sub == QStyle::SC_SpinBoxUp;
    const bool isPossible =
        spin.stepEnabled & (isUp ? QAbstractSpinBox::StepUpEnabled : QAbstractSpinBox::StepDownEnabled);
    const QRect rect = part.style.subControlRect(QStyle::CC_SpinBox, &spin, sub);
    const bool isHot = part.IsEnabled() && isPossible && spin.activeSubControls == sub &&
                       (part.IsHovered() || part.Is(QStyle::State_Sunken));
    if (isHot)
        part.painter.fillRect(rect,
                              QColor(part.Is(QStyle::State_Sunken) ? StyleTone::PaleSlate : Look::Hover));
    const QColor color = isPossible ? ArrowColor(part) : QColor(StyleTone::SoftSlate);
    StylePaint::DrawChevron(part.painter, rect, isUp ? Qt::UpArrow : Qt::DownArrow, color, 6);
}

bool DrawSpinBox(const StylePart& part) {
    const auto* spin = part.As<QStyleOptionSpinBox>();
    if (!spin)
        return false;
    // A grid's cell editor has no frame: the cell is its frame.
    if (spin->frame)
        DrawField(part);
    else
        part.painter.fillRect(spin->rect, Ground(part));
    if (spin->buttonSymbols != QAbstractSpinBox::NoButtons) {
        DrawSpinArrow(part, *spin, QStyle::SC_SpinBoxUp);
        DrawSpinArrow(part, *spin, QStyle::SC_SpinBoxDown);
    }
    return true;
}

QRect PlaceInComboBox(const QStyleOptionComboBox& combo, QStyle::SubControl sub) {
    const int border = combo.frame ? 1 : 0;
    const QRect inner = combo.rect.adjusted(border, border, -border, -border);
    QRect rect = combo.rect;
    if (sub == QStyle::SC_ComboBoxArrow)
        rect = QRect(inner.right() - ButtonWidth + 1, inner.top(), ButtonWidth, inner.height());
    else if (sub == QStyle::SC_ComboBoxEditField)
        // An edit in it brings the space before its text along.
        rect = inner.adjusted(combo.editable ? 2 : 6, 1, -ButtonWidth, -1);
    return QStyle::visualRect(combo.direction, combo.rect, rect);
}

QRect PlaceInSpinBox(const QStyleOptionSpinBox& spin, QStyle::SubControl sub) {
    const int border = spin.frame ? 2 : 0;
    const int buttons = spin.buttonSymbols == QAbstractSpinBox::NoButtons ? 0 : ButtonWidth - 4;
    const QRect inner = spin.rect.adjusted(border, border, -border, -border);
    QRect rect = inner;
    if (sub == QStyle::SC_SpinBoxEditField)
        rect.setRight(inner.right() - buttons);
    else if (sub == QStyle::SC_SpinBoxUp || sub == QStyle::SC_SpinBoxDown) {
        rect.setLeft(inner.right() - buttons + 1);
        const int middle = inner.top() + (inner.height() + 1) / 2;
        if (sub == QStyle::SC_SpinBoxUp)
            rect.setBottom(middle - 1);
        else
            rect.setTop(middle);
    } else
        rect = spin.rect;
    return QStyle::visualRect(spin.direction, spin.rect, rect);
}

} // namespace

namespace StyleFields {

bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part) {
    if (element == QStyle::PE_PanelLineEdit) {
        const auto* frame = part.As<QStyleOptionFrame>();
        if (frame && frame->lineWidth > 0)
            DrawField(part);
        else
            part.painter.fillRect(part.option.rect, Ground(part));
        return true;
    }
    if (element == QStyle::PE_FrameLineEdit) {
        StylePaint::DrawBox(part.painter, part.option.rect, Qt::NoBrush, LineColor(part));
        return true;
    }
    return false;
}

bool DrawComplex(QStyle::ComplexControl control, const StylePart& part) {
    switch (control) {
    case QStyle::CC_ComboBox: return DrawComboBox(part);
    case QStyle::CC_SpinBox: return DrawSpinBox(part);
    default: return false;
    }
}

bool PlaceSubControl(QStyle::ComplexControl control, const QStyleOptionComplex& option,
                     QStyle::SubControl sub, QRect& rect) {
    if (control == QStyle::CC_ComboBox && sub != QStyle::SC_ComboBoxListBoxPopup) {
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(&option)) {
            rect = PlaceInComboBox(*combo, sub);
            return true;
        }
    } else if (control == QStyle::CC_SpinBox) {
        if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(&option)) {
            rect = PlaceInSpinBox(*spin, sub);
            return true;
        }
    }
    return false;
}

} // namespace StyleFields
