// "report": the files it writes, and the folders it leaves alone.
#include "cli/CliRoom.h"

#include "files/RunProgram.h"

namespace {

class ReportCommand : public CliRoom {};

const CString Stem = "Sheet metal parts";

} // namespace

TEST_F(ReportCommand, ThreeKindsOfFiles) {
    EXPECT_EQ(Run(CString("report -o a/deep/r ") + Sheet), "");
    EXPECT_EQ(folder.Names("a/deep/r"), (CStringArray{Stem + ".xml", "Standard.xsl", "resources"}));
    const CStringArray pictures = folder.Names("a/deep/r/resources");
    EXPECT_TRUE(pictures.contains("Critical.bmp"));
    for (const CString& picture : pictures)
        EXPECT_TRUE(folder.Get("a/deep/r/resources/" + picture).startsWith("BM")) << qPrintable(picture);
    const QByteArray xml = folder.Get("a/deep/r/" + Stem + ".xml");
    EXPECT_TRUE(xml.contains("standards office")) << "who saved it last";
    EXPECT_TRUE(xml.contains("11/16/2026 09:30:00")) << "when";
}

TEST_F(ReportCommand, PagesOnRequest) {
    Run(CString("report -o r --html --pdf ") + Sheet);
    EXPECT_EQ(folder.Names("r"),
              (CStringArray{Stem + ".html", Stem + ".pdf", Stem + ".xml", "Standard.xsl", "resources"}));
    EXPECT_TRUE(folder.Get("r/" + Stem + ".html").contains("Overridden Mass Properties"));
    const QByteArray text = RunProgram("pdftotext", {"-layout", "r/" + Stem + ".pdf", "-"});
    for (const char* word :
         {"Sheet metal parts", "Custom Properties", "All Folders Are Listed", "> 50e-01mm^3", "Page 2 of 2"})
        EXPECT_TRUE(text.contains(word)) << word;
}

TEST_F(ReportCommand, German) {
    Run(CString("--language German report -o r --html ") + Sheet);
    EXPECT_TRUE(folder.Get("r/" + Stem + ".html").contains("Alle Skizzen müssen"));
}

TEST_F(ReportCommand, ASecondRunTakesThePlaceOfTheFirst) {
    Run(CString("report -o r --html ") + Metric);
    const CStringArray first = folder.Names("r");
    const QByteArray html = folder.Get("r/Metric drawings to ISO.html");
    const CStringArray pictures = folder.Names("r/resources");
    Run(CString("report -o r --html ") + Metric);
    EXPECT_EQ(folder.Names("r"), first);
    EXPECT_EQ(folder.Names("r/resources"), pictures);
    EXPECT_EQ(folder.Get("r/Metric drawings to ISO.html"), html);
}

TEST_F(ReportCommand, PicturesOfSomebodyElseStay) {
    QDir().mkpath("r/resources");
    folder.Put("r/resources/photo.png", "mine");
    const QByteArray expected = "kvstd: " + folder.Path("r").toUtf8() +
                                "/resources/photo.png: no report has made this, and a report here would "
                                "remove it\n";
    Run(CString("report -o r ") + Metric, 3, expected);
    EXPECT_EQ(folder.Names("r"), CStringArray{"resources"});
    EXPECT_EQ(folder.Get("r/resources/photo.png"), "mine");
}

TEST_F(ReportCommand, AFileInPlaceOfThePictures) {
    QDir().mkdir("r");
    folder.Put("r/resources", "mine");
    const CommandRun run = RunWords(CString("report -o r ") + Metric);
    EXPECT_EQ(run.code, 3);
    EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
    EXPECT_TRUE(run.err.startsWith("kvstd: " + folder.Path("r").toUtf8() + ": ")) << run.err.constData();
    EXPECT_EQ(folder.Get("r/resources"), "mine");
    EXPECT_TRUE(QFileInfo::exists("r/Metric drawings to ISO.xml"));
}

TEST_F(ReportCommand, AFolderThatCannotBeMade) {
    folder.Put("file", "mine");
    Run(CString("report -o file ") + Metric, 3,
        "kvstd: " + folder.Path("file").toUtf8() + ": the folder cannot be made\n");
    EXPECT_EQ(folder.Get("file"), "mine");
}

TEST_F(ReportCommand, DrawingShowsItsProgress) {
    const CommandRun run = RunWords(CString("report -o r --pdf ") + Metric, RULEWARD_BIN_FOLDER, true);
    EXPECT_EQ(run.code, 0);
    EXPECT_TRUE(run.err.startsWith("\rDrawing page: 1 of ")) << run.err.constData();
    EXPECT_TRUE(run.err.endsWith(" \r")) << run.err.constData();
}
