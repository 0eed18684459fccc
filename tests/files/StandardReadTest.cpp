#include "files/XmlDocument.h"
#include "platform/LanguageLibrary.h"
#include "support/Language.h"
#include "support/Messages.h"
#include "support/StandardText.h"

#include <gtest/gtest.h>

namespace {

// A standard that holds the checks of a text.
struct Read {
    explicit Read(const CString& checks, const CString& attributes = {}) {
        ReadText("<Standard " + attributes + ">" + checks + "</Standard>", standard);
    }
    CCheck& First() const { return *AllOf(standard).at(0); }

    CStandard standard;
};

// A display mode check, which can be corrected, with the given inside.
CString Modes(const CString& parameters) {
    return "<Check Type='312'>" + parameters + "</Check>";
}

const CParameter<long>& ModesOf(const Read& read) {
    return *read.First().GetLongParameter(1742);
}

std::vector<long> ValuesOf(const CParameter<long>& parameter) {
    return {parameter.Values.begin(), parameter.Values.end()};
}

using Longs = std::vector<long>;

} // namespace

TEST(StandardRead, UnitsAndOptionOfTheRoot) {
    const Read read("",
                    "Unit='3' AngularUnit=' 1x' RunRWConfigOption='12' Name='n' CreatedOn='c' Createdby='u'");
    EXPECT_EQ(read.standard.Unit, 3);
    EXPECT_EQ(read.standard.AngularUnit, 1);
    EXPECT_EQ(read.standard.RunRWConfigOption, 1) << "only the first digit counts";
    EXPECT_EQ(read.standard.Name + read.standard.CreatedOn + read.standard.Createdby, "");
    EXPECT_EQ(read.standard.GetHistoryIndex(), -1);
}

TEST(StandardRead, MissingUnitsAreNotSet) {
    const Read read("", "RunRWConfigOption='x1'");
    EXPECT_EQ(read.standard.Unit, -2);
    EXPECT_EQ(read.standard.AngularUnit, -2);
    EXPECT_EQ(read.standard.RunRWConfigOption, 0);
    EXPECT_EQ(Read("").standard.RunRWConfigOption, 0);
}

TEST(StandardRead, PlaceInTheFileIsTheNumber) {
    const Read read("<Check Type='406'/><Check/><Check Type=''/><Check Type='312'/><Check Type='101'/>");
    const CheckList checks = AllOf(read.standard);
    ASSERT_EQ(checks.size(), 3u) << "an element without a type is skipped";
    EXPECT_EQ(checks[0]->Type, 406);
    EXPECT_EQ(checks[1]->Type, 312);
    EXPECT_EQ(checks[2]->Type, 101);
    EXPECT_EQ(NumbersOf(checks), (std::vector<unsigned>{1, 2, 3}));
}

TEST(StandardRead, HeadOfACheck) {
    const Read read("<Check Type='312' Name='renamed' Status='2' LifeStatus='1' Criticality='3'/>"
                    "<Check Type='312' LifeStatus='x' Criticality=''/><Check Type='312' Name=''/>");
    const CheckList checks = AllOf(read.standard);
    EXPECT_EQ(checks[0]->Name, "renamed");
    EXPECT_EQ(checks[0]->Status, 0u) << "never read";
    EXPECT_EQ(checks[0]->LifeStatus, LifeDeleted);
    EXPECT_EQ(checks[0]->Criticality, 3u);
    EXPECT_EQ(checks[1]->Name, LoadString(1743));
    EXPECT_EQ(checks[1]->LifeStatus, LifeUnreadable);
    EXPECT_EQ(checks[1]->Criticality, 1u);
    EXPECT_EQ(checks[2]->Name, "") << "an empty name is a name";
    EXPECT_EQ(checks[2]->Criticality, 1u);
}

TEST(StandardRead, SheetFontsAreNamedByTheirFileOnly) {
    EXPECT_EQ(Read("<Check Type='103' Name='Sheet fonts'/>").First().Name, "Sheet fonts");
    EXPECT_EQ(Read("<Check Type='103'/>").First().Name, "");
}

TEST(StandardRead, UnknownCheckKeepsItsHeadThroughASave) {
    for (int type : {605, 404, 900, 0}) {
        const CString head = CString("<Check Type=\"%1\" Name=\"Own\" Status=\"0\" LifeStatus=\"1\" "
                                     "Criticality=\"2\" IsACSupported=\"%2\" Summary=\"\"/>")
                                 .arg(type)
                                 .arg(type != 605);
        const Read read(head);
        EXPECT_EQ(read.First().Parameters.Count, 0);
        EXPECT_TRUE(TextOf(read.standard).contains(head)) << type;
    }
}

TEST(StandardRead, FirstParameterOfATypeWins) {
    const Read read(Modes("<Parameter Type='1742'><Operator>3</Operator><Value>1</Value></Parameter>"
                          "<Parameter Type='1742'><Operator>4</Operator><Value>2</Value></Parameter>"));
    EXPECT_EQ(ModesOf(read).Operator, OpEqual);
    EXPECT_EQ(ValuesOf(ModesOf(read)), Longs{1});
}

