#include "support/Confined.h"

#include <array>
#include <cstdio>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define RULEWARD_SANITIZED
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define RULEWARD_SANITIZED
#endif

namespace {

// What is mapped already does not count: the limit is on what the work asks for.
void LimitMemory() {
    long pages = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%ld", &pages) != 1)
            pages = 0;
        std::fclose(file);
    }
    const rlim_t bytes = static_cast<rlim_t>(pages) * ::sysconf(_SC_PAGESIZE) + ConfinedKiB * 1024;
    const rlimit limit{bytes, bytes};
    ::setrlimit(RLIMIT_AS, &limit);
}

[[noreturn]] void WorkInChild(const std::function<std::string()>& work, int answerTo) {
    if (MemoryCounts())
        LimitMemory();
    const rlimit processor{ConfinedSeconds, ConfinedSeconds};
    ::setrlimit(RLIMIT_CPU, &processor);
    ::alarm(ConfinedWaiting);
    const std::string answer = work();
    const bool told = ::write(answerTo, answer.data(), answer.size()) == static_cast<ssize_t>(answer.size());
    ::_exit(told ? 0 : 1);
}

std::string ReadAll(int from) {
    std::string all;
    std::array<char, 4096> block;
    for (ssize_t count; (count = ::read(from, block.data(), block.size())) > 0;)
        all.append(block.data(), count);
    return all;
}

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

} // namespace

bool MemoryCounts() {
#ifdef RULEWARD_SANITIZED
    return false;
#else
    return true;
#endif
}

ConfinedRun RunConfined(const std::function<std::string()>& work) {
    ConfinedRun run;
    std::array<int, 2> ends;
    if (::pipe(ends.data()) != 0)
        return run;
    const pid_t child = ::fork();
    if (child == 0)
        WorkInChild(work, ends[1]);
    ::close(ends[1]);
    run.answer = ReadAll(ends[0]);
    ::close(ends[0]);
    int state = 0;
    rusage used{};
    run.ended =
        child > 0 && ::wait4(child, &state, 0, &used) == child && WIFEXITED(state) && WEXITSTATUS(state) == 0;
    run.seconds = Seconds(used.ru_utime) + Seconds(used.ru_stime);
    run.peakKiB = used.ru_maxrss;
    return run;
}
