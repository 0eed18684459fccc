#include "editing/TabCtrlInPropertySheet.h"

#include "platform/widgets/Look.h"

#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <utility>

namespace {

constexpr int BandHeight = 34;
constexpr int TextMargin = 18;   // on both sides of a tab's text
constexpr int BandStart = 8;     // left of the first tab
constexpr int Between = 3;       // from tab to tab
constexpr int SelectedTop = 4;   // the selected tab is the taller one
constexpr int UnselectedTop = 6; // and its text stands higher
constexpr int Rounding = 4;

constexpr QRgb BandLeft = qRgb(0x4f, 0x55, 0x6d), BandRight = qRgb(0x77, 0x7b, 0x85);
constexpr QRgb SelectedPlate = Look::PageGround;
constexpr QRgb Plate = Look::PaletteColors[3]; // of a tab that is not selected
constexpr QRgb HoveredPlate = Look::PaletteColors[2];

QFont SelectedFont(const QFont& font) {
    QFont bold = font;
    bold.setBold(true);
    return bold;
}

QPainterPath RoundedAbove(const QRectF& plate) {
    QPainterPath path(plate.bottomLeft());
    path.lineTo(plate.left(), plate.top() + Rounding);
    path.quadTo(plate.topLeft(), {plate.left() + Rounding, plate.top()});
    path.lineTo(plate.right() - Rounding, plate.top());
    path.quadTo(plate.topRight(), {plate.right(), plate.top() + Rounding});
    path.lineTo(plate.bottomRight());
    path.closeSubpath();
    return path;
}

} // namespace

CTabCtrlInPropertySheet::CTabCtrlInPropertySheet(QWidget* parent) : QTabBar(parent) {
    setFont(Look::PageFont());
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setFixedHeight(BandHeight);
}

QSize CTabCtrlInPropertySheet::tabSizeHint(int index) const {
    const int text = QFontMetrics(SelectedFont(font())).horizontalAdvance(tabText(index));
    const int start = index == 0 ? BandStart : 0;
    return {start + Between + 2 * TextMargin + text, BandHeight};
}

// What is seen of a tab; the rest of its place is gap.
QRect CTabCtrlInPropertySheet::PlateOf(int index) const {
    const int top = index == currentIndex() ? SelectedTop : UnselectedTop;
    return tabRect(index).adjusted(index == 0 ? BandStart : 0, top, -Between, 0);
}

void CTabCtrlInPropertySheet::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient band(0, 0, width(), 0);
    band.setColorAt(0, QColor(BandLeft));
    band.setColorAt(1, QColor(BandRight));
    painter.fillRect(rect(), band);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int index = 0; index < count(); ++index)
        PaintTab(painter, index);
}

void CTabCtrlInPropertySheet::PaintTab(QPainter& painter, int index) const {
    const bool isSelected = index == currentIndex();
    const QRect plate = PlateOf(index);
    const QRgb ground = isSelected ? SelectedPlate : index == m_hovered ? HoveredPlate : Plate;
    painter.fillPath(RoundedAbove(plate), QColor(ground));
    painter.setFont(isSelected ? SelectedFont(font()) : font());
    painter.setPen(QColor(Look::Text));
    const QRect text = plate.adjusted(0, isSelected ? 5 : 0, 0, isSelected ? 0 : -5);
    painter.drawText(text,
                     Qt::TextSingleLine | Qt::AlignHCenter | (isSelected ? Qt::AlignTop : Qt::AlignBottom),
                     tabText(index));
    if (isSelected && hasFocus()) {
        painter.setPen(QPen(QColor(Look::Focus), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(plate).adjusted(4, 4, -4, -4), 2, 2);
    }
}

void CTabCtrlInPropertySheet::SetHovered(int index) {
    if (std::exchange(m_hovered, index) != index)
        update();
}

void CTabCtrlInPropertySheet::mouseMoveEvent(QMouseEvent* event) {
    SetHovered(tabAt(event->pos()));
    QTabBar::mouseMoveEvent(event);
}

void CTabCtrlInPropertySheet::leaveEvent(QEvent* event) {
    SetHovered(-1);
    QTabBar::leaveEvent(event);
}
