// Lists, trees and tables with their headers; frames, groups and tips.
#include "platform/widgets/StyleParts.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QFrame>
#include <QHeaderView>

namespace {

void DrawFrame(const StylePart& part) {
    const bool isArea = qobject_cast<const QAbstractScrollArea*>(part.widget);
    // A popup has no room outside of its corners.
    const bool isPopup = part.widget && part.widget->isWindow();
    const qreal radius = isPopup ? 0 : StylePaint::Radius;
    const QColor line(part.IsEnabled() ? Look::Line : StyleTone::DisabledLine);
    // The space between the frame and what scrolls in it; the scroll bars and their corner are drawn already.
    if (isArea)
        StylePaint::DrawBox(part.painter, QRectF(part.option.rect).adjusted(1, 1, -1, -1), Qt::NoBrush,
                            part.option.palette.color(QPalette::Base), radius - 1);
    StylePaint::DrawBox(part.painter, part.option.rect, Qt::NoBrush, line, radius);
    if (isArea && part.HasFocus())
        StylePaint::DrawFocus(part.painter, part.option.rect, radius);
}

// Lines between sections are one faint line, not a groove.
bool DrawShapedFrame(const StylePart& part) {
    const auto* frame = part.As<QStyleOptionFrame>();
    if (!frame)
        return false;
    const QRect rect = frame->rect;
    const QColor color(Look::FaintLine);
    if (frame->frameShape == QFrame::HLine)
        part.painter.fillRect(QRect(rect.left(), rect.center().y(), rect.width(), 1), color);
    else if (frame->frameShape == QFrame::VLine)
        part.painter.fillRect(QRect(rect.center().x(), rect.top(), 1, rect.height()), color);
    else
        return false;
    return true;
}

void DrawRow(const StylePart& part) {
    const auto* item = part.As<QStyleOptionViewItem>();
    if (!item)
        return;
    QPainter& painter = part.painter;
    if (item->backgroundBrush.style() != Qt::NoBrush) {
        const QPointF origin = painter.brushOrigin();
        painter.setBrushOrigin(item->rect.topLeft());
        painter.fillRect(item->rect, item->backgroundBrush);
        painter.setBrushOrigin(origin);
    }
    if (part.Is(QStyle::State_Selected))
        painter.fillRect(item->rect,
                         QColor(part.Is(QStyle::State_Active) ? StyleTone::PaleSlate : Look::FaintLine));
    else if (part.IsHovered())
        painter.fillRect(item->rect, QColor(Look::Hover));
}

void DrawSectionGround(const StylePart& part) {
    const auto* section = part.As<QStyleOptionHeader>();
    const QRect rect = part.option.rect;
    const bool isPressed = part.Is(QStyle::State_Sunken);
    const bool isHovered = part.IsHovered() && part.widget;
    const QRgb top = isPressed ? StyleTone::PaleSlate : isHovered ? Look::FieldGround : StyleTone::BarLight;
    const QRgb bottom = isPressed ? StyleTone::PaleSlate : isHovered ? Look::Hover : StyleTone::WindowGround;
    part.painter.fillRect(rect, StylePaint::Blend(rect, Qt::Vertical, top, bottom));
    part.painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), QColor(StyleTone::SoftSlate));
    const bool isLast = section && (section->position == QStyleOptionHeader::End ||
                                    section->position == QStyleOptionHeader::OnlyOneSection);
    if (section && section->orientation == Qt::Vertical)
        part.painter.fillRect(QRect(rect.right(), rect.top(), 1, rect.height()),
                              QColor(StyleTone::SoftSlate));
    else if (section && !isLast)
        part.painter.fillRect(QRect(rect.right(), rect.top() + 4, 1, rect.height() - 9),
                              QColor(StyleTone::DisabledLine));
}

bool DrawSectionLabel(const StylePart& part) {
    const auto* section = part.As<QStyleOptionHeader>();
    if (!section || section->orientation == Qt::Vertical || !section->icon.isNull())
        return false;
    const QFont font = part.widget ? part.widget->font() : part.painter.font();
    part.painter.save();
    part.painter.setFont(StylePaint::Bold(font));
    part.painter.setPen(QColor(part.IsEnabled() ? Look::Heading : StyleTone::DisabledText));
    // From where the texts of the rows below begin.
    const QRect rect = section->rect.adjusted(-1, 0, 1, 0);
    const QString text = part.painter.fontMetrics().elidedText(section->text, Qt::ElideRight, rect.width());
    part.painter.drawText(rect, int(section->textAlignment) | Qt::TextSingleLine, text);
    part.painter.restore();
    return true;
}

void DrawBranch(const StylePart& part) {
    if (!part.Is(QStyle::State_Children))
        return;
    const bool isOpen = part.Is(QStyle::State_Open);
    const Qt::ArrowType closed = part.option.direction == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow;
    StylePaint::DrawChevron(part.painter, part.option.rect, isOpen ? Qt::DownArrow : closed,
                            QColor(part.IsHovered() ? StyleTone::DarkSlate : StyleTone::Slate));
}

void DrawArrow(QStyle::PrimitiveElement element, const StylePart& part) {
    Qt::ArrowType direction = Qt::DownArrow;
    switch (element) {
    case QStyle::PE_IndicatorArrowUp: direction = Qt::UpArrow; break;
    case QStyle::PE_IndicatorArrowLeft: direction = Qt::LeftArrow; break;
    case QStyle::PE_IndicatorArrowRight: direction = Qt::RightArrow; break;
    default: break;
    }
    StylePaint::DrawChevron(part.painter, part.option.rect, direction,
                            QColor(part.IsEnabled() ? StyleTone::Slate : StyleTone::SoftSlate));
}

