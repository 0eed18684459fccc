#include "engines/ValueBox.h"

#include <gtest/gtest.h>

namespace {

// Runs one text through the bounds check and keeps all that came of it.
struct Ranged {
    Ranged(const CString& given, bool isLength) : text(given) {
        stands = CValidateEngine().CheckRange(text, isLength);
    }

    Messages messages;
    CString text;
    bool stands = false;
};

struct UnitCase {
    int unit;
    const char* largest;
    const char* tooLarge;
    const char* smallest;
    const char* tooSmall;
    unsigned message;
};

void PrintTo(const UnitCase& unit, std::ostream* out) {
    *out << "unit " << unit.unit;
}

class LengthBounds : public testing::TestWithParam<UnitCase> {};

} // namespace

TEST(PlainBounds, NumberAboveTheBoundIsCutToSixCharacters) {
    ValueBox box("=");
    box.Type("1000000");
    EXPECT_TRUE(box.stands);
    box.text = "";
    box.Paste("1000001");
    EXPECT_EQ(box.text, "100000");
    EXPECT_FALSE(box.stands);
    EXPECT_EQ(box.messages.texts, Texts({2043}));
}

TEST(PlainBounds, NumberBelowTheBoundIsCutWhileItIsTyped) {
    ValueBox box("=");
    box.Type("0.000");
    EXPECT_TRUE(box.stands);
    box.Paste("001");
    EXPECT_EQ(box.text, "0.000001");
    EXPECT_TRUE(box.stands);
    box.text = "";
    box.Paste("0.0000001");
    EXPECT_EQ(box.text, "0.0000");
    EXPECT_FALSE(box.stands);
    EXPECT_EQ(box.messages.texts, Texts({2043}));
}

TEST(PlainBounds, ZeroIsAllowed) {
    const Ranged zero("0,0.0", false);
    EXPECT_TRUE(zero.stands);
    EXPECT_EQ(zero.text, "0,0.0");
}

TEST(PlainBounds, EveryBadValueIsTold) {
    const Ranged ranged("1000001,2000002", false);
    EXPECT_FALSE(ranged.stands);
    EXPECT_EQ(ranged.text, "100000,200000");
    EXPECT_EQ(ranged.messages.texts, Texts({2043, 2043}));
}

TEST(PlainBounds, GoodValueBehindABadOneGoesWithAnEmptyBox) {
    const Ranged ranged("5,1000001,7,8", false);
    EXPECT_FALSE(ranged.stands);
    EXPECT_EQ(ranged.text, "5,100000,,");
    EXPECT_EQ(ranged.messages.texts, CStringArray({LoadString(2043), "", ""}));
}

TEST(PlainBounds, TrailingCommaIsKept) {
    EXPECT_EQ(Ranged("1,2,", false).text, "1,2,");
    EXPECT_EQ(Ranged("1000001,", false).text, "100000,");
}

TEST(PlainBounds, WhatIsNoNumberIsDropped) {
    EXPECT_EQ(Ranged("x,1,,.,2", false).text, "1,2");
    EXPECT_EQ(Ranged("1,.,", false).text, "1,");
}

TEST(PlainBounds, TextWithoutANumberStands) {
    for (const char* text : {"", ".", ".,", " "}) {
        const Ranged ranged(text, false);
        EXPECT_EQ(ranged.text, text);
        EXPECT_TRUE(ranged.stands);
        EXPECT_TRUE(ranged.messages.texts.isEmpty());
    }
}

TEST_P(LengthBounds, HoldForTheUnitInFront) {
    const UnitCase& unit = GetParam();
    const UnitInFront scope(unit.unit);
    for (const char* good : {unit.largest, unit.smallest, "0"}) {
        const Ranged ranged(good, true);
        EXPECT_TRUE(ranged.stands) << good;
        EXPECT_EQ(ranged.text, good);
        EXPECT_TRUE(ranged.messages.texts.isEmpty());
    }
    for (const char* bad : {unit.tooLarge, unit.tooSmall}) {
        const Ranged ranged(bad, true);
        EXPECT_FALSE(ranged.stands) << bad;
        EXPECT_EQ(ranged.text, "");
        EXPECT_EQ(ranged.messages.texts, Texts({unit.message}));
    }
}

INSTANTIATE_TEST_SUITE_P(
    EveryUnit, LengthBounds,
    testing::Values(UnitCase{0, "1000000", "1000000.1", "0.0000001", "0.00000009", 2191},
                    UnitCase{1, "100000", "100000.1", "0.00000001", "0.000000009", 2192},
                    UnitCase{2, "1000", "1000.1", "0.0000000001", "0.00000000009", 2193},
                    UnitCase{3, "39370.07874016", "39370.07874017", "0.0000000039", "0.0000000038", 2194},
                    UnitCase{4, "3280.83989501", "3280.83989502", "0.0000000003", "0.0000000002", 2195},
                    UnitCase{5, "3280", "3280.1", "0.0000000039", "0.0000000038", 2196},
                    UnitCase{6, "10000000000000", "10000000000001", "1", "0.9", 2197},
                    UnitCase{7, "1000000000000", "1000000000001", "0.1", "0.09", 2198},
                    UnitCase{8, "1000000000", "1000000001", "0.0001", "0.00009", 2199},
                    UnitCase{9, "39370078.74015749", "39370078.74015759", "0.000003937", "0.000003936", 2199},
                    UnitCase{10, "39370078740.157486", "39370078740.16", "0.0039370079", "0.0039370078",
                             2201}));

TEST(LengthEntry, FiveThousandMetresEmptiesTheBox) {
    const UnitInFront metres(2);
    ValueBox box("=", true);
    box.Type("5000");
    EXPECT_EQ(box.text, "");
    EXPECT_FALSE(box.stands);
    EXPECT_EQ(box.messages.texts, Texts({2193}));
}

TEST(LengthEntry, EmptiedValuesLeaveTheirCommas) {
    const UnitInFront metres(2);
    const Ranged ranged("5,5000,0", true);
    EXPECT_FALSE(ranged.stands);
    EXPECT_EQ(ranged.text, "5,,");
    EXPECT_EQ(ranged.messages.texts, CStringArray({LoadString(2193), ""}));
}

TEST(LengthEntry, WithoutADocumentOrWithAnUnknownUnitEverythingPasses) {
    EXPECT_TRUE(Ranged("99999999999999", true).stands);
    for (const int unit : {-1, 11}) {
        const UnitInFront scope(unit);
        EXPECT_TRUE(Ranged("99999999999999", true).stands);
    }
}
