// Paths that stand in a standard are texts for the checker: nothing here may look where they lead.
#include "files/Merge.h"
#include "files/Packing.h"
#include "files/Report.h"
#include "files/ReportHtml.h"
#include "model/CheckManager.h"
#include "model/CheckTypes.h"
#include "support/FilledStandard.h"
#include "support/Messages.h"
#include "support/TestFolder.h"
#include "support/WatchedRun.h"

#include <gtest/gtest.h>

namespace {

// Each names the same file in the folder, which is there.
CStringArray PathsTo(const CString& file) {
    return {file, "file://" + file, CString(file).replace('/', '\\'), "S:" + file};
}

void SetTexts(CCheck& check, const CStringArray& paths) {
    for (const CParameterEntry* entry : check.Parameters)
        if (entry->DataType == DataText)
            SetParameter(check, entry->ID, OpOneOf, paths);
}

// A standard of checks of all types whose texts are the paths.
void FillWithPaths(CStandard& standard, const CStringArray& paths) {
    standard.Unit = standard.AngularUnit = 0;
    unsigned sequence = 0;
    for (const CheckTypeDefinition& definition : AllCheckTypes()) {
        auto check = CStandard::MakeCheck(definition.type);
        check->Name = paths[0];
        SetTexts(*check, paths);
        if (auto* container = dynamic_cast<CCheckManager*>(check.get())) {
            auto child = container->MakeChild();
            SetTexts(*child, paths);
            container->Children.Add(child.release());
        }
        standard.InsertCheck(std::move(check), sequence);
    }
}

// All that is done with standards without a window. Answers what did not work.
CString WorkOn(const TestFolder& folder) {
    const CString source = folder.Path("a.kvstd");
    CString failures;
    CStandard standard;
    failures += standard.LoadFromFile(source) ? "" : "load ";
    failures += standard.SaveToFile(folder.Path("in/b.kvstd")) ? "" : "save ";
    CStringArray files;
    standard.GetReferencedFiles(files);
    failures += files.isEmpty() ? "files " : "";
    failures += PackFolder(folder.Path("b.kvstd"), folder.Path("in")) == 1 ? "" : "pack ";
    CStringArray sources{source, folder.Path("b.kvstd")};
    CStringArray rejected;
    CStringArray told;
    MergeOutcome outcome;
    failures +=
        MergeStandardFiles(folder.Path("run"), sources, rejected, told, outcome, {}) == 1 ? "" : "merge ";
    const ReportFiles report = WriteReportFiles(standard, folder.Path("report"));
    failures += report ? "" : "report ";
    failures += RenderReportHtml(report.xmlPath, report.stylesheetPath).result.ok ? "" : "page ";
    return failures;
}

} // namespace

TEST(PathTexts, AreNeverOpened) {
    const TestFolder folder;
    for (const char* name : {"in", "run", "report"})
        QDir(folder.Path()).mkdir(name);
    folder.Put("precious.swp", "mine");
    CStandard standard;
    FillWithPaths(standard, PathsTo(folder.Path("precious.swp")));
    ASSERT_TRUE(standard.SaveToFile(folder.Path("a.kvstd")));
    ASSERT_GT(folder.Get("a.kvstd").count("precious.swp"), 100);

    const Messages messages;
    const WatchedRun run = RunWatched([&] { return WorkOn(folder); });
    EXPECT_TRUE(run.ended) << run.end.toStdString();
    EXPECT_EQ(run.answer, "");
    EXPECT_GT(run.calls.size(), 20);
    for (const CString& call : run.calls) {
        EXPECT_FALSE(call.contains("precious")) << call.toStdString();
        EXPECT_FALSE(call.startsWith("socket") || call.startsWith("exec")) << call.toStdString();
    }
}
