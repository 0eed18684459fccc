// Buttons: push and tool buttons, check boxes and radio buttons.
#include "platform/widgets/StyleParts.h"

#include <QAbstractButton>

namespace {

bool IsDefault(const StylePart& part) {
    const auto* button = part.As<QStyleOptionButton>();
    return button && (button->features & QStyleOptionButton::DefaultButton) && part.IsEnabled();
}

bool IsFlat(const StylePart& part) {
    const auto* button = part.As<QStyleOptionButton>();
    return button && (button->features & QStyleOptionButton::Flat);
}

// The button that Enter presses is filled; the others are light.
void DrawPushButton(const StylePart& part) {
    const bool isDown = part.Is(QStyle::State_Sunken) || part.Is(QStyle::State_On);
    QRgb fill = isDown             ? StyleTone::PaleSlate
                : part.IsHovered() ? Look::FieldGround
                                   : Look::SelectedPaneGround;
    QRgb border = isDown || part.IsHovered() ? StyleTone::Slate : Look::Line;
    if (IsDefault(part)) {
        fill = isDown || part.IsHovered() ? StyleTone::DarkSlate : StyleTone::Slate;
        border = StyleTone::DarkSlate;
    } else if (!part.IsEnabled()) {
        fill = StyleTone::DisabledGround;
        border = StyleTone::DisabledLine;
    }
    if (IsFlat(part) && !isDown && !part.IsHovered() && !IsDefault(part)) {
        if (part.HasFocus())
            StylePaint::DrawFocus(part.painter, part.option.rect);
        return;
    }
    StylePaint::DrawBox(part.painter, part.option.rect, QColor(fill), QColor(border));
}

void DrawButtonFocus(const StylePart& part) {
    if (IsDefault(part))
        StylePaint::DrawBox(part.painter, part.option.rect.adjusted(2, 2, -2, -2), Qt::NoBrush,
                            QColor(Look::FieldGround), 2);
    else
        StylePaint::DrawFocus(part.painter, part.option.rect);
}

bool DrawPushButtonLabel(const StylePart& part) {
    const auto* button = part.As<QStyleOptionButton>();
    if (!button || !IsDefault(part))
        return false;
    QStyleOptionButton light(*button);
    light.palette.setColor(QPalette::ButtonText, QColor(Look::FieldGround));
    light.features &= ~QStyleOptionButton::DefaultButton; // so that this is not asked again
    part.style.drawControl(QStyle::CE_PushButtonLabel, &light, &part.painter, part.widget);
    return true;
}

void DrawToolButton(const StylePart& part) {
    const bool isDown = part.Is(QStyle::State_Sunken);
    const bool isOn = part.Is(QStyle::State_On);
    const QRect rect = part.option.rect;
    if (isDown || isOn) {
        const QRgb fill = (isDown && isOn) || part.IsHovered() ? StyleTone::SoftSlate : StyleTone::PaleSlate;
        StylePaint::DrawBox(part.painter, rect, QColor(part.IsEnabled() ? fill : StyleTone::DisabledGround),
                            QColor(part.IsEnabled() ? StyleTone::MiddleSlate : StyleTone::DisabledLine), 4);
    } else if (part.IsHovered()) {
        StylePaint::DrawBox(part.painter, rect, QColor(Look::SelectedPaneGround),
                            QColor(StyleTone::PaleSlate), 4);
    } else if (!part.Is(QStyle::State_AutoRaise)) {
        StylePaint::DrawBox(part.painter, rect, QColor(Look::SelectedPaneGround),
                            QColor(part.IsEnabled() ? Look::Line : StyleTone::DisabledLine), 4);
    }
    if (part.HasFocus())
        StylePaint::DrawFocus(part.painter, rect, 4);
}

// A picture with its text to the right of it, both from the left edge on: such buttons stand in columns.
bool DrawToolButtonLabel(const StylePart& part) {
    const auto* button = part.As<QStyleOptionToolButton>();
    if (!button || button->toolButtonStyle != Qt::ToolButtonTextBesideIcon || button->icon.isNull() ||
        button->text.isEmpty())
        return false;
    const QRect rect = button->rect;
    const int left = rect.left() + 9;
    const QSize size = button->iconSize;
    const auto visual = [&](const QRect& place) {
        return QStyle::visualRect(button->direction, rect, place);
    };
    const QRect picture(QPoint(left, rect.center().y() + 1 - size.height() / 2), size);
    button->icon.paint(&part.painter, visual(picture), Qt::AlignCenter,
                       part.IsEnabled() ? QIcon::Normal : QIcon::Disabled,
                       part.Is(QStyle::State_On) ? QIcon::On : QIcon::Off);
    const QRect text = visual(rect.adjusted(9 + size.width() + 8, 0, -6, 0));
    part.painter.setFont(button->font);
    part.painter.setPen(QColor(part.IsEnabled() ? Look::Text : StyleTone::DisabledText));
    const int side = int(QStyle::visualAlignment(button->direction, Qt::AlignLeft));
    part.painter.drawText(
        text, side | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
        button->fontMetrics.elidedText(button->text, Qt::ElideRight, text.width(), Qt::TextShowMnemonic));
    return true;
}

struct MarkTones {
    QColor fill;
    QColor border;
    QColor sign;
};

MarkTones TonesOf(const StylePart& part) {
    const bool isSet = !part.Is(QStyle::State_Off);
    if (!part.IsEnabled())
        return {QColor(StyleTone::DisabledGround), QColor(StyleTone::DisabledLine),
                QColor(StyleTone::DisabledText)};
    const bool isHot = part.IsHovered() || part.Is(QStyle::State_Sunken);
    const QColor accent(isHot ? StyleTone::DarkSlate : StyleTone::Slate);
    if (isSet)
        return {accent, accent, QColor(Look::FieldGround)};
    return {QColor(part.Is(QStyle::State_Sunken) ? StyleTone::PaleSlate : Look::FieldGround),
            isHot ? accent : QColor(StyleTone::Mark), accent};
}

void DrawCheckMark(const StylePart& part) {
    const MarkTones tones = TonesOf(part);
    const QRectF box(part.option.rect);
    StylePaint::DrawBox(part.painter, box, tones.fill, tones.border);
    if (part.Is(QStyle::State_NoChange))
        part.painter.fillRect(
            QRectF(box.left() + box.width() * 0.25, box.center().y() - 1, box.width() * 0.5, 2), tones.sign);
    else if (part.Is(QStyle::State_On))
        StylePaint::DrawTick(part.painter, box, tones.sign);
}

void DrawRadioMark(const StylePart& part) {
    const bool isSet = part.Is(QStyle::State_On);
    const MarkTones tones = TonesOf(part);
    const QRectF box(part.option.rect);
    const QColor ground = isSet && part.IsEnabled() ? QColor(Look::FieldGround) : tones.fill;
    StylePaint::DrawBox(part.painter, box, ground, tones.border, box.width() / 2);
    if (!isSet)
        return;
    const qreal inset = box.width() * 0.28;
    part.painter.save();
    part.painter.setRenderHint(QPainter::Antialiasing);
    part.painter.setPen(Qt::NoPen);
    part.painter.setBrush(part.IsEnabled() ? tones.border : tones.sign);
    part.painter.drawEllipse(box.adjusted(inset, inset, -inset, -inset));
    part.painter.restore();
}

} // namespace

