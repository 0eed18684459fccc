// The time that the program would have needed on a core of its own: the clock on the wall, less what the
// thread waited for a core that others had. Waiting for timers and files counts.
#pragma once

#include <chrono>
#include <cstdio>

class OwnTime {
public:
    double Milliseconds() const { return Now() - Waited() - m_start; }

    // All in milliseconds: of the clock that all processes share,
    static double Now() {
        using Milliseconds = std::chrono::duration<double, std::milli>;
        return Milliseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
    }
    // and of this thread since its start. 0 where the system does not count it.
    static double Waited() {
        double ran = 0;
        double waited = 0;
        if (std::FILE* file = std::fopen("/proc/thread-self/schedstat", "r")) {
            if (std::fscanf(file, "%lf %lf", &ran, &waited) != 2)
                waited = 0;
            std::fclose(file);
        }
        return waited / 1e6;
    }

private:
    double m_start = Now() - Waited();
};
