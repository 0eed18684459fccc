// A window that is shown and active for the length of a test, with a column of controls in it.
#pragma once

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

class ShownWindow {
public:
    ShownWindow() : m_layout(&m_window) { m_window.resize(400, 300); }

    // The window owns what is added.
    template <class T, class... Arguments> T* Add(Arguments&&... arguments) {
        T* control = new T(std::forward<Arguments>(arguments)..., &m_window);
        m_layout.addWidget(control);
        return control;
    }

    bool Show() {
        m_window.show();
        m_window.activateWindow();
        return QTest::qWaitForWindowActive(&m_window);
    }

    QWidget& Window() { return m_window; }

private:
    QWidget m_window;
    QVBoxLayout m_layout;
};
