// What the panes of units, precision, gaps and pictures cannot show and therefore drop when the check is
// written again. What is not named here they keep.
#include "ValueRoom.h"

#include "support/FilledStandard.h"

namespace {

// A parameter as a file gives it, and what is left of it after another change in the pane.
struct Left {
    unsigned id;
    OperatorCode op;
    CStringArray values;
    const char* written;
};

class DroppedValues : public ValueRoom {
protected:
    using ValueRoom::ValueRoom;

    // Shows a check, and changes something else in its pane.
    void Expect(const std::vector<Left>& all) {
        CCheck check(Pane().CheckType, 0, 0, 0, 1);
        for (const Left& given : all)
            SetParameter(check, given.id, given.op, given.values);
        Pane().LoadCheck(check);
        Hand().Choose(CExtDialog::CriticalityControl, 3);
        for (const Left& given : all)
            EXPECT_EQ(Written(given.id), given.written) << given.id;
    }
};

class DroppedByDocumentUnits : public DroppedValues {
protected:
    DroppedByDocumentUnits() : DroppedValues(108) {}
};
class DroppedByDimensionUnits : public DroppedValues {
protected:
    DroppedByDimensionUnits() : DroppedValues(405) {}
};
class DroppedByPrecision : public DroppedValues {
protected:
    DroppedByPrecision() : DroppedValues(409) {}
};
class DroppedByGaps : public DroppedValues {
protected:
    DroppedByGaps() : DroppedValues(314) {}
};
class DroppedByAlignments : public DroppedValues {
protected:
    DroppedByAlignments() : DroppedValues(408) {}
};
class DroppedBySharps : public DroppedValues {
protected:
    DroppedBySharps() : DroppedValues(123) {}
};
class DroppedByDisplayModes : public DroppedValues {
protected:
    DroppedByDisplayModes() : DroppedValues(312) {}
};

} // namespace

TEST_F(DroppedByDocumentUnits, CodesWithoutARowOrABox) {
    Expect({{1663, OpOneOf, {"4", "6", "0"}, "2:4"},
            {1664, OpOneOf, {"11", "3", "-1"}, "2:3"},
            {1666, OpOneOf, {"3", "2", "0"}, "2:2"},
            {1669, OpOneOf, {"11", "10"}, "2:10"},
            {1671, OpOneOf, {"3", "1"}, "2:1"},
            {1674, OpOneOf, {"4", "0"}, "2:0"},
            {1676, OpOneOf, {"11", "9"}, "2:9"},
            {1677, OpOneOf, {"5", "0", "1"}, "2:1"},
            {1678, OpOneOf, {"8", "2", "11"}, "2:2"},
            {1679, OpOneOf, {"7", "6"}, "2:6"}});
}

TEST_F(DroppedByDocumentUnits, ListsOfNothingElse) {
    Expect({{1663, OpOneOf, {"6"}, "0:"}, {1669, OpOneOf, {"11"}, "0:"}, {1674, OpOneOf, {}, "0:"}});
}

TEST_F(DroppedByDocumentUnits, TheOrderOfChoicesAndWhatStandsTwice) {
    Expect({{1663, OpOneOf, {"5", "4", "1", "4", "2"}, "2:1,4,2,5"},
            {1664, OpOneOf, {"5", "6", "5"}, "2:6,5"},
            {1666, OpOneOf, {"2", "1", "2"}, "2:1,2"},
            {1669, OpOneOf, {"9", "10"}, "2:10,9"},
            {1671, OpOneOf, {"2", "1"}, "2:1,2"},
            {1674, OpOneOf, {"3", "2", "0", "2"}, "2:0,2,3"},
            {1676, OpOneOf, {"4", "0"}, "2:0,4"},
            {1677, OpOneOf, {"4", "1"}, "2:1,4"},
            {1678, OpOneOf, {"10", "9", "1"}, "2:1,9,10"},
            {1679, OpOneOf, {"6", "5"}, "2:5,6"}});
}

TEST_F(DroppedByDocumentUnits, AnotherComparisonOfChoices) {
    Expect({{1663, OpNoneOf, {"4"}, "2:4"},
            {1664, OpNoneOf, {"3"}, "2:3"},
            {1666, OpEqual, {"2"}, "2:2"},
            {1669, OpEqual, {"3"}, "2:3"},
            {1671, OpNoneOf, {"1"}, "2:1"},
            {1674, OpEqual, {"3"}, "2:3"},
            {1676, OpNotEqual, {"3"}, "2:3"},
            {1677, OpAtLeast, {"2"}, "2:2"},
            {1678, OpBetween, {"1", "3"}, "2:1,3"},
            {1679, OpNoneOf, {"1"}, "2:1"}});
}

TEST_F(DroppedByDocumentUnits, AnotherComparisonOfNumbers) {
    Expect({{1663, OpOneOf, {"4"}, "2:4"},
            {1664, OpOneOf, {"3"}, "2:3"},
            {1665, OpBetween, {"2", "4"}, "0:"},
            {1666, OpOneOf, {"2"}, "2:2"},
            {1667, OpOneOf, {"2"}, "0:"},
            {1670, OpNoneOf, {"2"}, "0:"},
            {1671, OpOneOf, {"2"}, "2:2"},
            {1672, OpNotEqual, {"2"}, "0:"},
            {1675, OpContains, {"2"}, "0:"},
            {1680, OpBetween, {"2", "4"}, "0:"}});
}

