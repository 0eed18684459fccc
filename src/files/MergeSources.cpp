#include "files/MergeSources.h"

#include "files/Packing.h"
#include "platform/Folders.h"
#include "platform/Format.h"

#include <QDir>

bool MergeFolders::Prepare() const {
    DeleteFolderTree(Result);
    return EnsureFolder(Result) && EnsureFolder(Sources());
}

bool MergeFolders::MakeResultOf(const MergeSource& source) const {
    // A way round, since the source lies inside the folder whose place it takes.
    const CString aside = Result + "One";
    DeleteFolderTree(aside);
    if (!QDir().rename(source.folder, aside))
        return false;
    DeleteFolderTree(Result);
    return QDir().rename(aside, Result);
}

void MergeFolders::RemoveSources() const {
    DeleteFolderTree(Sources());
}

CString MergeFolders::SourceFolder(int index) const {
    return Sources() + "/" + FormatInt(index);
}

MergeSource UnpackMergeSource(const MergeFolders& folders, int index, const CString& path,
                              CString* outReason) {
    const CString folder = folders.SourceFolder(index);
    EnsureFolder(folder);
    UnpackStandard(path, folder, nullptr, outReason);
    return {path, folder, folder + "/" + path.mid(path.lastIndexOf('/') + 1)};
}
