#include "files/StandardFile.h"
#include "support/FilledStandard.h"

#include "files/XmlDocument.h"
#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>

namespace {

int CountOf(const CString& xml, const char* path) {
    CXmlDocument document;
    const CXmlElement* root = document.LoadXmlText(xml);
    return root ? root->SelectNodes(path).GetCount() : -1;
}

} // namespace

TEST(ReportXml, IsTheStoredTreeWithDisplayValues) {
    CStandard standard;
    standard.Unit = 0;
    standard.AngularUnit = 0;
    AddCheckWith(standard, 312, 1742, OpOneOf, {"2"});
    const CString xml = standard.BuildReportXml();
    EXPECT_EQ(xml, standard.ReportXml);
    EXPECT_TRUE(
        xml.startsWith("<Standard Name=\"\" Createdby=\"\" CreatedOn=\"\" Unit=\"0\" AngularUnit=\"0\" "
                       "Version=\"2026\" RunRWConfigOption=\"0\"><Check Type=\"312\""));
    EXPECT_TRUE(xml.contains("<Value FileName=\"" + LoadString(1746) + "\" Datatype=\"Image\">1360</Value>"));
    EXPECT_TRUE(xml.endsWith("</ImageList></Standard>"));
}

TEST(ReportXml, SecondBuildListsOnlyNewPictures) {
    CStandard standard;
    AddCheckWith(standard, 312, 1742, OpOneOf, {"2"});
    EXPECT_EQ(CountOf(standard.BuildReportXml(), "ImageList/Image"), 2);
    EXPECT_EQ(CountOf(standard.BuildReportXml(), "ImageList/Image"), 0);
    AddCheckWith(standard, 312, 1742, OpOneOf, {"2", "1"});
    EXPECT_EQ(CountOf(standard.BuildReportXml(), "ImageList/Image"), 1);
}

TEST(ReportXml, DoesNotChangeTheStandard) {
    CStandard standard;
    FillStandard(standard);
    const CString first = standard.BuildReportXml();
    standard.ReportImages.Clear();
    EXPECT_EQ(standard.BuildReportXml(), first);
    EXPECT_EQ(g_CurrentXmlDocument, nullptr);
}

TEST(ReportXml, DeletedChecksAreIn) {
    CStandard standard;
    AddCheckWith(standard, 312, 1742, OpOneOf, {"2"}).LifeStatus = LifeDeleted;
    EXPECT_EQ(CountOf(standard.BuildReportXml(), "Check[@LifeStatus='1']"), 1);
}
