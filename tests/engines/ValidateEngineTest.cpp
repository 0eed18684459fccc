#include "engines/ValidateEngine.h"
#include "engines/ValueBox.h"

#include <gtest/gtest.h>

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

} // namespace

TEST(TypeSingle, SecondPointIsRefused) {
    ValueBox box("<");
    box.Type("1.2.");
    EXPECT_EQ(box.messages.texts, Texts({1978}));
    EXPECT_FALSE(box.stands);
    box.Type("3");
    EXPECT_EQ(box.text, "1.23");
    EXPECT_TRUE(box.stands);
    EXPECT_EQ(box.messages.texts, Texts({1978}));
}

TEST(TypeSingle, CommaIsNotAllowed) {
    for (const char* single : {"<", ">", "<=", ">=", "=", "!="}) {
        ValueBox box(single);
        box.Type("1,2");
        EXPECT_EQ(box.text, "12") << single;
        EXPECT_EQ(box.messages.texts, Texts({1977})) << single;
    }
}

TEST(TypeSingle, LonePointUnderLessThanIsKept) {
    ValueBox box("<");
    box.Type(".");
    EXPECT_EQ(box.text, ".");
    EXPECT_TRUE(box.stands);
    box.Type("5");
    EXPECT_EQ(box.text, ".5");
    EXPECT_TRUE(box.messages.texts.isEmpty());
}

TEST(TypeSingle, ZeroUnderLessThanBecomesOne) {
    ValueBox box("<");
    box.Type("0");
    EXPECT_EQ(box.text, "1");
    EXPECT_TRUE(box.stands);
    ValueBox other("<=");
    other.Type("0");
    EXPECT_EQ(other.text, "0");
}

TEST(TypeSingle, NothingReadableUnderLessThanBecomesOneEvenAfterARefusal) {
    ValueBox box("<");
    box.Paste("ab");
    EXPECT_EQ(box.text, "1");
    EXPECT_FALSE(box.stands);
    EXPECT_EQ(box.messages.texts, Texts({1977}));
}

TEST(TypeSingle, EmptiedBoxStaysEmpty) {
    for (const char* single : {"<", "="}) {
        ValueBox box(single);
        box.Paste("");
        EXPECT_EQ(box.text, "") << single;
        EXPECT_TRUE(box.stands) << single;
    }
}

TEST(TypeEveryForm, MinusSignIsNeverAllowed) {
    for (const CString& comparison : {Between(), OneOf(), NoneOf(), CString("<"), CString("!=")}) {
        ValueBox box(comparison);
        box.Type("-");
        EXPECT_EQ(box.messages.texts, Texts({1977})) << comparison.toStdString();
        EXPECT_FALSE(box.stands);
        EXPECT_EQ(box.text, "");
        box.Type("5");
        EXPECT_EQ(box.text, "5");
        EXPECT_TRUE(box.stands);
    }
}

TEST(TypeEveryForm, OnlyTheTenDigitsAreDigits) {
    ValueBox box(OneOf());
    box.Paste(QString::fromUtf8("1\u0662"));
    EXPECT_EQ(box.text, "1");
    EXPECT_EQ(box.messages.texts, Texts({1977}));
}

TEST(TypeEveryForm, OneChangeRepairsOneCharacter) {
    ValueBox box("=");
    box.Paste("1a2b");
    EXPECT_EQ(box.text, "12b");
    EXPECT_EQ(box.messages.texts, Texts({1977}));
    box.Paste("");
    EXPECT_EQ(box.text, "12");
    EXPECT_FALSE(box.stands);
    EXPECT_EQ(box.messages.texts, Texts({1977, 1977}));
}

TEST(TypeEveryForm, CharacterOfTwoUnitsIsCutWhole) {
    ValueBox box("=");
    box.Paste(QString::fromUtf8("1\U0001F600"
                                "2"));
    EXPECT_EQ(box.text, "12");
}

TEST(TypeRange, SecondCommaIsRefused) {
    ValueBox box(Between());
    box.Type("1,2,");
    EXPECT_EQ(box.messages.texts, Texts({1979}));
    EXPECT_FALSE(box.stands);
    box.Type("3");
    EXPECT_EQ(box.text, "1,23");
    EXPECT_TRUE(box.stands);
    EXPECT_EQ(box.messages.texts, Texts({1979}));
}

