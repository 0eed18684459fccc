// What a measured program tells the one that measures it, in a line on its standard output.
#pragma once

#include "gui/OwnTime.h"

#include <cstdio>
#include <unistd.h>

// Memory in megabytes that the process has in use, shared libraries included.
inline double MegabytesInUse() {
    long all = 0;
    long resident = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%ld %ld", &all, &resident) != 2)
            resident = 0;
        std::fclose(file);
    }
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

// The time is of the clock that all processes share, less what this one waited for a core.
inline void Tell() {
    std::printf("%f %f\n", MegabytesInUse(), OwnTime::Now() - OwnTime::Waited());
    std::fflush(stdout);
}
