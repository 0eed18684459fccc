// Waits until a widget or what is in it is painted, and the program has nothing more to do.
#pragma once

#include "gui/OwnTime.h"

#include <QObject>
#include <functional>
#include <vector>

class QWidget;

class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& widget);

    // Works off all events, until the widget has been painted since the last call and no event is left.
    // False where it is not painted within seconds.
    bool WaitUntilPainted();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    const QWidget& m_widget;
    bool m_isPainted = false;
};

// The value below which that part of the values lie. `part` is 0 to 1; 1 gives the greatest.
double Percentile(std::vector<double> values, double part);
