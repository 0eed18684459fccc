// A run of the tool in a process of its own, for tests that kill it or hold a file with it. It takes settings
// and temporary folders from its environment, and ends with the process that has started it.
//   walk SEED FOLDER   opens the standards of the folder and gives random commands until it is killed
//   walk --hold FILE   keeps a standard open until it is killed
// It tells, a line each: "opened|saving|saved NAME DIGEST", "ready", after each command "done", and "wrong"
// with what should not be.
#include "platform/widgets/Look.h"
#include "support/Gui.h"
#include "support/GuiRandom.h"
#include "support/StandardText.h"

#include <QApplication>
#include <QFileInfo>
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

// At once: nothing may stay behind in a buffer when the process is killed.
void Tell(const CString& line) {
    const QByteArray bytes = line.toUtf8() + '\n';
    if (::write(STDOUT_FILENO, bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size())
        std::raise(SIGKILL);
}

void TellOfFile(const char* event, const CString& path, const CString& text) {
    Tell(CString("%1 %2 %3").arg(event, QFileInfo(path).fileName(), DigestOf(text)));
}

int Walk(unsigned seed, const CString& folder) {
    RandomWalk walk(seed, folder);
    walk.MeanStepsToSave = 4;
    walk.Saving = [](const CString& path, const CString& text) { TellOfFile("saving", path, text); };
    walk.Saved = [](const CString& path, const CString& text) { TellOfFile("saved", path, text); };
    for (const CAdminModuleDoc* document : walk.Tool().App().GetDocuments())
        if (!document->GetUserPath().isEmpty())
            TellOfFile("opened", document->GetUserPath(), LiveTextOf(document->GetStandard()));
    for (const char* done = "ready";; done = "done") {
        if (const CString wrong = walk.WhatIsWrong(); !wrong.isEmpty()) {
            Tell(CString("wrong " + wrong + walk.LastCommands()).replace('\n', '|'));
            return 1;
        }
        Tell(done);
        walk.Step();
    }
}

int Hold(const CString& path) {
    GuiTool tool;
    if (tool.App().OpenDocumentFile(path))
        TellOfFile("opened", path, LiveTextOf(tool.Standard()));
    Tell("ready");
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (argc != 3)
        return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const Gui::Setup setup;
    Look::ApplyTo(application);
    if (QByteArray(argv[1]) == "--hold")
        return Hold(CString::fromLocal8Bit(argv[2]));
    return Walk(QByteArray(argv[1]).toUInt(), CString::fromLocal8Bit(argv[2]));
}
