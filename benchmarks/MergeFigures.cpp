#include "Figures.h"
#include "files/Merge.h"
#include "model/Standard.h"
#include "support/MemoryFolder.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

constexpr int Rounds = 5;
constexpr int Many = 1000;

// Small standards of a few checks each, whose types overlap.
CStringArray WriteSources(const QTemporaryDir& folder) {
    CStringArray paths;
    for (int i = 0; i < Many; ++i) {
        CStandard standard;
        standard.Unit = i % 2 ? 3 : 0;
        for (const MQC_CheckType_e type : {101, 108, 109 + i % 9, 302, 402}) {
            auto check = CStandard::MakeCheck(type);
            if (auto* heights = check->GetDoubleParameter(1704)) {
                heights->Values.Add(2.5);
                heights->Operator = OpEqual;
            }
            unsigned sequence = 0;
            standard.InsertCheck(std::move(check), sequence);
        }
        paths.append(folder.filePath(CString("%1.kvstd").arg(i, 4, 10, QChar(u'0'))));
        standard.SaveToFile(paths.last());
    }
    return paths;
}

void MergeFirst(const CStringArray& paths, int count) {
    const QTemporaryDir work(MemoryFolderTemplate());
    CStringArray files = paths.mid(0, count);
    CStringArray rejected;
    CStringArray report;
    MergeOutcome outcome;
    MergeStandardFiles(work.path(), files, rejected, report, outcome);
}

} // namespace

std::vector<Figure> MergeFigures() {
    const QTemporaryDir sources(MemoryFolderTemplate());
    const CStringArray paths = WriteSources(sources);
    const std::vector<double> times =
        MedianTimes({[&] { // ten merges of ten, so that the times compared are of one order
                         for (int i = 0; i < 10; ++i)
                             MergeFirst(paths, 10);
                     },
                     [&] { MergeFirst(paths, 100); }, [&] { MergeFirst(paths, Many); }},
                    Rounds);
    const double perFile = times[0] / 100;
    return {{"merging 100 files, time per file / of 10 files", times[1] / 100 / perFile, 1.3},
            {"merging 1,000 files, time per file / of 10 files", times[2] / Many / perFile, 1.3}};
}
