// Where a command writes: standard output, standard error, and progress for a person who watches.
#pragma once

#include "platform/Text.h"

#include <ostream>

enum ExitCode { ExitDone = 0, ExitFindings = 1, ExitUsage = 2, ExitFailed = 3 };

// A name out of a file as it may stand in a line: what would break it, or draw on the terminal, is a blank.
CString OneLine(const CString& text);

class Console {
public:
    Console(std::ostream& out, std::ostream& err, bool showsProgress)
        : m_out(out), m_err(err), m_showsProgress(showsProgress) {}

    void Print(const CString& text);
    void PrintLine(const CString& text = {}) { Print(OneLine(text) + "\n"); }
    // "kvstd: FILE: reason", one line.
    void Error(const CString& file, const CString& reason);
    void Error(const CString& reason);
    void Warn(const CString& text);
    // What a save has to say: the reason of a failure, or a warning, which may be empty.
    void TellOfSave(const CString& file, bool saved, const CString& reason);

    // Overwrites one line on a terminal, which whatever is printed next wipes; nothing in a pipe. False once
    // the user has interrupted.
    bool Progress(const CString& what, int done, int total);
    void EndProgress();

private:
    std::ostream& m_out;
    std::ostream& m_err;
    bool m_showsProgress;
    int m_progressWidth = 0;
};

// Notes an interrupt (Ctrl+C) instead of dying in the middle of the work, so that temporary folders go.
void CatchInterrupts();
bool WasInterrupted();
