#include "support/GuiWalkProcess.h"

#include <csignal>

namespace {

constexpr int ForEver = -1; // a test that hangs is ended from outside, and a slow machine fails none

} // namespace

WalkProcess::WalkProcess(const CString& mode, const CString& path) {
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(RULEWARD_BIN_FOLDER "/walk", {mode, path});
}

WalkProcess::~WalkProcess() {
    Kill();
}

CString WalkProcess::NextLine() {
    while (!m_process.canReadLine())
        if (!m_process.waitForReadyRead(ForEver))
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

bool WalkProcess::Kill() {
    m_process.kill();
    m_process.waitForFinished(ForEver);
    return m_process.exitStatus() == QProcess::CrashExit && m_process.exitCode() == SIGKILL;
}
