#include "support/KillAtSyscall.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

enum class End { Killed, Finished, Wrong };

constexpr int SyscallStop = SIGTRAP | 0x80; // with PTRACE_O_TRACESYSGOOD

int WaitFor(pid_t child) {
    int status = 0;
    while (::waitpid(child, &status, 0) < 0)
        if (errno != EINTR)
            return -1;
    return status;
}

[[noreturn]] void RunTraced(const KillPlan& plan) {
    if (plan.enter)
        plan.enter();
    if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
        ::_exit(1);
    ::raise(SIGSTOP); // here the test takes over
    plan.operation();
    ::_exit(0); // the leak checker cannot work in a traced process, so the exits are not run
}

End Kill(pid_t child) {
    ::kill(child, SIGKILL);
    const int status = WaitFor(child);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL ? End::Killed : End::Wrong;
}

// Lets the child run on until it has stopped `stops` times at a system call, and kills it there.
End TraceUpTo(pid_t child, int stops) {
    int status = WaitFor(child);
    if (!WIFSTOPPED(status) || WSTOPSIG(status) != SIGSTOP)
        return End::Wrong;
    ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    int signal = 0;
    while (stops > 0) {
        if (::ptrace(PTRACE_SYSCALL, child, nullptr, signal) != 0)
            return End::Wrong;
        status = WaitFor(child);
        if (WIFEXITED(status))
            return WEXITSTATUS(status) == 0 ? End::Finished : End::Wrong;
        if (!WIFSTOPPED(status))
            return End::Wrong;
        const bool atCall = WSTOPSIG(status) == SyscallStop;
        stops -= atCall ? 1 : 0;
        signal = atCall ? 0 : WSTOPSIG(status);
    }
    return Kill(child);
}

End RunOnce(const KillPlan& plan, int stops) {
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0)
        RunTraced(plan);
    if (child < 0)
        return End::Wrong;
    const End end = TraceUpTo(child, stops);
    if (end == End::Wrong && ::kill(child, SIGKILL) == 0)
        WaitFor(child);
    return end;
}

} // namespace

int KillAtEverySyscall(const KillPlan& plan, int stride) {
    for (int killed = 0;; ++killed) {
        plan.prepare();
        const End end = RunOnce(plan, 1 + killed * stride);
        if (end == End::Wrong)
            return -1;
        plan.inspect(end == End::Finished);
        if (end == End::Finished)
            return killed;
    }
}
