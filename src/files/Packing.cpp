#include "files/Packing.h"

#include "engines/FolderServices.h"
#include "files/StandardFile.h"
#include "files/XmlDocument.h"
#include "platform/Archive.h"
#include "platform/LanguageLibrary.h"
#include "platform/ReplaceFile.h"
#include "platform/TextNumbers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

void Give(CString* out, const CString& text) {
    if (out)
        *out = text;
}

CString FileNameOf(const CString& path) {
    return path.mid(path.lastIndexOf('/') + 1);
}

// Only a file that stands in the way needs the care, and the cost, of a replacement.
FileResult CopyTo(const CString& target, const CString& source) {
    if (QFileInfo::exists(target) || QFileInfo(target).isSymLink())
        return ReplaceFileByCopy(target, source);
    QFile file(source);
    if (file.copy(target))
        return {};
    return {false, LoadString(FileNotWritten).replace("%1", file.errorString())};
}

// The second attempt, through a copy in the folder, is for paths that the zip layer cannot open.
ArchiveResult Unzip(const CString& source, const CString& folder) {
    ArchiveResult result = ExtractArchive(source, folder);
    if (result.status != ArchiveStatus::Unreadable || !QFileInfo(source).isFile())
        return result;
    const CString name = FileNameOf(source);
    const qsizetype dot = name.lastIndexOf('.');
    const CString copy = folder + "/" + (dot < 0 ? name + "1" : name.left(dot) + "1" + name.mid(dot));
    if (QFileInfo::exists(copy) || !QFile::copy(source, copy))
        return result;
    result = ExtractArchive(copy, folder);
    QFile::remove(copy);
    return result;
}

bool BeginsAsArchive(const CString& path) {
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) && file.read(2) == "PK";
}

// A file that does not even begin as an archive was meant to be plain XML.
CString ReasonOf(const ArchiveResult& result, const CString& source) {
    return result.text == ArchiveCannotOpen && !BeginsAsArchive(source) ? WhyNoStandard(source)
                                                                        : result.Words();
}

// The first file in the folder or under it that is a standard by its name; empty where there is none.
CString FindStandard(const CString& folder) {
    CStringArray files;
    CStringArray folders;
    ListTree(folder, files, folders, true);
    for (const CString& file : files)
        if (file.endsWith(".kvstd", Qt::CaseInsensitive))
            return file;
    return {};
}

// A name for the archive that is nobody else's file.
CString FreeZipName(const CString& folder, const CString& target) {
    CString path = QDir::cleanPath(folder);
    const CString stem = path;
    path += ".zip";
    for (int number = 1; QFileInfo::exists(path) || QFileInfo(path).isSymLink() ||
                         QFileInfo(path).absoluteFilePath() == QFileInfo(target).absoluteFilePath();
         ++number)
        path = stem + "." + CString::number(number) + ".zip";
    return path;
}

} // namespace

int UnpackStandard(const CString& source, const CString& folder, CString* outName, CString* outReason) {
    const CString name = FileNameOf(source);
    const CString wanted = folder + "/" + name;
    Give(outReason, {});
    if (IsStandardFile(source, false)) {
        const FileResult result = CopyTo(wanted, source);
        Give(outReason, result.reason);
        if (result)
            Give(outName, name);
        return result ? 1 : 0;
    }
    if (const ArchiveResult result = Unzip(source, folder); !result) {
        Give(outReason, ReasonOf(result, source));
        return 0;
    }
    const CString found = FindStandard(folder);
    if (found.isEmpty())
        return 1;
    const CString foundName = FileNameOf(found);
    const bool renamed = foundName != name && QFile::rename(found, wanted);
    Give(outName, renamed ? name : foundName);
    return 1;
}

int PackFolder(const CString& target, const CString& folder, CString* outReason, FileLock* lock) {
    const CString zip = FreeZipName(folder, target);
    if (const ArchiveResult packed = WriteArchive(zip, folder); !packed) {
        Give(outReason, packed.Words());
        return 0;
    }
    const FileResult replaced = ReplaceFileByCopy(target, zip, lock);
    QFile::remove(zip);
    Give(outReason, replaced.reason);
    return replaced ? 1 : 0;
}

CString WhyNoStandard(const CString& path) {
    CXmlDocument document;
    return document.Load(path, false) ? LoadString(PackingNoStandard) : document.GetLoadError();
}
