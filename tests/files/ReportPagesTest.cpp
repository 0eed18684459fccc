#include "files/ReportPages.h"

#include "files/LanguageScope.h"
#include "files/Report.h"
#include "files/ReportDocument.h"
#include "files/ReportHtml.h"
#include "files/RunProgram.h"
#include "platform/TextNumbers.h"
#include "support/FilledStandard.h"
#include "support/TestFolder.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

// Shows what the layout gets for a name.
class AskedDocument : public ReportDocument {
public:
    using ReportDocument::ReportDocument;
    QSize SizeOf(const char* name) {
        return resource(ImageResource, QUrl(CString(name))).value<QImage>().size();
    }
};

QByteArray RenderedPage(CStandard& standard, const TestFolder& folder) {
    const ReportFiles files = WriteReportFiles(standard, folder.Path());
    return RenderReportHtml(files.xmlPath, files.stylesheetPath).html;
}

// As a printer whose paper has run out.
class OnePageWriter : public QPdfWriter {
public:
    using QPdfWriter::QPdfWriter;
    bool newPage() override { return false; }
};

// What the library says on its own, kept from the terminal.
class LibraryWords {
public:
    LibraryWords() : m_before(qInstallMessageHandler(Keep)) { Kept().clear(); }
    ~LibraryWords() { qInstallMessageHandler(m_before); }
    LibraryWords(const LibraryWords&) = delete;
    LibraryWords& operator=(const LibraryWords&) = delete;

    const CStringArray& Lines() const { return Kept(); }

private:
    static CStringArray& Kept() {
        static CStringArray lines;
        return lines;
    }
    static void Keep(QtMsgType, const QMessageLogContext&, const QString& line) { Kept().append(line); }

    QtMessageHandler m_before;
};

// The words of a PDF file, page by page.
CStringArray TextOf(const CString& path) {
    const CString text = QString::fromUtf8(RunProgram("pdftotext", {"-layout", path, "-"}));
    CStringArray pages = text.split('\f');
    pages.removeLast(); // each page ends with a form feed
    return pages;
}

int PagesOf(const CString& path) {
    const QByteArray info = RunProgram("pdfinfo", {path});
    return QRegularExpression("Pages: +(\\d+)").match(QString::fromUtf8(info)).captured(1).toInt();
}

CStringArray ManyValues(int count) {
    CStringArray values;
    for (int i = 0; i < count; ++i)
        values.append(CString("value%1end").arg(i));
    return values;
}

CString TableOf(int rows) {
    CString html = "<table><tr><th bgcolor='#000088'>Head</th></tr>";
    for (int i = 0; i < rows; ++i)
        html += CString("<tr><td>row%1end</td></tr>").arg(i);
    return html + "</table>";
}

} // namespace

TEST(ReportPages, PdfHoldsTheWordsOfTheReport) {
    for (const char* language : {"English", "German"}) {
        const LanguageScope scope(language);
        const TestFolder folder;
        CStandard standard;
        FillStandard(standard);
        const CString pdf = folder.Path("a.pdf");
        ASSERT_TRUE(WriteReportPdf(RenderedPage(standard, folder), folder.Path(), pdf, "Plate rules").ok);
        const CString text = TextOf(pdf).join(' ').simplified();
        for (const unsigned id : {1945u, 2394u, 2395u, 2261u, 1907u, 2004u})
            EXPECT_TRUE(text.contains(LoadString(id))) << id;
        EXPECT_TRUE(text.contains("/home/anna/Plate rules.kvstd"));
        EXPECT_TRUE(text.contains(LoadString(1657) + "(1.5mm,20mm)"));
    }
}

TEST(ReportPages, FontsAreEmbedded) {
    const TestFolder folder;
    CStandard standard;
    FillStandard(standard);
    ASSERT_TRUE(WriteReportPdf(RenderedPage(standard, folder), folder.Path(), folder.Path("a.pdf"), "x").ok);
    CStringArray fonts =
        QString::fromUtf8(RunProgram("pdffonts", {folder.Path("a.pdf")})).split('\n', Qt::SkipEmptyParts);
    ASSERT_GT(fonts.size(), 2);
    for (const CString& font : fonts.mid(2))
        EXPECT_TRUE(QRegularExpression("Identity-H +yes").match(font).hasMatch()) << font.toStdString();
}

