// Menus and the menu bar.
#include "platform/widgets/StyleParts.h"

namespace {

constexpr int MarkColumn = 30; // of check marks and pictures
constexpr int ItemHeight = 25;
constexpr int SeparatorHeight = 9;
constexpr int ShortcutGap = 28;
constexpr int ArrowColumn = 24;
constexpr int PictureSize = 16;

void DrawSeparator(const StylePart& part, const QStyleOptionMenuItem& item) {
    const QRect rect = item.rect;
    int left = rect.left() + 6;
    if (!item.text.isEmpty()) {
        part.painter.setFont(StylePaint::Bold(item.font));
        part.painter.setPen(QColor(Look::Heading));
        part.painter.drawText(rect.adjusted(8, 0, -8, 0), Qt::AlignLeft | Qt::AlignVCenter, item.text);
        left += part.painter.fontMetrics().horizontalAdvance(item.text) + 10;
    }
    part.painter.fillRect(QRect(left, rect.center().y(), rect.right() - left - 5, 1),
                          QColor(Look::FaintLine));
}

QRect Visual(const QStyleOptionMenuItem& item, const QRect& rect) {
    return QStyle::visualRect(item.direction, item.rect, rect);
}

void DrawPicture(const StylePart& part, const QStyleOptionMenuItem& item, const QRect& column) {
    const bool isChecked = item.checkType != QStyleOptionMenuItem::NotCheckable && item.checked;
    QRect place(0, 0, PictureSize, PictureSize);
    place.moveCenter(column.center());
    if (!item.icon.isNull()) {
        // A pressed button stands for the mark of an item with a picture.
        if (isChecked)
            StylePaint::DrawBox(part.painter, place.adjusted(-3, -3, 3, 3), QColor(StyleTone::SoftSlate),
                                QColor(StyleTone::MiddleSlate));
        item.icon.paint(&part.painter, place, Qt::AlignCenter,
                        part.IsEnabled() ? QIcon::Normal : QIcon::Disabled,
                        isChecked ? QIcon::On : QIcon::Off);
    } else if (isChecked) {
        const QColor color(part.IsEnabled() ? StyleTone::DarkSlate : StyleTone::DisabledText);
        if (item.checkType == QStyleOptionMenuItem::Exclusive) {
            const QRectF dot = QRectF(place).adjusted(5, 5, -5, -5);
            StylePaint::DrawBox(part.painter, dot, color, color, dot.width() / 2);
        } else
            StylePaint::DrawTick(part.painter, place, color);
    }
}

void DrawTexts(const StylePart& part, const QStyleOptionMenuItem& item, const QRect& rect) {
    const QStringList texts = item.text.split('\t');
    const auto color = [&part](QRgb normal) {
        return QColor(part.IsEnabled() ? normal : StyleTone::DisabledText);
    };
    const bool isMain = item.menuItemType == QStyleOptionMenuItem::DefaultItem;
    part.painter.setFont(isMain ? StylePaint::Bold(item.font) : item.font);
    part.painter.setPen(color(Look::Text));
    const int mnemonic = part.style.styleHint(QStyle::SH_UnderlineShortcut, &item, part.widget)
                             ? Qt::TextShowMnemonic
                             : Qt::TextHideMnemonic;
    const int flags = Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip;
    part.painter.drawText(rect,
                          flags | mnemonic | int(QStyle::visualAlignment(item.direction, Qt::AlignLeft)),
                          texts.constFirst());
    if (texts.size() > 1) {
        part.painter.setPen(color(Look::FaintText));
        part.painter.drawText(rect, flags | int(QStyle::visualAlignment(item.direction, Qt::AlignRight)),
                              texts[1]);
    }
}

bool DrawMenuItem(const StylePart& part) {
    const auto* item = part.As<QStyleOptionMenuItem>();
    if (!item)
        return false;
    part.painter.save();
    if (item->menuItemType == QStyleOptionMenuItem::Separator) {
        DrawSeparator(part, *item);
    } else {
        const QRect rect = item->rect;
        // What is disabled may be walked over by keyboard, and tells where one is by its frame.
        if (part.Is(QStyle::State_Selected))
            StylePaint::DrawBox(part.painter, rect.adjusted(1, 0, -1, 0),
                                part.IsEnabled() ? QBrush(QColor(StyleTone::PaleSlate)) : QBrush(Qt::NoBrush),
                                QColor(part.IsEnabled() ? StyleTone::MiddleSlate : Look::FaintLine));
        DrawPicture(part, *item, Visual(*item, QRect(rect.left(), rect.top(), MarkColumn, rect.height())));
        DrawTexts(part, *item, Visual(*item, rect.adjusted(MarkColumn, 0, -ArrowColumn, 0)));
        if (item->menuItemType == QStyleOptionMenuItem::SubMenu)
            StylePaint::DrawChevron(part.painter,
                                    Visual(*item, QRect(rect.right() - 20, rect.top(), 16, rect.height())),
                                    item->direction == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow,
                                    QColor(StyleTone::Slate));
    }
    part.painter.restore();
    return true;
}

void DrawBarGround(const StylePart& part, const QRect& rect) {
    part.painter.fillRect(rect, QColor(StyleTone::BarGround));
    // The line below the bar, not below each of its rows.
    if (!part.widget || rect.bottom() >= part.widget->rect().bottom())
        part.painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1),
                              QColor(StyleTone::PaleSlate));
}

