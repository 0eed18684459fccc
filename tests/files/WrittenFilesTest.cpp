// What the core writes is well formed in the eyes of another program, without a warning.
#include "files/LanguageScope.h"
#include "files/MergeRoom.h"
#include "files/Report.h"
#include "files/ReportHtml.h"
#include "support/FilledStandard.h"
#include "support/RandomStandard.h"

#include <QProcess>

namespace {

// It says of an undeclared prefix that it is an error, and still ends well; so its words count as well.
CString WordsOfXmllint(CStringArray arguments, const CStringArray& files) {
    QProcess process;
    process.start("xmllint", arguments + CStringArray{"--nonet", "--noout"} + files);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return "xmllint did not end: " + process.errorString();
    const QByteArray words = process.readAllStandardError() + process.readAllStandardOutput();
    return process.exitCode() == 0 ? words : "refused: " + words;
}

#define EXPECT_ACCEPTED(files) EXPECT_EQ(WordsOfXmllint({}, files), "")

CString Saved(CStandard& standard, const CString& path) {
    EXPECT_TRUE(standard.SaveToFile(path));
    return path;
}

// Also what is not accepted must be seen as such.
constexpr const char* IllFormed[] = {"<a><b></a>", "<a x:b='1'/>", "<a>\x01</a>", "<a/><b/>"};

} // namespace

TEST(WrittenFiles, TheOtherProgramSeesWhatIsIllFormed) {
    const TestFolder folder;
    for (const char* text : IllFormed) {
        folder.Put("a.xml", text);
        EXPECT_NE(WordsOfXmllint({}, {folder.Path("a.xml")}), "") << text;
    }
}

TEST(WrittenFiles, StandardOfEveryCheckIsAccepted) {
    const TestFolder folder;
    CStandard standard;
    FillStandard(standard);
    EXPECT_ACCEPTED(CStringArray{Saved(standard, folder.Path("Maße & Größen.kvstd"))});
}

TEST(WrittenFiles, StandardsOfAnyTextsAreAccepted) {
    const TestFolder folder;
    CStringArray paths;
    for (unsigned seed = 0; seed < 60; ++seed) {
        CStandard standard;
        RandomStandard random(seed);
        standard.Name = random.Text();
        standard.Createdby = random.Text();
        random.Fill(standard, 20);
        paths.append(Saved(standard, folder.Path(CString("%1.kvstd").arg(seed))));
    }
    EXPECT_ACCEPTED(paths);
}

TEST(WrittenFiles, UnpackedStandardIsAccepted) {
    const TestFolder folder;
    CStandard standard;
    FillStandard(standard);
    for (const char* name : {"in", "out"})
        QDir(folder.Path()).mkdir(name);
    Saved(standard, folder.Path("in/a.kvstd"));
    ASSERT_EQ(PackFolder(folder.Path("a.kvstd"), folder.Path("in")), 1);
    ASSERT_EQ(UnpackStandard(folder.Path("a.kvstd"), folder.Path("out")), 1);
    EXPECT_EQ(folder.Get("out/a.kvstd"), folder.Get("in/a.kvstd"));
    EXPECT_ACCEPTED(CStringArray{folder.Path("out/a.kvstd")});
}

TEST(WrittenFiles, StandardInOtherUnitsIsAccepted) {
    const TestFolder folder;
    CStandard standard;
    FillStandard(standard);
    standard.ChangeUnits(2, 1);
    EXPECT_ACCEPTED(CStringArray{Saved(standard, folder.Path("a.kvstd"))});
}

TEST(WrittenFiles, ReportAndItsPageAreAccepted) {
    for (const char* language : {"English", "German"}) {
        const LanguageScope scope(language);
        const TestFolder folder;
        CStandard standard;
        FillStandard(standard);
        RandomStandard(7).Fill(standard, 40);
        standard.Name = "/home/anna/Maße & <Größen> \"'.kvstd";
        const ReportFiles files = WriteReportFiles(standard, folder.Path());
        ASSERT_TRUE(files);
        const ReportPage page = RenderReportHtml(files.xmlPath, files.stylesheetPath);
        ASSERT_TRUE(page.result.ok) << page.result.reason.toStdString();
        ASSERT_TRUE(WriteReportHtml(page.html, folder.Path("a.html")).ok);
        EXPECT_ACCEPTED((CStringArray{files.xmlPath, files.stylesheetPath}));
        EXPECT_EQ(WordsOfXmllint({"--html"}, {folder.Path("a.html")}), "") << language;
    }
}

class WrittenMerge : public MergeRoom {
protected:
    // Also content that only a merge keeps, since a standard does not read it.
    void PutSources() {
        Put("a.kvstd", Standard(Check("101", "A &amp; &lt;&#13;") + "<!--a--><?b c?><![CDATA[<&]]>"));
        PutPacked("b.kvstd", Standard("<n:x xmlns:n='urn:n' n:y='1'/>" + Check("203", "B")));
        CStandard standard;
        FillStandard(standard);
        RandomStandard(3).Fill(standard, 40);
        files.append(Saved(standard, folder.Path("c.kvstd")));
    }
};

TEST_F(WrittenMerge, BatchResultIsAccepted) {
    PutSources();
    ASSERT_EQ(Batch(), 1);
    EXPECT_ACCEPTED(CStringArray{BatchPath()});
}

TEST_F(WrittenMerge, ListedResultIsAccepted) {
    PutSources();
    ASSERT_EQ(Listed(), 1);
    EXPECT_ACCEPTED(CStringArray{ListedPath()});
}
