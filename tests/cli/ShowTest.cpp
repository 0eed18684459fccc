// What "show" prints of the samples and of odd standards.
#include "cli/CliRoom.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class Show : public CliRoom {};

QJsonObject Parsed(const QByteArray& json) {
    return QJsonDocument::fromJson(json).object();
}

} // namespace

TEST_F(Show, Samples) {
    ExpectFile("show-metric.txt", Run(CString("show ") + Metric));
    ExpectFile("show-inch.txt", Run(CString("show ") + Inch));
    ExpectFile("show-sheet-metal.txt", Run(CString("show ") + Sheet));
    ExpectFile("show-2019.txt", Run("show 'samples/xml/Drawings 2019.kvstd'"));
}

TEST_F(Show, DeletedChecksOnRequest) {
    ExpectFile("show-metric-all.txt", Run(CString("show --all ") + Metric));
}

TEST_F(Show, German) {
    ExpectFile("show-metric-german.txt", Run(CString("--language German show ") + Metric));
}

TEST_F(Show, Json) {
    ExpectFile("show-metric.json", Run(CString("show --json ") + Metric));
    ExpectFile("show-inch-all.json", Run(CString("show --json --all ") + Inch));
    ExpectFile("show-sheet-metal.json", Run(CString("show --json ") + Sheet));
}

TEST_F(Show, JsonOfDeletedChecks) {
    const QJsonArray live = Parsed(Run(CString("show --json ") + Metric))["checks"].toArray();
    const QJsonArray all = Parsed(Run(CString("show --json --all ") + Metric))["checks"].toArray();
    EXPECT_EQ(live.size(), 25);
    ASSERT_EQ(all.size(), 26);
    EXPECT_TRUE(all[25].toObject()["deleted"].toBool());
}

TEST_F(Show, PlainXmlAndArchiveShowTheSame) {
    const QByteArray packed = Run(CString("show --json ") + Inch);
    EXPECT_EQ(Run("show --json 'samples/xml/Inch drawings to ASME.kvstd'"), packed);
}

TEST_F(Show, AStandardWithoutAnything) {
    folder.Put("empty.kvstd", "<Standard/>");
    EXPECT_EQ(Run("show empty.kvstd"), "Standard:  empty\n"
                                       "File:      empty.kvstd\n"
                                       "Saved:     not told\n"
                                       "Version:   0\n"
                                       "Units:     not set, not set\n"
                                       "Checks:    0\n");
}

TEST_F(Show, ChecksThatSayNothing) {
    PutStandard("a.kvstd", PlainCheck(109, "Note Font") + PlainCheck(999, "Unheard of"));
    EXPECT_TRUE(Run("show a.kvstd")
                    .endsWith("Checks:    2\n"
                              "\n"
                              "  1  Note Font  [Medium]\n"
                              "     --\n"
                              "\n"
                              "  2  Unheard of  [Medium]\n"
                              "     --\n"));
}

TEST_F(Show, ADraftingStandardWithoutValues) {
    PutStandard("a.kvstd", PlainCheck(101, "Drafting Standard"));
    EXPECT_TRUE(Run("show a.kvstd").endsWith("     Drafting Standard  --\n"));
}

TEST_F(Show, NamesCannotBreakALineOrDraw) {
    PutStandard("a.kvstd", PlainCheck(107, "up&#10;down&#9;CSI&#155;31m"));
    EXPECT_TRUE(Run("show a.kvstd").contains("\n  1  up down CSI 31m  [Medium]\n"));
}

TEST_F(Show, WithoutUnitsTheFiguresStandAlone) {
    PutStandard("a.kvstd", NoteFont("2.5", "3.5", "3.5"), "Version=\"2026\"");
    EXPECT_TRUE(Run("show a.kvstd").endsWith("     Text Height  between(2.5 , 3.5)  correct to 3.5\n"));
}

TEST_F(Show, ALongValueShiftsOnlyItsOwnRow) {
    const CString field = "<Parameter Type=\"%1\" CorrectionValue=\"%2\"><Operator>2</Operator>"
                          "<ParameterType>12</ParameterType><Value>%2</Value></Parameter>";
    const CString style = "<Parameter Type=\"1701\" CorrectionValue=\"1\"><Operator>2</Operator>"
                          "<ParameterType>13</ParameterType><Value>1</Value></Parameter>";
    PutStandard("a.kvstd", PlainCheck(109, "Note Font", field.arg(1700).arg(CString(41, u'x')) + style));
    EXPECT_TRUE(Run("show a.kvstd")
                    .endsWith("     Font Name   " + QByteArray(41, 'x') + "  correct to " +
                              QByteArray(41, 'x') + "\n     Font Style  Regular  correct to Regular\n"));
}
