// The three buttons by which a document's window that fills the frame is made smaller or closed.
#include "platform/widgets/StyleParts.h"

namespace {

constexpr int Side = 22;
constexpr int Gap = 2;

struct MdiButton {
    QStyle::SubControl control;
    int place;
};

constexpr MdiButton Buttons[] = {
    {QStyle::SC_MdiMinButton, 0}, {QStyle::SC_MdiNormalButton, 1}, {QStyle::SC_MdiCloseButton, 2}};

void DrawSign(QPainter& painter, QStyle::SubControl control, const QRectF& box) {
    switch (control) {
    case QStyle::SC_MdiMinButton: painter.drawLine(box.bottomLeft(), box.bottomRight()); break;
    case QStyle::SC_MdiNormalButton:
        painter.drawRect(box.adjusted(0, 2.5, -2.5, 0));
        painter.drawPolyline(
            QPolygonF({box.topLeft() + QPointF(2.5, 2.5), box.topLeft() + QPointF(2.5, 0), box.topRight(),
                       box.bottomRight() - QPointF(0, 2.5), box.bottomRight() - QPointF(2.5, 2.5)}));
        break;
    default:
        painter.drawLine(box.topLeft(), box.bottomRight());
        painter.drawLine(box.topRight(), box.bottomLeft());
        break;
    }
}

} // namespace

QSize StyleMdi::Size() {
    return {3 * Side + 2 * Gap + Look::Margin, Side + 4};
}

QRect StyleMdi::Place(const QRect& rect, QStyle::SubControl sub) {
    for (const MdiButton& button : Buttons)
        if (button.control == sub)
            return {rect.left() + button.place * (Side + Gap), rect.center().y() - Side / 2 + 1, Side, Side};
    return {};
}

bool StyleMdi::Draw(const StylePart& part) {
    const auto* option = qstyleoption_cast<const QStyleOptionComplex*>(&part.option);
    if (!option)
        return false;
    QPainter& painter = part.painter;
    painter.save();
    for (const MdiButton& button : Buttons) {
        if (!(option->subControls & button.control))
            continue;
        const QRect rect = Place(option->rect, button.control);
        if (option->activeSubControls & button.control)
            StylePaint::DrawBox(
                painter, rect,
                QColor(part.Is(QStyle::State_Sunken) ? StyleTone::SoftSlate : StyleTone::PaleSlate),
                QColor(StyleTone::MiddleSlate), 4);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(StyleTone::DarkSlate), 1.2));
        DrawSign(painter, button.control, QRectF(rect).adjusted(7, 7, -7, -7));
    }
    painter.restore();
    return true;
}
