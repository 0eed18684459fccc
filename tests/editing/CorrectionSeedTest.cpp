// The correction that a requirement leads to, over all operators and kinds of values.
#include "editing/CorrectionRules.h"

#include <gtest/gtest.h>
#include <optional>

namespace {

constexpr MQC_CheckType_e SeededType = 9001; // a type without parameters of its own
constexpr unsigned SeededId = 5;

template <class T> constexpr int DataTypeOf = 0;
template <> constexpr int DataTypeOf<int> = DataInt;
template <> constexpr int DataTypeOf<long> = DataLong;
template <> constexpr int DataTypeOf<bool> = DataBool;
template <> constexpr int DataTypeOf<double> = DataDouble;
template <> constexpr int DataTypeOf<CString*> = DataText;
template <> constexpr int DataTypeOf<unsigned long> = DataUnsigned;

template <class T> T Stored(const auto& value) {
    if constexpr (std::is_same_v<T, CString*>)
        return new CString(value);
    else
        return static_cast<T>(value);
}

template <class T>
std::unique_ptr<CCheck> CheckWith(unsigned op, const auto& values, CParameter<T>*& parameter) {
    auto check = std::make_unique<CCheck>(SeededType, 0, 0, 0, 1);
    check->Parameters.Add(CreateParameter(DataTypeOf<T>, SeededId, op, 0, false).release());
    parameter = static_cast<CParameter<T>*>(check->FindParameter(SeededId)->Parameter.get());
    for (const auto& value : values)
        parameter->Values.Add(Stored<T>(value));
    return check;
}

// The correction that is derived, if any.
template <class T, class Value>
std::optional<Value> Seeded(unsigned op, const std::vector<Value>& values,
                            std::optional<Value> earlier = std::nullopt) {
    CStandard standard;
    CParameter<T>* parameter = nullptr;
    if (earlier) {
        auto held = CheckWith<T>(op, values, parameter);
        parameter->SetCorrection(Stored<T>(*earlier));
        parameter->CorrectionKind = CorrectionFixed;
        unsigned sequence = 0;
        standard.InsertCheck(std::move(held), sequence);
    }
    auto scratch = CheckWith<T>(op, values, parameter);
    SeedCorrectionValue(standard, *scratch, SeededId);
    if (parameter->CorrectionKind != CorrectionFixed)
        return std::nullopt;
    if constexpr (std::is_same_v<T, CString*>)
        return *parameter->Correction;
    else
        return static_cast<Value>(parameter->Correction);
}

template <class T> class CorrectionSeedNumbers : public testing::Test {
protected:
    static std::optional<double> Seed(unsigned op, const std::vector<double>& values,
                                      std::optional<double> earlier = std::nullopt) {
        return Seeded<T, double>(op, values, earlier);
    }
};

using Numbers = testing::Types<int, long, double, unsigned long>;
TYPED_TEST_SUITE(CorrectionSeedNumbers, Numbers);

std::vector<double> UpTo(int first, int last) {
    std::vector<double> values;
    for (int value = first; value <= last; ++value)
        values.push_back(value);
    return values;
}

} // namespace

TYPED_TEST(CorrectionSeedNumbers, WithoutAnEarlierValueTheFirstValueLeads) {
    const std::vector<double> values = {7, 9};
    EXPECT_EQ(this->Seed(OpBetween, values), 7);
    EXPECT_EQ(this->Seed(OpOneOf, values), 7);
    EXPECT_EQ(this->Seed(OpEqual, values), 7);
    EXPECT_EQ(this->Seed(OpNoneOf, values), 8);
    EXPECT_EQ(this->Seed(OpBelow, values), 6);
    EXPECT_EQ(this->Seed(OpAbove, values), 8);
    EXPECT_EQ(this->Seed(OpAtLeast, values), 7);
    EXPECT_EQ(this->Seed(OpAtMost, values), 7);
}

