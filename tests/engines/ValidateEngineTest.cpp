#include "engines/ValidateEngine.h"
#include "engines/ValueBox.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace {

CString Normalized(const CString& comparison, CString text) {
    EXPECT_TRUE(CValidateEngine().NormalizeForOperator(comparison, text));
    return text;
}

int BadPosition(const CString& comparison, CString text) {
    int position = -2;
    CValidateEngine().CheckCharacters(comparison, text, position);
    return position;
}

// What a box holds after keys were typed in, one by one, or a text was pasted.
enum class How { Typed, Pasted };

struct Entry {
    const char* behaviour;
    const char* comparison; // a sign, or the name of a list below
    How how;
    const char* input;
    const char* text;
    bool stands;      // what the last check said
    unsigned message; // 0: none
};

CString ComparisonOf(const CString& name) {
    if (name == "between")
        return Between();
    if (name == "one of")
        return OneOf();
    return name == "none of" ? NoneOf() : name;
}

constexpr How Typed = How::Typed;
constexpr How Pasted = How::Pasted;

constexpr Entry Entries[] = {
    {"SecondPointIsRefused", "<", Typed, "1.2.", "1.2", false, 1978},
    {"TypingGoesOnAfterARefusedPoint", "<", Typed, "1.2.3", "1.23", true, 1978},
    {"CommaIsNotAllowedUnderLess", "<", Typed, "1,2", "12", true, 1977},
    {"CommaIsNotAllowedUnderGreater", ">", Typed, "1,2", "12", true, 1977},
    {"CommaIsNotAllowedUnderAtMost", "<=", Typed, "1,2", "12", true, 1977},
    {"CommaIsNotAllowedUnderAtLeast", ">=", Typed, "1,2", "12", true, 1977},
    {"CommaIsNotAllowedUnderEqual", "=", Typed, "1,2", "12", true, 1977},
    {"CommaIsNotAllowedUnderUnequal", "!=", Typed, "1,2", "12", true, 1977},
    {"LonePointUnderLessIsKept", "<", Typed, ".", ".", true, 0},
    {"LonePointUnderLessMayGrow", "<", Typed, ".5", ".5", true, 0},
    {"ZeroUnderLessBecomesOne", "<", Typed, "0", "1", true, 0},
    {"ZeroUnderAtMostStays", "<=", Typed, "0", "0", true, 0},
    {"NothingReadableUnderLessBecomesOneEvenAfterARefusal", "<", Pasted, "ab", "1", false, 1977},
    {"EmptiedBoxUnderLessStaysEmpty", "<", Pasted, "", "", true, 0},
    {"EmptiedBoxUnderEqualStaysEmpty", "=", Pasted, "", "", true, 0},

    {"MinusSignIsNotAllowedInARange", "between", Typed, "-", "", false, 1977},
    {"MinusSignIsNotAllowedInAList", "one of", Typed, "-", "", false, 1977},
    {"MinusSignIsNotAllowedInAListOfExceptions", "none of", Typed, "-", "", false, 1977},
    {"MinusSignIsNotAllowedUnderUnequal", "!=", Typed, "-", "", false, 1977},
    {"MinusSignIsNotAllowedUnderLess", "<", Typed, "-", "", false, 1977},
    {"DigitAfterAMinusSignStandsAlone", "between", Typed, "-5", "5", true, 1977},
    {"OnlyTheTenDigitsAreDigits", "one of", Pasted, "1\u0662", "1", false, 1977},
    {"OneChangeRepairsOneCharacter", "=", Pasted, "1a2b", "12b", false, 1977},
    {"CharacterOfTwoUnitsIsCutWhole", "=", Pasted, "1\U0001F6002", "12", false, 1977},

    {"SecondCommaInARangeIsRefused", "between", Typed, "1,2,", "1,2", false, 1979},
    {"TypingGoesOnAfterARefusedComma", "between", Typed, "1,2,3", "1,23", true, 1979},
    {"EachValueOfARangeTakesOnePoint", "between", Typed, "1.5,2.5", "1.5,2.5", true, 0},
    {"SecondPointInAValueOfARangeIsRefused", "between", Typed, "1.5,2.5.", "1.5,2.5", false, 1974},
    {"TwoCommasInARowCountAsASecondCommaOfARange", "between", Typed, "1,,", "1,", false, 1979},
    {"CommaAtTheStartOfARangeIsRefused", "between", Typed, ",", "", false, 1976},

    {"ListTakesAnyNumberOfValues", "one of", Typed, ".5,2.5,0,100", ".5,2.5,0,100", true, 0},
    {"ListOfExceptionsTakesAnyNumberOfValues", "none of", Typed, ".5,2.5,0,100", ".5,2.5,0,100", true, 0},
    {"SecondPointInAValueOfAListIsRefused", "one of", Typed, "1.5,2.5.", "1.5,2.5", false, 1974},
    {"TwoCommasInARowInAListAreRefused", "one of", Typed, "1,,2", "1,2", true, 1975},
    {"CommaAtTheStartOfAListIsRefused", "one of", Typed, ",", "", false, 1976},
    {"CommaAfterAPointPasses", "one of", Typed, "1.,", "1.,", true, 0},
    {"SecondCommaAfterAPointIsCaught", "one of", Typed, "1.,,", "1.,", false, 1975},
    {"ValueThatIsNoNumberStandsAlone", "one of", Typed, ".,", ".,", true, 0},
    {"ValueThatIsNoNumberIsDroppedOnceAnotherIs", "one of", Typed, ".,5", "5", true, 0},
    {"PointInFrontOfAFurtherValueIsDroppedWithItsComma", "one of", Typed, "1,.", "1", true, 0},

    {"BadCharacterBehindBlanksIsCutItself", "between", Pasted, "10 , 20a", "10 , 20", false, 1977},
    {"BadCharacterBetweenBlanksIsCutItself", "=", Pasted, "\t  1 x2 ", "\t  1 2 ", false, 1977},
    {"BlanksAroundValuesStay", "between", Pasted, "10 , 20", "10 , 20", true, 0},
    {"BlankAfterACommaTakesTheCommaAway", "one of", Typed, "1, ", "1", true, 0},
    {"BoxOfBlanksStands", "one of", Pasted, "  ", "  ", true, 0},
};

