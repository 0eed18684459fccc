// A run of the tool in a process of its own: the program "walk" of the tests, which tells line by line what
// it does.
#pragma once

#include "platform/Text.h"

#include <QProcess>

class WalkProcess {
public:
    WalkProcess(const CString& mode, const CString& path); // starts it; see tests/walk/Main.cpp
    ~WalkProcess();

    // The next line without its end, however long it takes; a null text where the process has ended.
    CString NextLine();
    // Reads on until it is ready for what the test wants of it. False where it ends before.
    bool WaitUntilReady(CStringArray& told);
    // False where it had ended by itself, which is never right. What it told before can still be read.
    bool Kill();

private:
    QProcess m_process;
};
