#include "cli/CommandTable.h"
#include "cli/OpenedStandard.h"
#include "cli/WorkFolder.h"
#include "files/Merge.h"
#include "files/Packing.h"

#include <QDir>
#include <QFileInfo>

namespace {

struct Interrupted {};

void PrintWarnings(const MergeOutcome& outcome, Console& console) {
    for (const MergeWarning& warning : outcome.warnings) {
        const CString check = warning.check.isEmpty() ? CString() : warning.check + ": ";
        console.Warn(warning.source + ": " + check + warning.Words());
    }
}

void PrintRejected(const CStringArray& rejected, const MergeOutcome& outcome, Console& console) {
    for (int i = 0; i < rejected.size(); ++i)
        console.Error(rejected[i], outcome.rejectedReasons.value(i));
}

// Packs what stands in the merge folder, with its XML under the name of the target.
bool PackResult(const CString& folder, const CString& fileName, const CString& target, Console& console) {
    const CString name = NameInside(target);
    CString reason = "its XML cannot be renamed";
    const bool named = fileName == name || QFile::rename(folder + "/" + fileName, folder + "/" + name);
    const bool packed = named && PackFolder(target, folder, &reason) == 1;
    console.TellOfSave(target, packed, reason);
    return packed;
}

} // namespace

int RunMerge(const Arguments& arguments, Console& console) {
    const QTemporaryDir work(WorkFolderTemplate());
    if (!work.isValid()) {
        console.Error("no temporary folder can be made: " + work.errorString());
        return ExitFailed;
    }
    CStringArray files = arguments.operands;
    CStringArray rejected;
    CStringArray report;
    MergeOutcome outcome;
    MergeOptions options;
    // Each file takes two steps.
    options.progress = [&console](int done, int total) {
        if (!console.Progress("Merging", (done + 1) / 2, total / 2))
            throw Interrupted();
    };
    int merged = 0;
    try {
        merged = MergeStandardFiles(work.path(), files, rejected, report, outcome, options);
    } catch (const Interrupted&) {
        console.Error("interrupted");
        return ExitFailed;
    }
    console.EndProgress();
    PrintRejected(rejected, outcome, console);
    PrintWarnings(outcome, console);
    if (merged != 1) {
        console.Error(outcome.failure.isEmpty() ? CString("there is no standard to merge") : outcome.failure);
        return ExitFailed;
    }
    if (!PackResult(work.path() + "/Merge", outcome.fileName, arguments.Value("-o"), console))
        return ExitFailed;
    for (const CString& line : report)
        console.PrintLine(line);
    return rejected.isEmpty() ? ExitDone : ExitFindings;
}
