#include "engines/PathServices.h"

#include "platform/Message.h"

#include <QDir>
#include <initializer_list>
#include <system_error>

namespace {

bool IsSeparator(QChar c) {
    return c == u'\\' || c == u'/';
}

bool HasExtension(const CString& path, std::initializer_list<const char*> extensions) {
    const CString extension = CPathParts(path).Extension;
    for (const char* known : extensions)
        if (extension.compare(QLatin1String(known), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

// Closes the folder with ")" and leaves out its middle where it has more than three levels.
CString ShortenFolder(const CString& folder, QChar separator) {
    const CString closed = folder.isEmpty() ? CString(")") : folder.chopped(1) + u')';
    qsizetype second = -1;
    qsizetype fourth = -1;
    for (int count = 1; count <= 4; ++count) {
        fourth = folder.indexOf(separator, fourth + 1);
        if (fourth < 0 || fourth == folder.size() - 1)
            return closed;
        if (count == 2)
            second = fourth;
    }
    const qsizetype lastButOne = folder.lastIndexOf(separator, folder.lastIndexOf(separator) - 1);
    return folder.left(second + 1) + "..." + closed.mid(lastButOne);
}

} // namespace

CPathParts::CPathParts(const CString& path) : Path(path) {
    const qsizetype drive = path.size() >= 2 && path[1] == u':' ? 2 : 0;
    qsizetype name = path.size();
    while (name > drive && !IsSeparator(path[name - 1]))
        --name;
    const qsizetype point = path.lastIndexOf(u'.');
    const qsizetype extension = point >= name ? point : path.size();
    Drive = path.left(drive);
    Folder = path.mid(drive, name - drive);
    Name = path.mid(name, extension - name);
    Extension = path.mid(extension);
}

void CPathParts::GetFileName(CString& out) const {
    out = Name + Extension;
}

void CPathParts::GetFolderPath(CString& out) const {
    out = Drive + Folder;
}

void CPathParts::GetFolderNoSlash(CString& out) const {
    GetFolderPath(out);
    if (out.size() >= 3 && IsSeparator(out.back()) && out[out.size() - 2] != u':')
        out.chop(1);
}

void CPathParts::GetExtension(CString& out) const {
    out = Extension;
}

CString ToBackslashes(const CString& path) {
    CString changed = path;
    return path.size() < 3 ? path : changed.replace(u'/', u'\\');
}

CString GetTempFolder() {
    // Asked for by itself: Qt would turn a folder that does not exist yet into the root folder.
    CString folder = qEnvironmentVariable("TMPDIR");
    if (folder.isEmpty())
        folder = QDir::tempPath();
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

bool ToLongPath(CString&) {
    return false;
}

void ShortenPathForDisplay(CPathParts& parts, CString& path) {
    const QChar separator = path.contains(u'\\') ? u'\\' : u'/';
    if (!path.contains(separator))
        return;
    ToLongPath(path);
    parts = CPathParts(path);
    path = parts.Name + parts.Extension + " (" + parts.Drive + ShortenFolder(parts.Folder, separator);
}

int GetDocumentKind(const CString& path) {
    if (HasExtension(path, {".kvprt", ".prt", ".kvprtt"}))
        return 1;
    if (HasExtension(path, {".kvasm", ".asm", ".kvasmt"}))
        return 2;
    return HasExtension(path, {".kvdrw", ".drw", ".kvdrwt"}) ? 3 : 0;
}

bool IsDwgFile(const CString& path) {
    return HasExtension(path, {".dwg"});
}

bool IsDraftingStandardFile(const CString& path) {
    return HasExtension(path, {".kvdstd"});
}

int ShowSystemMessage(int code) {
    if (code == 0)
        return 0;
    ShowMessage(CString::fromLocal8Bit(std::generic_category().message(code).c_str()));
    return 1;
}
