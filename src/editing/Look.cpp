#include "editing/Look.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int FieldHeight = 24;
constexpr int TickSize = 15;
constexpr int RowHeight = 20;
constexpr int RowMargin = 4;
constexpr int FieldMargin = 5; // between the frame of a field and its text, beside the field's own
constexpr qreal Radius = 3;

QColor LineColor(const QStyleOption& option) {
    if (!option.state.testFlag(QStyle::State_Enabled))
        return Look::DisabledLine;
    if (option.state.testFlag(QStyle::State_HasFocus))
        return Look::Accent;
    return option.state.testFlag(QStyle::State_MouseOver) ? Look::HoveredLine : Look::FieldLine;
}

QColor GroundColor(const QStyleOption& option) {
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    return isEnabled ? option.palette.color(QPalette::Base) : QColor(Look::DisabledField);
}

// A round frame; the focus has a second line inside, so that it is told by more than a colour.
void DrawFrame(QPainter& painter, const QStyleOption& option, const QRect& rect, qreal radius = Radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(LineColor(option));
    painter.setBrush(GroundColor(option));
    painter.drawRoundedRect(frame, radius, radius);
    if (option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_Enabled)) {
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(frame.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
    }
    painter.restore();
}

// A small arrow of two lines, pointing down or up.
void DrawArrow(QPainter& painter, const QRectF& rect, bool isUp, bool isEnabled) {
    constexpr qreal Half = 3.5, Height = 3.5;
    const QPointF middle = rect.center();
    const qreal sign = isUp ? -1 : 1;
    const QPointF points[] = {{middle.x() - Half, middle.y() - sign * Height / 2},
                              {middle.x(), middle.y() + sign * Height / 2},
                              {middle.x() + Half, middle.y() - sign * Height / 2}};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(isEnabled ? Look::Mark : Look::DisabledText), 1.5, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    painter.drawPolyline(points, 3);
    painter.restore();
}

// A thin line around what has the focus; a chosen row is told by its ground.
void DrawFocus(QPainter& painter, const QStyleOption& option) {
    if (option.state.testFlag(QStyle::State_Item))
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(Look::Accent));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
    painter.restore();
}

QRect TickRect(const QStyleOption& option) {
    QRect tick(0, 0, qMin(TickSize, option.rect.width()), qMin(TickSize, option.rect.height()));
    tick.moveCenter(option.rect.center());
    return tick;
}

void DrawTickBox(QPainter& painter, const QStyleOption& option) {
    const QRect rect = TickRect(option);
    const bool isOn = option.state & (QStyle::State_On | QStyle::State_NoChange);
    QStyleOption box(option);
    if (isOn && option.state.testFlag(QStyle::State_Enabled))
        box.palette.setColor(QPalette::Base, QColor(Look::Mark));
    DrawFrame(painter, box, rect, 2.5);
    if (!isOn)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    painter.setPen(QPen(QColor(isEnabled ? Look::Field : Look::DisabledText), 1.8, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    const QPointF from = rect.topLeft();
    const QPointF tick[] = {from + QPointF(4, 7.8), from + QPointF(6.6, 10.4), from + QPointF(11, 4.8)};
    const QPointF dash[] = {from + QPointF(4, 7.5), from + QPointF(11, 7.5)};
    if (option.state.testFlag(QStyle::State_NoChange))
        painter.drawPolyline(dash, 2);
    else
        painter.drawPolyline(tick, 3);
    painter.restore();
}

void DrawRadio(QPainter& painter, const QStyleOption& option) {
    const QRect rect = TickRect(option);
    DrawFrame(painter, option, rect, rect.width() / 2.0);
    if (!option.state.testFlag(QStyle::State_On))
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(option.state.testFlag(QStyle::State_Enabled) ? Look::Mark : Look::DisabledText));
    painter.drawEllipse(QRectF(rect).center(), 3.5, 3.5);
    painter.restore();
}

} // namespace

QPalette Look::ControlPalette() {
    QPalette palette{QColor(Ground)}; // and nothing of the desktop's
    const auto set = [&palette](QPalette::ColorRole role, QRgb color) {
        palette.setColor(role, QColor(color));
    };
    set(QPalette::Window, Ground);
    set(QPalette::WindowText, Text);
    set(QPalette::Base, Field);
    set(QPalette::AlternateBase, Ground);
    set(QPalette::Text, Text);
    set(QPalette::Button, Ground);
    set(QPalette::ButtonText, Text);
    set(QPalette::Highlight, Chosen);
    set(QPalette::HighlightedText, Text);
    set(QPalette::ToolTipBase, Field);
    set(QPalette::ToolTipText, Text);
    set(QPalette::PlaceholderText, QuietText);
    set(QPalette::Mid, FieldLine);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(DisabledText));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(DisabledField));
    return palette;
}

ControlStyle::ControlStyle() : QProxyStyle("Fusion") {}

void ControlStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    switch (element) {
    case PE_PanelLineEdit:
        // The field inside a box of choices or a spin box has the frame of the box.
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame && frame->lineWidth > 0)
            DrawFrame(*painter, *option, option->rect);
        return;
    case PE_FrameLineEdit: DrawFrame(*painter, *option, option->rect); return;
    case PE_FrameFocusRect: DrawFocus(*painter, *option); return;
    case PE_Frame:
        if (qobject_cast<const QAbstractItemView*>(widget)) {
            painter->setPen(LineColor(*option));
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            return;
        }
        break;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck: DrawTickBox(*painter, *option); return;
    case PE_IndicatorRadioButton: DrawRadio(*painter, *option); return;
    default: break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ControlStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    if (element != CE_HeaderSection) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    painter->fillRect(option->rect, QColor(Look::Ground));
    painter->fillRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1,
                      QColor(Look::Chosen));
}

void ControlStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const bool isEnabled = option->state.testFlag(State_Enabled);
    if (control == CC_ComboBox) {
        DrawFrame(*painter, *option, option->rect);
        DrawArrow(*painter, subControlRect(control, option, SC_ComboBoxArrow, widget), false, isEnabled);
    } else if (control == CC_SpinBox) {
        DrawFrame(*painter, *option, option->rect);
        DrawArrow(*painter, subControlRect(control, option, SC_SpinBoxUp, widget), true, isEnabled);
        DrawArrow(*painter, subControlRect(control, option, SC_SpinBoxDown, widget), false, isEnabled);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect ControlStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const {
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    // The texts of a column of fields and boxes stand under one another.
    return control == CC_ComboBox && part == SC_ComboBoxEditField ? rect.adjusted(2, 0, 0, 0) : rect;
}

QRect ControlStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const {
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    const auto* frame =
        element == SE_LineEditContents ? qstyleoption_cast<const QStyleOptionFrame*>(option) : nullptr;
    return frame && frame->lineWidth > 0 ? rect.adjusted(FieldMargin - 1, 0, 1 - FieldMargin, 0) : rect;
}

QSize ControlStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                     const QWidget* widget) const {
    QSize full = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_SpinBox)
        full.setHeight(qMax(size.height(), FieldHeight));
    else if (type == CT_LineEdit || type == CT_ComboBox)
        full.setHeight(qMax(full.height(), FieldHeight));
    else if (type == CT_ItemViewItem)
        full.setHeight(qMax(full.height(), RowHeight));
    return full;
}

int ControlStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight: return TickSize;
    case PM_FocusFrameHMargin: return qobject_cast<const QAbstractItemView*>(widget) ? RowMargin : 2;
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ControlStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
    // A list under the box, and not a menu over it.
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
}