TEST(ReportPages, FootTellsNameAndNumber) {
    const TestFolder folder;
    const CString pdf = folder.Path("a.pdf");
    ASSERT_TRUE(WriteReportPdf(TableOf(150).toUtf8(), folder.Path(), pdf, "Plate rules").ok);
    const CStringArray pages = TextOf(pdf);
    ASSERT_GT(pages.size(), 1);
    for (int i = 0; i < pages.size(); ++i)
        EXPECT_TRUE(pages[i].trimmed().contains(
            QRegularExpression(CString("Plate rules +Page %1 of %2$").arg(i + 1).arg(pages.size()))));
}

TEST(ReportPages, LongNameInTheFootIsShortened) {
    const TestFolder folder;
    const CString pdf = folder.Path("a.pdf");
    ASSERT_TRUE(WriteReportPdf("x", folder.Path(), pdf, CString(400, 'W')).ok);
    EXPECT_TRUE(TextOf(pdf).at(0).contains("Page 1 of 1"));
    EXPECT_FALSE(TextOf(pdf).at(0).contains(CString(400, 'W')));
}

TEST(ReportPages, EveryRowStandsOnceAndEveryPageHasTheHead) {
    const TestFolder folder;
    const CString pdf = folder.Path("a.pdf");
    ASSERT_TRUE(WriteReportPdf(TableOf(400).toUtf8(), folder.Path(), pdf, "x").ok);
    const CStringArray pages = TextOf(pdf);
    EXPECT_EQ(PagesOf(pdf), pages.size());
    EXPECT_GT(pages.size(), 5);
    EXPECT_LT(pages.size(), 12);
    int row = 0;
    for (const CString& page : pages) {
        EXPECT_EQ(page.count("Head"), 1);
        for (; page.contains(CString("row%1end").arg(row)); ++row)
            EXPECT_EQ(pages.join(' ').count(CString("row%1end").arg(row)), 1) << row;
    }
    EXPECT_EQ(row, 400);
}

TEST(ReportPages, CheckTallerThanAPageGoesOnWithWholeValues) {
    const TestFolder folder;
    CStandard standard;
    AddCheckWith(standard, 312, 1742, OpOneOf, {"2"});
    AddCheckWith(standard, 104, 1724, OpOneOf, ManyValues(300));
    const CString pdf = folder.Path("a.pdf");
    ASSERT_TRUE(WriteReportPdf(RenderedPage(standard, folder), folder.Path(), pdf, "x").ok);
    const CStringArray pages = TextOf(pdf);
    EXPECT_TRUE(pages.at(0).contains("value0end")); // the check begins where it stands
    for (const CString& value : ManyValues(300))
        EXPECT_EQ(pages.join(' ').count(value), 1) << value.toStdString();
}

TEST(ReportPages, PageEndsDoNotDependOnTheDevice) {
    const TestFolder folder;
    std::vector<int> counts;
    for (const int resolution : {72, 300, 1200}) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setResolution(resolution);
        int count = 0;
        EXPECT_TRUE(
            DrawReportPages(TableOf(300).toUtf8(), folder.Path(), "x", writer, [&count](int, int pages) {
                count = pages;
                return true;
            }).ok);
        counts.push_back(count);
    }
    EXPECT_GT(counts[0], 3);
    EXPECT_EQ(counts[1], counts[0]);
    EXPECT_EQ(counts[2], counts[0]);
}

TEST(ReportPages, ProgressCountsThePages) {
    const TestFolder folder;
    std::vector<int> seen;
    int total = 0;
    ASSERT_TRUE(WriteReportPdf(TableOf(150).toUtf8(), folder.Path(), folder.Path("a.pdf"), "x",
                               [&](int page, int pages) {
                                   seen.push_back(page);
                                   total = pages;
                                   return true;
                               })
                    .ok);
    ASSERT_GT(total, 2);
    for (int i = 0; i < total; ++i)
        EXPECT_EQ(seen.at(static_cast<size_t>(i)), i + 1);
}

TEST(ReportPages, StoppedWorkLeavesTheOldFile) {
    const TestFolder folder;
    folder.Put("a.pdf", "old");
    const FileResult result = WriteReportPdf(TableOf(300).toUtf8(), folder.Path(), folder.Path("a.pdf"), "x",
                                             [](int page, int) { return page < 2; });
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.reason, LoadString(61304));
    EXPECT_EQ(folder.Get("a.pdf"), "old");
    EXPECT_EQ(folder.Names(), CStringArray{"a.pdf"});
}