// As the tests are listed.
void PrintTo(const Entry& entry, std::ostream* out) {
    *out << '"' << entry.input << "\" under \"" << entry.comparison << '"';
}

class Typing : public ::testing::TestWithParam<Entry> {};

} // namespace

TEST_P(Typing, IsCheckedAndRepaired) {
    const Entry& entry = GetParam();
    ValueBox box(ComparisonOf(entry.comparison));
    const CString input = QString::fromUtf8(entry.input);
    entry.how == How::Typed ? box.Type(input) : box.Paste(input);
    EXPECT_EQ(box.text, entry.text);
    EXPECT_EQ(box.stands, entry.stands);
    EXPECT_EQ(box.messages.texts, entry.message ? Texts({entry.message}) : CStringArray());
}

INSTANTIATE_TEST_SUITE_P(Entries, Typing, ::testing::ValuesIn(Entries),
                         [](const auto& entry) { return std::string(entry.param.behaviour); });

TEST(TypingInSteps, EachChangeRepairsOneMoreCharacter) {
    ValueBox box("=");
    box.Paste("1a2b").Paste("");
    EXPECT_EQ(box.text, "12");
    EXPECT_FALSE(box.stands);
    EXPECT_EQ(box.messages.texts, Texts({1977, 1977}));
}

TEST(TypingWithoutOperator, IsRefusedAndTheTextStays) {
    for (const CString& comparison : {LoadString(1632), CString("=="), CString()}) {
        ValueBox box(comparison);
        box.Paste("x1");
        EXPECT_EQ(box.text, "x1");
        EXPECT_FALSE(box.stands);
        EXPECT_EQ(box.messages.texts, Texts({1980}));
        EXPECT_EQ(BadPosition(comparison, ""), -1);
    }
}

TEST(CheckCharacters, CountsInTheTextWithoutBlanks) {
    Messages messages;
    CString text = "  1 , a ";
    int position = -2;
    EXPECT_FALSE(CValidateEngine().CheckCharacters(OneOf(), text, position));
    EXPECT_EQ(position, 2);
    EXPECT_EQ(text, "1,a");
    EXPECT_EQ(BadPosition("=", "12"), -2);
}

TEST(ChooseOperator, RangeIsFilledToTwoValues) {
    EXPECT_EQ(Normalized(Between(), ""), "0,0");
    EXPECT_EQ(Normalized(Between(), ",,"), "0,0");
    EXPECT_EQ(Normalized(Between(), "5"), "0,5");
    EXPECT_EQ(Normalized(Between(), "5,"), "0,5");
    EXPECT_EQ(Normalized(Between(), "5,6"), "5,6");
    EXPECT_EQ(Normalized(Between(), "5,,6,"), "5,,6,");
    EXPECT_EQ(Normalized(Between(), "5,6,7,8"), "5,6");
}

TEST(ChooseOperator, LessThanNeedsAWholeNumberAboveZero) {
    EXPECT_EQ(Normalized("<", ""), "1");
    EXPECT_EQ(Normalized("<", "0"), "1");
    EXPECT_EQ(Normalized("<", "0.5"), "1");
    EXPECT_EQ(Normalized("<", "-3"), "1");
    EXPECT_EQ(Normalized("<", "2.5"), "2.5");
    EXPECT_EQ(Normalized("<", "2,3"), "2,3");
}

TEST(ChooseOperator, ListKeepsTheText) {
    for (const CString& list : {OneOf(), NoneOf()})
        for (const char* text : {"", "1", "1,2,3", ",,x"})
            EXPECT_EQ(Normalized(list, text), text);
}

TEST(ChooseOperator, AnyOtherKeepsTheFirstValue) {
    for (const CString& single :
         {CString(">"), CString("<="), CString(">="), CString("="), CString("!="), CString("?")}) {
        EXPECT_EQ(Normalized(single, ",5,6,7"), "5");
        EXPECT_EQ(Normalized(single, "5,"), "5,");
        EXPECT_EQ(Normalized(single, ""), "");
    }
    EXPECT_EQ(Normalized("=", "1/2/2000,3/4/2000"), "1/2/2000");
}
