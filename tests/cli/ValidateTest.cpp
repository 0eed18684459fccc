// "validate": each kind of finding, by file, check and reason.
#include "cli/CliRoom.h"

namespace {

class Validate : public CliRoom {
protected:
    // The findings of a standard of this version with these checks, without the name of the file.
    CStringArray FindingsOf(const CString& checks,
                            const CString& attributes = "Unit=\"0\" AngularUnit=\"0\" Version=\"2026\"") {
        PutStandard("a.kvstd", checks, attributes);
        CStringArray findings = QString::fromUtf8(Run("validate a.kvstd", 1)).split('\n', Qt::SkipEmptyParts);
        for (CString& finding : findings) {
            EXPECT_TRUE(finding.startsWith("a.kvstd: ")) << qPrintable(finding);
            finding = finding.mid(9);
        }
        return findings;
    }
    // The findings of a check of a height that holds `inside` in its parameter.
    CStringArray HeightFindings(const CString& inside, const CString& attributes = "Type=\"1704\"") {
        return FindingsOf(
            PlainCheck(109, "Note Font", "<Parameter " + attributes + ">" + inside + "</Parameter>"));
    }
};

const CString Height = "check 1 (Note Font): parameter 1704 ";

} // namespace

TEST_F(Validate, SamplesAreInOrder) {
    EXPECT_EQ(Run(CString("validate %1 %2 %3").arg(Metric, Inch, Sheet)),
              "samples/Metric drawings to ISO.kvstd: ok\n"
              "samples/Inch drawings to ASME.kvstd: ok\n"
              "samples/Sheet metal parts.kvstd: ok\n");
}

TEST_F(Validate, SeveralFilesInTheOrderGiven) {
    folder.Put("bad.kvstd", "");
    PutStandard("good.kvstd", "");
    EXPECT_EQ(Run("validate bad.kvstd good.kvstd", 1), "bad.kvstd: refused: The file is empty.\n"
                                                       "good.kvstd: ok\n");
    EXPECT_EQ(Run("validate bad.kvstd no.kvstd good.kvstd", 3, "kvstd: no.kvstd: there is no such file\n"),
              "bad.kvstd: refused: The file is empty.\n"
              "good.kvstd: ok\n");
}

TEST_F(Validate, Refused) {
    folder.Put("text.kvstd", "hello");
    folder.Put("later.kvstd", "<Standard Version=\"2027\"/>");
    folder.Put("bomb.kvstd", "<!DOCTYPE a [<!ENTITY b 'c'>]><Standard>&b;</Standard>");
    const QByteArray out = Run("validate text.kvstd later.kvstd bomb.kvstd", 1);
    EXPECT_EQ(out.count(": refused: "), 3) << out.constData();
    EXPECT_EQ(out.count('\n'), 3) << out.constData();
}

TEST_F(Validate, Header) {
    EXPECT_EQ(FindingsOf("", "Unit=\"0\" AngularUnit=\"0\" Version=\"2019\""),
              CStringArray{"repaired: saved by version 2019, and brought to 2026 on the next save"});
    EXPECT_EQ(FindingsOf("", "Unit=\"mm\" Version=\"2026\""),
              (CStringArray{"repaired: no length unit is given, so values are taken as they stand",
                            "repaired: no angle unit is given, so values are taken as they stand"}));
    EXPECT_EQ(FindingsOf("", "Unit=\"0\" AngularUnit=\"0\" Version=\"2026\" RunRWConfigOption=\"12\""),
              CStringArray{"repaired: of the option \"12\" only the first digit counts"});
}

TEST_F(Validate, TypesOfChecks) {
    EXPECT_EQ(FindingsOf("<Check Name=\"Nameless\" LifeStatus=\"0\"/>"),
              CStringArray{"check 1 (Nameless): dropped: the check has no type"});
    EXPECT_EQ(FindingsOf("<Check Type=\"x\" Name=\"N\" LifeStatus=\"0\"/>"),
              CStringArray{"check 1 (N): repaired: the type \"x\" is not a number and counts as 0"});
    EXPECT_EQ(FindingsOf(PlainCheck(107, "A") + PlainCheck(107, "B")),
              CStringArray{"check 2 (B): repaired: a check of type 107 stands earlier, and the tool shows "
                           "only that one"});
}

TEST_F(Validate, ADeletedCheckBesideALiveOneIsInOrder) {
    PutStandard("a.kvstd", NoteFont("1", "2", "1", 1) + NoteFont("1", "2", "1"));
    EXPECT_EQ(Run("validate a.kvstd"), "a.kvstd: ok\n");
}

TEST_F(Validate, LifeStatusAndCriticality) {
    EXPECT_EQ(FindingsOf("<Check Type=\"107\" Name=\"N\"/>"),
              CStringArray{"check 1 (N): repaired: it does not say whether it is deleted, and counts as in "
                           "force"});
    EXPECT_EQ(FindingsOf("<Check Type=\"107\" Name=\"N\" LifeStatus=\"dead\"/>"),
              CStringArray{"check 1 (N): repaired: the life status \"dead\" is not a number, and the check "
                           "counts as in force"});
    EXPECT_EQ(FindingsOf("<Check Type=\"107\" Name=\"N\" LifeStatus=\"0\" Criticality=\"7\"/>"),
              CStringArray{"check 1 (N): repaired: the criticality \"7\" counts as medium"});
}

