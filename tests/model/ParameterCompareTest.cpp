#include "model/ParameterCompare.h"

#include "model/ParameterValue.h"
#include "support/Messages.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

std::unique_ptr<CParameterEntry> Entry(int dataType) {
    return CreateParameter(dataType, 1700, OpEqual, 0, false);
}

template <class T> CParameter<T>& As(CParameterEntry& entry) {
    return static_cast<CParameter<T>&>(*entry.Parameter);
}

// Two parameters that count as the same: the correction of one equals the kind of the other.
template <class T> struct Pair {
    explicit Pair(int dataType) : from(Entry(dataType)), to(Entry(dataType)) {
        for (auto* parameter : {&From(), &To()}) {
            parameter->CorrectionKind = CorrectionFixed;
            parameter->Correction = static_cast<T>(CorrectionFixed);
            parameter->Values.Add(T(1));
            parameter->Values.Add(T(0));
        }
    }
    CParameter<T>& From() { return As<T>(*from); }
    CParameter<T>& To() { return As<T>(*to); }
    bool Changes() { return ApplyParameter(*from, *to); }

    std::unique_ptr<CParameterEntry> from;
    std::unique_ptr<CParameterEntry> to;
};

template <class T> void ExpectEachDifferenceCounts(int dataType) {
    EXPECT_FALSE(Pair<T>(dataType).Changes());
    const std::function<void(CParameter<T>&)> edits[] = {
        [](auto& p) { p.Operator = OpOneOf; },
        [](auto& p) { p.Values.Add(T(1)); },
        [](auto& p) { p.Values[1] = T(1); },
        [](auto& p) { p.Correction = T(0); },
        [](auto& p) { p.CorrectionKind = CorrectionAbsent; },
    };
    for (const auto& edit : edits) {
        Pair<T> pair(dataType);
        edit(pair.From());
        EXPECT_TRUE(pair.Changes());
        EXPECT_EQ(pair.To().Operator, pair.From().Operator);
        EXPECT_EQ(pair.To().Values.Count, pair.From().Values.Count);
        EXPECT_EQ(pair.To().Values[1], pair.From().Values[1]);
        EXPECT_EQ(pair.To().Correction, pair.From().Correction);
        EXPECT_EQ(pair.To().CorrectionKind, pair.From().CorrectionKind);
    }
}

struct TextPair {
    TextPair() {
        for (auto* parameter : {&From(), &To()}) {
            parameter->Values.Add(new CString("Arial"));
            parameter->SetCorrection(new CString("Arial"));
        }
    }
    CParameter<CString*>& From() { return As<CString*>(*from); }
    CParameter<CString*>& To() { return As<CString*>(*to); }
    bool Changes() { return ApplyParameter(*from, *to); }

    std::unique_ptr<CParameterEntry> from = Entry(DataText);
    std::unique_ptr<CParameterEntry> to = Entry(DataText);
};

} // namespace

TEST(ApplyParameter, EachDifferenceOfNumbersCounts) {
    ExpectEachDifferenceCounts<int>(DataInt);
    ExpectEachDifferenceCounts<long>(DataLong);
    ExpectEachDifferenceCounts<bool>(DataBool);
    ExpectEachDifferenceCounts<double>(DataDouble);
    ExpectEachDifferenceCounts<unsigned long>(DataUnsigned);
}

TEST(ApplyParameter, CorrectionIsComparedWithTheKindOfTheOther) {
    Pair<long> identical(DataLong);
    for (auto* parameter : {&identical.From(), &identical.To()}) {
        parameter->Correction = 0;
        parameter->CorrectionKind = CorrectionAbsent;
    }
    EXPECT_TRUE(identical.Changes());
    EXPECT_TRUE(identical.Changes());
    identical.From().Correction = 2;
    EXPECT_FALSE(identical.Changes());
    EXPECT_EQ(identical.To().Correction, 2);
}

