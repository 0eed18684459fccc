#include "platform/FileCalls.h"

#include <cerrno>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int OpenBySystem(const char* path, int flags, mode_t mode) {
    return ::open(path, flags, mode);
}

int LockBySystem(int handle, struct flock* range) {
    return ::fcntl(handle, F_OFD_SETLK, range);
}

} // namespace

FileCalls& TheFileCalls() {
    static FileCalls calls{OpenBySystem, ::read,   ::write,  ::fchmod, ::fsync,
                           LockBySystem, ::rename, ::unlink, ::close};
    return calls;
}

int OpenFile(const char* path, int flags, mode_t mode) {
    int handle;
    do
        handle = TheFileCalls().open(path, flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, mode);
    while (handle < 0 && errno == EINTR);
    return handle;
}
