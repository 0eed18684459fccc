#include "platform/PartFile.h"

#include "platform/FileCalls.h"
#include "platform/TextNumbers.h"

#include <QRandomGenerator>
#include <algorithm>
#include <cerrno>
#include <climits>
#include <dirent.h>
#include <memory>
#include <unistd.h>
#include <utility>

namespace {

constexpr char Suffix[] = ".part";
constexpr qsizetype DigitCount = 16;
constexpr qsizetype SuffixLength = sizeof Suffix - 1;

// The name of a part file up to its digits, so short that the whole fits where the target's own name does.
QByteArray StemOf(const QByteArray& name) {
    qsizetype length = std::min<qsizetype>(name.size(), NAME_MAX - DigitCount - SuffixLength - 2);
    if (length < name.size())
        while (length > 0 && (name[length] & 0xC0) == 0x80)
            --length; // no character is cut in two: some file systems refuse that
    return "." + name.left(length) + ".";
}

bool IsPartName(const QByteArray& name, const QByteArray& stem) {
    if (name.size() != stem.size() + DigitCount + SuffixLength || !name.startsWith(stem) ||
        !name.endsWith(Suffix))
        return false;
    const QByteArray digits = name.mid(stem.size(), DigitCount);
    return std::all_of(digits.begin(), digits.end(),
                       [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
}

} // namespace

PartFile::PartFile(const QByteArray& target) : m_target(target) {
    const qsizetype name = target.lastIndexOf('/') + 1;
    m_stem = target.left(name) + StemOf(target.mid(name));
}

PartFile::~PartFile() {
    Discard();
}

void PartFile::RemoveStale() const {
    const qsizetype name = m_stem.lastIndexOf('/') + 1;
    const QByteArray folder = name == 0 ? QByteArray("./") : m_stem.left(name);
    const std::unique_ptr<DIR, int (*)(DIR*)> list(::opendir(folder.constData()), ::closedir);
    if (!list)
        return;
    while (const dirent* entry = ::readdir(list.get()))
        if (IsPartName(entry->d_name, m_stem.mid(name)))
            RemoveIfStale(folder + entry->d_name);
}

// Only what a run of this user made and nobody writes any more: a part file is locked as long as it is used.
void PartFile::RemoveIfStale(const QByteArray& path) const {
    const int handle = OpenFile(path.constData(), O_WRONLY | O_NOFOLLOW);
    if (handle < 0)
        return;
    struct stat info {};
    if (::fstat(handle, &info) == 0 && S_ISREG(info.st_mode) && info.st_uid == ::geteuid() &&
        info.st_nlink == 1 && LockHandle(handle) == LockOutcome::Taken)
        TheFileCalls().unlink(path.constData());
    TheFileCalls().close(handle);
}

FileResult PartFile::Create(const struct stat* old) {
    // Until it has the old one's owner and mode, nobody else may look into the new one.
    const mode_t mode = old ? S_IRUSR | S_IWUSR : 0666;
    Made made = Made::Taken;
    for (int attempt = 0; made == Made::Taken && attempt < 100; ++attempt)
        made = MakeOne(mode);
    if (made != Made::Yes)
        return FileFailure(FolderNotWritable, made == Made::Taken ? EEXIST : errno);
    return old ? KeepRights(*old) : FileResult();
}

PartFile::Made PartFile::MakeOne(mode_t mode) {
    const QByteArray digits =
        QByteArray::number(QRandomGenerator::system()->generate64(), 16).rightJustified(DigitCount, '0');
    const QByteArray path = m_stem + digits + Suffix;
    m_handle = OpenFile(path.constData(), O_RDWR | O_CREAT | O_EXCL, mode);
    if (m_handle < 0)
        return errno == EEXIST ? Made::Taken : Made::Failed;
    m_path = path;
    // Another run that clears old part files may have met this one before it was locked.
    const LockOutcome outcome = LockHandle(m_handle);
    struct stat info {};
    if (outcome == LockOutcome::InUse || ::fstat(m_handle, &info) != 0 || info.st_nlink == 0) {
        Discard();
        return Made::Taken;
    }
    m_locked = outcome == LockOutcome::Taken;
    return Made::Yes;
}

FileResult PartFile::KeepRights(const struct stat& old) {
    // Only an administrator may give a file away, and only into a group of one's own: what the system does
    // not allow is let be. Done before the mode, since a change of owner may clear bits of it.
    bool kept = ::fchown(m_handle, old.st_uid, old.st_gid) == 0;
    kept = kept || ::fchown(m_handle, -1, old.st_gid) == 0;
    static_cast<void>(kept);
    struct stat info {};
    const mode_t mode = old.st_mode & 07777;
    // Where the file system gives every file the same mode, changing it may fail although nothing is amiss.
    if (::fstat(m_handle, &info) == 0 && (info.st_mode & 07777) == mode)
        return {};
    return TheFileCalls().fchmod(m_handle, mode) == 0 ? FileResult() : FileFailure(FileModeNotKept, errno);
}

FileResult PartFile::Write(QByteArrayView data) {
    while (!data.isEmpty()) {
        const ssize_t count = TheFileCalls().write(m_handle, data.data(), data.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) // a disk that takes nothing and gives no cause must not be asked for ever
            return FileFailure(FileNotWritten, count < 0 ? errno : EIO);
        data = data.sliced(count);
    }
    return {};
}

FileResult PartFile::Flush() {
    int result;
    do
        result = TheFileCalls().fsync(m_handle);
    while (result != 0 && errno == EINTR);
    if (result != 0) // never asked twice: the second answer would be "ok" without the data being there
        return FileFailure(FileNotFlushed, errno);
    // A network share may report a lost write at closing only, and that must come out before the old file
    // goes. A copy of the handle keeps the lock.
    const int copy = ::fcntl(m_handle, F_DUPFD_CLOEXEC, 0);
    if (copy < 0)
        return FileFailure(FileNotFlushed, errno);
    if (TheFileCalls().close(std::exchange(m_handle, copy)) != 0 && errno != EINTR)
        return FileFailure(FileNotFlushed, errno);
    return {};
}

FileResult PartFile::MoveOver() {
    if (TheFileCalls().rename(m_path.constData(), m_target.constData()) != 0)
        return FileFailure(FileNotReplaced, errno);
    m_path.clear();
    return {};
}

FileLock PartFile::GiveLock() {
    return m_locked ? FileLock(std::exchange(m_handle, -1), m_target) : FileLock();
}

void PartFile::Discard() {
    if (!m_path.isEmpty())
        TheFileCalls().unlink(m_path.constData());
    m_path.clear();
    if (m_handle >= 0)
        TheFileCalls().close(std::exchange(m_handle, -1));
}
