#include "files/ReportHtml.h"

#include "files/LanguageScope.h"
#include "files/Report.h"
#include "files/RunProgram.h"
#include "support/FilledStandard.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

QByteArray PageOf(CStandard& standard, const TestFolder& folder) {
    const ReportFiles files = WriteReportFiles(standard, folder.Path());
    const ReportPage page = RenderReportHtml(files.xmlPath, files.stylesheetPath);
    EXPECT_TRUE(page.result.ok) << page.result.reason.toStdString();
    return page.html;
}

QByteArray PageOf(CStandard& standard) {
    const TestFolder folder;
    return PageOf(standard, folder);
}

// A stylesheet around one instruction, applied to an empty document.
ReportPage Apply(const TestFolder& folder, const QByteArray& instruction, const QByteArray& top = {}) {
    folder.Put("a.xml", "<Standard/>");
    folder.Put("a.xsl", "<xsl:stylesheet version='1.0' xmlns:xsl='http://www.w3.org/1999/XSL/Transform'>" +
                            top + "<xsl:output method='html'/><xsl:template match='/'><p>" + instruction +
                            "</p></xsl:template></xsl:stylesheet>");
    return RenderReportHtml(folder.Path("a.xml"), folder.Path("a.xsl"));
}

} // namespace

TEST(ReportHtml, IsThePageThatAnotherProcessorMakes) {
    for (const char* language : {"English", "German"}) {
        const LanguageScope scope(language);
        const TestFolder folder;
        CStandard standard;
        FillStandard(standard);
        standard.Name = "/home/anna/Maße & Größen.kvstd";
        const QByteArray page = PageOf(standard, folder);
        EXPECT_GT(page.size(), 50000);
        EXPECT_EQ(RunProgram("xsltproc", {"--nonet", folder.Path("Maße & Größen.xml")}), page) << language;
    }
}

TEST(ReportHtml, ShowsHeaderAndHeadsInTheLanguageOfTheTool) {
    const LanguageScope german("German");
    CStandard standard;
    standard.Name = "/a/Regeln.kvstd";
    standard.Createdby = "anna";
    standard.CreatedOn = "05.03.26 2.07pm";
    const QByteArray page = PageOf(standard);
    for (const char* text :
         {"<title>Ruleward-Bericht</title>", "/a/Regeln.kvstd", ">anna<", "05.03.26 2.07pm", "Erstellt von",
          "Inhalt des Standards", "Prüfung", "Zielwert"})
        EXPECT_TRUE(page.contains(text)) << text;
}

TEST(ReportHtml, CheckWithSummaryIsOneCellWithoutItsParameters) {
    CStandard standard;
    AddCheckWith(standard, 602, CStandard::MakeCheck(602)->Parameters[0]->ID, OpOneOf, {"marker"});
    const QByteArray page = PageOf(standard);
    EXPECT_TRUE(page.contains("colspan=\"2\" align=\"center\""));
    EXPECT_TRUE(page.contains(LoadString(2004).toUtf8()));
    EXPECT_FALSE(page.contains("marker"));
}

TEST(ReportHtml, DeletedChecksDoNotAppearAtAnyLevel) {
    CStandard standard;
    AddCheckWith(standard, 104, 1724, OpOneOf, {"deleted one"}).LifeStatus = LifeDeleted;
    auto container = CStandard::MakeCheck(105);
    for (const char* value : {"living child", "deleted child"}) {
        auto child = dynamic_cast<CCheckManager&>(*container).MakeChild();
        SetParameter(*child, 1724, OpOneOf, {value});
        child->LifeStatus = CString(value).startsWith("deleted") ? LifeDeleted : LifeInForce;
        container->Children.Add(child.release());
    }
    unsigned sequence = 0;
    standard.InsertCheck(std::move(container), sequence);
    const QByteArray page = PageOf(standard);
    EXPECT_TRUE(page.contains("living child"));
    EXPECT_FALSE(page.contains("deleted"));
}

TEST(ReportHtml, OnlyThreeContainersHaveAHeadingRow) {
    for (const auto& [type, headings] :
         {std::pair{105, 1}, {303, 1}, {310, 1}, {122, 0}, {127, 0}, {312, 0}}) {
        CStandard standard;
        unsigned sequence = 0;
        standard.InsertCheck(CStandard::MakeCheck(type), sequence);
        EXPECT_EQ(PageOf(standard).count("colspan=\"3\""), headings) << type;
    }
}