TYPED_TEST(CorrectionSeedNumbers, AnEarlierValueThatStillHoldsStays) {
    EXPECT_EQ(this->Seed(OpBetween, {3, 9}, 3), 3);
    EXPECT_EQ(this->Seed(OpBetween, {3, 9}, 9), 9);
    EXPECT_EQ(this->Seed(OpOneOf, {3, 9}, 9), 9);
    EXPECT_EQ(this->Seed(OpNoneOf, {3, 9}, 5), 5);
    EXPECT_EQ(this->Seed(OpBelow, {9}, 2), 2);
    EXPECT_EQ(this->Seed(OpAbove, {9}, 20), 20);
    EXPECT_EQ(this->Seed(OpAtLeast, {9}, 12), 12);
    EXPECT_EQ(this->Seed(OpAtMost, {9}, 4), 4);
}

TYPED_TEST(CorrectionSeedNumbers, AnEarlierValueThatNoLongerHoldsGivesWay) {
    EXPECT_EQ(this->Seed(OpBetween, {3, 9}, 10), 3);
    EXPECT_EQ(this->Seed(OpOneOf, {3, 9}, 5), 3);
    EXPECT_EQ(this->Seed(OpEqual, {3}, 5), 3);
    EXPECT_EQ(this->Seed(OpNoneOf, {3, 4, 6}, 6), 5);
    EXPECT_EQ(this->Seed(OpBelow, {9}, 9), 8);
    EXPECT_EQ(this->Seed(OpAbove, {9}, 9), 10);
    EXPECT_EQ(this->Seed(OpAtLeast, {9}, 4), 9);
    EXPECT_EQ(this->Seed(OpAtMost, {9}, 12), 9);
}

TYPED_TEST(CorrectionSeedNumbers, ARangeOfAnotherLengthSettlesNothingForAnEarlierValue) {
    EXPECT_EQ(this->Seed(OpBetween, {3}, 3), std::nullopt);
    EXPECT_EQ(this->Seed(OpBetween, {3, 4, 5}, 4), std::nullopt);
    EXPECT_EQ(this->Seed(OpBetween, {3}), 3);
}

TYPED_TEST(CorrectionSeedNumbers, ASearchThatFindsAllNumbersTakenStoresNothing) {
    EXPECT_EQ(this->Seed(OpNoneOf, UpTo(1, 101)), std::nullopt);
    EXPECT_EQ(this->Seed(OpNoneOf, UpTo(1, 101), 50), std::nullopt);
    EXPECT_EQ(this->Seed(OpNoneOf, UpTo(1, 100)), 101);
}

TYPED_TEST(CorrectionSeedNumbers, ASearchWithoutAFreeNumberLeavesTheCorrectionAsItWas) {
    for (const int kind : {CorrectionFixed, CorrectionAbsent}) {
        CParameter<TypeParam>* parameter = nullptr;
        auto scratch = CheckWith<TypeParam>(OpNoneOf, UpTo(1, 101), parameter);
        parameter->Correction = TypeParam(55);
        parameter->CorrectionKind = kind;
        SeedCorrectionValue(CStandard(), *scratch, SeededId);
        EXPECT_EQ(parameter->Correction, TypeParam(55));
        EXPECT_EQ(parameter->CorrectionKind, kind);
    }
}

TYPED_TEST(CorrectionSeedNumbers, NothingInForceHoldsNoCorrection) {
    EXPECT_EQ(this->Seed(OpNone, {3}, 3), std::nullopt);
    EXPECT_EQ(this->Seed(OpEqual, {}, 3), std::nullopt);
    for (const unsigned op : {OpContains, OpBeginsWith, OpEndsWith, OpLeftOut, OpTextOnly, OpNotEqual})
        EXPECT_EQ(this->Seed(op, {3}, 3), std::nullopt) << op;
}

TEST(CorrectionSeed, BelowABoundStopsAtZeroExceptForUnsignedNumbers) {
    EXPECT_EQ((Seeded<int, double>(OpBelow, {0})), 0);
    EXPECT_EQ((Seeded<int, double>(OpBelow, {0}, 0)), 0);
    EXPECT_EQ((Seeded<long, double>(OpBelow, {-4})), 0);
    EXPECT_EQ((Seeded<int, double>(OpBelow, {-4}, -7)), -7);
    EXPECT_EQ((Seeded<unsigned long, double>(OpBelow, {0})), 4294967295.0);
}

TEST(CorrectionSeed, BelowAFractionIsZero) {
    EXPECT_EQ((Seeded<double, double>(OpBelow, {0.5})), 0.0);
    EXPECT_EQ((Seeded<double, double>(OpBelow, {0.5}, 0.75)), 0.0);
    EXPECT_EQ((Seeded<double, double>(OpBelow, {1.0})), 0.0);
    EXPECT_EQ((Seeded<double, double>(OpBelow, {2.5})), 1.5);
}

