#include "support/GuiWalkProcess.h"

WalkProcess::WalkProcess(const CString& mode, const CString& path) {
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(RULEWARD_BIN_FOLDER "/walk", {mode, path});
}

CString WalkProcess::NextLine(int limitMs) {
    while (!m_process.canReadLine())
        if (!m_process.waitForReadyRead(limitMs))
            return {};
    return CString::fromUtf8(m_process.readLine()).chopped(1);
}

bool WalkProcess::WaitUntilReady(CStringArray& told) {
    for (CString line = NextLine(); !line.isNull(); line = NextLine()) {
        if (line == "ready")
            return true;
        told.append(line);
    }
    return false;
}

void WalkProcess::Kill() {
    m_process.kill();
    m_process.waitForFinished();
}
