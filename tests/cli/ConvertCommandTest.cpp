// "convert": the values in other units.
#include "cli/CliRoom.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class ConvertCommand : public CliRoom {
protected:
    QJsonValue Checks(const CString& file) {
        return QJsonDocument::fromJson(Run("show --json --all " + file)).object()["checks"];
    }
};

// A standard keeps ten decimals, so that figures come back as good as the same. Their texts are left out.
void ExpectSame(const QJsonValue& given, const QJsonValue& expected) {
    ASSERT_EQ(given.type(), expected.type());
    if (expected.isDouble()) {
        ASSERT_NEAR(given.toDouble(), expected.toDouble(), 1e-7);
    } else if (expected.isArray()) {
        const QJsonArray list = expected.toArray();
        ASSERT_EQ(given.toArray().size(), list.size());
        for (int i = 0; i < list.size(); ++i)
            ExpectSame(given.toArray()[i], list[i]);
    } else if (expected.isObject()) {
        const QJsonObject object = expected.toObject();
        const CStringArray keys = object.keys();
        ASSERT_EQ(given.toObject().keys(), keys);
        for (const CString& key : keys)
            if (key != "shown")
                ExpectSame(given.toObject()[key], object[key]);
    } else {
        ASSERT_TRUE(given == expected) << qPrintable(expected.toString());
    }
}

} // namespace

TEST_F(ConvertCommand, ValuesAndHeader) {
    PutStandard("a.kvstd", NoteFont("2.54", "5.08", "0") + NoteFont("25.4", "50.8", "0", 1));
    EXPECT_EQ(Run("convert a.kvstd -o b.kvstd --length in"), "");
    EXPECT_EQ(Run("show --all b.kvstd"), "Standard:  b\n"
                                         "File:      b.kvstd\n"
                                         "Saved:     03/05/2026 14:07:09 by anna\n"
                                         "Version:   2026\n"
                                         "Units:     Inches, Degrees\n"
                                         "Checks:    1, and 1 deleted\n"
                                         "\n"
                                         "  1  Note Font  [High]\n"
                                         "     Text Height  between(0.1in , 0.2in)  correct to 0in\n"
                                         "\n"
                                         "  2  Note Font (deleted)  [High]\n"
                                         "     Text Height  between(1in , 2in)  correct to 0in\n");
}

TEST_F(ConvertCommand, ThereAndBack) {
    const CommandRun there = RunWords(CString("convert %1 -o in.kvstd --length in --angle rad").arg(Metric));
    EXPECT_EQ(there.code, 0);
    EXPECT_EQ(RunWords("convert in.kvstd -o mm.kvstd --length mm --angle deg").code, 0);
    ExpectSame(Checks("mm.kvstd"), Checks(Metric));
    EXPECT_TRUE(Checks("in.kvstd") != Checks(Metric));
}

TEST_F(ConvertCommand, CorrectionsThatStayAreNamed) {
    PutStandard("a.kvstd", NoteFont("2.5", "3.5", "3.5"));
    Run("convert a.kvstd -o b.kvstd --length in", 0,
        "kvstd: warning: a.kvstd: Note Font: the correction of \"Text Height\" is not converted: it is now "
        "3.5in\n");
    Run("convert a.kvstd -o b.kvstd --angle rad"); // lengths stay as they are
    Run("convert a.kvstd -o b.kvstd --length mm");
}

TEST_F(ConvertCommand, UnitsThatAreNotSet) {
    PutStandard("a.kvstd", NoteFont("1", "2", "1"), "Version=\"2026\" Unit=\"0\"");
    PutStandard("b.kvstd", NoteFont("1", "2", "1"), "Version=\"2026\" Unit=\"-1\" AngularUnit=\"0\"");
    PutStandard("c.kvstd", NoteFont("1", "2", "1"), "Version=\"2026\" Unit=\"77\" AngularUnit=\"0\"");
    const QByteArray reason = ": the standard does not say in which unit its values are\n";
    Run("convert a.kvstd -o out.kvstd --angle rad", 3, "kvstd: a.kvstd" + reason);
    Run("convert b.kvstd -o out.kvstd --length mm", 3, "kvstd: b.kvstd" + reason);
    Run("convert c.kvstd -o out.kvstd --length mm", 3, "kvstd: c.kvstd" + reason);
    EXPECT_FALSE(QFileInfo::exists("out.kvstd"));
    Run("convert b.kvstd -o out.kvstd --angle rad"); // the other unit is not asked for
}

TEST_F(ConvertCommand, EveryUnitOfTheHelpIsKnown) {
    PutStandard("a.kvstd", "");
    const char* const Shown[][2] = {{"mm", "Millimeters"}, {"cm", "Centimeters"},
                                    {"m", "Meters"},       {"in", "Inches"},
                                    {"ft", "Feet"},        {"ftin", "Feet and Inches"},
                                    {"nm", "Nanometers"},  {"angstrom", "Angstroms"},
                                    {"um", "Microns"},     {"mil", "Mils"},
                                    {"uin", "Microinches"}};
    for (const auto& [name, text] : Shown) {
        Run(CString("convert a.kvstd -o b.kvstd --angle rad --length ") + name);
        EXPECT_TRUE(Run("show b.kvstd").contains(QByteArray("Units:     ") + text + ", Radians\n")) << name;
    }
}

TEST_F(ConvertCommand, InPlaceWithItsSideFiles) {
    ASSERT_TRUE(QFile::copy("samples/Sheet metal parts.kvstd", "a.kvstd"));
    Run("convert a.kvstd -o a.kvstd --length cm");
    Run("unpack a.kvstd u");
    EXPECT_EQ(folder.Names("u"), (CStringArray{"122", "a.kvstd"}));
    EXPECT_TRUE(Run("show a.kvstd").contains("Units:     Centimeters, Degrees\n"));
}
