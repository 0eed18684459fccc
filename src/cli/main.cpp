#include "cli/Commands.h"

#include <QFileInfo>
#include <clocale>
#include <csignal>
#include <iostream>
#include <unistd.h>

namespace {

volatile std::sig_atomic_t readerLeft = 0;

} // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    CatchInterrupts();
    std::signal(SIGXFSZ, SIG_IGN); // a file size limit is to fail the write, with a message
    std::signal(SIGPIPE, [](int) { readerLeft = 1; });
    CStringArray words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    const CString moduleFolder = QFileInfo(QFileInfo("/proc/self/exe").canonicalFilePath()).path();
    Console console(std::cout, std::cerr, isatty(STDERR_FILENO) == 1);
    const int code = RunCommandLine(words, moduleFolder, console);
    std::cout.flush();
    if (!std::cout && readerLeft) {
        // As of any program whose output goes to "head", but only after temporary folders are gone.
        std::signal(SIGPIPE, SIG_DFL);
        std::raise(SIGPIPE);
    }
    if (!std::cout) {
        console.Error("standard output", "could not be written");
        return ExitFailed;
    }
    return code;
}
