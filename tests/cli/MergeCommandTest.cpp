// "merge": the merged standard, the lines it prints, and its warnings.
#include "cli/CliRoom.h"

namespace {

class MergeCommand : public CliRoom {};

const char* const Heading = "Checks replaced by a later standard:\n";

} // namespace

TEST_F(MergeCommand, ALaterFileWins) {
    PutStandard("a.kvstd", PlainCheck(107, "References") + NoteFont("2.5", "3.5", "3.5"));
    PutStandard("b.kvstd", NoteFont("5", "7", "5"));
    EXPECT_EQ(Run("merge -o out.kvstd a.kvstd b.kvstd"), QByteArray(Heading) + "Note Font  --  b.kvstd\n");
    const QByteArray shown = Run("show out.kvstd");
    EXPECT_TRUE(shown.contains("Checks:    2\n")) << shown.constData();
    EXPECT_TRUE(shown.contains("between(5mm , 7mm)")) << shown.constData();
    EXPECT_EQ(Run("validate out.kvstd"), "out.kvstd: ok\n");
}

TEST_F(MergeCommand, NothingReplacedPrintsNothing) {
    PutStandard("a.kvstd", PlainCheck(107, "References"));
    PutStandard("b.kvstd", NoteFont("5", "7", "5"));
    EXPECT_EQ(Run("merge a.kvstd b.kvstd -o out.kvstd"), "");
}

TEST_F(MergeCommand, Samples) {
    EXPECT_EQ(Run(CString("merge -o out.kvstd %1 %2").arg(Metric, Sheet)),
              QByteArray(Heading) + "Units (Document)  --  samples/Sheet metal parts.kvstd\n"
                                    "Custom Properties  --  samples/Sheet metal parts.kvstd\n");
    ExpectFile("show-merged.txt", Run("show out.kvstd"));
    Run("unpack out.kvstd u");
    EXPECT_TRUE(QFileInfo::exists("u/122/Flat pattern is up to date/FlatPattern.kvp"));
    EXPECT_TRUE(QFileInfo::exists("u/out.kvstd"));
}

TEST_F(MergeCommand, German) {
    EXPECT_TRUE(Run(CString("--language German merge -o out.kvstd %1 %2").arg(Metric, Sheet))
                    .endsWith("Custom Properties  --  samples/Sheet metal parts.kvstd\n"));
}

TEST_F(MergeCommand, LossesOfUnitsAreWarnings) {
    const CommandRun run = RunWords(CString("merge -o out.kvstd %1 %2").arg(Metric, Inch));
    EXPECT_EQ(run.code, 0);
    ExpectFile("merge-units.err", run.err);
    ExpectFile("merge-units.out", run.out);
}

TEST_F(MergeCommand, ALaterVersionIsAWarning) {
    PutStandard("a.kvstd", PlainCheck(107, "References"));
    PutStandard("later.kvstd", PlainCheck(301, "Spelling"), "Unit=\"0\" AngularUnit=\"0\" Version=\"2027\"");
    const CommandRun run = RunWords("merge -o out.kvstd a.kvstd later.kvstd");
    EXPECT_EQ(run.code, 0);
    EXPECT_TRUE(run.err.startsWith("kvstd: warning: later.kvstd: ")) << run.err.constData();
    EXPECT_TRUE(run.err.contains("2027")) << run.err.constData();
    EXPECT_EQ(run.err.count('\n'), 1);
    EXPECT_TRUE(Run("show out.kvstd").contains("Checks:    2\n"));
}

TEST_F(MergeCommand, FilesThatAreNoStandardsAreNamed) {
    PutStandard("a.kvstd", PlainCheck(107, "References"));
    PutStandard("b.kvstd", PlainCheck(301, "Spelling"));
    folder.Put("text.kvstd", "hello");
    const CommandRun run = RunWords("merge -o out.kvstd a.kvstd text.kvstd no.kvstd b.kvstd");
    EXPECT_EQ(run.code, 1);
    const QList<QByteArray> lines = run.err.split('\n');
    ASSERT_EQ(lines.size(), 3) << run.err.constData();
    EXPECT_TRUE(lines[0].startsWith("kvstd: text.kvstd: The file is damaged")) << run.err.constData();
    EXPECT_TRUE(lines[1].startsWith("kvstd: no.kvstd: ")) << run.err.constData();
    EXPECT_TRUE(Run("show out.kvstd").contains("Checks:    2\n"));
}

TEST_F(MergeCommand, OnlyOneStandardIsTakenAsItIs) {
    PutStandard("a.kvstd", PlainCheck(107, "References"));
    folder.Put("text.kvstd", "hello");
    const CommandRun run = RunWords("merge -o out.kvstd text.kvstd a.kvstd");
    EXPECT_EQ(run.code, 1);
    EXPECT_TRUE(Run("show out.kvstd").contains("Checks:    1\n"));
}

TEST_F(MergeCommand, NoStandardAtAll) {
    folder.Put("text.kvstd", "hello");
    folder.Put("out.kvstd", "old");
    const CommandRun run = RunWords("merge -o out.kvstd text.kvstd no.kvstd");
    EXPECT_EQ(run.code, 3);
    EXPECT_TRUE(run.err.endsWith("kvstd: there is no standard to merge\n")) << run.err.constData();
    EXPECT_EQ(folder.Get("out.kvstd"), "old");
}

TEST_F(MergeCommand, TheResultMayReplaceASource) {
    PutStandard("a.kvstd", NoteFont("2.5", "3.5", "3.5"));
    PutStandard("b.kvstd", NoteFont("5", "7", "5"));
    Run("merge -o a.kvstd a.kvstd b.kvstd");
    EXPECT_TRUE(Run("show a.kvstd").contains("between(5mm , 7mm)"));
}

TEST_F(MergeCommand, AnyNameOfTheResultCanBeOpened) {
    PutStandard("a.kvstd", PlainCheck(107, "References"));
    PutStandard("b.kvstd", PlainCheck(301, "Spelling"));
    for (const CString name : {"result", "result.zip", "Result.KVSTD", "-"}) {
        Run("merge -o " + name + " a.kvstd b.kvstd");
        EXPECT_TRUE(Run("show " + name).contains("Checks:    2\n")) << qPrintable(name);
    }
}

TEST_F(MergeCommand, ProgressCountsFilesAndGoes) {
    PutStandard("a.kvstd", PlainCheck(107, "References"));
    PutStandard("b.kvstd", PlainCheck(301, "Spelling"));
    const CommandRun run = RunWords("merge -o out.kvstd a.kvstd b.kvstd", RULEWARD_BIN_FOLDER, true);
    EXPECT_TRUE(run.err.startsWith("\rMerging: 1 of 2")) << run.err.constData();
    EXPECT_TRUE(run.err.endsWith("\rMerging: 2 of 2\r               \r")) << run.err.constData();
}
