#include "platform/widgets/RulewardStyle.h"

#include "platform/widgets/StyleParts.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QStatusBar>

RulewardStyle::RulewardStyle() : QProxyStyle("Fusion") {}

QPalette RulewardStyle::LightPalette() {
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, QRgb normal, QRgb disabled) {
        palette.setColor(QPalette::Active, role, QColor(normal));
        palette.setColor(QPalette::Inactive, role, QColor(normal));
        palette.setColor(QPalette::Disabled, role, QColor(disabled));
    };
    set(QPalette::Window, StyleTone::WindowGround, StyleTone::WindowGround);
    set(QPalette::WindowText, Look::Text, StyleTone::DisabledText);
    set(QPalette::Base, Look::FieldGround, StyleTone::DisabledGround);
    set(QPalette::AlternateBase, StyleTone::BarLight, StyleTone::DisabledGround);
    set(QPalette::ToolTipBase, Look::SelectedPaneGround, Look::SelectedPaneGround);
    set(QPalette::ToolTipText, Look::Text, Look::Text);
    set(QPalette::PlaceholderText, StyleTone::DisabledText, StyleTone::DisabledText);
    set(QPalette::Text, Look::Text, StyleTone::DisabledText);
    set(QPalette::Button, Look::SelectedPaneGround, StyleTone::DisabledGround);
    set(QPalette::ButtonText, Look::Text, StyleTone::DisabledText);
    set(QPalette::BrightText, Look::FieldGround, Look::FieldGround);
    set(QPalette::Light, Look::FieldGround, Look::FieldGround);
    set(QPalette::Midlight, StyleTone::BarGround, StyleTone::BarGround);
    set(QPalette::Mid, StyleTone::SoftSlate, StyleTone::SoftSlate);
    set(QPalette::Dark, StyleTone::MiddleSlate, StyleTone::MiddleSlate);
    set(QPalette::Shadow, StyleTone::Slate, StyleTone::Slate);
    set(QPalette::Highlight, StyleTone::TextSelection, Look::FaintLine);
    set(QPalette::HighlightedText, Look::Text, StyleTone::DisabledText);
    set(QPalette::Link, Look::Heading, StyleTone::DisabledText);
    set(QPalette::LinkVisited, Look::Focus, StyleTone::DisabledText);
    return palette;
}

void RulewardStyle::polish(QPalette& palette) {
    palette = LightPalette();
}

void RulewardStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (qobject_cast<QLineEdit*>(widget) || qobject_cast<QHeaderView*>(widget))
        widget->setAttribute(Qt::WA_Hover);
    if (auto* view = qobject_cast<QAbstractItemView*>(widget))
        view->viewport()->setAttribute(Qt::WA_Hover);
    // The lines between the fields of a status bar stand right beside them.
    if (auto* label = qobject_cast<QLabel*>(widget);
        label && qobject_cast<QStatusBar*>(label->parentWidget()))
        label->setContentsMargins(10, 0, 10, 0);
}

void RulewardStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
    const StylePart part{*proxy(), *option, *painter, widget};
    if (!StyleFields::DrawPrimitive(element, part) && !StyleButtons::DrawPrimitive(element, part) &&
        !StyleViews::DrawPrimitive(element, part) && !StyleMenus::DrawPrimitive(element, part) &&
        !StyleBars::DrawPrimitive(element, part) && !StyleTabs::DrawPrimitive(element, part))
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void RulewardStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    const StylePart part{*proxy(), *option, *painter, widget};
    if (!StyleButtons::DrawControl(element, part) && !StyleViews::DrawControl(element, part) &&
        !StyleMenus::DrawControl(element, part) && !StyleBars::DrawControl(element, part) &&
        !StyleTabs::DrawControl(element, part))
        QProxyStyle::drawControl(element, option, painter, widget);
}

void RulewardStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    const StylePart part{*proxy(), *option, *painter, widget};
    bool isDrawn = false;
    switch (control) {
    case CC_ScrollBar: isDrawn = StyleBars::DrawScrollBar(part); break;
    case CC_Slider: isDrawn = StyleBars::DrawSlider(part); break;
    case CC_MdiControls: isDrawn = StyleMdi::Draw(part); break;
    case CC_GroupBox: isDrawn = StyleViews::DrawGroupBox(part); break;
    default: isDrawn = StyleFields::DrawComplex(control, part); break;
    }
    if (!isDrawn)
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect RulewardStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl sub,
                                    const QWidget* widget) const {
    if (control == CC_ScrollBar)
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return StyleBars::PlaceInScrollBar(*bar, sub);
    if (control == CC_GroupBox)
        if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option))
            return StyleViews::PlaceInGroupBox(*proxy(), *group, sub);
    if (control == CC_MdiControls)
        return StyleMdi::Place(option->rect, sub);
    QRect rect;
    if (StyleFields::PlaceSubControl(control, *option, sub, rect))
        return rect;
    return QProxyStyle::subControlRect(control, option, sub, widget);
}

// The picture of a command that cannot be given: its shapes in one pale slate, so that they can still be
// told.
QPixmap RulewardStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                           const QStyleOption* option) const {
    if (mode == QIcon::Selected)
        return pixmap; // the row's ground tells it
    if (mode != QIcon::Disabled)
        return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            // Halfway between the colour's own brightness and white.
            const int light = 128 + qGray(line[x]) / 2;
            line[x] = qRgba(light - 6, light, qMin(255, light + 6), qAlpha(line[x]) * 3 / 4);
        }
    }
    QPixmap faint = QPixmap::fromImage(image);
    faint.setDevicePixelRatio(pixmap.devicePixelRatio());
    return faint;
}
