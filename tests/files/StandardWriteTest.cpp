#include "files/StandardTree.h"
#include "platform/LanguageLibrary.h"
#include "support/FixedSession.h"
#include "support/Messages.h"
#include "support/StandardText.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

// The element of a check in its stored form.
struct Written {
    explicit Written(CCheck& check) : element(check.WriteXml()) {}
    CString Text() const {
        CString text;
        element->GetXml(text);
        return text;
    }
    CString Attribute(const char* name) const {
        CString text;
        element->GetAttribute(name, text);
        return text;
    }

    CXmlDocument document;
    CurrentXmlDocument current{document};
    std::unique_ptr<CXmlElement> element;
};

CString Escaped(unsigned id) {
    return LoadString(id).toHtmlEscaped();
}

void SetLong(CCheck& check, unsigned id, unsigned op, const std::vector<long>& values) {
    CParameter<long>& parameter = *check.GetLongParameter(id);
    parameter.Operator = op;
    for (const long value : values)
        parameter.Values.Add(value);
}

CCheck& Inserted(CStandard& standard, int type) {
    Insert(standard, type);
    CCheck* check = nullptr;
    standard.FindBySequence(standard.LastSequence, check);
    return *check;
}

// A display mode check with the value 2 and a deleted spelling check, in millimetres and degrees.
void FillExample(CStandard& standard) {
    standard.Unit = 0;
    standard.AngularUnit = 0;
    CCheck& modes = Inserted(standard, 312);
    SetLong(modes, 1742, OpOneOf, {2});
    modes.GetLongParameter(1742)->Correction = 2;
    CCheck& spelling = Inserted(standard, 203);
    spelling.Criticality = 2;
    spelling.LifeStatus = LifeDeleted;
}

} // namespace

TEST(StandardWrite, ExampleToTheByte) {
    const FixedSession session("designer", COleDateTime(QDate(2026, 3, 5), QTime(14, 7, 9)));
    const TestFolder folder;
    CStandard standard;
    FillExample(standard);
    standard.SetHeader("C:\\Rules\\Plate rules.kvstd", "English");
    EXPECT_TRUE(standard.SaveToFile(folder.Path("Plate rules.kvstd")));
    const CString expected =
        R"(<Standard Name="C:\Rules\Plate rules.kvstd" Createdby="designer" CreatedOn="03/05/2026 14:07:09")"
        R"( Unit="0" AngularUnit="0" Version="2026" RunRWConfigOption="0">)"
        R"(<Check Type="312" Name=")" +
        Escaped(1743) + R"(" Status="0" LifeStatus="0" Criticality="1" IsACSupported="1" Summary="">)" +
        R"(<Parameter Name=")" + Escaped(1742) + R"(" Type="1742" CorrectionValue="2">)" +
        "<Operator>2</Operator><ParameterType>25</ParameterType><Value>2</Value><Remarks/></Parameter></"
        "Check>" +
        R"(<Check Type="203" Name=")" + Escaped(1691) +
        R"(" Status="0" LifeStatus="1" Criticality="2" IsACSupported="0" Summary=")" + Escaped(2149) + "\">" +
        R"(<Parameter Name=")" + Escaped(1707) + R"(" Type="1707" CorrectionValue="">)" +
        "<Operator>0</Operator><ParameterType>0</ParameterType><Remarks/></Parameter></Check></Standard>";
    EXPECT_EQ(folder.Get("Plate rules.kvstd").toStdString(), expected.toStdString());
}

TEST(StandardWrite, OutOfForceParameterIsLeftOutAtTheNextWriting) {
    CStandard standard;
    Insert(standard, 203);
    EXPECT_TRUE(TextOf(standard).contains("<Operator>0</Operator>"));
    EXPECT_FALSE(TextOf(standard).contains("<Parameter"));
}

TEST(StandardWrite, NewFeatureCheckIsWrittenOutOfForce) {
    CCheck check(702, 0, 0, 0, 1);
    EXPECT_TRUE(Written(check).Text().contains("Type=\"1922\" CorrectionValue=\"0\"><Operator>0</Operator>"));
}

TEST(StandardWrite, CheckWithoutParametersIsAnElementWithoutName) {
    CCheck check(404, 0, 0, 0, 1);
    EXPECT_EQ(Written(check).Text(), R"(<Check Type="404" Name="" Status="0" LifeStatus="0" Criticality="1" )"
                                     R"(IsACSupported="1" Summary=""/>)");
}

TEST(StandardWrite, NumbersAreSigned) {
    CCheck check(404, 0, 2, LifeUnreadable, 0xFFFFFFFFu);
    const Written written(check);
    EXPECT_EQ(written.Attribute("Status"), "2");
    EXPECT_EQ(written.Attribute("LifeStatus"), "-1");
    EXPECT_EQ(written.Attribute("Criticality"), "-1");
    CCheck strange(312, 0, 0, 0, 1);
    SetLong(strange, 1742, 0xFFFFFFFBu, {1});
    EXPECT_TRUE(Written(strange).Text().contains("<Operator>-5</Operator>"));
}

TEST(StandardWrite, OperatorsZeroAndTwelveLeaveTheParameterOut) {
    for (unsigned op : {OpNone, OpLeftOut}) {
        CCheck check(312, 0, 0, 0, 1);
        SetLong(check, 1742, op, {1});
        EXPECT_FALSE(Written(check).Text().contains("Parameter"));
        EXPECT_EQ(check.GetLongParameter(1742)->Values.Count, 1);
    }
}

