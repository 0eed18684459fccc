// Runs a piece of work in a child process that is held to a time and an amount of memory, as a file from
// outside must be read.
#pragma once

#include <functional>
#include <string>

struct ConfinedRun {
    bool ended = false; // by itself, not by a signal: the alarm, a crash
    std::string answer; // what the work returned
    double seconds = 0; // of the processor
    long peakKiB = 0;   // the largest resident size
};

constexpr int ConfinedSeconds = 1;  // of the processor, so that a busy machine makes no difference
constexpr int ConfinedWaiting = 10; // by the clock, for work that waits for something
constexpr long ConfinedKiB = 256 * 1024;

// Whether memory is limited and the peak means something: the sanitizers need room of their own.
bool MemoryCounts();

ConfinedRun RunConfined(const std::function<std::string()>& work);
