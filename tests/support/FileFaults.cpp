#include "support/FileFaults.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <sys/stat.h>
#include <utility>

namespace {

int Fail(int error) {
    errno = error;
    return -1;
}

bool IsFolder(int handle) {
    struct stat info {};
    return ::fstat(handle, &info) == 0 && S_ISDIR(info.st_mode);
}

// Every other call of `call` is interrupted before it does anything.
template <class Result, class... Arguments> void Interrupt(std::function<Result(Arguments...)>& call) {
    call = [real = call, turn = std::make_shared<bool>(false)](Arguments... arguments) -> Result {
        *turn = !*turn;
        return *turn ? Fail(EINTR) : real(arguments...);
    };
}

void FailFsync(bool folder, int error) {
    auto& call = TheFileCalls().fsync;
    call = [real = call, folder, error](int handle) {
        return IsFolder(handle) == folder ? Fail(error) : real(handle);
    };
}

} // namespace

FileFaults::FileFaults() : m_saved(TheFileCalls()) {}

FileFaults::~FileFaults() {
    TheFileCalls() = m_saved;
}

void FileFaults::WriteAtMost(size_t bytes) {
    auto& call = TheFileCalls().write;
    call = [real = call, bytes](int handle, const void* data, size_t size) {
        return real(handle, data, std::min(size, bytes));
    };
}

void FileFaults::FillDiskAfter(size_t bytes) {
    auto& call = TheFileCalls().write;
    call = [real = call, room = std::make_shared<size_t>(bytes)](int handle, const void* data,
                                                                 size_t size) -> ssize_t {
        if (*room == 0)
            return Fail(ENOSPC);
        const ssize_t count = real(handle, data, std::min(size, *room));
        if (count > 0)
            *room -= static_cast<size_t>(count);
        return count;
    };
}

void FileFaults::InterruptEveryOtherCall() {
    FileCalls& calls = TheFileCalls();
    Interrupt(calls.open);
    Interrupt(calls.read);
    Interrupt(calls.write);
    Interrupt(calls.fsync);
    Interrupt(calls.lock);
}

void FileFaults::FailCreate(int error) {
    auto& call = TheFileCalls().open;
    call = [real = call, error](const char* path, int flags, mode_t mode) {
        return flags & O_CREAT ? Fail(error) : real(path, flags, mode);
    };
}

void FileFaults::FailRead(int error) {
    TheFileCalls().read = [error](int, void*, size_t) { return Fail(error); };
}

void FileFaults::FailMode(int error) {
    TheFileCalls().fchmod = [error](int, mode_t) { return Fail(error); };
}

void FileFaults::FailLock(int error) {
    TheFileCalls().lock = [error](int, struct flock*) { return Fail(error); };
}

void FileFaults::FailFlush(int error) {
    FailFsync(false, error);
}

void FileFaults::FailFolderFlush(int error) {
    FailFsync(true, error);
}

void FileFaults::FailRename(int error) {
    TheFileCalls().rename = [error](const char*, const char*) { return Fail(error); };
}

void FileFaults::FailClose(int error) {
    auto& call = TheFileCalls().close;
    call = [real = call, error](int handle) {
        real(handle);
        return Fail(error);
    };
}

void FileFaults::BeforeRename(std::function<void()> action) {
    auto& call = TheFileCalls().rename;
    call = [real = call, action = std::move(action)](const char* from, const char* to) {
        action();
        return real(from, to);
    };
}
