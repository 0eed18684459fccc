#include "dialogs/ReportView.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

namespace {

constexpr int Ground = 24; // around the paper
constexpr int FirstHeight = 600;
constexpr int LineHeight = 20;

} // namespace

ReportView::ReportView(std::unique_ptr<LaidOutReport> report, QWidget* parent)
    : QAbstractScrollArea(parent), m_report(std::move(report)) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleDescription(m_report->Text());
    verticalScrollBar()->setSingleStep(LineHeight);
    horizontalScrollBar()->setSingleStep(LineHeight);
}

QSize ReportView::sizeHint() const {
    return {qRound(m_report->Size().width()) + 2 * Ground + verticalScrollBar()->sizeHint().width() +
                2 * frameWidth(),
            FirstHeight};
}

void ReportView::SetScale(qreal scale) {
    const QPointF middle = viewport()->rect().center();
    const QPointF before = (middle - PaperCorner()) / m_scale;
    m_scale = scale;
    UpdateBars();
    const QPointF moved = PaperCorner() + before * m_scale - middle;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(moved.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(moved.y()));
    viewport()->update();
}

// A paper that is narrower than the window stands in its middle.
QPointF ReportView::PaperCorner() const {
    const qreal free = viewport()->width() - PaperSize().width();
    return {std::max<qreal>(free / 2, Ground) - horizontalScrollBar()->value(),
            qreal(Ground) - verticalScrollBar()->value()};
}

void ReportView::UpdateBars() {
    const QSize whole = PaperSize().toSize() + QSize(2 * Ground, 2 * Ground);
    const QSize seen = viewport()->size();
    horizontalScrollBar()->setPageStep(seen.width());
    horizontalScrollBar()->setRange(0, std::max(0, whole.width() - seen.width()));
    verticalScrollBar()->setPageStep(seen.height());
    verticalScrollBar()->setRange(0, std::max(0, whole.height() - seen.height()));
}

void ReportView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().color(QPalette::Window));
    const QPointF corner = PaperCorner();
    const QRect part = event->rect() & QRectF(corner, PaperSize()).toAlignedRect();
    if (part.isEmpty())
        return;
    const qreal ratio = devicePixelRatioF();
    QImage picture =
        m_report->Draw((part.topLeft() - corner) / m_scale, part.size() * ratio, m_scale * ratio);
    picture.setDevicePixelRatio(ratio);
    painter.drawImage(part.topLeft(), picture);
}

void ReportView::resizeEvent(QResizeEvent*) {
    UpdateBars();
}

void ReportView::keyPressEvent(QKeyEvent* event) {
    QScrollBar& bar = *verticalScrollBar();
    switch (event->key()) {
    case Qt::Key_Home: bar.setValue(bar.minimum()); break;
    case Qt::Key_End: bar.setValue(bar.maximum()); break;
    case Qt::Key_Space: bar.triggerAction(QScrollBar::SliderPageStepAdd); break;
    default: QAbstractScrollArea::keyPressEvent(event);
    }
}

void ReportView::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    if (event->modifiers() != Qt::ControlModifier)
        QAbstractScrollArea::wheelEvent(event);
    else if (turned != 0)
        Q_EMIT ZoomTurned(turned > 0 ? 1 : -1);
}
