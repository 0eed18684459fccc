// The checker's result documents pass the same decoration.
#include "files/DecoratedDocument.h"
#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>

namespace {

CString CheckXml(int type, const CString& name, const CString& content) {
    return "<Check Type='" + FormatInt(type) + "' Name='" + name + "' IsACSupported='1'>" + content +
           "</Check>";
}

CString ResultXml(const CString& content) {
    return "<Result>" + content + "</Result>";
}

CString Document(const CString& checks) {
    return "<Standard>" + checks + "</Standard>";
}

} // namespace

TEST(ReportResult, ValuesOfResultHaveNoLabels) {
    const DecoratedDocument document(Document(CheckXml(
        312, "C",
        ParameterXml(1, 7, {"3"}) + ResultXml("<Item/>" + CheckXml(312, "C", ParameterXml(1, 7, {"2"}))))));
    EXPECT_EQ(document.Text("Check/Parameter/Value"), ">= 3mm");
    EXPECT_EQ(document.Text("Check/Result/Check/Parameter/Value"), "2mm");
}

TEST(ReportResult, ParameterAsFirstChildIsDecoratedWithoutLabel) {
    const DecoratedDocument document(
        Document(CheckXml(312, "C", ResultXml(ParameterXml(23, 3, {"1"}) + ParameterXml(23, 3, {"0"})))));
    EXPECT_EQ(document.Text("Check/Result/Parameter[1]/Value"), "Yes");
    EXPECT_EQ(document.Text("Check/Result/Parameter[2]/Value"), "0"); // only the first child is looked at
}

TEST(ReportResult, FirstCheckIsNotDecoratedTwice) {
    const DecoratedDocument document(Document(CheckXml(
        312, "C",
        ResultXml(CheckXml(312, "C", ParameterXml(25, 3, {"2"}, "1") + ParameterXml(1, 3, {"2"}))))));
    EXPECT_EQ(document.Text("//Parameter[1]/Value"), "1360");
    EXPECT_EQ(document.Attribute("//Parameter[1]/Value", "FileName"), LoadString(1746));
    EXPECT_EQ(document.Attribute("//Parameter[1]", "CorrectionValue"), LoadString(1745));
    EXPECT_EQ(document.Text("//Parameter[2]/Value"), "2mm");
    EXPECT_EQ(document.Count("ImageList/Image"), 2);
}

TEST(ReportResult, ExpectedValueIsTakenFromTheCheckThatHoldsTheResult) {
    for (const int type : {104, 124, 304, 308}) {
        const DecoratedDocument document(
            Document(CheckXml(type, "C",
                              ParameterXml(1, 7, {"3", "4"}) +
                                  ResultXml("<Item/>" + CheckXml(type, "C", ParameterXml(1, 7, {"2"}))))));
        const char* path = "Check/Result/Check/Parameter/ExpectedValue/Value";
        EXPECT_EQ(document.Count(path), 2) << type;
        EXPECT_EQ(document.Text(path), ">= 3mm"); // as it is shown there
        EXPECT_EQ(document.Attribute(path, "Datatype"), "String");
        EXPECT_EQ(document.Count("Check/Parameter/ExpectedValue"), 0);
        EXPECT_EQ(document.Count("Check/Parameter/Value"), 2); // copied, not moved
    }
}

TEST(ReportResult, OtherTypesTellNoExpectedValue) {
    const DecoratedDocument document(Document(CheckXml(
        312, "C",
        ParameterXml(1, 7, {"3"}) + ResultXml("<Item/>" + CheckXml(312, "C", ParameterXml(1, 7, {"2"}))))));
    EXPECT_EQ(document.Count("//ExpectedValue"), 0);
}

TEST(ReportResult, ExpectedValueIsThatOfTheLastParameterOfTheName) {
    const DecoratedDocument document(
        Document(CheckXml(104, "C",
                          ParameterXml(0, 2, {"first"}) + ParameterXml(0, 2, {"last"}) +
                              ParameterXml(0, 2, {"other"}, {}, "Q") +
                              ResultXml("<Item/>" + CheckXml(104, "C",
                                                             ParameterXml(0, 2, {"found"}) +
                                                                 ParameterXml(0, 2, {"x"}, {}, "R"))))));
    EXPECT_EQ(document.Text("//ExpectedValue/Value"), "last");
    EXPECT_EQ(document.Count("//ExpectedValue"), 1); // none for R, which the check does not have
}

TEST(ReportResult, ContainerIsComparedByTheNamesOfItsChecks) {
    const DecoratedDocument document(Document(
        CheckXml(105, "Container",
                 CheckXml(104, "Weight", ParameterXml(0, 2, {"of weight"})) +
                     CheckXml(104, "Material", ParameterXml(0, 2, {"of material"})) +
                     ResultXml("<Item/>" + CheckXml(104, "Material (2)", ParameterXml(0, 2, {"found"}))))));
    EXPECT_EQ(document.Text("Check/Result/Check/Parameter/ExpectedValue/Value"), "of material");
    EXPECT_EQ(document.Count("//ExpectedValue"), 1);
}

TEST(ReportResult, ContainerWithParametersIsComparedByThemOnly) {
    const DecoratedDocument document(Document(CheckXml(
        105, "Container",
        CheckXml(104, "Weight", ParameterXml(0, 2, {"of weight"})) + ParameterXml(0, 2, {"own"}, {}, "Q") +
            ResultXml("<Item/>" + CheckXml(104, "Weight", ParameterXml(0, 2, {"found"}))))));
    EXPECT_EQ(document.Count("//ExpectedValue"), 0);
}

TEST(ReportResult, FirstCheckIsAlsoComparedWithItsResult) {
    const DecoratedDocument document(Document(CheckXml(
        104, "C",
        ParameterXml(0, 2, {"wanted"}) + ResultXml(CheckXml(104, "C", ParameterXml(0, 2, {"found"}))))));
    const char* path = "Check/Result/Check/Parameter/ExpectedValue";
    EXPECT_EQ(document.Count(path), 2);
    EXPECT_EQ(document.Text("//ExpectedValue[1]/Value"), "wanted");
    EXPECT_EQ(document.Text("//ExpectedValue[2]/Value"), "found");
}

TEST(ReportResult, EmptyResultIsNothing) {
    const DecoratedDocument document(Document(CheckXml(104, "C", ResultXml({}))));
    EXPECT_EQ(document.Count("//Result/*"), 0);
}
