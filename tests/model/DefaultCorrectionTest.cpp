#include "model/DefaultCorrection.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

template <class T> CParameter<T> Parameter(unsigned op, const std::vector<T>& values, T correction = T()) {
    CParameter<T> parameter;
    parameter.Operator = op;
    parameter.Correction = correction;
    for (const T& value : values)
        parameter.Values.Add(value);
    return parameter;
}

template <class T> T DefaultOf(unsigned op, const std::vector<T>& values, T before = T()) {
    auto parameter = Parameter(op, values, before);
    SetDefaultCorrection(parameter);
    EXPECT_EQ(parameter.CorrectionKind, CorrectionAbsent);
    return parameter.Correction;
}

CString TextDefaultOf(unsigned op, const CStringArray& values) {
    CParameter<CString*> parameter;
    parameter.Operator = op;
    parameter.SetCorrection(new CString("before"));
    for (const CString& value : values)
        parameter.Values.Add(new CString(value));
    SetDefaultCorrection(parameter);
    return ValueForm<CString*>::Format(parameter.Correction);
}

std::vector<long> NumbersFrom(long from, long to) {
    std::vector<long> numbers;
    for (long n = from; n <= to; ++n)
        numbers.push_back(n);
    return numbers;
}

} // namespace

TEST(DefaultCorrection, MostComparisonsTakeTheFirstValue) {
    for (unsigned op : {1, 2, 3, 7, 8, 9, 10, 11, 14}) {
        EXPECT_EQ(DefaultOf<long>(op, {5, 9}), 5) << op;
        EXPECT_EQ(TextDefaultOf(op, {"Arial", "Times"}), "Arial") << op;
    }
}

TEST(DefaultCorrection, BelowAndAboveStepByOneFromTheWholeNumber) {
    EXPECT_EQ(DefaultOf<long>(OpBelow, {5}), 4);
    EXPECT_EQ(DefaultOf<long>(OpAbove, {5}), 6);
    EXPECT_EQ(DefaultOf<double>(OpBelow, {5.75}), 4);
    EXPECT_EQ(DefaultOf<double>(OpAbove, {-5.75}), -4);
    EXPECT_EQ(TextDefaultOf(OpAbove, {"12 mm"}), "13");
    EXPECT_EQ(TextDefaultOf(OpBelow, {"none"}), "-1");
}

TEST(DefaultCorrection, NoneOfTakesTheNextNumberOutsideTheList) {
    EXPECT_EQ(DefaultOf<long>(OpNoneOf, {1, 2, 3}), 4);
    EXPECT_EQ(DefaultOf<long>(OpNoneOf, {7}), 8);
    EXPECT_EQ(DefaultOf<long>(OpNoneOf, {1, 3, 2, 5}), 4);
    EXPECT_EQ(DefaultOf<long>(OpNoneOf, {7, 7, 6}), 8) << "the first value itself is below the search";
    EXPECT_EQ(DefaultOf<double>(OpNoneOf, {1.5, 2.25}), 3);
    EXPECT_EQ(DefaultOf<unsigned long>(OpNoneOf, {0, 1}), 2ul);
    EXPECT_EQ(TextDefaultOf(OpNoneOf, {"1", "2"}), "3");
}

TEST(DefaultCorrection, NoneOfGivesUpAfterAHundredNumbers) {
    EXPECT_EQ(DefaultOf<long>(OpNoneOf, NumbersFrom(1, 101), 55), 55);
    EXPECT_EQ(DefaultOf<long>(OpNoneOf, NumbersFrom(1, 100), 55), 101);
}

TEST(DefaultCorrection, OutOfForceAndTextOnlyHaveNone) {
    for (unsigned op : {0, 12, 13, 15, 99}) {
        EXPECT_EQ(DefaultOf<long>(op, {5}, 55), 55) << op;
        EXPECT_EQ(TextDefaultOf(op, {"Arial"}), "before") << op;
    }
}

TEST(DefaultCorrection, EmptyListLeavesTheCorrection) {
    for (unsigned op = 0; op <= 14; ++op)
        EXPECT_EQ(DefaultOf<long>(op, {}, 55), 55) << op;
}

TEST(DefaultCorrection, ValuePassesThroughItsText) {
    EXPECT_EQ(DefaultOf<double>(OpEqual, {0.12345678904}), 0.1234567890);
    EXPECT_EQ(DefaultOf<bool>(OpBelow, {true}, true), false) << "one less is 0";
    EXPECT_EQ(DefaultOf<bool>(OpAbove, {false}), true);
    EXPECT_EQ(DefaultOf<int>(OpEqual, {-3}), -3);
}

TEST(DefaultCorrection, DateBecomesNull) {
    CParameter<COleDateTime*> parameter;
    parameter.Values.Add(new COleDateTime(QDate(2026, 1, 2), QTime()));
    for (unsigned op : {OpEqual, OpNoneOf, OpBelow}) {
        parameter.Operator = op;
        parameter.SetCorrection(new COleDateTime());
        SetDefaultCorrection(parameter);
        EXPECT_EQ(parameter.Correction, nullptr);
    }
}
