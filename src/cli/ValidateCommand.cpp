#include "cli/CommandTable.h"
#include "cli/Findings.h"
#include "cli/OpenedStandard.h"

namespace {

// Result: the number of findings, or -1 for a file that cannot be read.
int Validate(const CString& path, Console& console) {
    if (const CString reason = WhyNotReadable(path); !reason.isEmpty()) {
        console.Error(path, reason);
        return -1;
    }
    OpenedStandard opened;
    const bool isOpen = opened.Open(path);
    if (opened.HasFailed) {
        console.Error(path, opened.Reason);
        return -1;
    }
    if (!isOpen) {
        console.PrintLine(path + ": refused: " + opened.Reason.simplified());
        return 1;
    }
    const std::vector<Finding> findings = FindFindings(*opened.XmlRoot());
    for (const Finding& finding : findings)
        console.PrintLine(path + ": " +
                          (finding.check.isEmpty() ? CString() : "check " + finding.check + ": ") +
                          finding.what);
    if (findings.empty())
        console.PrintLine(path + ": ok");
    return static_cast<int>(findings.size());
}

} // namespace

int RunValidate(const Arguments& arguments, Console& console) {
    int code = ExitDone;
    int done = 0;
    const int total = static_cast<int>(arguments.operands.size());
    for (const CString& path : arguments.operands) {
        const int found = Validate(path, console);
        if (found < 0)
            code = ExitFailed;
        else if (found > 0 && code == ExitDone)
            code = ExitFindings;
        if (total > 1 && !console.Progress("Validating", ++done, total)) {
            console.Error("interrupted");
            return ExitFailed;
        }
    }
    console.EndProgress();
    return code;
}
