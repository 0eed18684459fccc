// Runs another program, whose word counts in a test.
#pragma once

#include "platform/Text.h"

#include <QProcess>

// What it wrote to standard output; a text that says so where it did not end well.
inline QByteArray RunProgram(const CString& program, const CStringArray& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        return "failed: " + program.toUtf8() + " " + process.readAllStandardError();
    return process.readAllStandardOutput();
}
