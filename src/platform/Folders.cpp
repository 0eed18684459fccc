#include "platform/Folders.h"

#include "platform/FileLock.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

// The names in a folder, not following a link that stands in its place. Read to the end before anything is
// removed, so that a deep tree does not need an open handle for each level.
bool ListFolder(const QByteArray& path, std::vector<QByteArray>& names) {
    const int handle = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (handle < 0)
        return false;
    const std::unique_ptr<DIR, int (*)(DIR*)> list(::fdopendir(handle), ::closedir);
    if (!list) {
        ::close(handle);
        return false;
    }
    while (const dirent* entry = ::readdir(list.get()))
        if (qstrcmp(entry->d_name, ".") != 0 && qstrcmp(entry->d_name, "..") != 0)
            names.emplace_back(entry->d_name);
    return true;
}

void DeleteTree(const QByteArray& path) {
    std::vector<QByteArray> names;
    if (!ListFolder(path, names)) {
        ::unlink(path.constData()); // a file or a link; a folder that cannot be read stays
        ::rmdir(path.constData());
        return;
    }
    for (const QByteArray& name : names)
        DeleteTree(path + '/' + name);
    ::rmdir(path.constData());
}

bool MakePrivateFolder(const QByteArray& path) {
    return ::mkdir(path.constData(), S_IRWXU) == 0;
}

// Makes one level, or takes one that is there if it is a true folder of this user, and closes it to others.
bool EnsurePrivateFolder(const CString& path) {
    const QByteArray native = NativePath(path);
    if (MakePrivateFolder(native))
        return true;
    const int handle = ::open(native.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (handle < 0)
        return false;
    struct stat info {};
    bool own = ::fstat(handle, &info) == 0 && info.st_uid == ::geteuid();
    if (own && (info.st_mode & 0777) != S_IRWXU)
        own = ::fchmod(handle, S_IRWXU) == 0;
    ::close(handle);
    return own;
}

CString TwoDigits(int number) {
    return CString("%1").arg(number, 2, 10, QChar(u'0'));
}

} // namespace

bool EnsureFolder(const CString& path) {
    const QByteArray native = NativePath(path);
    return ::access(native.constData(), R_OK | W_OK) == 0 || MakePrivateFolder(native);
}

void DeleteFolderTree(const CString& path) {
    QByteArray native = NativePath(path);
    while (native.size() > 1 && native.endsWith('/'))
        native.chop(1); // "link/" would lead through the link
    if (!native.isEmpty())
        DeleteTree(native);
}

CString MakeRunStamp(const COleDateTime& time) {
    const QDate day = time.date();
    const QTime clock = time.time();
    return TwoDigits(day.year() % 100) + TwoDigits(day.month()) + TwoDigits(day.day()) +
           TwoDigits(clock.hour()) + TwoDigits(clock.minute()) + TwoDigits(clock.second()) +
           CString::number(clock.msec());
}

CString MakeStampFolder(const CString& parent, COleDateTime time) {
    for (int attempt = 0; attempt < 1000; ++attempt, time = time.addMSecs(1)) {
        const CString path = parent + "/" + MakeRunStamp(time);
        if (MakePrivateFolder(NativePath(path)))
            return path;
        if (errno != EEXIST)
            break;
    }
    return {};
}

CString TemporaryFolder() {
    const CString told = QFile::decodeName(qgetenv("TMPDIR"));
    if (!told.isEmpty())
        return QDir::cleanPath(QDir::current().absoluteFilePath(told));
    const CString own = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    QDir().mkpath(own);
    return own;
}

CString PrepareRunFolder(const COleDateTime& time) {
    CString parent = TemporaryFolder();
    bool made = true;
    for (const char* level : {"/Ruleward", "/2026", "/CheckBuilder"}) {
        parent += level;
        made = made && EnsurePrivateFolder(parent);
    }
    const CString folder = made ? MakeStampFolder(parent, time) : CString();
    return folder.isEmpty() ? "/CheckBuilder/" + MakeRunStamp(time) : folder;
}
