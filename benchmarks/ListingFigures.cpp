#include "Figures.h"
#include "engines/EnumEngine.h"
#include "model/Standard.h"

#include <QHash>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <new>

namespace {

long allocations = 0; // one thread measures

constexpr int Rounds = 9;

void FillStandard(CStandard& standard, int numbers) {
    for (int i = 0; i < numbers; ++i) {
        unsigned sequence = 0;
        standard.InsertCheck(CStandard::MakeCheck(406), sequence);
    }
}

Figure ListingFigure() {
    CStandard small;
    CStandard large;
    FillStandard(small, 10'000);
    FillStandard(large, 100'000);
    const auto list = [](const CStandard& standard) {
        CheckList checks;
        standard.GetAllChecks(checks);
        benchmark::DoNotOptimize(checks.data());
    };
    const std::vector<double> times = MedianTimes({[&] { list(small); }, [&] { list(large); }}, Rounds);
    return {"listing of 100,000 numbers / of 10,000", times[1] / times[0], 13.0};
}

Figure AllocationFigure() {
    const long before = allocations;
    const CEnumEngine engine;
    benchmark::DoNotOptimize(&engine);
    const long made = allocations - before; // counted before the name of the figure is made
    return {"allocations of making a value list engine", static_cast<double>(made), 0.0};
}

Figure LookUpFigure() {
    QHash<int, CString> hash;
    for (int i = 0; i < 700; ++i)
        hash.insert(1000 + i, CString("text %1").arg(i));
    const double bare = MedianTime("hash", [&] {
        CString text = hash.value(1632);
        benchmark::DoNotOptimize(text);
    });
    const double engine = MedianTime("engine", [] {
        CString text;
        CEnumEngine().GetDisplayString(7, 8, text);
        benchmark::DoNotOptimize(text);
    });
    return {"text of a value / bare hash look-up with a copy", engine / bare, 3.0};
}

} // namespace

void* operator new(size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, size_t) noexcept {
    std::free(memory);
}

std::vector<Figure> ListingFigures() {
    return {ListingFigure(), AllocationFigure(), LookUpFigure()};
}
