// How a document takes a standard from a file.
#include "files/Packing.h"
#include "files/StandardFile.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "shell/AdminModuleDoc.h"

#include <QFileInfo>

namespace {

// What GetFileVersion makes of a file.
enum FileAge { Refused = 0, Own = 1, Later = 2, Earlier = 3 };

} // namespace

bool CAdminModuleDoc::OnOpenDocument(const CString& path) {
    if (IsPathOpen(path))
        return false;
    if (!LockUserFile(path))
        return false;
    UserPath = path;
    CString reason;
    if (UnpackStandard(path, TempFolder, nullptr, &reason) != 1) {
        ShowMessage(LoadString(2040) + "\n" + path + (reason.isEmpty() ? CString() : "\n" + reason));
        return false;
    }
    const CString workingPath = WorkingPathOf(path);
    WorkingFileLock.Take(workingPath);
    const int age = ProbeStandardVersion(workingPath);
    if (age == Refused)
        return false;
    if (age != Own)
        ReportVersionMismatch();
    if (age == Later || !Standard.LoadFromFile(workingPath))
        return false;
    Loaded = 1;
    WorkingFile = workingPath;
    return true;
}

// A file that cannot be locked is opened all the same where the user wants it, and is not written then.
bool CAdminModuleDoc::LockUserFile(const CString& path) {
    ReadOnly = 0;
    const LockOutcome outcome = UserFileLock.Take(path);
    if (outcome == LockOutcome::Taken || outcome == LockOutcome::NoLocks)
        return true;
    ReadOnly = ShowMessage(LoadString(1588), MessageButtons::YesNo) == MessageAnswer::Yes;
    return ReadOnly != 0;
}

int CAdminModuleDoc::ProbeStandardVersion(const CString& path) {
    return ::GetFileVersion(path, FileVersion);
}

void CAdminModuleDoc::ReportVersionMismatch() const {
    if (FileVersion > ToolVersion) {
        const CString text = LoadString(2409).replace("%1", FormatInt(FileVersion));
        ShowMessage(CString(text).replace("%2", FormatInt(ToolVersion)));
    } else if (FileVersion < ToolVersion) {
        ShowMessage(LoadString(2410).replace("%1", UserPath));
    }
}

CString CAdminModuleDoc::WorkingPathOf(const CString& userPath) const {
    return TempFolder + "/" + QFileInfo(userPath).fileName();
}