TEST(StandardRead, ElementsOfAParameterMayStandInAnyOrder) {
    const Read read(
        Modes("<Parameter Type=' 1742'><Remarks>r</Remarks><Value>1</Value><Other/><Value>x</Value>"
              "<Operator> 2</Operator><Value>3</Value><ParameterType>9</ParameterType></Parameter>"));
    EXPECT_EQ(ModesOf(read).Operator, OpOneOf);
    EXPECT_EQ(ValuesOf(ModesOf(read)), (Longs{1, 0, 3})) << "what is no number is zero";
    EXPECT_EQ(ModesOf(read).ParameterType, 25u);
    EXPECT_EQ(ModesOf(read).Remarks, "");
}

TEST(StandardRead, ParameterThatTheFileLacksIsOutOfForce) {
    for (const char* inside :
         {"", "<Parameter Type='1'><Operator>2</Operator><Value>1</Value></Parameter>"}) {
        const Read read(CString("<Check Type='702'>") + inside + "</Check>");
        EXPECT_EQ(read.First().GetLongParameter(1922)->Operator, OpNone) << "although a new one is in force";
        EXPECT_EQ(read.First().GetLongParameter(1922)->Values.Count, 0);
        EXPECT_FALSE(TextOf(read.standard).contains("Parameter")) << "the unknown one is lost";
    }
}

TEST(StandardRead, TypeDecidesAndTheNameIsNotLookedAt) {
    const CString label = LoadString(1742).toHtmlEscaped();
    const Read read(Modes("<Parameter Name='" + label +
                          "' Type='1'><Operator>3</Operator><Value>5</Value></Parameter>"
                          "<Parameter Name='x' Type='1742'><Operator>4</Operator></Parameter>"));
    EXPECT_EQ(ModesOf(read).Operator, OpNoneOf);
}

TEST(StandardRead, MissingOperatorIsOutOfForce) {
    const Read read(Modes("<Parameter Type='1742'><Value>1</Value></Parameter>"));
    EXPECT_EQ(ModesOf(read).Operator, OpNone);
}

TEST(StandardRead, OlderFileIsMatchedByNameInItsOwnLanguage) {
    const CString text = "<Standard><Check Type='312' Name='My modes'><Parameter Name='" +
                         LoadString(1742).toHtmlEscaped() +
                         "'><Operator>3</Operator><Value>2</Value></Parameter></Check></Standard>";
    CStandard same;
    ReadText(text, same);
    EXPECT_EQ(AllOf(same)[0]->GetLongParameter(1742)->Operator, OpEqual);
    EXPECT_EQ(ValuesOf(*AllOf(same)[0]->GetLongParameter(1742)), Longs{2});
    const Language german("German");
    CStandard other;
    ReadText(text, other);
    EXPECT_EQ(AllOf(other)[0]->GetLongParameter(1742)->Operator, OpNone);
    EXPECT_EQ(AllOf(other)[0]->GetLongParameter(1742)->Values.Count, 0);
}

TEST(StandardRead, FileOfAnotherLanguageKeepsValuesAndCheckNamesButNotLabels) {
    CStandard english;
    unsigned number = 0;
    auto check = CStandard::MakeCheck(312);
    check->GetLongParameter(1742)->Operator = OpEqual;
    check->GetLongParameter(1742)->Values.Add(2);
    english.InsertCheck(std::move(check), number);
    const CString text = TextOf(english);
    const CString englishName = LoadString(1743);
    const CString englishLabel = LoadString(1742);

    const Language german("German");
    CStandard standard;
    ReadText(text, standard);
    const CCheck& read = *AllOf(standard)[0];
    EXPECT_EQ(read.Name, englishName);
    EXPECT_NE(read.Name, LoadString(1743));
    EXPECT_EQ(read.GetLongParameter(1742)->Name, LoadString(1742));
    EXPECT_NE(read.GetLongParameter(1742)->Name, englishLabel);
    EXPECT_EQ(ValuesOf(*read.GetLongParameter(1742)), Longs{2});
}

TEST(StandardRead, TextsStandAsTheyAre) {
    const Read read(
        "<Check Type='602'><Parameter Type='1752'><Operator>2</Operator><Value>  a&amp;b&#13;\n</Value>"
        "<Value/><Value><![CDATA[<x>]]></Value></Parameter></Check>");
    const CParameter<CString*>& texts = *read.First().GetStringParameter(1752);
    ASSERT_EQ(texts.Values.Count, 3);
    EXPECT_EQ(*texts.Values[0], "  a&b\r\n");
    EXPECT_EQ(*texts.Values[1], "");
    EXPECT_EQ(*texts.Values[2], "<x>");
}

TEST(StandardRead, IllegalDataTypeShowsAMessage) {
    CXmlDocument document;
    const CXmlElement* element = document.LoadXmlText("<Check Type='406'/>");
    CCheck check(406, 0, 0, 0, 1);
    const Messages messages;
    check.Parameters.Add(CreateParameter(9, 1, OpNone, 0, false).release());
    check.ReadXml(*element);
    EXPECT_EQ(messages.texts.count("Illegal Param DataType Defined"), 2);
}

TEST(StandardRead, BrokenTextIsToldAndLeavesTheStandard) {
    const Messages messages;
    CStandard standard;
    EXPECT_FALSE(standard.LoadFromXmlText("<Standard><Check Type='406'>"));
    EXPECT_EQ(messages.texts.size(), 1);
    EXPECT_TRUE(messages.texts[0].startsWith(LoadString(2040)));
    EXPECT_TRUE(AllOf(standard).empty());
    EXPECT_EQ(g_CurrentXmlDocument, nullptr);
}
