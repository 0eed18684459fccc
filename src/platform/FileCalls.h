// The system calls that change or hold a user's file, in one table, so that a test can let any of them
// fail as a disk, a network share or a signal would. Calls that only look at a file are made directly.
#pragma once

#include <fcntl.h>
#include <functional>
#include <sys/types.h>

// Each answers as the system call of its name: a negative result with the cause in errno.
struct FileCalls {
    std::function<int(const char* path, int flags, mode_t mode)> open;
    std::function<ssize_t(int handle, void* data, size_t size)> read;
    std::function<ssize_t(int handle, const void* data, size_t size)> write;
    std::function<int(int handle, mode_t mode)> fchmod;
    std::function<int(int handle)> fsync;
    std::function<int(int handle, struct flock* range)> lock; // fcntl with F_OFD_SETLK
    std::function<int(const char* from, const char* to)> rename;
    std::function<int(const char* path)> unlink;
    std::function<int(int handle)> close;
};

// The table in force; the system's own calls unless a test has put others in.
FileCalls& TheFileCalls();

// Opens a file; never left to the programs that this one starts, never held up by a signal.
int OpenFile(const char* path, int flags, mode_t mode = 0);