TEST_F(DroppedByDocumentUnits, NumbersBeyondTheFirstAndComparisonsWithoutOne) {
    Expect({{1663, OpOneOf, {"4"}, "2:4"},
            {1665, OpEqual, {"2", "4"}, "3:2"},
            {1670, OpAtMost, {"64", "3"}, "8:64"}, // one beyond the range stays
            {1675, OpAbove, {"-2"}, "6:-2"},
            {1680, OpAtLeast, {}, "0:"}});
}

TEST_F(DroppedByDocumentUnits, ABoundOfZeroThatIsOpenToTheUser) {
    Expect({{1663, OpOneOf, {"4"}, "2:4"},
            {1665, OpBelow, {"0"}, "5:1"},
            {1670, OpBelow, {"-3"}, "5:1"},
            {1675, OpBelow, {"0"}, "5:0"}, // no angle is chosen
            {1680, OpBelow, {"0"}, "5:1"}});
}

TEST_F(DroppedByDocumentUnits, AnswersBeyondTheFirstAndAnotherComparisonOfThem) {
    Expect({{1663, OpOneOf, {"4"}, "2:4"},
            {1666, OpOneOf, {"2"}, "2:2"},
            {1668, OpEqual, {"1", "0"}, "2:1"},
            {1671, OpOneOf, {"2"}, "2:2"},
            {1673, OpNoneOf, {"7"}, "2:1"}});
    Expect({{1671, OpOneOf, {"2"}, "2:2"}, {1673, OpOneOf, {}, "2:0"}});
}

TEST_F(DroppedByDocumentUnits, TheCustomGroupWithoutItsSystem) {
    Expect({{1663, OpOneOf, {"1", "2", "3", "5"}, "2:1,3,2,5"},
            {1664, OpOneOf, {"3"}, "0:"},
            {1665, OpEqual, {"2"}, "0:"},
            {1666, OpOneOf, {"2"}, "0:"},
            {1667, OpEqual, {"2"}, "0:"},
            {1668, OpOneOf, {"1"}, "0:"},
            {1676, OpOneOf, {"3"}, "0:"},
            {1677, OpOneOf, {"1"}, "0:"},
            {1678, OpOneOf, {"1"}, "0:"},
            {1679, OpOneOf, {"1"}, "0:"},
            {1680, OpEqual, {"2"}, "0:"},
            {1669, OpOneOf, {"3"}, "2:3"}});
}

TEST_F(DroppedByDocumentUnits, DenominatorsWithoutFractions) {
    Expect({{1663, OpOneOf, {"4"}, "2:4"},
            {1664, OpOneOf, {"3"}, "2:3"},
            {1666, OpOneOf, {"1"}, "2:1"},
            {1667, OpEqual, {"2"}, "0:"},
            {1668, OpOneOf, {"1"}, "0:"},
            {1669, OpOneOf, {"3"}, "2:3"},
            {1671, OpOneOf, {"1"}, "2:1"},
            {1672, OpEqual, {"2"}, "0:"},
            {1673, OpOneOf, {"1"}, "0:"}});
}

// Beside a unit without fractions they are disabled, and kept.
TEST_F(DroppedByDocumentUnits, NothingOfFractionsThatAreTicked) {
    Expect({{1663, OpOneOf, {"4"}, "2:4"},
            {1664, OpOneOf, {"0"}, "2:0"},
            {1666, OpOneOf, {"2"}, "2:2"},
            {1667, OpBelow, {"0"}, "5:0"},
            {1668, OpOneOf, {"0"}, "2:0"},
            {1671, OpOneOf, {"1", "2"}, "2:1,2"},
            {1672, OpEqual, {"64"}, "3:64"},
            {1673, OpOneOf, {"1"}, "2:1"}});
}

TEST_F(DroppedByDocumentUnits, ValuesOfWhatIsNotInForce) {
    Expect({{1663, OpNone, {"1"}, "0:"},
            {1669, OpNone, {"3"}, "0:"},
            {1670, OpNone, {"2"}, "0:"},
            {1671, OpNone, {"2"}, "0:"},
            {1673, OpNone, {"1"}, "0:"},
            {1674, OpNone, {"0"}, "0:"}});
}

TEST_F(DroppedByDimensionUnits, CodesWithoutARowOrABoxTheirOrderAndTheirComparison) {
    Expect({{1664, OpNoneOf, {"11", "5", "6"}, "2:6,5"},
            {1666, OpEqual, {"3", "2", "1", "2"}, "2:1,2"},
            {1674, OpEqual, {"4", "2", "1"}, "2:1,2"}});
}