TEST(ApplyParameter, TruthOfABoolIsItsCorrection) {
    Pair<bool> pair(DataBool);
    pair.From().CorrectionKind = pair.To().CorrectionKind = CorrectionAbsent;
    EXPECT_TRUE(pair.Changes()) << "true is 1, and the kind is 2";
}

TEST(ApplyParameter, DoubleCorrectionIsNotTruncated) {
    Pair<double> pair(DataDouble);
    pair.From().Correction = 1.5;
    EXPECT_TRUE(pair.Changes());
}

TEST(ApplyParameter, TextsAreComparedExactly) {
    EXPECT_FALSE(TextPair().Changes());
    TextPair value;
    *value.From().Values[0] = "arial";
    EXPECT_TRUE(value.Changes());
    EXPECT_EQ(*value.To().Values[0], "arial");
    TextPair correction;
    *correction.From().Correction = "ARIAL";
    EXPECT_TRUE(correction.Changes());
    EXPECT_EQ(*correction.To().Correction, "ARIAL");
    TextPair op;
    op.From().Operator = OpContains;
    EXPECT_TRUE(op.Changes());
    TextPair kind;
    kind.From().CorrectionKind = CorrectionFixed;
    EXPECT_TRUE(kind.Changes());
    TextPair count;
    count.From().Values.Add(nullptr);
    EXPECT_TRUE(count.Changes());
}

TEST(ApplyParameter, MissingTextCorrectionCountsAsAChange) {
    TextPair here;
    here.From().SetCorrection(nullptr);
    EXPECT_TRUE(here.Changes());
    EXPECT_EQ(here.To().Correction, nullptr);
    EXPECT_TRUE(here.Changes());
    TextPair there;
    there.To().SetCorrection(nullptr);
    EXPECT_TRUE(there.Changes());
    EXPECT_EQ(*there.To().Correction, "Arial");
}

TEST(ApplyParameter, LabelAndRemarkAreCopiedButNotCompared) {
    Pair<long> pair(DataLong);
    pair.From().Name = "other language";
    pair.From().Remarks = "note";
    EXPECT_FALSE(pair.Changes());
    EXPECT_EQ(pair.To().Name, "other language");
    EXPECT_EQ(pair.To().Remarks, "note");
}

TEST(ApplyParameter, DatesAreNeitherComparedNorCopied) {
    const auto from = Entry(DataDate);
    const auto to = Entry(DataDate);
    As<COleDateTime*>(*from).Values.Add(new COleDateTime(QDate(2026, 1, 2), QTime()));
    from->Parameter->Operator = OpAbove;
    const Messages messages;
    EXPECT_FALSE(ApplyParameter(*from, *to));
    EXPECT_EQ(to->Parameter->Operator, OpEqual);
    EXPECT_EQ(As<COleDateTime*>(*to).Values.Count, 0);
    EXPECT_TRUE(messages.texts.isEmpty());
}

TEST(ApplyParameter, IllegalDataTypeShowsAMessageAndChangesNothing) {
    const Messages messages;
    CParameterEntry from;
    CParameterEntry to;
    from.DataType = to.DataType = 9;
    EXPECT_FALSE(ApplyParameter(from, to));
    EXPECT_EQ(messages.texts, CStringArray("Illegal Param DataType Defined"));
}

TEST(AssignParameter, CopiesDatesToo) {
    const auto from = Entry(DataDate);
    const auto to = Entry(DataDate);
    As<COleDateTime*>(*from).Values.Add(new COleDateTime(QDate(2026, 1, 2), QTime()));
    AssignParameter(*from, *to);
    ASSERT_EQ(As<COleDateTime*>(*to).Values.Count, 1);
    EXPECT_EQ(As<COleDateTime*>(*to).Values[0]->date(), QDate(2026, 1, 2));
}

TEST(AssignParameter, LeavesAParameterOfAnotherDataTypeAlone) {
    const auto from = Entry(DataLong);
    const auto to = Entry(DataText);
    from->Parameter->Operator = OpAbove;
    AssignParameter(*from, *to);
    EXPECT_EQ(to->Parameter->Operator, OpEqual);
}