namespace StyleButtons {

bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part) {
    switch (element) {
    case QStyle::PE_PanelButtonCommand: DrawPushButton(part); return true;
    case QStyle::PE_PanelButtonTool: DrawToolButton(part); return true;
    case QStyle::PE_FrameDefaultButton: return true; // the filled ground tells
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorItemViewItemCheck: DrawCheckMark(part); return true;
    case QStyle::PE_IndicatorRadioButton: DrawRadioMark(part); return true;
    case QStyle::PE_IndicatorButtonDropDown: return true; // its arrow is drawn without a panel of its own
    default: return false;
    }
}

bool DrawControl(QStyle::ControlElement element, const StylePart& part) {
    if (element == QStyle::CE_PushButtonLabel)
        return DrawPushButtonLabel(part);
    if (element == QStyle::CE_ToolButtonLabel)
        return DrawToolButtonLabel(part);
    // Without this a flat button would not show that the pointer is over it.
    if (element == QStyle::CE_PushButtonBevel && IsFlat(part)) {
        DrawPushButton(part);
        return true;
    }
    if (element == QStyle::CE_PushButton && part.As<QStyleOptionButton>()) {
        part.style.drawControl(QStyle::CE_PushButtonBevel, &part.option, &part.painter, part.widget);
        part.style.drawControl(QStyle::CE_PushButtonLabel, &part.option, &part.painter, part.widget);
        if (part.HasFocus())
            DrawButtonFocus(part);
        return true;
    }
    return false;
}

} // namespace StyleButtons
