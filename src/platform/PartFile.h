// The new content of a user's file while it is being written: a hidden file ".<name>.<16 hex digits>.part"
// beside the target, locked from its first moment, and removed again unless it took the target's place.
// What a killed run leaves behind is cleared by the next save of the same target.
#pragma once

#include "platform/FileLock.h"
#include "platform/FileResult.h"

#include <QByteArray>
#include <QByteArrayView>
#include <sys/stat.h>

class PartFile {
public:
    // Nothing is made before Create. `target` is a path without links.
    explicit PartFile(const QByteArray& target);
    ~PartFile();
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    // Removes the part files of this target that no run holds a lock on. Failures are of no matter.
    void RemoveStale() const;

    // Makes the file: with owner and mode of `old`, or as the user's umask says where there is none.
    FileResult Create(const struct stat* old);
    FileResult Write(QByteArrayView data);
    // Brings everything to the disk.
    FileResult Flush();
    // Renames it over the target.
    FileResult MoveOver();
    // After MoveOver: the lock on what is the target now; nothing where the file system knows no locks.
    FileLock GiveLock();

private:
    enum class Made { Yes, Taken, Failed };

    Made MakeOne(mode_t mode);
    FileResult KeepRights(const struct stat& old);
    void RemoveIfStale(const QByteArray& path) const;
    void Discard();

    QByteArray m_target;
    QByteArray m_stem; // the path of a part file up to its digits
    QByteArray m_path; // of the file that was made, until it took the target's place
    int m_handle = -1;
    bool m_locked = false;
};
