// Proof of what a piece of work does to the machine: it runs in a child process, is held to a time and an
// amount of memory, and every call that names a file, opens a connection or writes is listed.
#pragma once

#include "platform/Text.h"

#include <functional>

constexpr long WatchedKiB = 256 * 1024;
// Of processor time. The promise is for the program as it is shipped; without optimisation it is slower.
#ifdef __OPTIMIZE__
constexpr double WatchedSeconds = 1;
#else
constexpr double WatchedSeconds = 2;
#endif

struct WatchedRun {
    bool ended = false; // by itself: neither stopped by a limit nor crashed
    CString end;        // how it ended where it did not
    CString answer;     // what the work returned
    CStringArray calls; // "openat /path", "socket", "write 2" in their order
    double seconds = 0; // of processor time
    long peakKiB = 0;   // the largest resident size of the child, with what the test had in memory before
};

// Whether time and memory are limited and mean something: sanitizers need room of their own.
bool LimitsCount();

// Expectations inside `work` are not seen: what went wrong is to be answered.
WatchedRun RunWatched(const std::function<CString()>& work);
