// A lock on a user's file while it is open: "read and write, others may read".
//
// The lock belongs to the open file, not to the process: it is gone when it is released, when its object
// ends and when the process is killed, and it does not care what else the process opens and closes.
// It keeps other runs of the program out; programs that ask for no lock are not hindered.
#pragma once

#include "platform/Text.h"

#include <QByteArray>

enum class LockOutcome {
    Taken,
    InUse,   // somebody else holds it
    NoLocks, // the file system knows no locks
    Failed   // the cause is in errno
};

class FileLock {
public:
    FileLock() = default;
    // Takes over an open handle that LockHandle has locked; `path` is the file it was opened by.
    FileLock(int handle, const QByteArray& path);
    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;
    ~FileLock();

    // Locks the file that the path leads to at this moment, in place of what this object held.
    // The file must be there and writable. Only with Taken is anything held afterwards.
    LockOutcome Take(const CString& path);

    // Whether the lock is held and still guards the path: another program may have put a new file there.
    bool IsHeld() const;
    // Whether it is held on the very file that this path leads to.
    bool Guards(const QByteArray& path) const;
    void Release();

private:
    int m_handle = -1;
    QByteArray m_path;
};

// Locks an open, writable file without waiting. The lock ends when the last copy of the handle is closed.
LockOutcome LockHandle(int handle);

// The path as the system takes it; empty where no file can have that name.
QByteArray NativePath(const CString& path);