TEST_F(Validate, ChecksWithinChecks) {
    EXPECT_EQ(FindingsOf(PlainCheck(107, "N", PlainCheck(107, "M"))),
              CStringArray{"check 1 (N): dropped: checks within a check that is no container"});
    const CString name = "<Parameter Type=\"1724\"><Operator>3</Operator><ParameterType>0</ParameterType>%1"
                         "</Parameter>";
    EXPECT_EQ(FindingsOf(PlainCheck(105, "Custom Properties", PlainCheck(104, "", name.arg("")))),
              CStringArray{"check 1 (Custom Properties): dropped: entry 1 has no value for its first "
                           "parameter"});
    EXPECT_EQ(FindingsOf(PlainCheck(105, "Custom Properties",
                                    PlainCheck(107, "", name.arg("<Value>Weight</Value>")))),
              CStringArray{"check 1 (Custom Properties): repaired: entry 1 is read as type 104"});
}

TEST_F(Validate, ParametersThatAreDropped) {
    EXPECT_EQ(HeightFindings("<Operator>3</Operator><Value>1</Value>", "Type=\"9999\" Name=\"Girth\""),
              CStringArray{"check 1 (Note Font): parameter \"Girth\" dropped: it is not known to a check of "
                           "this type"});
    const CString height = "<Parameter Type=\"1704\"><Operator>3</Operator><Value>1</Value></Parameter>";
    EXPECT_EQ(FindingsOf(PlainCheck(109, "Note Font", height + height)),
              CStringArray{Height + "dropped: it stands earlier in the check"});
    EXPECT_EQ(HeightFindings("<Operator>0</Operator><Value>1</Value>"),
              CStringArray{Height + "dropped: it is out of force, and its values are not saved again"});
    EXPECT_EQ(HeightFindings("<Operator>3</Operator><Value>1</Value><Remarks>Ask Jo</Remarks>"),
              CStringArray{Height + "dropped: its remark"});
}

TEST_F(Validate, ParametersThatAreRepaired) {
    EXPECT_EQ(HeightFindings("<ParameterType>1</ParameterType>"),
              CStringArray{Height + "repaired: it has no operator and is put out of force"});
    EXPECT_EQ(HeightFindings("<Operator>15</Operator><Value>1</Value>"),
              CStringArray{Height + "repaired: operator 15 is not known"});
    EXPECT_EQ(HeightFindings("<Operator>1</Operator><Value>1</Value>"),
              CStringArray{Height + "repaired: a range without two values is put out of force on the next "
                                    "save"});
    EXPECT_EQ(HeightFindings("<Operator>3</Operator>"),
              CStringArray{Height + "repaired: it has no values and is put out of force on the next save"});
    EXPECT_EQ(HeightFindings("<Operator>3</Operator><Value>tall</Value>"),
              CStringArray{Height + "repaired: the value \"tall\" is not a number and becomes 0"});
}

TEST_F(Validate, ElementsThatNobodyReads) {
    EXPECT_EQ(FindingsOf("<Chekc Type=\"107\"/>"),
              CStringArray{"dropped: an element \"Chekc\" is not known here"});
    EXPECT_EQ(FindingsOf(PlainCheck(107, "N", "<Note/>")),
              CStringArray{"check 1 (N): dropped: an element \"Note\" is not known here"});
    EXPECT_EQ(HeightFindings("<Operator>3</Operator><Value>1</Value><Valeu>2</Valeu>"),
              CStringArray{"check 1 (Note Font): dropped: an element \"Valeu\" is not known here"});
}

TEST_F(Validate, NamesStayInTheirLine) {
    EXPECT_EQ(FindingsOf("<Check Name=\"up&#10;down\" LifeStatus=\"0\"/>"),
              CStringArray{"check 1 (up down): dropped: the check has no type"});
}

TEST_F(Validate, TheFileIsNotChanged) {
    PutStandard("a.kvstd", PlainCheck(109, "N", "<Parameter Type=\"9\"/>"));
    const QByteArray before = folder.Get("a.kvstd");
    Run("validate a.kvstd", 1);
    EXPECT_EQ(folder.Get("a.kvstd"), before);
}

TEST_F(Validate, WhatWasSavedIsInOrder) {
    PutStandard("a.kvstd", NoteFont("1", "2", "1") + "<Chekc/><Check Name=\"N\"/>" +
                               PlainCheck(109, "Second", "<Parameter Type=\"9\"/>"));
    Run("convert a.kvstd -o b.kvstd --angle deg");
    EXPECT_EQ(Run("validate b.kvstd", 1),
              "b.kvstd: check 2 (Second): repaired: a check of type 109 stands earlier, and the tool shows "
              "only that one\n");
}
