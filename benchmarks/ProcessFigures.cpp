#include "Figures.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

constexpr int Rounds = 41;

void RunSilently(const std::vector<std::string>& words) {
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    if (posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ) == 0) {
        int status = 0;
        waitpid(child, &status, 0);
        if (status != 0)
            std::fprintf(stderr, "%s failed\n", arguments[0]);
    }
    posix_spawn_file_actions_destroy(&actions);
}

} // namespace

std::vector<Figure> ProcessFigures() {
    const std::string bin = RULEWARD_BIN_FOLDER;
    const std::string sample = std::string(RULEWARD_SOURCE_FOLDER) + "/samples/Metric drawings to ISO.kvstd";
    const std::vector<double> times = MedianTimes({[&] { RunSilently({bin + "/kvstd-links"}); },
                                                   [&] {
                                                       RunSilently({bin + "/kvstd", "show", sample});
                                                   }},
                                                  Rounds);
    return {{"kvstd show of a sample / a program that only links", times[1] / times[0], 2.0}};
}
