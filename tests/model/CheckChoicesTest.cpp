#include "engines/EnumEngine.h"
#include "model/Check.h"
#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>

namespace {

constexpr int DraftingStandardList = 4;

CString TextOf(unsigned long code) {
    CString text;
    CEnumEngine().GetDisplayString(DraftingStandardList, code, text);
    return text;
}

// Choices of a drafting standard check; 8 stands for the free text.
struct Choices {
    explicit Choices(std::initializer_list<long> codes, const char* freeText = nullptr) {
        for (const long code : codes)
            List().Values.Add(code);
        if (freeText)
            check.GetStringParameter(0)->Values.Add(new CString(freeText));
    }
    CParameter<long>& List() { return *check.GetLongParameter(1578); }
    int Texts() { return check.GetChoiceTexts(texts, correction); }

    CCheck check{101, 0, 0, 0, 1};
    CStringArray texts;
    CString correction;
};

} // namespace

TEST(CheckChoices, CodesBelowEightAreTextsAndEightIsTheFreeOne) {
    Choices choices({1, 8, 2, 9}, "House rules");
    choices.check.CorrectionKind = 5;
    EXPECT_EQ(choices.Texts(), 5);
    EXPECT_EQ(choices.texts, (CStringArray{TextOf(1), "House rules", TextOf(2)}));
    EXPECT_FALSE(TextOf(1).isEmpty());
    EXPECT_EQ(choices.correction, "");
}

TEST(CheckChoices, EightWithoutAFreeTextIsDropped) {
    Choices choices({8, 3});
    choices.Texts();
    EXPECT_EQ(choices.texts, CStringArray(TextOf(3)));
}

TEST(CheckChoices, CorrectionIsATextAndTheFreeOneHasKindZero) {
    Choices listed({2});
    listed.check.SetCorrectionKind(CorrectionFixed);
    listed.List().Correction = 4;
    EXPECT_EQ(listed.Texts(), CorrectionFixed);
    EXPECT_EQ(listed.correction, TextOf(4));
    Choices free({8}, "House rules");
    free.check.SetCorrectionKind(CorrectionFixed);
    free.List().Correction = 8;
    EXPECT_EQ(free.Texts(), 0);
    EXPECT_EQ(free.correction, "House rules");
}

TEST(CheckChoices, ConversionReplacesTheCodesByOneTextParameter) {
    Choices choices({1, 8}, "House rules");
    choices.check.SetCorrectionKind(CorrectionFixed);
    choices.List().Correction = 8;
    choices.check.ConvertChoicesToText();
    ASSERT_EQ(choices.check.Parameters.Count, 1);
    EXPECT_EQ(choices.check.FindParameter(0), nullptr);
    const CParameter<CString*>* texts = choices.check.GetStringParameter(1578);
    ASSERT_TRUE(texts);
    EXPECT_EQ(texts->Name, LoadString(1578));
    EXPECT_EQ(texts->Operator, OpOneOf);
    ASSERT_EQ(texts->Values.Count, 2);
    EXPECT_EQ(*texts->Values[0], TextOf(1));
    EXPECT_EQ(*texts->Values[1], "House rules");
    EXPECT_EQ(*texts->Correction, "House rules");
    EXPECT_EQ(texts->CorrectionKind, 0);
    EXPECT_EQ(choices.check.CorrectionKind, 0u);
}

TEST(CheckChoices, ConversionWithoutCorrectionLeavesItEmpty) {
    Choices choices({1});
    choices.check.ConvertChoicesToText();
    EXPECT_EQ(choices.check.GetStringParameter(1578)->Correction, nullptr);
}

TEST(CheckChoices, OtherTypesAreNotConverted) {
    CCheck check(104, 0, 0, 0, 1);
    check.ConvertChoicesToText();
    EXPECT_EQ(check.Parameters.Count, 4);
    CStringArray texts;
    CString correction;
    check.CorrectionKind = 3;
    EXPECT_EQ(check.GetChoiceTexts(texts, correction), 3);
    EXPECT_TRUE(texts.isEmpty());
}
