#include "gui/FullStandard.h"
#include "gui/GuiFigures.h"
#include "gui/VirtualDisplay.h"
#include "gui/Watch.h"

#include <QTemporaryDir>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

constexpr int Rounds = 15;
constexpr double MostOfBare = 2;
constexpr double MostMegabytes = 90;
constexpr double MostMegabytesOpen = 120;

struct Start {
    double milliseconds = 0; // from the making of the process
    double megabytes = 0;
};

pid_t Spawn(const std::vector<std::string>& words, int output) {
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t child = 0;
    if (posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ) != 0)
        qFatal("%s does not start.", arguments[0]);
    posix_spawn_file_actions_destroy(&actions);
    return child;
}

// Runs one of the programs that tell when they are painted.
Start StartOnce(const std::vector<std::string>& words) {
    int ends[2];
    if (pipe(ends) != 0)
        qFatal("No pipe.");
    const double begin = OwnTime::Now();
    const pid_t child = Spawn(words, ends[1]);
    close(ends[1]);
    std::FILE* told = fdopen(ends[0], "r");
    Start start;
    double painted = 0;
    if (std::fscanf(told, "%lf %lf", &start.megabytes, &painted) != 2)
        qFatal("%s tells nothing.", words[0].c_str());
    start.milliseconds = painted - begin;
    std::fclose(told);
    int status = 0;
    waitpid(child, &status, 0);
    return start;
}

} // namespace

std::vector<Figure> StartFigures() {
    const VirtualDisplay display;
    qputenv("DISPLAY", display.Name());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const std::string bin = RULEWARD_BIN_FOLDER;
    const QTemporaryDir folder;
    const CString path = folder.filePath("full.kvstd");
    WriteFullStandard(path);
    std::vector<double> tool;
    std::vector<double> bare;
    std::vector<double> memory;
    for (int round = 0; round <= Rounds; ++round) {
        const Start ofBare = StartOnce({bin + "/first-paint-bare"});
        const Start ofTool = StartOnce({bin + "/first-paint-tool"});
        if (round == 0)
            continue; // the files come from the disk
        bare.push_back(ofBare.milliseconds);
        tool.push_back(ofTool.milliseconds);
        memory.push_back(ofTool.megabytes);
    }
    const Start open = StartOnce({bin + "/first-paint-tool", path.toStdString()});
    qputenv("QT_QPA_PLATFORM", "offscreen");
    std::fprintf(stderr, "start: bare %.0f ms, tool %.0f ms\n", Percentile(bare, 0.5), Percentile(tool, 0.5));
    return {{"start to first paint / of a bare main window", Percentile(tool, 0.5) / Percentile(bare, 0.5),
             MostOfBare},
            {"memory after the start (MB)", Percentile(memory, 0.5), MostMegabytes},
            {"memory with all 54 panes seen (MB)", open.megabytes, MostMegabytesOpen}};
}