TEST(StandardWrite, RangeWithOtherThanTwoValuesIsOutOfForce) {
    for (const std::vector<long>& values : {std::vector<long>{1}, {1, 2, 3}, {}}) {
        CCheck check(312, 0, 0, 0, 1);
        SetLong(check, 1742, OpBetween, values);
        check.GetLongParameter(1742)->Remarks = "a remark does not save it";
        const Written written(check);
        EXPECT_TRUE(written.Text().contains("<Operator>0</Operator>"));
        EXPECT_FALSE(written.Text().contains("<Value>"));
        EXPECT_EQ(check.GetLongParameter(1742)->Operator, OpNone);
        EXPECT_EQ(check.GetLongParameter(1742)->Values.Count, 0);
    }
    CCheck check(312, 0, 0, 0, 1);
    SetLong(check, 1742, OpBetween, {1, 2});
    EXPECT_TRUE(Written(check).Text().contains(
        "<Operator>1</Operator><ParameterType>25</ParameterType><Value>1</Value><Value>2</Value>"));
}

TEST(StandardWrite, RemarkKeepsAParameterWithoutValuesInForce) {
    CCheck check(312, 0, 0, 0, 1);
    SetLong(check, 1742, OpEqual, {});
    check.GetLongParameter(1742)->Remarks = "see <manual> & ask";
    EXPECT_TRUE(
        Written(check).Text().contains("<Operator>3</Operator><ParameterType>25</ParameterType><Remarks>see "
                                       "&lt;manual&gt; &amp; ask</Remarks>"));
    EXPECT_EQ(check.GetLongParameter(1742)->Operator, OpEqual);
}

TEST(StandardWrite, ValuesStandInTheFormOfTheirType) {
    CCheck fonts(109, 0, 0, 0, 1);
    fonts.GetStringParameter(1700)->Operator = OpOneOf;
    fonts.GetStringParameter(1700)->Values.Add(nullptr);
    fonts.GetStringParameter(1700)->SetCorrection(new CString("Arial"));
    fonts.GetDoubleParameter(1704)->Operator = OpEqual;
    fonts.GetDoubleParameter(1704)->Values.Add(3.5);
    const CString text = Written(fonts).Text();
    EXPECT_TRUE(text.contains("CorrectionValue=\"Arial\"><Operator>2</Operator>"));
    EXPECT_TRUE(text.contains("<Value/>"));
    EXPECT_TRUE(text.contains("CorrectionValue=\"0.0000000000\"><Operator>3</Operator>"));
    EXPECT_TRUE(text.contains("<Value>3.5000000000</Value>"));
    CCheck layer(304, 0, 0, 0, 1);
    layer.GetULongParameter(1564)->Operator = OpEqual;
    layer.GetULongParameter(1564)->Values.Add(4294967295ul);
    EXPECT_TRUE(Written(layer).Text().contains("<Value>4294967295</Value>"));
    CCheck location(124, 0, 0, 0, 1);
    location.GetBoolParameter(2476)->Operator = OpEqual;
    location.GetBoolParameter(2476)->Values.Add(true);
    EXPECT_TRUE(Written(location).Text().contains("CorrectionValue=\"0\"><Operator>3</Operator>"));
    EXPECT_TRUE(Written(location).Text().contains("<Value>1</Value>"));
}

TEST(StandardWrite, ContainerWritesChildrenFirstAndNoCorrectionFlag) {
    CCheckManager container(127);
    SetLong(container, 2478, OpEqual, {1});
    for (long value : {7, 0}) {
        auto child = container.MakeChild();
        if (value)
            SetLong(*child, 2473, OpEqual, {value});
        container.Children.Add(child.release());
    }
    const Written written(container);
    EXPECT_TRUE(written.Text().startsWith("<Check Type=\"127\" Name=\"" + Escaped(2425) +
                                          "\" Status=\"0\" LifeStatus=\"0\" Criticality=\"1\" Summary=\"\">"
                                          "<Check Type=\"124\""));
    EXPECT_EQ(written.element->SelectNodes("Check").GetCount(), 1) << "a child without a value is left out";
    EXPECT_EQ(written.element->GetChildNodes().GetCount(), 2);
    EXPECT_TRUE(written.element->GetChildNodes().GetAt(1)->HasBaseName("Parameter"));
    CString flag;
    EXPECT_TRUE(written.element->SelectSingleNode("Check")->GetAttribute("IsACSupported", flag));
}

TEST(StandardWrite, SummaryIsTheTextOfTheType) {
    CCheck fixedParts(603, 0, 0, 0, 1);
    EXPECT_EQ(Written(fixedParts).Attribute("Summary"), "");
    CCheck spelling(203, 0, 0, 0, 1);
    EXPECT_EQ(Written(spelling).Attribute("Summary"), LoadString(2149));
}

TEST(StandardWrite, WithoutADocumentThereIsNoElement) {
    CCheck check(101, 0, 0, 0, 1);
    CCheckManager container(105);
    EXPECT_EQ(check.WriteXml(), nullptr);
    EXPECT_EQ(container.WriteXml(), nullptr);
}

TEST(StandardWrite, IllegalDataTypeShowsAMessageAndIsLeftOut) {
    CCheck check(406, 0, 0, 0, 1);
    const Messages messages;
    check.Parameters.Add(CreateParameter(9, 1, OpNone, 0, false).release());
    EXPECT_FALSE(Written(check).Text().contains("Parameter"));
    EXPECT_EQ(messages.texts.count("Illegal Param DataType Defined"), 2);
}

TEST(StandardWrite, FolderThatIsMissingIsAnErrorThatNamesTheFile) {
    CStandard standard;
    try {
        standard.SaveToFile("/nowhere/at all.kvstd");
        FAIL();
    } catch (const CXmlError& error) {
        EXPECT_TRUE(QString(error.what()).contains("/nowhere/at all.kvstd"));
    }
    EXPECT_EQ(g_CurrentXmlDocument, nullptr);
}
