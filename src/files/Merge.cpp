#include "files/Merge.h"

#include "files/Packing.h"
#include "files/StandardFile.h"
#include "platform/Folders.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/TextNumbers.h"

#include <QFileInfo>

namespace {

constexpr unsigned NoStandardAtAll = 2129; // the path of the last file follows
constexpr unsigned NoStandardSkipped = 2130;
constexpr unsigned FilesRejected = 2401; // the paths follow, one a line
const char* const BatchName = "Merged.kvstd";

CString FolderFailure(const MergeFolders& folders) {
    return LoadString(MergeFolderNotMade).replace("%1", folders.Result);
}

int Fail(const CString& path, const CString& reason) {
    ShowMessage(path + "\n" + reason);
    return 0;
}

// The index of the first standard, which `tree` opens; -1, after a message, where there is none.
int OpenFirstStandard(const std::vector<MergeSource>& sources, MergeTree& tree) {
    const int count = static_cast<int>(sources.size());
    for (int i = 0; i < count; ++i) {
        if (tree.OpenBase(sources[i]))
            return i;
        ShowMessage(LoadString(i + 1 < count ? NoStandardSkipped : NoStandardAtAll) + sources[i].listed);
    }
    return -1;
}

// Of a file that was unpacked.
CString ReasonOf(const MergeSource& source) {
    return QFileInfo::exists(source.xmlPath) ? WhyNoStandard(source.xmlPath) : LoadString(PackingNoStandard);
}

// Unpacks every file, and sorts out those that are no standards.
std::vector<MergeSource> UnpackStandards(const MergeFolders& folders, CStringArray& files,
                                         CStringArray& rejected, CStringArray& reasons, MergeSteps& steps) {
    std::vector<MergeSource> sources;
    CStringArray taken;
    for (int i = 0; i < files.size(); ++i) {
        CString reason;
        const MergeSource source = UnpackMergeSource(folders, i, files[i], &reason);
        if (IsStandardFile(source.xmlPath, false)) {
            sources.push_back(source);
            taken.append(files[i]);
        } else {
            rejected.append(files[i]);
            reasons.append(reason.isEmpty() ? ReasonOf(source) : reason);
        }
        steps.Next();
    }
    files = taken;
    return sources;
}

CString MergeAll(const MergeFolders& folders, const std::vector<MergeSource>& sources, MergeTree& tree,
                 MergeSteps& steps) {
    tree.MoveSideFoldersOfBase(sources[0]);
    for (size_t i = 1; i < sources.size(); ++i) {
        tree.Take(sources[i]);
        steps.Next();
    }
    folders.RemoveSources();
    return tree.Save(folders.Result + "/" + BatchName);
}

} // namespace

int MergeListedStandards(const CString& folder, const CStringArray& files, const AskMergePath& ask,
                         CString& outPath, const MergeProgress& progress) {
    const MergeFolders folders(folder);
    if (!folders.Prepare())
        return Fail(folder, FolderFailure(folders));
    MergeSteps steps(progress, files.size());
    std::vector<MergeSource> sources;
    for (int i = 0; i < files.size(); ++i) {
        sources.push_back(UnpackMergeSource(folders, i, files[i]));
        steps.Next();
    }
    MergeNotes notes;
    MergeTree tree(folders.Result, notes);
    const int base = OpenFirstStandard(sources, tree);
    if (base < 0)
        return 0;
    // The base is its own first source: that moves its live checks behind its deleted ones.
    for (size_t i = static_cast<size_t>(base); i < sources.size(); ++i) {
        tree.Take(sources[i]);
        steps.Next();
    }
    steps.Finish();
    const CString path = ask();
    if (path.isEmpty())
        return 0;
    CString reason = tree.Save(folders.Result + "/" + path.mid(path.lastIndexOf('/') + 1));
    folders.RemoveSources();
    const bool packed = reason.isEmpty() && PackFolder(path, folders.Result, &reason) == 1;
    DeleteFolderTree(folders.Result);
    if (!packed)
        return Fail(path, reason);
    outPath = path;
    return 1;
}

int MergeStandardFiles(const CString& folder, CStringArray& files, CStringArray& rejected,
                       CStringArray& report, MergeOutcome& outcome, const MergeOptions& options) {
    const MergeFolders folders(folder);
    if (!folders.Prepare()) {
        outcome.failure = FolderFailure(folders);
        return 0;
    }
    MergeSteps steps(options.progress, files.size());
    const std::vector<MergeSource> sources =
        UnpackStandards(folders, files, rejected, outcome.rejectedReasons, steps);
    if (!rejected.isEmpty() && options.reporting)
        ShowMessage(LoadString(FilesRejected) + "\n" + rejected.join('\n'));
    MergeNotes notes;
    MergeTree tree(folders.Result, notes);
    if (sources.empty() || !tree.OpenBase(sources[0]))
        return 0;
    if (sources.size() == 1) {
        outcome.fileName = sources[0].xmlPath.mid(sources[0].folder.size() + 1);
        if (!folders.MakeResultOf(sources[0]))
            outcome.failure = FolderFailure(folders);
    } else {
        outcome.fileName = BatchName;
        outcome.failure = MergeAll(folders, sources, tree, steps);
    }
    steps.Finish();
    report = notes.Report();
    outcome.warnings = notes.Warnings();
    return outcome.failure.isEmpty() ? 1 : 0;
}
