// The merge: one standard out of two or more files. Checks are moved as they stand in the files; of a type
// that several files have, the check of the last one counts, entirely.
#pragma once

#include "files/MergeNotes.h"
#include "files/MergeSources.h"

// The path that the user chooses for the result; empty where he gives up.
using AskMergePath = std::function<CString()>;

// The merge of the dialog, under the run folder `folder`: the first standard of the list is the base, the
// result is packed to the path that `ask` gives. 1 when done; 0 after a message, or where no path was chosen,
// and then the folder "Merge" keeps what was merged.
int MergeListedStandards(const CString& folder, const CStringArray& files, const AskMergePath& ask,
                         CString& outPath, const MergeProgress& progress = {});

struct MergeOptions {
    bool reporting = false; // tell the user of rejected files
    MergeProgress progress;
};

struct MergeOutcome {
    CString fileName;             // of the result in the folder "Merge"
    CString failure;              // why there is no result, where it is not for want of a standard
    CStringArray rejectedReasons; // beside the list of rejected files
    std::vector<MergeWarning> warnings;
};

// The merge without a dialog: leaves the result unpacked in "<folder>/Merge", as "Merged.kvstd", or under
// its own name where only one file is a standard. Files that are no standards move from `files` to
// `rejected`. `report` takes the lines of MergeNotes::Report. 1 when done, 0 where there is no result.
int MergeStandardFiles(const CString& folder, CStringArray& files, CStringArray& rejected,
                       CStringArray& report, MergeOutcome& outcome, const MergeOptions& options = {});
