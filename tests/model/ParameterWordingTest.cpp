// Parameters in words, by their data type and kind of value.
#include "model/ParameterWording.h"

#include "engines/ParameterKinds.h"
#include "model/ParameterValue.h"
#include "support/Language.h"

#include <gtest/gtest.h>

namespace {

constexpr int Millimeters = 0;
constexpr int Inches = 3;
constexpr int Degrees = 0;
constexpr int NoUnit = -1;

struct Given {
    DataTypeCode dataType;
    unsigned kind;
    unsigned op;
    CStringArray values; // in the form of a file
    const char* correction = nullptr;
};

std::unique_ptr<CParameterEntry> Make(const Given& given) {
    auto entry = CreateParameter(given.dataType, 1704, given.op, given.kind, false);
    VisitParameter(*entry, [&given]<class T>(CParameter<T>& parameter) {
        for (const CString& value : given.values)
            parameter.Values.Add(ValueForm<T>::Parse(value));
        if (!given.correction)
            return;
        parameter.CorrectionKind = CorrectionFixed;
        parameter.SetCorrection(ValueForm<T>::Parse(given.correction));
    });
    return entry;
}

ParameterRow Word(const Given& given, int lengthUnit = Millimeters, int angleUnit = Degrees) {
    return WordParameter(*Make(given), lengthUnit, angleUnit);
}

CString Value(const Given& given, int lengthUnit = Millimeters) {
    const ParameterRow row = Word(given, lengthUnit);
    EXPECT_EQ(row.form, ParameterRow::Text);
    return row.value;
}

using Codes = std::vector<unsigned long>;

} // namespace

TEST(ParameterWording, CarriesNameOperatorAndKind) {
    const ParameterRow row = Word({DataDouble, KindLength, OpAbove, {"2"}});
    EXPECT_EQ(row.form, ParameterRow::Text);
    EXPECT_EQ(row.parameter, "Text Height");
    EXPECT_EQ(row.op, OpAbove);
    EXPECT_EQ(row.parameterType, unsigned(KindLength));
    EXPECT_TRUE(row.codes.empty());
}

TEST(ParameterWording, WhatIsNotTestedHasNoRow) {
    EXPECT_EQ(Word({DataDouble, KindLength, OpNone, {"2"}}).form, ParameterRow::None);
    EXPECT_EQ(Word({DataUnsigned, KindColor, OpNone, {"255"}}).form, ParameterRow::None);
    EXPECT_EQ(Word({DataInt, KindArrowStyle, OpNone, {"1"}}).form, ParameterRow::None);
}

TEST(ParameterWording, DatesHaveNoRow) {
    EXPECT_EQ(Word({DataDate, KindPlain, OpEqual, {}}).form, ParameterRow::None);
}

TEST(ParameterWording, WholeNumbers) {
    EXPECT_EQ(Value({DataInt, KindPlain, OpEqual, {"3"}}), "3");
    EXPECT_EQ(Value({DataLong, KindPlain, OpOneOf, {"2", "3", "4"}}), "2 , 3 , 4");
    EXPECT_EQ(Word({DataInt, KindPlain, OpEqual, {"3"}, "5"}).correction, "5");
}

TEST(ParameterWording, ValuesOfAList) {
    EXPECT_EQ(Value({DataLong, KindFontStyle, OpOneOf, {"1", "3"}}), "Regular , Bold");
    EXPECT_EQ(Word({DataLong, KindFontStyle, OpOneOf, {"1"}, "3"}).correction, "Bold");
    EXPECT_EQ(Value({DataInt, KindBoolean, OpEqual, {"1"}}), "Yes");
    EXPECT_EQ(Value({DataLong, KindFontStyle, OpNoneOf, {"1"}}), "none of Regular");
}

// The list of angle units names two of the four; a pane offers all.
TEST(ParameterWording, MinutesAndSecondsOfAnglesHaveNoText) {
    EXPECT_EQ(Value({DataLong, KindAngleUnit, OpOneOf, {"0", "3"}}), "Degrees , Radians");
    EXPECT_EQ(Value({DataLong, KindAngleUnit, OpOneOf, {"1"}}), "");
    EXPECT_EQ(Value({DataLong, KindAngleUnit, OpOneOf, {"0", "2"}}), "Degrees , ");
    EXPECT_EQ(Word({DataLong, KindAngleUnit, OpOneOf, {"0", "1"}, "1"}).correction, "");
}

TEST(ParameterWording, YesAndNoKeepTheirOperator) {
    EXPECT_EQ(Value({DataBool, KindPlain, OpEqual, {"1"}}), "= 1");
    EXPECT_EQ(Value({DataBool, KindBoolean, OpEqual, {"1"}}), "= Yes");
    EXPECT_EQ(Value({DataBool, KindBoolean, OpNotEqual, {"0"}}), "!= No");
    EXPECT_EQ(Value({DataBool, KindBoolean, OpEqual, {"1", "0"}}), "= Yes") << "only the first counts";
    EXPECT_EQ(Word({DataBool, KindBoolean, OpEqual, {"1"}, "0"}).correction, "No");
}

