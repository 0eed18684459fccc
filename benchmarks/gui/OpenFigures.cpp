#include "editing/PageSheet.h"
#include "gui/FullStandard.h"
#include "gui/GuiFigures.h"
#include "gui/Watch.h"
#include "shell/TabToolbar.h"
#include "support/Gui.h"
#include "support/GuiTool.h"

#include <QTemporaryDir>

namespace {

constexpr int Rounds = 11;
constexpr double OpenWithinMs = 300;
constexpr double SummaryWithinMs = 50;

void Require(bool isDone) {
    if (!isDone)
        qFatal("The standard does not open, or its summary is not shown.");
}

double OpenOnce(GuiTool& tool, const CString& path) {
    PaintWatch watch(tool.Frame());
    const OwnTime time;
    Require(tool.App().OpenDocumentFile(path));
    Require(watch.WaitUntilPainted());
    return time.Milliseconds();
}

double ShowSummaryOnce(GuiTool& tool) {
    PaintWatch watch(*tool.View().GetSummaryPage().Grid->viewport());
    const OwnTime time;
    tool.View().ActivatePage(SummaryPage);
    Require(watch.WaitUntilPainted());
    return time.Milliseconds();
}

} // namespace

std::vector<Figure> OpenFigures() {
    const QTemporaryDir folder;
    const CString path = folder.filePath("full.kvstd");
    WriteFullStandard(path);
    std::vector<double> open;
    std::vector<double> openShowingAll;
    std::vector<double> summary;
    GuiTool tool;
    for (int round = 0; round < 2 * Rounds; ++round) {
        (round % 2 == 0 ? open : openShowingAll).push_back(OpenOnce(tool, path));
        Gui::Settle();
        summary.push_back(ShowSummaryOnce(tool));
        Require(tool.Close());
        tool.App().FlipShowAll();
    }
    return {{"opening all 54 checks, one group shown, median (ms)", Percentile(open, 0.5), OpenWithinMs},
            {"opening all 54 checks, all shown, median (ms)", Percentile(openShowingAll, 0.5), OpenWithinMs},
            {"summary of them, median (ms)", Percentile(summary, 0.5), SummaryWithinMs}};
}
