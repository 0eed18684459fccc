#include "engines/TextServices.h"

#include <gtest/gtest.h>

TEST(Tokeniser, EmptyTokensVanish) {
    gtStrtok tokens(",,a,,b,", ",");
    EXPECT_EQ(tokens.GetCount(), 2);
    EXPECT_EQ(tokens.GetToken(0), "a");
    EXPECT_EQ(tokens.GetToken(1), "b");
}

TEST(Tokeniser, EveryDelimiterSeparatesAndBlanksStay) {
    gtStrtok tokens("1 ;, 2;3", ",;");
    ASSERT_EQ(tokens.GetCount(), 3);
    EXPECT_EQ(tokens.GetToken(0), "1 ");
    EXPECT_EQ(tokens.GetToken(1), " 2");
    EXPECT_EQ(tokens.GetToken(2), "3");
}

TEST(Tokeniser, WithoutDelimitersTheTextIsOneToken) {
    gtStrtok tokens("a,b", "");
    ASSERT_EQ(tokens.GetCount(), 1);
    EXPECT_EQ(tokens.GetToken(0), "a,b");
}

TEST(Tokeniser, TextWithoutTokensGivesNothing) {
    for (const char* text : {"", ",", ",,,"}) {
        gtStrtok tokens(text, ",");
        CString out = "kept";
        EXPECT_EQ(tokens.GetCount(), 0);
        EXPECT_FALSE(tokens.GetFirst(out));
        EXPECT_FALSE(tokens.GetNext(out));
        EXPECT_FALSE(tokens.GetPrevious(out));
        EXPECT_FALSE(tokens.GetLast(out));
        EXPECT_EQ(out, "kept");
        EXPECT_EQ(tokens.GetToken(0), "");
    }
}

TEST(Tokeniser, StepsBothWaysAndStopsAtTheEnds) {
    gtStrtok tokens("a,b,c", ",");
    CString out;
    EXPECT_TRUE(tokens.GetNext(out)); // the first token is current from the start
    EXPECT_EQ(out, "b");
    EXPECT_TRUE(tokens.GetLast(out));
    EXPECT_EQ(out, "c");
    EXPECT_FALSE(tokens.GetNext(out));
    EXPECT_EQ(out, "c");
    EXPECT_TRUE(tokens.GetPrevious(out));
    EXPECT_EQ(out, "b");
    EXPECT_TRUE(tokens.GetFirst(out));
    EXPECT_EQ(out, "a");
    EXPECT_FALSE(tokens.GetPrevious(out));
    EXPECT_EQ(out, "a");
}

TEST(Tokeniser, TokenTakenByIndexBecomesTheCurrentOne) {
    gtStrtok tokens("a,b,c", ",");
    CString out;
    EXPECT_EQ(tokens.GetToken(1), "b");
    EXPECT_TRUE(tokens.GetNext(out));
    EXPECT_EQ(out, "c");
    EXPECT_EQ(tokens.GetToken(0), "a");
    EXPECT_EQ(tokens.GetToken(3), "");
    EXPECT_EQ(tokens.GetToken(-1), "");
    EXPECT_TRUE(tokens.GetNext(out)); // a bad index moves nothing
    EXPECT_EQ(out, "b");
}

TEST(ExtractNumber, KeepsDigitsAndTheFirstPoint) {
    CString out;
    EXPECT_EQ(ExtractNumber("1a.2.3", out), 1);
    EXPECT_EQ(out, "1.23");
    EXPECT_EQ(ExtractNumber("-12.5 mm", out), 2);
    EXPECT_EQ(out, "12.5");
}

TEST(ExtractNumber, WithoutAPointTellsWhereTheLastCharacterWasDropped) {
    CString out;
    EXPECT_EQ(ExtractNumber("a1b23", out), 1);
    EXPECT_EQ(out, "123");
    EXPECT_EQ(ExtractNumber("12x", out), 2);
    EXPECT_EQ(out, "12");
    EXPECT_EQ(ExtractNumber("12", out), -1);
    EXPECT_EQ(out, "12");
    EXPECT_EQ(ExtractNumber("", out), -1);
    EXPECT_EQ(out, "");
}

TEST(ExtractNumber, OnlyTheDigitsOfTheTenCountAsDigits) {
    CString out;
    EXPECT_EQ(ExtractNumber(QString::fromUtf8("\u0663"
                                              "4"),
                            out),
              0);
    EXPECT_EQ(out, "4");
}

TEST(ExtractNumber, TextMayBeFilteredInPlace) {
    CString text = "1a.2.3";
    EXPECT_EQ(ExtractNumber(text, text), 1);
    EXPECT_EQ(text, "1.23");
}

TEST(NormalizeDecimalPoint, KeepsTheFirstPointOnly) {
    CString text = ".1..2.";
    EXPECT_EQ(NormalizeDecimalPoint(text), 0);
    EXPECT_EQ(text, ".12");
    text = "12";
    EXPECT_EQ(NormalizeDecimalPoint(text), -1);
    EXPECT_EQ(text, "12");
    text = "1.2";
    EXPECT_EQ(NormalizeDecimalPoint(text), 1);
    EXPECT_EQ(text, "1.2");
}
