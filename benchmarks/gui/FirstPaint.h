// A program that tells when its window is painted.
#pragma once

#include <QApplication>
#include <QMainWindow>
#include <functional>
#include <utility>

class FirstPaintApplication : public QApplication {
public:
    using QApplication::QApplication;

    // Called once, as soon as the main window with all that is in it has been painted for the first time.
    std::function<void()> Painted;

    bool notify(QObject* receiver, QEvent* event) override {
        const QEvent::Type type = event->type();
        const bool isHandled = QApplication::notify(receiver, event);
        m_isPainted |= type == QEvent::Paint && qobject_cast<QMainWindow*>(receiver);
        // Whoever paints a window does so on one of these, down to the last control.
        if (m_isPainted && (type == QEvent::Expose || type == QEvent::UpdateRequest))
            if (const auto painted = std::exchange(Painted, nullptr))
                painted();
        return isHandled;
    }

private:
    bool m_isPainted = false;
};
