#include "editing/PageHint.h"

#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "platform/widgets/Look.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace {

constexpr int WidestCard = 460;
constexpr int Inset = 24;
constexpr int ArrowSize = 40;

struct HintTexts {
    CString title;
    CString text;
};

HintTexts TextsOf(PageHint hint) {
    if (hint == PageHint::NoChecks)
        return {LoadString(PageEmptyTitle), LoadString(PageEmptyText)};
    return {LoadString(PageGroupEmptyTitle), LoadString(PageGroupEmptyText)};
}

QFont TitleFont() {
    QFont font = Look::PageFont();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    return font;
}

QFont TextFont() {
    QFont font = Look::PageFont();
    font.setPointSizeF(font.pointSizeF() * 1.125);
    return font;
}

void PaintArrow(QPainter& painter, const QRect& place) {
    const QPointF tip(place.left(), place.center().y() + 0.5);
    QPainterPath arrow(QPointF(place.right(), tip.y()));
    arrow.lineTo(tip);
    arrow.moveTo(tip + QPointF(12, -12));
    arrow.lineTo(tip);
    arrow.lineTo(tip + QPointF(12, 12));
    painter.setPen(QPen(QColor(Look::PaletteColors[0]), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(arrow);
}

} // namespace

void PaintPageHint(QPainter& painter, const QRect& area, PageHint hint) {
    const HintTexts texts = TextsOf(hint);
    const QFont titleFont = TitleFont();
    const QFont textFont = TextFont();
    const int width = std::min(WidestCard, area.width() - 2 * Look::Margin);
    const int left = 2 * Inset + ArrowSize;
    const QRect column(0, 0, std::max(60, width - left - Inset), 10000);
    const int flags = Qt::AlignLeft | Qt::TextWordWrap;
    const int titleHeight = QFontMetrics(titleFont).boundingRect(column, flags, texts.title).height();
    const int textHeight = QFontMetrics(textFont).boundingRect(column, flags, texts.text).height();
    const int height = titleHeight + Look::Margin + textHeight + 2 * Inset;

    QRect card(0, 0, width, height);
    card.moveCenter(area.center());
    card.moveTop(std::max(area.top() + Look::Margin, area.top() + (area.height() - height) / 3));

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(Look::PaneGround));
    painter.setPen(QPen(QColor(Look::Line), 1, Qt::DashLine));
    painter.drawRoundedRect(QRectF(card).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    painter.setBrush(Qt::NoBrush);
    PaintArrow(painter, QRect(card.left() + Inset, card.top(), ArrowSize, height));

    QRect words = column.translated(card.left() + left, card.top() + Inset);
    painter.setFont(titleFont);
    painter.setPen(QColor(Look::Heading));
    painter.drawText(words, flags, texts.title);
    words.translate(0, titleHeight + Look::Margin);
    painter.setFont(textFont);
    painter.setPen(QColor(Look::Text));
    painter.drawText(words, flags, texts.text);
}
