#include "platform/FileLock.h"

#include "platform/FileCalls.h"

#include <QFile>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

bool IsFileAt(int handle, const QByteArray& path) {
    struct stat open {};
    struct stat named {};
    return ::fstat(handle, &open) == 0 && ::stat(path.constData(), &named) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

} // namespace

FileLock::FileLock(int handle, const QByteArray& path) : m_handle(handle), m_path(path) {}

FileLock::FileLock(FileLock&& other) noexcept
    : m_handle(std::exchange(other.m_handle, -1)), m_path(std::exchange(other.m_path, {})) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
    if (this != &other) {
        Release();
        m_handle = std::exchange(other.m_handle, -1);
        m_path = std::exchange(other.m_path, {});
    }
    return *this;
}

FileLock::~FileLock() {
    Release();
}

LockOutcome FileLock::Take(const CString& path) {
    Release();
    const QByteArray native = NativePath(path);
    // A save by another run may replace the file between opening and locking: then the lock would be on a
    // file that nobody sees any more. That can happen again, but not for ever.
    for (int attempt = 0; attempt < 100; ++attempt) {
        const int handle = OpenFile(native.constData(), O_WRONLY);
        if (handle < 0)
            return LockOutcome::Failed;
        const LockOutcome outcome = LockHandle(handle);
        if (outcome == LockOutcome::Taken && IsFileAt(handle, native)) {
            m_handle = handle;
            m_path = native;
            return outcome;
        }
        const int error = errno;
        TheFileCalls().close(handle);
        errno = error;
        if (outcome != LockOutcome::Taken)
            return outcome;
    }
    return LockOutcome::InUse;
}

bool FileLock::IsHeld() const {
    return Guards(m_path);
}

bool FileLock::Guards(const QByteArray& path) const {
    return m_handle >= 0 && IsFileAt(m_handle, path);
}

void FileLock::Release() {
    if (m_handle >= 0)
        TheFileCalls().close(std::exchange(m_handle, -1));
    m_path.clear();
}

LockOutcome LockHandle(int handle) {
    struct flock whole {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    int result;
    do
        result = TheFileCalls().lock(handle, &whole);
    while (result < 0 && errno == EINTR);
    if (result == 0)
        return LockOutcome::Taken;
    switch (errno) {
    case EAGAIN:
    case EACCES: return LockOutcome::InUse;
    case ENOLCK:
    case ENOSYS:
    case EINVAL:
    case EOPNOTSUPP: return LockOutcome::NoLocks;
    default: return LockOutcome::Failed;
    }
}

QByteArray NativePath(const CString& path) {
    return path.contains(QChar(u'\0')) ? QByteArray() : QFile::encodeName(path);
}
