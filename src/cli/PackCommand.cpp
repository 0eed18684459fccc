#include "cli/CommandTable.h"
#include "cli/OpenedStandard.h"
#include "files/Packing.h"
#include "files/StandardFile.h"

#include <QDir>
#include <QFileInfo>

namespace {

// Why a folder cannot be packed; empty where it can.
CString WhyNotPackable(const CString& folder) {
    if (!QFileInfo(folder).isDir())
        return "this is not a folder";
    const CStringArray standards = QDir(folder).entryList({"*.kvstd"}, QDir::Files | QDir::Hidden);
    if (standards.isEmpty())
        return "the folder holds no .kvstd file";
    if (standards.size() > 1)
        return "the folder holds more than one .kvstd file";
    if (IsStandardFile(folder + "/" + standards[0], false) == 0)
        return standards[0] + " is not the XML of a standard";
    return {};
}

bool IsWithin(const QFileInfo& file, const QFileInfo& folder) {
    return QDir::cleanPath(file.absoluteFilePath())
        .startsWith(QDir::cleanPath(folder.absoluteFilePath()) + "/");
}

// The folders on the way to `folder` that are not there yet, the deepest first.
CStringArray MissingFolders(const CString& folder) {
    CStringArray missing;
    for (CString path = folder; !QFileInfo::exists(path); path = QFileInfo(path).path())
        missing.append(path);
    return missing;
}

} // namespace

int RunPack(const Arguments& arguments, Console& console) {
    const CString target = arguments.operands[1];
    // The archive is made beside the folder, whose name must stand on its own for that.
    CString folder = QDir::cleanPath(arguments.operands[0]);
    if (folder == "." || folder.endsWith(".."))
        folder = QDir::cleanPath(QDir(folder).absolutePath());
    CString reason = WhyNotPackable(folder);
    if (!reason.isEmpty()) {
        console.Error(arguments.operands[0], reason);
        return ExitFailed;
    }
    if (IsWithin(QFileInfo(target), QFileInfo(folder)))
        reason = "the archive cannot lie in the folder that is packed";
    const bool packed = reason.isEmpty() && PackFolder(target, folder, &reason) == 1;
    console.TellOfSave(target, packed, reason);
    return packed ? ExitDone : ExitFailed;
}

int RunUnpack(const Arguments& arguments, Console& console) {
    const CString source = arguments.operands[0];
    const CString folder = QDir::cleanPath(QFileInfo(arguments.operands[1]).absoluteFilePath());
    if (const CString reason = WhyNotReadable(source); !reason.isEmpty()) {
        console.Error(source, reason);
        return ExitFailed;
    }
    const CStringArray made = MissingFolders(folder);
    if (!QDir().mkpath(folder)) {
        console.Error(arguments.operands[1], "the folder cannot be made");
        return ExitFailed;
    }
    // Whatever stands there could be taken for a part of the standard.
    if (!QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
        console.Error(arguments.operands[1], "the folder is not empty");
        return ExitFailed;
    }
    CString name;
    CString reason;
    if (UnpackStandard(source, folder, &name, &reason) != 1) {
        console.Error(source, reason);
        for (const CString& path : made)
            QDir().rmdir(path);
        return ExitFailed;
    }
    if (!name.isEmpty())
        return ExitDone;
    console.Warn(source + ": the archive holds no standard");
    return ExitFindings;
}