TEST(TypeRange, EachValueTakesOnePoint) {
    ValueBox box(Between());
    box.Type("1.5,2.5");
    EXPECT_EQ(box.text, "1.5,2.5");
    EXPECT_TRUE(box.messages.texts.isEmpty());
    box.Type(".");
    EXPECT_EQ(box.text, "1.5,2.5");
    EXPECT_EQ(box.messages.texts, Texts({1974}));
}

TEST(TypeRange, TwoCommasInARowCountAsASecondComma) {
    ValueBox box(Between());
    box.Type("1,,");
    EXPECT_EQ(box.text, "1,");
    EXPECT_EQ(box.messages.texts, Texts({1979}));
}

TEST(TypeList, TakesAnyNumberOfValues) {
    for (const CString& comparison : {OneOf(), NoneOf()}) {
        ValueBox box(comparison);
        box.Type(".5,2.5,0,100");
        EXPECT_EQ(box.text, ".5,2.5,0,100");
        EXPECT_TRUE(box.stands);
        EXPECT_TRUE(box.messages.texts.isEmpty());
    }
}

TEST(TypeList, SecondPointInAValueIsRefused) {
    ValueBox box(OneOf());
    box.Type("1.5,2.5.");
    EXPECT_EQ(box.text, "1.5,2.5");
    EXPECT_EQ(box.messages.texts, Texts({1974}));
}

TEST(TypeList, TwoCommasInARowAreRefused) {
    ValueBox box(OneOf());
    box.Type("1,,2");
    EXPECT_EQ(box.text, "1,2");
    EXPECT_EQ(box.messages.texts, Texts({1975}));
}

TEST(TypeList, CommaAtTheStartIsRefused) {
    for (const CString& comparison : {OneOf(), Between()}) {
        ValueBox box(comparison);
        box.Type(",");
        EXPECT_EQ(box.text, "");
        EXPECT_EQ(box.messages.texts, Texts({1976}));
    }
}

TEST(TypeList, CommaAfterAPointPassesAndOnlyAFurtherOneIsCaught) {
    ValueBox box(OneOf());
    box.Type("1.,");
    EXPECT_EQ(box.text, "1.,");
    EXPECT_TRUE(box.messages.texts.isEmpty());
    box.Type(",");
    EXPECT_EQ(box.text, "1.,");
    EXPECT_EQ(box.messages.texts, Texts({1975}));
}

TEST(TypeList, ValueThatIsNoNumberIsDroppedOnceAnotherIs) {
    ValueBox box(OneOf());
    box.Type(".,");
    EXPECT_EQ(box.text, ".,");
    EXPECT_TRUE(box.stands);
    box.Type("5");
    EXPECT_EQ(box.text, "5");
}

TEST(TypeList, PointInFrontOfAFurtherValueIsDroppedWithItsComma) {
    ValueBox box(OneOf());
    box.Type("1,.");
    EXPECT_EQ(box.text, "1");
    EXPECT_TRUE(box.stands);
    EXPECT_TRUE(box.messages.texts.isEmpty());
}

TEST(TypeWithBlanks, BadCharacterItselfIsCut) {
    ValueBox box(Between());
    box.Paste("10 , 20a");
    EXPECT_EQ(box.text, "10 , 20");
    EXPECT_EQ(box.messages.texts, Texts({1977}));
    ValueBox padded("=");
    padded.Paste("\t  1 x2 ");
    EXPECT_EQ(padded.text, "\t  1 2 ");
}

TEST(TypeWithBlanks, BlanksAroundValuesStay) {
    ValueBox box(Between());
    box.Paste("10 , 20");
    EXPECT_EQ(box.text, "10 , 20");
    EXPECT_TRUE(box.stands);
}

TEST(TypeWithBlanks, BlankAfterACommaTakesTheCommaAway) {
    ValueBox box(OneOf());
    box.Type("1, ");
    EXPECT_EQ(box.text, "1");
    EXPECT_TRUE(box.stands);
}

TEST(TypeWithBlanks, BoxOfBlanksStands) {
    ValueBox box(OneOf());
    box.Paste("  ");
    EXPECT_EQ(box.text, "  ");
    EXPECT_TRUE(box.stands);
}

TEST(TypeWithoutOperator, IsRefusedAndTheTextStays) {
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