TEST(ParameterWording, MeasuresHaveTheUnitsOfTheStandard) {
    EXPECT_EQ(Value({DataDouble, KindLength, OpEqual, {"2.5"}}), "2.5mm");
    EXPECT_EQ(Value({DataDouble, KindLength, OpEqual, {"2.5"}}, Inches), "2.5in");
    EXPECT_EQ(Value({DataDouble, KindLength, OpOneOf, {"2.5", "3.5"}}), "2.5mm , 3.5mm");
    EXPECT_EQ(Value({DataDouble, KindAngle, OpEqual, {"45"}}), "45 Degrees");
    EXPECT_EQ(Word({DataDouble, KindAngle, OpEqual, {"45"}}, Millimeters, 3).value, "45 Radians");
    EXPECT_EQ(Value({DataDouble, KindPlain, OpEqual, {"2.5"}}), "2.5");
    EXPECT_EQ(Word({DataDouble, KindLength, OpEqual, {"2.5"}, "3"}).correction, "3mm");
    EXPECT_EQ(Value({DataDouble, KindLength, OpEqual, {"2.5"}}, NoUnit), "2.5");
}

TEST(ParameterWording, Texts) {
    EXPECT_EQ(Value({DataText, KindPlain, OpOneOf, {"A", "B"}}), "A,B");
    EXPECT_EQ(Value({DataText, KindPlain, OpBeginsWith, {"MD-"}}), "begins with MD-");
    EXPECT_EQ(Word({DataText, KindPlain, OpEqual, {"A"}, "B"}).correction, "B");
}

TEST(ParameterWording, ATextWithoutACorrectionSaysNothing) {
    const auto entry = Make({DataText, KindPlain, OpEqual, {"A"}});
    entry->Parameter->CorrectionKind = CorrectionFixed; // but the text is null
    EXPECT_EQ(WordParameter(*entry, Millimeters, Degrees).correction, NothingToSay);
}

TEST(ParameterWording, WithoutACorrection) {
    for (const DataTypeCode type : {DataInt, DataLong, DataBool, DataDouble, DataText})
        EXPECT_EQ(Word({type, KindPlain, OpEqual, {"1"}}).correction, NothingToSay) << type;
    EXPECT_FALSE(Word({DataUnsigned, KindColor, OpEqual, {"1"}}).hasCorrectionCode);
}

TEST(ParameterWording, Operators) {
    const std::pair<unsigned, const char*> Expected[] = {{OpOneOf, "2mm"},
                                                         {OpEqual, "2mm"},
                                                         {OpNoneOf, "none of 2mm"},
                                                         {OpBelow, "< 2mm"},
                                                         {OpAbove, "> 2mm"},
                                                         {OpAtLeast, ">= 2mm"},
                                                         {OpAtMost, "<= 2mm"},
                                                         {OpNotEqual, "!= 2mm"},
                                                         {OpContains, "contains 2mm"},
                                                         {OpBeginsWith, "begins with 2mm"},
                                                         {OpEndsWith, "ends with 2mm"}};
    for (const auto& [op, text] : Expected)
        EXPECT_EQ(Value({DataDouble, KindLength, op, {"2"}}), text) << op;
}

TEST(ParameterWording, RangesStandInBrackets) {
    EXPECT_EQ(Value({DataDouble, KindLength, OpBetween, {"2", "3"}}), "between(2mm , 3mm)");
    EXPECT_EQ(Value({DataLong, KindPlain, OpBetween, {"2", "3"}}), "between(2 , 3)");
}

TEST(ParameterWording, WithoutValuesThereIsNoOperatorEither) {
    for (const unsigned op : {OpEqual, OpBetween, OpAbove})
        EXPECT_EQ(Value({DataDouble, KindLength, op, {}}), "") << op;
}

TEST(ParameterWording, Pictures) {
    const ParameterRow row = Word({DataInt, KindArrowStyle, OpOneOf, {"2", "4"}, "2"});
    EXPECT_EQ(row.form, ParameterRow::Pictures);
    EXPECT_EQ(row.codes, (Codes{2, 4}));
    EXPECT_TRUE(row.hasCorrectionCode);
    EXPECT_EQ(row.correctionCode, 2u);
    EXPECT_EQ(row.value, "");
}

TEST(ParameterWording, WhichListsAreShownByPictures) {
    for (unsigned kind = 0; kind < ParameterKindCount; ++kind) {
        const bool small = kind == 3 || kind == 20 || kind == 21;
        const bool large = small || (kind >= 25 && kind <= 29) || kind == 32;
        EXPECT_EQ(Word({DataInt, kind, OpEqual, {"1"}}).form,
                  small ? ParameterRow::Pictures : ParameterRow::Text)
            << kind;
        EXPECT_EQ(Word({DataLong, kind, OpEqual, {"1"}}).form,
                  large ? ParameterRow::Pictures : ParameterRow::Text)
            << kind;
        EXPECT_EQ(Word({DataText, kind, OpEqual, {"1"}}).form, ParameterRow::Text) << kind;
        EXPECT_EQ(Word({DataDouble, kind, OpEqual, {"1"}}).form, ParameterRow::Text) << kind;
    }
}

TEST(ParameterWording, Colors) {
    const ParameterRow row = Word({DataUnsigned, KindColor, OpOneOf, {"255", "16711680"}, "255"});
    EXPECT_EQ(row.form, ParameterRow::Colors);
    EXPECT_EQ(row.codes, (Codes{0xFF, 0xFF0000}));
    EXPECT_TRUE(row.hasCorrectionCode);
    EXPECT_EQ(row.correctionCode, 0xFFu);
}

TEST(ParameterWording, FollowsTheLanguage) {
    const Language german("German");
    EXPECT_EQ(Word({DataLong, KindFontStyle, OpEqual, {"3"}}).value, "Fett");
    EXPECT_EQ(Word({DataDouble, KindLength, OpEqual, {"2.5"}}).value, "2.5mm") << "no decimal comma";
}
