#include "editing/GroupBoxExt.h"

#include "platform/widgets/Look.h"

#include <QPainter>
#include <QStyleOptionGroupBox>

namespace {

constexpr int Gap = 8;          // between the heading and its line
constexpr int LineOpacity = 90; // of 255: a heading is read, its line only seen

} // namespace

CGroupBoxExt::CGroupBoxExt(QWidget* parent)
    : QGroupBox(parent), m_line(palette().color(QPalette::Mid)), m_light(palette().color(QPalette::Light)),
      m_text(palette().color(QPalette::WindowText)) {
    setFlat(true);
}

void CGroupBoxExt::SetLineColor(unsigned long color) {
    m_line = QColor(FromColorRef(color));
    update();
}

void CGroupBoxExt::SetLightColor(unsigned long color) {
    m_light = QColor(FromColorRef(color));
    update();
}

void CGroupBoxExt::SetTextColor(unsigned long color) {
    m_text = QColor(FromColorRef(color));
    update();
}

QSize CGroupBoxExt::minimumSizeHint() const {
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    return QGroupBox::minimumSizeHint().expandedTo(
        {QFontMetrics(bold).horizontalAdvance(title()) + 3 * Gap, 0});
}

void CGroupBoxExt::paintEvent(QPaintEvent*) {
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    QPainter painter(this);
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    painter.setFont(bold);
    const QFontMetrics metrics(bold);
    painter.setPen(isEnabled() ? m_text : QColor(Look::FaintText));
    const QRect heading(0, 0, width(), metrics.height());
    painter.drawText(heading, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, title());
    const int textWidth = metrics.size(Qt::TextShowMnemonic, title()).width();
    const int left = title().isEmpty() ? 0 : textWidth + Gap;
    const int y = heading.center().y();
    QColor line = m_line;
    line.setAlpha(LineOpacity);
    painter.fillRect(left, y, width() - left, 1, line);
    painter.fillRect(left, y + 1, width() - left, 1, m_light);
}
