// Lets the system calls behind a save fail, as a disk, a network share or a signal would.
#pragma once

#include "platform/FileCalls.h"

#include <cstddef>
#include <functional>

// The faults last as long as the object; several may be in force at once.
class FileFaults {
public:
    FileFaults();
    ~FileFaults();
    FileFaults(const FileFaults&) = delete;
    FileFaults& operator=(const FileFaults&) = delete;

    void WriteAtMost(size_t bytes);   // what one call takes
    void FillDiskAfter(size_t bytes); // ENOSPC from there on
    void InterruptEveryOtherCall();   // EINTR from open, read, write, lock and fsync
    void FailCreate(int error);       // an open that would make a file
    void FailRead(int error);
    void FailMode(int error);
    void FailLock(int error);
    void FailFlush(int error); // fsync of a file
    void FailFolderFlush(int error);
    void FailRename(int error);
    void FailClose(int error); // closed all the same, as the system does
    void BeforeRename(std::function<void()> action);

private:
    FileCalls m_saved;
};
