// A display of the X window system that nobody sees. Programs start on it as on a user's desktop.
#pragma once

#include <QProcess>

class VirtualDisplay {
public:
    VirtualDisplay(); // ends the program where the server (Xvfb) does not start
    ~VirtualDisplay();

    QByteArray Name() const { return m_name; } // as DISPLAY takes it

private:
    QProcess m_server;
    QByteArray m_name;
};
