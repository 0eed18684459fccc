#include "cli/Console.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t interrupted = 0;

} // namespace

CString OneLine(const CString& text) {
    CString line = text;
    for (QChar& c : line)
        if (c.category() == QChar::Other_Control)
            c = u' ';
    return line;
}

void CatchInterrupts() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, [](int) { interrupted = 1; });
}

bool WasInterrupted() {
    return interrupted != 0;
}

void Console::Print(const CString& text) {
    EndProgress();
    m_out << text.toUtf8().constData();
}

void Console::Error(const CString& file, const CString& reason) {
    Error(file + ": " + reason.simplified());
}

void Console::Error(const CString& reason) {
    EndProgress();
    m_err << "kvstd: " << OneLine(reason).toUtf8().constData() << "\n";
}

void Console::Warn(const CString& text) {
    EndProgress();
    m_err << "kvstd: warning: " << OneLine(text).toUtf8().constData() << "\n";
}

void Console::TellOfSave(const CString& file, bool saved, const CString& reason) {
    if (!saved)
        Error(file, reason);
    else if (!reason.isEmpty())
        Warn(file + ": " + reason);
}

bool Console::Progress(const CString& what, int done, int total) {
    if (m_showsProgress) {
        m_out << std::flush; // what was printed before stands above
        const CString line = CString("%1: %2 of %3").arg(what).arg(done).arg(total);
        m_err << "\r" << line.toUtf8().constData() << std::flush;
        m_progressWidth = static_cast<int>(line.size());
    }
    return !WasInterrupted();
}

void Console::EndProgress() {
    if (m_progressWidth > 0)
        m_err << "\r" << std::string(static_cast<size_t>(m_progressWidth), ' ') << "\r" << std::flush;
    m_progressWidth = 0;
}