TEST(CorrectionSeed, WholeNumbersWrapAtTheirEnd) {
    EXPECT_EQ((Seeded<int, double>(OpAbove, {2147483647.0})), -2147483648.0);
    EXPECT_EQ((Seeded<long, double>(OpAbove, {2147483647.0})), -2147483648.0);
}

TEST(CorrectionSeed, TextsThatStillHoldStay) {
    using Text = std::vector<CString>;
    EXPECT_EQ((Seeded<CString*, CString>(OpOneOf, Text{"a", "b"}, CString("b"))), "b");
    EXPECT_EQ((Seeded<CString*, CString>(OpContains, Text{"x", "b"}, CString("abc"))), "abc");
    EXPECT_EQ((Seeded<CString*, CString>(OpBeginsWith, Text{"x", "ab"}, CString("abc"))), "abc");
    EXPECT_EQ((Seeded<CString*, CString>(OpEndsWith, Text{"x", "bc"}, CString("abc"))), "abc");
    EXPECT_EQ((Seeded<CString*, CString>(OpNotEqual, Text{"a"}, CString("b"))), "b");
}

TEST(CorrectionSeed, OtherTextsGiveWayToTheFirstValue) {
    using Text = std::vector<CString>;
    for (const unsigned op : {OpOneOf, OpContains, OpBeginsWith, OpEndsWith}) {
        EXPECT_EQ((Seeded<CString*, CString>(op, Text{"a", "b"}, CString("B"))), "a") << op;
        EXPECT_EQ((Seeded<CString*, CString>(op, Text{"a", "b"})), "a") << op;
    }
    EXPECT_EQ((Seeded<CString*, CString>(OpEqual, Text{"a"}, CString("b"))), "a");
    EXPECT_EQ((Seeded<CString*, CString>(OpEqual, Text{"a"})), "a");
}

TEST(CorrectionSeed, ATextThatMustDifferGetsA1Behind) {
    using Text = std::vector<CString>;
    EXPECT_EQ((Seeded<CString*, CString>(OpNotEqual, Text{"a"}, CString("a"))), "a1");
    EXPECT_EQ((Seeded<CString*, CString>(OpNotEqual, Text{"a"})), "a1");
}

TEST(CorrectionSeed, OtherOperatorsLeaveTextsAlone) {
    using Text = std::vector<CString>;
    for (const unsigned op :
         {OpBetween, OpNoneOf, OpBelow, OpAbove, OpAtLeast, OpAtMost, OpLeftOut, OpTextOnly})
        EXPECT_EQ((Seeded<CString*, CString>(op, Text{"a"}, CString("a"))), std::nullopt) << op;
    EXPECT_EQ((Seeded<CString*, CString>(OpNone, Text{"a"}, CString("a"))), std::nullopt);
    EXPECT_EQ((Seeded<CString*, CString>(OpEqual, Text{}, CString("a"))), std::nullopt);
}

TEST(CorrectionSeed, YesOrNoHasNoDerivation) {
    EXPECT_EQ((Seeded<bool, double>(OpEqual, {1}, 1)), std::nullopt);
}

TEST(CorrectionSeed, ACorrectionOfADeletedCheckIsNoEarlierValue) {
    CStandard standard;
    CParameter<int>* parameter = nullptr;
    auto held = CheckWith<int>(OpAtLeast, std::vector{3}, parameter);
    parameter->Correction = 8;
    parameter->CorrectionKind = CorrectionFixed;
    held->LifeStatus = LifeDeleted;
    unsigned sequence = 0;
    standard.InsertCheck(std::move(held), sequence);
    auto scratch = CheckWith<int>(OpAtLeast, std::vector{3}, parameter);
    SeedCorrectionValue(standard, *scratch, SeededId);
    EXPECT_EQ(parameter->Correction, 3);
}

TEST(CorrectionSeed, AParameterThatIsMissingIsLeftOut) {
    CCheck check(SeededType, 0, 0, 0, 1);
    SeedCorrectionValue(CStandard(), check, 77);
    EXPECT_EQ(check.Parameters.Count, 0);
}