TEST(ReportHtml, ParameterOutOfForceIsLeftOut) {
    CStandard standard;
    CCheck& check = AddCheckWith(standard, 104, 1724, OpOneOf, {"in force"});
    SetParameter(check, 1725, OpBetween, {"3"}); // no range: goes out of force when it is written
    const QByteArray page = PageOf(standard);
    EXPECT_TRUE(page.contains("in force"));
    EXPECT_FALSE(page.contains(LoadString(1725).toUtf8()));
}

TEST(ReportHtml, ValuesAreShownByTheirKind) {
    CStandard standard;
    standard.Unit = 0;
    AddCheckWith(standard, 304, 1564, OpOneOf, {"255"});
    AddCheckWith(standard, 312, 1742, OpOneOf, {"2"});
    AddCheckWith(standard, 104, 1724, OpEqual, {"a <b>"});
    const QByteArray page = PageOf(standard);
    EXPECT_TRUE(page.contains("<td align=\"center\" bgcolor=\"#ff0000\">\u00a0</td>"));
    EXPECT_TRUE(page.contains("<img src=\"resources/Hidden%20Lines%20Visible.bmp\">"));
    EXPECT_TRUE(page.contains("= a &lt;b&gt;"));
}

TEST(ReportHtml, StylesheetReadsNothingElse) {
    const TestFolder folder;
    folder.Put("secret.xml", "<secret>hidden words</secret>");
    const ReportPage page =
        Apply(folder, "<xsl:value-of select=\"document('" + folder.Path("secret.xml").toUtf8() + "')\"/>");
    EXPECT_FALSE(page.html.contains("hidden words"));
    EXPECT_FALSE(page.result.ok);
    EXPECT_FALSE(page.result.reason.isEmpty());
}

TEST(ReportHtml, StylesheetTakesInNoOther) {
    const TestFolder folder;
    folder.Put("other.xsl", "<xsl:stylesheet version='1.0' xmlns:xsl='http://www.w3.org/1999/XSL/Transform'>"
                            "<xsl:template name='other'>hidden words</xsl:template></xsl:stylesheet>");
    for (const char* how : {"include", "import"}) {
        const QByteArray top =
            QByteArray("<xsl:") + how + " href='" + folder.Path("other.xsl").toUtf8() + "'/>";
        const ReportPage page = Apply(folder, "<xsl:call-template name='other'/>", top);
        EXPECT_FALSE(page.result.ok) << how;
        EXPECT_FALSE(page.html.contains("hidden words"));
    }
}

TEST(ReportHtml, StylesheetWritesNothing) {
    const TestFolder folder;
    Apply(folder, "<xsl:document href='" + folder.Path("written.txt").toUtf8() + "'>words</xsl:document>");
    EXPECT_EQ(folder.Names(), (CStringArray{"a.xml", "a.xsl"}));
}

TEST(ReportHtml, BrokenAndMissingFilesAreTold) {
    const TestFolder folder;
    folder.Put("good.xml", "<Standard/>");
    folder.Put("broken.xml", "<Standard>");
    folder.Put("doctype.xml", "<!DOCTYPE a [<!ENTITY e SYSTEM '/etc/hostname'>]><Standard>&e;</Standard>");
    for (const char* name : {"broken.xml", "doctype.xml", "missing.xml"}) {
        for (const bool first : {true, false}) {
            const ReportPage page = RenderReportHtml(folder.Path(first ? name : "good.xml"),
                                                     folder.Path(first ? "good.xml" : name));
            EXPECT_TRUE(page.html.isEmpty());
            EXPECT_FALSE(page.result.ok);
            EXPECT_TRUE(page.result.reason.contains(name)) << page.result.reason.toStdString();
        }
    }
}

TEST(ReportHtml, DocumentThatIsNoStylesheetIsTold) {
    const TestFolder folder;
    folder.Put("good.xml", "<Standard/>");
    folder.Put("bad.xsl",
               "<xsl:stylesheet version='1.0' xmlns:xsl='http://www.w3.org/1999/XSL/Transform'>"
               "<xsl:template match='/'><xsl:value-of select='!!'/></xsl:template></xsl:stylesheet>");
    const ReportPage page = RenderReportHtml(folder.Path("good.xml"), folder.Path("bad.xsl"));
    EXPECT_FALSE(page.result.ok);
    EXPECT_FALSE(page.result.reason.isEmpty());
}

TEST(ReportHtml, PageIsWrittenAsItIs) {
    const TestFolder folder;
    EXPECT_TRUE(WriteReportHtml("<html>", folder.Path("a.html")).ok);
    EXPECT_EQ(folder.Get("a.html"), "<html>");
    EXPECT_FALSE(WriteReportHtml("<html>", folder.Path("missing/a.html")).ok);
}