bool DrawMenuBarItem(const StylePart& part) {
    const auto* item = part.As<QStyleOptionMenuItem>();
    if (!item)
        return false;
    DrawBarGround(part, item->rect);
    const QRect box = item->rect.adjusted(1, 2, -1, -3);
    if (part.IsEnabled() && part.Is(QStyle::State_Sunken))
        StylePaint::DrawBox(part.painter, box, QColor(StyleTone::PaleSlate), QColor(StyleTone::MiddleSlate));
    else if (part.IsEnabled() && part.Is(QStyle::State_Selected))
        StylePaint::DrawBox(part.painter, box, QColor(StyleTone::WindowGround), QColor(StyleTone::PaleSlate));
    if (!item->icon.isNull()) {
        item->icon.paint(&part.painter, item->rect, Qt::AlignCenter);
        return true;
    }
    part.painter.setPen(QColor(part.IsEnabled() ? Look::Text : StyleTone::DisabledText));
    part.painter.drawText(item->rect.adjusted(0, 0, 0, -1),
                          Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine,
                          item->text);
    return true;
}

} // namespace

namespace StyleMenus {

bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part) {
    switch (element) {
    case QStyle::PE_PanelMenu:
        part.painter.fillRect(part.option.rect, QColor(Look::SelectedPaneGround));
        return true;
    case QStyle::PE_FrameMenu:
        StylePaint::DrawBox(part.painter, part.option.rect, Qt::NoBrush, QColor(StyleTone::MiddleSlate), 0);
        return true;
    case QStyle::PE_PanelMenuBar: return true; // the empty area draws it
    case QStyle::PE_IndicatorMenuCheckMark:
        StylePaint::DrawTick(part.painter, part.option.rect, QColor(StyleTone::DarkSlate));
        return true;
    default: return false;
    }
}

bool DrawControl(QStyle::ControlElement element, const StylePart& part) {
    switch (element) {
    case QStyle::CE_MenuItem: return DrawMenuItem(part);
    case QStyle::CE_MenuBarItem: return DrawMenuBarItem(part);
    case QStyle::CE_MenuBarEmptyArea: DrawBarGround(part, part.option.rect); return true;
    case QStyle::CE_MenuScroller:
        part.painter.fillRect(part.option.rect, QColor(StyleTone::BarGround));
        StylePaint::DrawChevron(part.painter, part.option.rect,
                                part.Is(QStyle::State_DownArrow) ? Qt::DownArrow : Qt::UpArrow,
                                QColor(StyleTone::Slate));
        return true;
    default: return false;
    }
}

QSize MenuItemSize(const QStyleOptionMenuItem& option, const QSize& contents) {
    if (option.menuItemType == QStyleOptionMenuItem::Separator)
        return {contents.width(), option.text.isEmpty() ? SeparatorHeight : ItemHeight};
    int width = MarkColumn + contents.width() + ArrowColumn;
    // What the menu keeps for the shortcuts beside the widest text has no gap of its own.
    if (option.text.contains('\t'))
        width += ShortcutGap;
    return {width, qMax(ItemHeight, contents.height() + 6)};
}

} // namespace StyleMenus
