#include "gui/FullStandard.h"
#include "gui/GuiFigures.h"
#include "support/Gui.h"
#include "support/GuiTool.h"

#include <QAbstractButton>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <sys/resource.h>

namespace {

constexpr int IdleMs = 3000;
constexpr double MostPercent = 1;

double MillisecondsUsed() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

double PercentOfACore() {
    QEventLoop loop;
    QTimer::singleShot(IdleMs, &loop, &QEventLoop::quit);
    const double before = MillisecondsUsed();
    loop.exec();
    return (MillisecondsUsed() - before) / IdleMs * 100;
}

} // namespace

std::vector<Figure> IdleFigures() {
    const QTemporaryDir folder;
    const CString path = folder.filePath("full.kvstd");
    WriteFullStandard(path);
    GuiTool tool;
    if (!tool.App().OpenDocumentFile(path))
        qFatal("The standard does not open.");
    tool.App().FlipShowAll();
    // A cursor that blinks is work too.
    tool.Page().ShowCheck(101);
    Gui::Settle();
    if (auto* box = tool.Control<QAbstractButton>(101, 1020); box && !box->isChecked())
        Gui::Click(*box);
    Gui::Focus(*tool.Control<QWidget>(101, 1315));
    return {{"idle with all 54 checks, of a core (%)", PercentOfACore(), MostPercent}};
}
