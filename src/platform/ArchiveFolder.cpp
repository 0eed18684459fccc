#include "platform/ArchiveFolder.h"

#include "platform/ArchiveNames.h"
#include "platform/TextNumbers.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

ArchiveFolder::~ArchiveFolder() {
    for (auto made = m_made.rbegin(); made != m_made.rend(); ++made)
        ::unlinkat(m_folder.Get(), made->path.constData(), made->folder ? AT_REMOVEDIR : 0);
}

ArchiveResult ArchiveFolder::Open(const CString& folder) {
    m_folder = Descriptor(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!m_folder)
        return ArchiveFailed(ArchiveCannotStore, folder, errno);
    return {};
}

ArchiveResult ArchiveFolder::MakeFolder(const CString& path) {
    for (qsizetype at = 0; at >= 0;) {
        at = path.indexOf(u'/', at);
        if (ArchiveResult result = MakeLevel(path.left(at)); !result)
            return result;
        if (at >= 0)
            ++at;
    }
    return {};
}

ArchiveResult ArchiveFolder::MakeLevel(const CString& path) {
    if (m_levels.contains(path))
        return {};
    const QByteArray name = QFile::encodeName(path);
    if (::mkdirat(m_folder.Get(), name.constData(), 0777) == 0) {
        m_made.push_back({name, true});
    } else {
        if (errno != EEXIST)
            return ArchiveFailed(ArchiveCannotStore, ShownArchiveName(path), errno);
        struct stat known {};
        if (::fstatat(m_folder.Get(), name.constData(), &known, AT_SYMLINK_NOFOLLOW) != 0 ||
            !S_ISDIR(known.st_mode))
            return ArchiveRefused(ArchiveFolderBlocked, ShownArchiveName(path));
    }
    m_levels.insert(path);
    return {};
}

ArchiveResult ArchiveFolder::MakeFile(const CString& path, Descriptor& out) {
    if (const qsizetype end = path.lastIndexOf(u'/'); end >= 0)
        if (ArchiveResult result = MakeFolder(path.left(end)); !result)
            return result;
    const QByteArray name = QFile::encodeName(path);
    constexpr int NewFile = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    out = Descriptor(::openat(m_folder.Get(), name.constData(), NewFile, 0666));
    if (!out && errno == EEXIST)
        return ArchiveRefused(ArchiveFileStands, ShownArchiveName(path));
    if (!out)
        return ArchiveFailed(ArchiveCannotStore, ShownArchiveName(path), errno);
    m_made.push_back({name, false});
    return {};
}
