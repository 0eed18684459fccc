// Tabs. Those of a bar in document mode are the pages of a standard: they stand on a dark band.
#include "platform/widgets/StyleParts.h"

#include <QTabBar>

namespace {

bool IsPageTab(const StylePart& part) {
    const auto* bar = qobject_cast<const QTabBar*>(part.widget);
    return bar && bar->documentMode();
}

bool IsAcross(QTabBar::Shape shape) {
    return shape == QTabBar::RoundedNorth || shape == QTabBar::RoundedSouth ||
           shape == QTabBar::TriangularNorth || shape == QTabBar::TriangularSouth;
}

// A rounded box that runs out below its rectangle, so that only its upper corners are seen.
void DrawTabBox(const StylePart& part, const QRect& rect, QRgb fill, QRgb border) {
    part.painter.save();
    part.painter.setClipRect(rect, Qt::IntersectClip);
    StylePaint::DrawBox(part.painter, rect.adjusted(0, 0, 0, 6), QColor(fill), QColor(border), 4);
    part.painter.restore();
}

void DrawPageTab(const StylePart& part, bool isSelected) {
    QRgb fill = isSelected ? Look::PageGround : StyleTone::PaleSlate;
    if (!part.IsEnabled())
        fill = StyleTone::SoftSlate;
    else if (!isSelected && part.IsHovered())
        fill = StyleTone::WindowGround;
    // The selected tab stands out by two pixels.
    DrawTabBox(part, part.option.rect.adjusted(1, isSelected ? 4 : 6, -2, 0), fill, fill);
}

void DrawPlainTab(const StylePart& part, bool isSelected) {
    if (isSelected)
        DrawTabBox(part, part.option.rect.adjusted(0, 1, 0, 0), Look::SelectedPaneGround,
                   StyleTone::MiddleSlate);
    else if (part.IsHovered())
        DrawTabBox(part, part.option.rect.adjusted(1, 3, -1, -1), Look::Hover, StyleTone::PaleSlate);
}

bool DrawTabShape(const StylePart& part) {
    const auto* tab = part.As<QStyleOptionTab>();
    if (!tab || tab->shape != QTabBar::RoundedNorth)
        return false;
    const bool isSelected = part.Is(QStyle::State_Selected);
    if (IsPageTab(part))
        DrawPageTab(part, isSelected);
    else
        DrawPlainTab(part, isSelected);
    return true;
}

bool DrawTabLabel(const StylePart& part) {
    const auto* tab = part.As<QStyleOptionTab>();
    if (!tab || !IsAcross(tab->shape))
        return false;
    const bool isSelected = part.Is(QStyle::State_Selected);
    QRect rect = tab->rect;
    if (IsPageTab(part))
        rect.adjust(0, isSelected ? 3 : 5, 0, 0);
    part.painter.save();
    if (isSelected && !tab->text.isEmpty())
        part.painter.setFont(StylePaint::Bold(part.painter.font()));
    if (!tab->icon.isNull()) {
        const QSize size = tab->iconSize.isValid() ? tab->iconSize : QSize(16, 16);
        QRect place(QPoint(), size);
        place.moveCenter(rect.center());
        if (!tab->text.isEmpty())
            place.moveLeft(rect.left() + 10);
        tab->icon.paint(&part.painter, place, Qt::AlignCenter,
                        part.IsEnabled() ? QIcon::Normal : QIcon::Disabled);
        rect.setLeft(place.right() + 2);
    }
    part.painter.setPen(QColor(part.IsEnabled() ? Look::Text : StyleTone::DisabledText));
    part.painter.drawText(rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, tab->text);
    part.painter.restore();
    if (part.HasFocus())
        StylePaint::DrawFocus(part.painter, tab->rect.adjusted(5, IsPageTab(part) ? 8 : 4, -6, -3));
    return true;
}

// Drawn once for the bar, before its tabs.
bool DrawBase(const StylePart& part) {
    const auto* base = part.As<QStyleOptionTabBarBase>();
    if (!base)
        return false;
    const QRect bar = part.widget ? part.widget->rect() : base->rect;
    if (base->documentMode) {
        part.painter.fillRect(
            bar, StylePaint::Blend(bar, Qt::Horizontal, StyleTone::BandLeft, StyleTone::BandRight));
    } else {
        part.painter.fillRect(QRect(bar.left(), bar.bottom(), bar.width(), 1),
                              QColor(StyleTone::MiddleSlate));
    }
    return true;
}

} // namespace

namespace StyleTabs {

bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part) {
    if (element == QStyle::PE_FrameTabBarBase)
        return DrawBase(part);
    if (element == QStyle::PE_FrameTabWidget) {
        StylePaint::DrawBox(part.painter, part.option.rect, QColor(Look::SelectedPaneGround),
                            QColor(StyleTone::MiddleSlate), 0);
        return true;
    }
    return false;
}

bool DrawControl(QStyle::ControlElement element, const StylePart& part) {
    if (element == QStyle::CE_TabBarTabShape)
        return DrawTabShape(part);
    if (element == QStyle::CE_TabBarTabLabel)
        return DrawTabLabel(part);
    return false;
}

} // namespace StyleTabs
