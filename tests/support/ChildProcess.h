// Parts of a test that need a process of their own: a second run, a plain user, a small disk.
#pragma once

#include "platform/Text.h"

#include <functional>
#include <sys/types.h>

// Runs `work` in a forked child and gives the text that it answers; a text about its end where it did not
// come to an answer. Expectations inside the child are not seen: what went wrong is to be answered.
CString RunInChild(const std::function<CString()>& work);

// A child that does `work` and then holds everything it has until it is ended.
class HoldingChild {
public:
    explicit HoldingChild(const std::function<bool()>& work); // returns when the work is done
    ~HoldingChild();
    HoldingChild(const HoldingChild&) = delete;
    HoldingChild& operator=(const HoldingChild&) = delete;

    bool Succeeded() const { return m_succeeded; } // what the work has answered
    void Kill();

private:
    pid_t m_pid = -1;
    bool m_succeeded = false;
};

// In a child: makes `folder` the current one and then gives up the rights of root, to whom no mode applies.
// Files are to be named from the current folder afterwards, since the way to it may be closed.
void BecomePlainUser(const CString& folder);

// In a child: the end of the disk. A file system of `bytes` of the child's own at the empty folder `place`,
// or, where the machine allows none, a limit to the size of any file: false then.
bool MakeSmallDisk(const CString& place, qint64 bytes);
