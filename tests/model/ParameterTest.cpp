#include "model/Parameter.h"

#include "model/ParameterValue.h"
#include "platform/LanguageLibrary.h"
#include "support/Messages.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>

namespace {

template <class T> CString WrittenAgain(const CString& text) {
    const T value = ValueForm<T>::Parse(text);
    const CString written = ValueForm<T>::Format(value);
    FreeValue(value);
    return written;
}

} // namespace

TEST(Parameter, BareOneIsInThePlainStateWithoutCorrection) {
    const CParameter<long> parameter;
    EXPECT_EQ(parameter.Operator, OpOneOf);
    EXPECT_EQ(parameter.CorrectionKind, CorrectionAbsent);
    EXPECT_EQ(parameter.Correction, 0);
    EXPECT_EQ(parameter.Values.Count, 0);
    EXPECT_EQ(CParameter<CString*>().Correction, nullptr);
}

TEST(Parameter, CreatedOneHasItsLabelAndWhatWasAskedFor) {
    const auto entry = CreateParameter(DataDouble, 1552, OpAtMost, 1, true);
    EXPECT_EQ(entry->DataType, DataDouble);
    EXPECT_EQ(entry->ID, 1552u);
    EXPECT_TRUE(entry->Flag);
    const auto* parameter = dynamic_cast<CParameter<double>*>(entry->Parameter.get());
    ASSERT_TRUE(parameter);
    EXPECT_EQ(parameter->ID, 1552u);
    EXPECT_EQ(parameter->Name, LoadString(1552));
    EXPECT_FALSE(parameter->Name.isEmpty());
    EXPECT_EQ(parameter->Operator, OpAtMost);
    EXPECT_EQ(parameter->ParameterType, 1u);
    EXPECT_EQ(parameter->Values.Count, 0);
    EXPECT_EQ(parameter->CorrectionKind, CorrectionAbsent);
    EXPECT_TRUE(parameter->Remarks.isEmpty());
}

TEST(Parameter, EachDataTypeHasItsOwnClass) {
    const auto created = [](int type) { return CreateParameter(type, 1700, OpNone, 0, false); };
    EXPECT_TRUE(dynamic_cast<CParameter<int>*>(created(1)->Parameter.get()));
    EXPECT_TRUE(dynamic_cast<CParameter<long>*>(created(2)->Parameter.get()));
    EXPECT_TRUE(dynamic_cast<CParameter<bool>*>(created(3)->Parameter.get()));
    EXPECT_TRUE(dynamic_cast<CParameter<double>*>(created(4)->Parameter.get()));
    EXPECT_TRUE(dynamic_cast<CParameter<CString*>*>(created(5)->Parameter.get()));
    EXPECT_TRUE(dynamic_cast<CParameter<COleDateTime*>*>(created(6)->Parameter.get()));
    EXPECT_TRUE(dynamic_cast<CParameter<unsigned long>*>(created(7)->Parameter.get()));
}

TEST(Parameter, IllegalDataTypeShowsAMessageAndGivesAnEntryWithoutParameter) {
    for (int type : {0, 8, -1}) {
        const Messages messages;
        const auto entry = CreateParameter(type, 1700, OpNone, 0, false);
        EXPECT_EQ(messages.texts, CStringArray("Illegal Param DataType Defined"));
        EXPECT_EQ(entry->Parameter, nullptr);
        EXPECT_FALSE(VisitParameter(*entry, [](const auto&) { ADD_FAILURE(); }));
        EXPECT_EQ(messages.texts.size(), 2);
    }
}

TEST(Parameter, CopyHasTextsOfItsOwn) {
    auto original = std::make_unique<CParameter<CString*>>();
    original->Name = "label";
    original->Remarks = "remark";
    original->Values.Add(new CString("A"));
    original->Values.Add(nullptr);
    original->SetCorrection(new CString("B"));
    CParameter<CString*> copy(*original);
    CParameter<CString*> assigned;
    assigned.Values.Add(new CString("old"));
    assigned.SetCorrection(new CString("old"));
    assigned = *original;
    original.reset();
    for (const auto* parameter : {&copy, &assigned}) {
        EXPECT_EQ(parameter->Name, "label");
        EXPECT_EQ(parameter->Remarks, "remark");
        ASSERT_EQ(parameter->Values.Count, 2);
        EXPECT_EQ(*parameter->Values[0], "A");
        EXPECT_EQ(parameter->Values[1], nullptr);
        EXPECT_EQ(*parameter->Correction, "B");
    }
}

