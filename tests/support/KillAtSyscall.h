// Proof that an operation may be killed at any moment: it is run again and again in a child process, and
// each time killed one system call later, at the entry of the call and at its exit.
#pragma once

#include <functional>

struct KillPlan {
    std::function<void()> prepare;              // in the test, before each run: lays out the files
    std::function<void()> enter;                // in the child, before it can be killed; may be empty
    std::function<void()> operation;            // in the child; the one whose moments are tried
    std::function<void(bool finished)> inspect; // in the test, after each run; `finished`: it was not killed
};

// Tries every `stride`-th moment until the operation comes to its end before it is killed. Returns the number
// of runs that were killed, or -1 where a child could not be traced or ended in a way of its own.
// The operation must not start threads, and nothing of the child is cleaned up: it ends without its exits.
int KillAtEverySyscall(const KillPlan& plan, int stride = 1);
