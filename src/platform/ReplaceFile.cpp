#include "platform/ReplaceFile.h"

#include "platform/FileCalls.h"
#include "platform/PartFile.h"
#include "platform/TextNumbers.h"

#include <QFile>
#include <array>
#include <cerrno>
#include <climits>
#include <functional>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int LinkLimit = 40; // as many as the system itself follows
constexpr qsizetype CopyBlock = 256 * 1024;

QByteArray FolderOf(const QByteArray& path) {
    return path.left(path.lastIndexOf('/') + 1);
}

// Replaces the path by that of the file it leads to, which need not be there. The result is an errno or 0.
int FollowLinks(QByteArray& path) {
    for (int count = 0; count <= LinkLimit; ++count) {
        std::array<char, PATH_MAX> buffer;
        const ssize_t length = ::readlink(path.constData(), buffer.data(), buffer.size());
        if (length < 0) // EINVAL: it is there, but no link
            return errno == EINVAL || errno == ENOENT ? 0 : errno;
        if (static_cast<size_t>(length) == buffer.size())
            return ENAMETOOLONG;
        const QByteArray next(buffer.data(), length);
        path = next.startsWith('/') ? next : FolderOf(path) + next;
    }
    return ELOOP;
}

FileResult FindTarget(const CString& path, QByteArray& target) {
    target = NativePath(path);
    if (target.isEmpty())
        return FileFailure(FileNotReached, path.isEmpty() ? ENOENT : EINVAL);
    if (const int error = FollowLinks(target))
        return FileFailure(FileNotReached, error);
    if (target.isEmpty() || target.endsWith('/'))
        return FileFailure(FileNotOrdinary);
    return {};
}

// What stands under the target's name now: nothing, or a file that may be replaced.
FileResult LookAtOld(const QByteArray& target, std::optional<struct stat>& old) {
    struct stat info {};
    if (::lstat(target.constData(), &info) != 0)
        return errno == ENOENT ? FileResult() : FileFailure(FileNotReached, errno);
    if (!S_ISREG(info.st_mode))
        return FileFailure(FileNotOrdinary);
    old = info;
    return {};
}

// Keeps other runs away from the old file until the new one stands in its place.
FileResult GuardOld(const QByteArray& target, FileLock& guard) {
    switch (guard.Take(QFile::decodeName(target))) {
    case LockOutcome::Taken:
    case LockOutcome::NoLocks: return {};
    case LockOutcome::InUse: return FileFailure(FileInUse);
    case LockOutcome::Failed: break;
    }
    const bool refused = errno == EACCES || errno == EPERM || errno == EROFS;
    return FileFailure(refused ? FileWriteProtected : FileNotWritten, errno);
}

// Brings the new name to the disk. The new file already stands in its place, so that this can only warn.
FileResult FlushFolder(const QByteArray& target) {
    const QByteArray folder = FolderOf(target);
    const int handle = OpenFile(folder.isEmpty() ? "." : folder.constData(), O_RDONLY | O_DIRECTORY);
    if (handle < 0)
        return {}; // a folder may be written and not be read
    FileResult result;
    // EINVAL: the file system, often a network share, has no such operation for folders.
    if (TheFileCalls().fsync(handle) != 0 && errno != EINVAL && errno != EINTR && errno != EOPNOTSUPP)
        result.reason = FileFailure(FolderNotFlushed, errno).reason;
    TheFileCalls().close(handle);
    return result;
}

using Fill = std::function<FileResult(PartFile&)>;

enum class Flushing { No, Yes };

FileResult Replace(const CString& path, const Fill& fill, FileLock* lock, Flushing flushing = Flushing::Yes) {
    QByteArray target;
    std::optional<struct stat> old;
    FileLock guard;
    FileResult result = FindTarget(path, target);
    if (result)
        result = LookAtOld(target, old);
    if (result && old && !(lock && lock->Guards(target)))
        result = GuardOld(target, guard);
    if (!result)
        return result;

    PartFile part(target);
    part.RemoveStale();
    result = part.Create(old ? &*old : nullptr);
    if (result)
        result = fill(part);
    if (result && flushing == Flushing::Yes)
        result = part.Flush();
    if (result)
        result = part.MoveOver();
    if (!result)
        return result;
    if (lock)
        *lock = part.GiveLock();
    return flushing == Flushing::Yes ? FlushFolder(target) : result;
}

FileResult CopyInto(PartFile& part, int source) {
    QByteArray block(CopyBlock, Qt::Uninitialized);
    for (;;) {
        const ssize_t count = TheFileCalls().read(source, block.data(), block.size());
        if (count == 0)
            return {};
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return FileFailure(FileNotRead, errno);
        if (FileResult result = part.Write(QByteArrayView(block).first(count)); !result)
            return result;
    }
}

} // namespace

FileResult ReplaceFile(const CString& path, QByteArrayView content, FileLock* lock) {
    return Replace(
        path, [content](PartFile& part) { return part.Write(content); }, lock);
}

FileResult WriteWorkingFile(const CString& path, QByteArrayView content) {
    return Replace(
        path, [content](PartFile& part) { return part.Write(content); }, nullptr, Flushing::No);
}

FileResult ReplaceFileByCopy(const CString& path, const CString& source, FileLock* lock) {
    const int handle = OpenFile(NativePath(source).constData(), O_RDONLY);
    if (handle < 0)
        return FileFailure(FileNotRead, errno);
    struct stat info {};
    const bool readable = ::fstat(handle, &info) == 0 && S_ISREG(info.st_mode);
    FileResult result = readable
                            ? Replace(
                                  path, [handle](PartFile& part) { return CopyInto(part, handle); }, lock)
                            : FileFailure(FileNotOrdinary);
    TheFileCalls().close(handle);
    return result;
}
