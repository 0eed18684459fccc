#include "editing/PaneLabels.h"

#include "platform/widgets/Look.h"

#include <QPainter>

namespace {

constexpr int SpaceAboveLine = 3;

void SetTextColor(QLabel& label, QRgb color) {
    QPalette colors = label.palette();
    colors.setColor(label.foregroundRole(), QColor(color));
    label.setPalette(colors);
}

} // namespace

CHeading::CHeading(QWidget* parent) : QLabel(parent) {
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    setContentsMargins(0, 0, 0, SpaceAboveLine);
    SetTextColor(*this, Look::Heading);
}

void CHeading::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter(this).fillRect(0, height() - 1, width(), 1, QColor(Look::FaintLine));
}

CHint::CHint(QWidget* parent) : QLabel(parent) {
    SetTextColor(*this, Look::FaintText);
}

CFaintLine::CFaintLine(QWidget* parent) : QFrame(parent) {
    setFixedHeight(1);
}

void CFaintLine::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), QColor(Look::FaintLine));
}
