#include "Figures.h"
#include "platform/LanguageLibrary.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>

#include <algorithm>

namespace {

// Keeps the times and prints nothing: the table of figures is what a reader wants.
class Collector : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.aggregate_name == "median")
                median = run.GetAdjustedRealTime();
    }
    double median = 0;
};

// The heap puts small pieces together long after they were freed, whoever asks it for a large one next. It
// does so here, so that no task pays for the one before: to put a bare tree together costs more than half of
// a whole reading.
void TidyHeap() {
    constexpr std::size_t LargeForTheHeap = 1 << 16;
    void* volatile block = std::malloc(LargeForTheHeap); // volatile, or the compiler drops the pair
    std::free(block);
}

double Seconds(const std::function<void()>& task) {
    TidyHeap();
    const auto start = std::chrono::steady_clock::now();
    task();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

double MedianTime(const std::string& name, const std::function<void()>& task) {
    benchmark::ClearRegisteredBenchmarks();
    benchmark::RegisterBenchmark(name.c_str(),
                                 [&task](benchmark::State& state) {
                                     for (auto _ : state)
                                         task();
                                 })
        ->Repetitions(5)
        ->MinTime(0.1)
        ->UseRealTime()
        ->Unit(benchmark::kNanosecond);
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    return collector.median;
}

std::vector<double> MedianTimes(const std::vector<std::function<void()>>& tasks, int rounds) {
    std::vector<std::vector<double>> times(tasks.size());
    for (int round = 0; round <= rounds; ++round)
        for (size_t i = 0; i < tasks.size(); ++i)
            if (const double seconds = Seconds(tasks[i]); round > 0) // the first round warms up
                times[i].push_back(seconds);
    std::vector<double> medians;
    for (std::vector<double>& list : times) {
        std::nth_element(list.begin(), list.begin() + rounds / 2, list.end());
        medians.push_back(list[static_cast<size_t>(rounds / 2)]);
    }
    return medians;
}

int main(int argc, char** argv) {
    // Memory stays with the process, for the library alone as for the tool: the work is to be measured, and
    // not the system's giving and taking of pages, which on a shared machine is mostly noise.
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    QCoreApplication application(argc, argv);
    if (!LoadLanguage(RULEWARD_BIN_FOLDER, "English")) {
        std::fprintf(stderr, "The English language library is missing from %s.\n", RULEWARD_BIN_FOLDER);
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    return PrintTable({FileFigures, ListingFigures, MergeFigures, ProcessFigures}) ? 0 : 1;
}
