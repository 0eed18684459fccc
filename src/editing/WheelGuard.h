// Keeps the wheel from changing a value by accident: over a box of choices or a spin box without the focus it
// scrolls the page.
#pragma once

#include <QObject>

// Installed on the application once.
class WheelGuard : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
