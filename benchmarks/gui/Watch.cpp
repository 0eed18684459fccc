#include "gui/Watch.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace {

constexpr int LimitMs = 5000;

} // namespace

PaintWatch::PaintWatch(QWidget& widget) : m_widget(widget) {
    qApp->installEventFilter(this);
}

bool PaintWatch::WaitUntilPainted() {
    const QDeadlineTimer limit(LimitMs);
    QAbstractEventDispatcher& events = *QAbstractEventDispatcher::instance();
    while (events.processEvents(QEventLoop::AllEvents) || !m_isPainted)
        if (limit.hasExpired())
            return false;
    m_isPainted = false;
    return true;
}

bool PaintWatch::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Paint)
        m_isPainted |= object == &m_widget || m_widget.isAncestorOf(qobject_cast<QWidget*>(object));
    return false;
}

double Percentile(std::vector<double> values, double part) {
    std::sort(values.begin(), values.end());
    const double rank = std::ceil(part * static_cast<double>(values.size()));
    return values[static_cast<size_t>(std::max(rank, 1.0)) - 1];
}