TEST(ReportPages, FailureToWriteIsTold) {
    const TestFolder folder;
    const FileResult result = WriteReportPdf("x", folder.Path(), folder.Path("missing/a.pdf"), "x");
    EXPECT_FALSE(result.ok);
    EXPECT_FALSE(result.reason.isEmpty());
}

TEST(ReportPages, DeviceThatTakesNothingIsTold) {
    QPdfWriter writer(CString("/nonexistent/folder/a.pdf"));
    const LibraryWords words;
    const FileResult result = DrawReportPages("x", "/", "x", writer);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.reason, LoadString(ReportNotDrawn));
    EXPECT_EQ(words.Lines(), CStringArray("QPainter::begin(): Returned false"));
}

TEST(ReportPages, DeviceThatTakesNoFurtherPageIsTold) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    OnePageWriter writer(&buffer);
    EXPECT_TRUE(DrawReportPages("x", "/", "x", writer).ok);
    const FileResult result = DrawReportPages(TableOf(300).toUtf8(), "/", "x", writer);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.reason, LoadString(ReportNotDrawn));
}

TEST(ReportDocument, PicturesOfTheReportAreShown) {
    for (const char* language : {"English", "German"}) {
        const LanguageScope scope(language);
        const TestFolder folder;
        CStandard standard;
        AddCheckWith(standard, 304, 1566, OpOneOf, {"0"}); // a label with an umlaut in German
        const QByteArray page = RenderedPage(standard, folder);
        const QRegularExpressionMatch source =
            QRegularExpression("img src=\"([^\"]*)\"").match(QString::fromUtf8(page));
        ASSERT_TRUE(source.hasMatch());
        AskedDocument document(folder.Path());
        EXPECT_GT(document.SizeOf(source.captured(1).toUtf8()).width(), 1) << language;
    }
}

TEST(ReportDocument, NamesThatLeadElsewhereShowAnEmptySpot) {
    const TestFolder folder;
    CStandard standard;
    AddCheckWith(standard, 312, 1742, OpOneOf, {"2"});
    WriteReportFiles(standard, folder.Path());
    const CString bitmap = folder.Path("resources/Medium.bmp");
    QDir().mkpath(folder.Path("resources/deep"));
    QFile::copy(bitmap, folder.Path("outside.bmp"));
    QFile::copy(bitmap, folder.Path("resources/deep/a.bmp"));
    QFile::copy(bitmap, folder.Path("resources/a.png"));
    QFile::link(folder.Path("outside.bmp"), folder.Path("resources/link.bmp"));
    folder.Put("resources/broken.bmp", "BM");
    AskedDocument document(folder.Path());
    EXPECT_GT(document.SizeOf("resources/Medium.bmp").width(), 1);
    const QByteArray absolute = folder.Path("outside.bmp").toUtf8();
    for (const char* name :
         {"resources/../outside.bmp", "outside.bmp", absolute.constData(), "resources/deep/a.bmp",
          "resources/a.png", "resources/link.bmp", "resources/broken.bmp", "resources/none.bmp",
          "resources/.bmp", "http://localhost/a.bmp", "//host/resources/a.bmp", "qrc:/a.bmp"})
        EXPECT_EQ(document.SizeOf(name), QSize(1, 1)) << name;
}

TEST(ReportDocument, PictureOfAbsurdSizeIsAnEmptySpot) {
    const TestFolder folder;
    QDir().mkpath(folder.Path("resources"));
    QImage wide(5000, 2, QImage::Format_RGB32);
    wide.fill(Qt::red);
    ASSERT_TRUE(wide.save(folder.Path("resources/wide.bmp"), "bmp"));
    AskedDocument document(folder.Path());
    EXPECT_EQ(document.SizeOf("resources/wide.bmp"), QSize(1, 1));
}

TEST(ReportDocument, StylesOfOtherFilesAreNotRead) {
    const TestFolder folder;
    folder.Put("a.css", "p { color: red }");
    ReportDocument document(folder.Path());
    document.ShowPage("<html><head><link rel='stylesheet' href='a.css'></head><body><p>x</p></body></html>");
    EXPECT_FALSE(document.toHtml().contains("#ff0000"));
}