TEST(Parameter, CopyHasDatesOfItsOwn) {
    CParameter<COleDateTime*> original;
    original.Values.Add(new COleDateTime(QDate(2026, 3, 5), QTime(14, 7, 9)));
    const CParameter<COleDateTime*> copy(original);
    EXPECT_NE(copy.Values[0], original.Values[0]);
    EXPECT_EQ(*copy.Values[0], *original.Values[0]);
}

TEST(Parameter, LinksAreCopiedButNotOwned) {
    CParameter<CCheck*> links;
    int target = 0; // stands for a check: it is never followed
    links.Values.Add(reinterpret_cast<CCheck*>(&target));
    const CParameter<CCheck*> copy(links);
    EXPECT_EQ(copy.Values[0], links.Values[0]);
}

TEST(Parameter, ClearedValuesLeaveAnEmptyList) {
    CParameter<CString*> parameter;
    for (int i = 0; i < 20; ++i)
        parameter.Values.Add(new CString("text"));
    parameter.ClearValues();
    EXPECT_EQ(parameter.Values.Count, 0);
    EXPECT_EQ(parameter.Values.Capacity, 10);
}

TEST(ValueForm, WholeNumbersAreWrittenInTheirOwnRange) {
    EXPECT_EQ(ValueForm<int>::Format(std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(ValueForm<long>::Format(-7), "-7");
    EXPECT_EQ(ValueForm<unsigned long>::Format(4294967295ul), "4294967295");
    EXPECT_EQ(ValueForm<unsigned long>::Parse("4294967295"), 4294967295ul);
    EXPECT_EQ(ValueForm<unsigned long>::Parse("-1"), 4294967295ul);
}

TEST(ValueForm, DoubleHasTenDecimalsAndAPointInEveryLocale) {
    EXPECT_EQ(ValueForm<double>::Format(2.5), "2.5000000000");
    EXPECT_EQ(ValueForm<double>::Format(-1e-11), "-0.0000000000");
    EXPECT_EQ(ValueForm<double>::Parse("2.5"), 2.5);
    EXPECT_EQ(ValueForm<double>::Parse("2,5"), 2.0);
}

TEST(ValueForm, AnyTextButZeroIsTrue) {
    EXPECT_FALSE(ValueForm<bool>::Parse("0"));
    for (const char* text : {"1", "", "00", " 0", "false"})
        EXPECT_TRUE(ValueForm<bool>::Parse(text)) << text;
    EXPECT_EQ(ValueForm<bool>::Format(true), "1");
    EXPECT_EQ(ValueForm<bool>::Format(false), "0");
}

TEST(ValueForm, TextStandsAsItIsAndANullTextIsEmpty) {
    EXPECT_EQ(WrittenAgain<CString*>("  a <b> \n"), "  a <b> \n");
    EXPECT_EQ(ValueForm<CString*>::Format(nullptr), "");
}

TEST(ValueForm, DateHasNoTextAndIsNotRead) {
    const COleDateTime date(QDate(2026, 3, 5), QTime());
    EXPECT_EQ(ValueForm<COleDateTime*>::Format(&date), "");
    EXPECT_EQ(ValueForm<COleDateTime*>::Parse("05.03.2026"), nullptr);
}

TEST(ValueForm, TextThatIsNoNumberReadsAsZero) {
    EXPECT_EQ(WrittenAgain<int>("x"), "0");
    EXPECT_EQ(WrittenAgain<long>(""), "0");
    EXPECT_EQ(WrittenAgain<unsigned long>("-"), "0");
    EXPECT_EQ(WrittenAgain<double>("."), "0.0000000000");
    EXPECT_EQ(WrittenAgain<long>(" 12 mm"), "12");
}