void DrawSortArrow(const StylePart& part) {
    const auto* section = part.As<QStyleOptionHeader>();
    if (section && section->sortIndicator != QStyleOptionHeader::None)
        StylePaint::DrawChevron(part.painter, section->rect,
                                section->sortIndicator == QStyleOptionHeader::SortUp ? Qt::UpArrow
                                                                                     : Qt::DownArrow,
                                QColor(StyleTone::Slate));
}

} // namespace

namespace StyleViews {

bool DrawPrimitive(QStyle::PrimitiveElement element, const StylePart& part) {
    switch (element) {
    case QStyle::PE_Frame: DrawFrame(part); return true;
    case QStyle::PE_FrameFocusRect: StylePaint::DrawFocus(part.painter, part.option.rect); return true;
    case QStyle::PE_FrameGroupBox:
        StylePaint::DrawBox(part.painter, part.option.rect, Qt::NoBrush, QColor(Look::Line));
        return true;
    case QStyle::PE_PanelItemViewItem: DrawRow(part); return true;
    case QStyle::PE_PanelItemViewRow: {
        // Branches and the space before an item belong to its row.
        const auto* item = part.As<QStyleOptionViewItem>();
        if (item && (item->features & QStyleOptionViewItem::Alternate))
            part.painter.fillRect(item->rect, item->palette.brush(QPalette::AlternateBase));
        return true;
    }
    case QStyle::PE_IndicatorBranch: DrawBranch(part); return true;
    case QStyle::PE_IndicatorHeaderArrow: DrawSortArrow(part); return true;
    case QStyle::PE_IndicatorArrowUp:
    case QStyle::PE_IndicatorArrowDown:
    case QStyle::PE_IndicatorArrowLeft:
    case QStyle::PE_IndicatorArrowRight: DrawArrow(element, part); return true;
    case QStyle::PE_PanelTipLabel:
        StylePaint::DrawBox(part.painter, part.option.rect, QColor(Look::SelectedPaneGround),
                            QColor(StyleTone::MiddleSlate), 0);
        return true;
    default: return false;
    }
}

bool DrawControl(QStyle::ControlElement element, const StylePart& part) {
    switch (element) {
    case QStyle::CE_ShapedFrame: return DrawShapedFrame(part);
    case QStyle::CE_HeaderSection: DrawSectionGround(part); return true;
    case QStyle::CE_HeaderEmptyArea: DrawSectionGround(part); return true;
    case QStyle::CE_HeaderLabel: return DrawSectionLabel(part);
    default: return false;
    }
}

// The heading stands above the frame.
QRect PlaceInGroupBox(const QStyle& style, const QStyleOptionGroupBox& group, QStyle::SubControl sub) {
    const bool hasBox = group.subControls & QStyle::SC_GroupBoxCheckBox;
    const int mark = hasBox ? style.pixelMetric(QStyle::PM_IndicatorWidth) : 0;
    const bool hasHeading = hasBox || !group.text.isEmpty();
    const int height = hasHeading ? qMax(group.fontMetrics.height(), mark) + 4 : 0;
    const QRect frame = group.rect.adjusted(0, height, 0, 0);
    QRect rect = group.rect;
    switch (sub) {
    case QStyle::SC_GroupBoxFrame: rect = frame; break;
    case QStyle::SC_GroupBoxContents: rect = frame.adjusted(1, 1, -1, -1); break;
    case QStyle::SC_GroupBoxCheckBox:
        rect = QRect(group.rect.left() + 1, group.rect.top() + (height - 2 - mark) / 2, mark, mark);
        break;
    case QStyle::SC_GroupBoxLabel: {
        const int left = group.rect.left() + (hasBox ? mark + 8 : 3);
        rect = QRect(left, group.rect.top(), group.rect.right() - left + 1, height - 2);
        break;
    }
    default: break;
    }
    return QStyle::visualRect(group.direction, group.rect, rect);
}

bool DrawGroupBox(const StylePart& part) {
    const auto* group = part.As<QStyleOptionGroupBox>();
    if (!group)
        return false;
    const auto place = [&](QStyle::SubControl sub) {
        return part.style.subControlRect(QStyle::CC_GroupBox, group, sub, part.widget);
    };
    if (group->subControls & QStyle::SC_GroupBoxFrame)
        StylePaint::DrawBox(part.painter, place(QStyle::SC_GroupBoxFrame), Qt::NoBrush,
                            QColor(Look::FaintLine), 4);
    const QRect label = place(QStyle::SC_GroupBoxLabel);
    if (!group->text.isEmpty()) {
        part.painter.save();
        part.painter.setFont(StylePaint::Bold(part.painter.font()));
        part.painter.setPen(QColor(part.IsEnabled() ? Look::Heading : StyleTone::DisabledText));
        part.painter.drawText(label,
                              int(group->textAlignment) | Qt::TextShowMnemonic | Qt::TextSingleLine |
                                  Qt::TextDontClip | Qt::AlignVCenter,
                              group->text);
        part.painter.restore();
    }
    if (group->subControls & QStyle::SC_GroupBoxCheckBox) {
        QStyleOptionButton box;
        box.QStyleOption::operator=(*group);
        box.rect = place(QStyle::SC_GroupBoxCheckBox);
        part.style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &part.painter, part.widget);
    }
    if (part.HasFocus()) {
        const QFontMetrics bold(StylePaint::Bold(part.painter.font()));
        QRect text = label;
        text.setWidth(bold.size(Qt::TextShowMnemonic, group->text).width());
        StylePaint::DrawFocus(part.painter, text.adjusted(-3, 0, 3, 1));
    }
    return true;
}

} // namespace StyleViews