TEST_F(DroppedByDimensionUnits, WhatNumbersCannotShow) {
    Expect({{1664, OpOneOf, {"3"}, "2:3"},
            {1665, OpBetween, {"2", "4"}, "0:"},
            {1666, OpOneOf, {"2"}, "2:2"},
            {1667, OpBelow, {"0"}, "5:1"},
            {1668, OpEqual, {"0", "1"}, "2:0"},
            {1675, OpEqual, {"2", "4"}, "3:2"}});
}

TEST_F(DroppedByDimensionUnits, DenominatorsWithoutFractions) {
    Expect({{1664, OpOneOf, {"3"}, "2:3"}, {1667, OpEqual, {"2"}, "0:"}, {1668, OpOneOf, {"1"}, "0:"}});
}

TEST_F(DroppedByDimensionUnits, EverythingBesideTheUnitsOfTheDocument) {
    Expect({{1690, OpEqual, {"1"}, "3:1"},
            {1664, OpOneOf, {"3"}, "0:"},
            {1665, OpEqual, {"2"}, "0:"},
            {1666, OpOneOf, {"2"}, "0:"},
            {1667, OpEqual, {"2"}, "0:"},
            {1668, OpOneOf, {"1"}, "0:"},
            {1674, OpOneOf, {"0"}, "0:"},
            {1675, OpEqual, {"2"}, "0:"}});
}

TEST_F(DroppedByDimensionUnits, ThatTheUnitsOfTheDocumentAreForbidden) {
    Expect({{1690, OpEqual, {"0"}, "3:1"}});
}

TEST_F(DroppedByPrecision, PrecisionsWithoutARowTheirComparisonAndThoseBeyondTheFirst) {
    Expect({{2281, OpEqual, {"9"}, "3:0"},
            {2282, OpEqual, {"-1"}, "3:0"},
            {2283, OpOneOf, {"3", "4"}, "3:3"},
            {2284, OpAtLeast, {"8"}, "3:8"},
            {2404, OpEqual, {}, "3:0"},
            {2405, OpEqual, {"1"}, "3:1"}});
}

TEST_F(DroppedByPrecision, ComparisonsWithoutABoxAndTheirOrder) {
    Expect({{2314, OpNoneOf, {"10", "7", "12", "11", "9"}, "2:11,12,10"}});
    Expect({{2314, OpEqual, {"12"}, "2:12,9"}}); // one of the two is always compared
}

TEST_F(DroppedByPrecision, TolerancesWhileSettingsAreCompared) {
    Expect({{2314, OpOneOf, {"11", "9"}, "2:11,9"},
            {2307, OpEqual, {"1"}, "0:"},
            {2308, OpEqual, {"1"}, "0:"},
            {2309, OpEqual, {"1"}, "0:"},
            {2310, OpEqual, {"1"}, "0:"}});
}

TEST_F(DroppedByPrecision, WhatTolerancesCannotShow) {
    Expect({{2314, OpOneOf, {"10"}, "2:10"},
            {2307, OpAtMost, {"1.5"}, "3:1.5"},
            {2308, OpEqual, {"1.5", "2"}, "3:1.5"},
            {2309, OpEqual, {"0.00000000004"}, "3:0"}, // beyond ten decimals
            {2310, OpNone, {"2"}, "3:0"}});
}

TEST_F(DroppedByGaps, AnotherComparison) {
    Expect({{2293, OpAtMost, {"2"}, "3:2"}, {2294, OpBetween, {"2", "3"}, "3:2,3"}});
}

TEST_F(DroppedByGaps, DecimalsBeyondTheTenth) {
    Expect({{2293, OpEqual, {"0.00000000004", "2"}, "3:0,2"}});
}

TEST_F(DroppedByGaps, EverythingBesideTheSettingOfTheDocument) {
    Expect({{1690, OpEqual, {"1"}, "3:1"}, {2293, OpEqual, {"2"}, "0:"}, {2294, OpEqual, {"2"}, "0:"}});
}

TEST_F(DroppedByGaps, ThatTheSettingOfTheDocumentIsForbidden) {
    Expect({{1690, OpEqual, {"0"}, "3:1"}});
}

TEST_F(DroppedByAlignments, ValuesWithoutABoxTheirOrderAndTheirComparison) {
    Expect({{2274, OpOneOf, {"4", "3", "0"}, "2:3"},
            {2275, OpNoneOf, {"3", "1", "3"}, "2:1,3"},
            {2276, OpOneOf, {"9"}, "0:"},
            {2277, OpEqual, {"1", "2", "3", "4"}, "2:2,4,3,1"}});
    Expect({{2274, OpNone, {"1"}, "0:"}, {2277, OpOneOf, {}, "0:"}});
}

TEST_F(DroppedBySharps, ValuesWithoutABoxTheirOrderAndTheirComparison) {
    Expect({{140, OpNoneOf, {"4", "5", "0", "4", "-1"}, "2:0,4"}});
    Expect({{140, OpNone, {"1"}, "0:"}});
}

TEST_F(DroppedByDisplayModes, ValuesWithoutABoxTheirOrderAndTheirComparison) {
    Expect({{1742, OpNoneOf, {"1", "5", "2", "1", "-1"}, "2:2,1"}});
    Expect({{1742, OpNone, {"1"}, "0:"}});
}
