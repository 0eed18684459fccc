// A run of the tool in a process of its own: the program "walk" of the tests, which tells line by line what
// it does.
#pragma once

#include "platform/Text.h"

#include <QProcess>

class WalkProcess {
public:
    WalkProcess(const CString& mode, const CString& path); // starts it; see tests/walk/Main.cpp
    ~WalkProcess() { Kill(); }

    // The next line without its end; a null text where none comes within the time or the process has ended.
    CString NextLine(int limitMs = 60000);
    // Reads on until it is ready for what the test wants of it. False where it ends before.
    bool WaitUntilReady(CStringArray& told);
    void Kill();

private:
    QProcess m_process;
};
