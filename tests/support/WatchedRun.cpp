#include "support/WatchedRun.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#ifdef __SANITIZE_ADDRESS__
#define RULEWARD_SANITIZED
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define RULEWARD_SANITIZED
#endif
#endif

namespace {

// A call that is listed, and which of its arguments says what it is about.
struct WatchedCall {
    long number;
    const char* name;
    int path = -1; // the argument that is a path
    int handle = -1;
};

const std::vector<WatchedCall>& WatchedCalls() {
    static const std::vector<WatchedCall> calls = {
#ifdef SYS_open
        {SYS_open, "open", 0},
        {SYS_creat, "creat", 0},
        {SYS_unlink, "unlink", 0},
        {SYS_rename, "rename", 1},
        {SYS_mkdir, "mkdir", 0},
        {SYS_rmdir, "rmdir", 0},
        {SYS_link, "link", 1},
        {SYS_symlink, "symlink", 1},
        {SYS_chmod, "chmod", 0},
        {SYS_stat, "stat", 0},
        {SYS_lstat, "lstat", 0},
        {SYS_access, "access", 0},
        {SYS_readlink, "readlink", 0},
        {SYS_fork, "fork"},
        {SYS_vfork, "vfork"},
#endif
        {SYS_openat, "openat", 1},
        {SYS_openat2, "openat2", 1},
        {SYS_unlinkat, "unlinkat", 1},
        {SYS_renameat, "renameat", 3},
        {SYS_renameat2, "renameat2", 3},
        {SYS_mkdirat, "mkdirat", 1},
        {SYS_linkat, "linkat", 3},
        {SYS_symlinkat, "symlinkat", 2},
        {SYS_fchmodat, "fchmodat", 1},
        {SYS_truncate, "truncate", 0},
        {SYS_statx, "statx", 1},
        {SYS_newfstatat, "newfstatat", 1},
        {SYS_faccessat, "faccessat", 1},
        {SYS_readlinkat, "readlinkat", 1},
        {SYS_execve, "execve", 0},
        {SYS_execveat, "execveat", 1},
        {SYS_clone, "clone"},
        {SYS_clone3, "clone3"},
        {SYS_socket, "socket"},
        {SYS_socketpair, "socketpair"},
        {SYS_connect, "connect"},
        {SYS_bind, "bind"},
        {SYS_sendto, "sendto"},
        {SYS_sendmsg, "sendmsg"},
        {SYS_memfd_create, "memfd_create", 0},
        {SYS_ftruncate, "ftruncate", -1, 0},
        {SYS_write, "write", -1, 0},
        {SYS_writev, "writev", -1, 0},
        {SYS_pwrite64, "pwrite64", -1, 0},
        {SYS_pwritev, "pwritev", -1, 0},
    };
    return calls;
}

// Answers of the child. They go through shared memory, so that the child need not write.
struct Answer {
    int length;
    std::array<char, 16384> text;
};

// The kernel stops the child at the calls of the list only; all others run at full speed.
bool StopAtWatchedCalls() {
    std::vector<sock_filter> program;
    program.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)));
    for (const WatchedCall& call : WatchedCalls()) {
        program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call.number), 0, 1));
        program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE));
    }
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

// What is mapped already does not count: the limit is on what the work asks for.
void LimitTimeAndMemory() {
    long pages = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%ld", &pages) != 1)
            pages = 0;
        std::fclose(file);
    }
    const rlim_t bytes = static_cast<rlim_t>(pages * ::sysconf(_SC_PAGESIZE) + WatchedKiB * 1024);
    const rlimit memory{bytes, bytes};
    ::setrlimit(RLIMIT_AS, &memory);
    const rlimit time{static_cast<rlim_t>(WatchedSeconds) + 1, static_cast<rlim_t>(WatchedSeconds) + 1};
    ::setrlimit(RLIMIT_CPU, &time);
}

[[noreturn]] void WorkInChild(const std::function<CString()>& work, Answer& answer) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (LimitsCount())
        LimitTimeAndMemory();
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::raise(SIGSTOP);
    if (!StopAtWatchedCalls())
        ::_exit(2);
    // The child must not go on in the test that it is a copy of, whatever the work throws.
    try {
        const QByteArray text = work().toUtf8();
        answer.length = static_cast<int>(std::min<qsizetype>(text.size(), answer.text.size()));
        std::memcpy(answer.text.data(), text.constData(), static_cast<size_t>(answer.length));
    } catch (...) {
        ::_exit(3);
    }
    ::_exit(0);
}

CString TextInChild(pid_t child, unsigned long long address) {
    std::array<char, 512> text{};
    iovec here{text.data(), text.size() - 1};
    iovec there{reinterpret_cast<void*>(address), text.size() - 1};
    // A text near the end of a page is read as far as the page goes.
    while (::process_vm_readv(child, &here, 1, &there, 1, 0) < 0 && there.iov_len > 1)
        there.iov_len = here.iov_len = there.iov_len / 2;
    return CString::fromUtf8(text.data());
}

CString DescribeCall(pid_t child) {
    __ptrace_syscall_info info{};
    ::ptrace(static_cast<__ptrace_request>(PTRACE_GET_SYSCALL_INFO), child, sizeof info, &info);
    for (const WatchedCall& call : WatchedCalls()) {
        if (static_cast<unsigned long long>(call.number) != info.seccomp.nr)
            continue;
        CString words = call.name;
        if (call.path >= 0)
            words += " " + TextInChild(child, info.seccomp.args[call.path]);
        if (call.handle >= 0)
            words += " " + CString::number(info.seccomp.args[call.handle]);
        return words;
    }
    return "unknown";
}

// Lets the child run on from stop to stop until it is gone. False where it was not to be watched.
bool Watch(pid_t child, WatchedRun& run, int& state, rusage& used) {
    if (::waitpid(child, &state, 0) != child || !WIFSTOPPED(state))
        return false;
    ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESECCOMP | PTRACE_O_EXITKILL);
    ::ptrace(PTRACE_CONT, child, nullptr, nullptr);
    while (::wait4(child, &state, 0, &used) == child && WIFSTOPPED(state)) {
        const bool isCall = state >> 8 == (SIGTRAP | PTRACE_EVENT_SECCOMP << 8);
        if (isCall)
            run.calls.append(DescribeCall(child));
        ::ptrace(PTRACE_CONT, child, nullptr, isCall ? 0L : static_cast<long>(WSTOPSIG(state)));
    }
    return true;
}

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

} // namespace

bool LimitsCount() {
#ifdef RULEWARD_SANITIZED
    return false;
#else
    return true;
#endif
}

WatchedRun RunWatched(const std::function<CString()>& work) {
    WatchedRun run;
    void* shared = ::mmap(nullptr, sizeof(Answer), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED)
        return run;
    auto& answer = *static_cast<Answer*>(shared);
    const pid_t child = ::fork();
    if (child == 0)
        WorkInChild(work, answer);
    int state = 0;
    rusage used{};
    const bool watched = child > 0 && Watch(child, run, state, used);
    run.ended = watched && WIFEXITED(state) && WEXITSTATUS(state) == 0;
    if (!run.ended)
        run.end =
            WIFSIGNALED(state) ? CString("signal %1").arg(WTERMSIG(state)) : CString("state %1").arg(state);
    run.answer = CString::fromUtf8(answer.text.data(), answer.length);
    run.seconds = Seconds(used.ru_utime) + Seconds(used.ru_stime);
    run.peakKiB = used.ru_maxrss;
    ::munmap(shared, sizeof(Answer));
    return run;
}
