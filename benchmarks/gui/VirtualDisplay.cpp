#include "gui/VirtualDisplay.h"

VirtualDisplay::VirtualDisplay() {
    // It takes a free number itself and tells it on its standard output.
    m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1600x1000x24", "-nolisten", "tcp"});
    if (!m_server.waitForStarted() || !m_server.waitForReadyRead())
        qFatal("Xvfb does not start.");
    m_name = ':' + m_server.readLine().trimmed();
}

VirtualDisplay::~VirtualDisplay() {
    m_server.terminate();
    m_server.waitForFinished();
}
