#include "support/StandardText.h"

#include <gtest/gtest.h>

namespace {

// One parameter as it is read from a check.
template <class T> struct Corrected {
    T correction{};
    int kind = 0;
    bool operator==(const Corrected&) const = default;
};

CheckList ReadCheck(CStandard& standard, int type, const CString& inside) {
    ReadText(CString("<Standard><Check Type='%1'>%2</Check></Standard>").arg(type).arg(inside), standard);
    return AllOf(standard);
}

CString Parameter(unsigned id, unsigned op, const CStringArray& values, const char* correction) {
    CString text = CString("<Parameter Type='%1'").arg(id);
    if (correction)
        text += CString(" CorrectionValue='%1'").arg(correction);
    text += CString("><Operator>%1</Operator>").arg(op);
    for (const CString& value : values)
        text += "<Value>" + value + "</Value>";
    return text + "</Parameter>";
}

// A list of a check that can be corrected (312), or of one that cannot (604).
Corrected<long> Long(unsigned op, const CStringArray& values, const char* correction, int type = 312) {
    const unsigned id = type == 312 ? 1742 : 1714;
    CStandard standard;
    const CCheck& check = *ReadCheck(standard, type, Parameter(id, op, values, correction)).at(0);
    const CParameter<long>& parameter = *check.GetLongParameter(id);
    return {parameter.Correction, parameter.CorrectionKind};
}

CString TextOfCorrection(const CParameter<CString*>& parameter) {
    return parameter.Correction ? *parameter.Correction : CString("null");
}

} // namespace

TEST(CorrectionRead, OneInTheFileIsFixed) {
    for (unsigned op : {1, 2, 3, 4, 5, 9, 14})
        EXPECT_EQ(Long(op, {"1", "2"}, "7"), (Corrected<long>{7, CorrectionFixed})) << op;
    EXPECT_EQ(Long(3, {"1"}, "0"), (Corrected<long>{0, CorrectionFixed}));
}

TEST(CorrectionRead, MissingOneFollowsFromTheOperator) {
    for (const char* missing : {static_cast<const char*>(nullptr), ""}) {
        for (unsigned op : {1, 2, 3, 7, 8})
            EXPECT_EQ(Long(op, {"4", "9"}, missing), (Corrected<long>{4, CorrectionFixed})) << op;
        EXPECT_EQ(Long(4, {"4", "5"}, missing), (Corrected<long>{6, CorrectionAbsent}));
        EXPECT_EQ(Long(5, {"4"}, missing), (Corrected<long>{3, CorrectionAbsent}));
        EXPECT_EQ(Long(6, {"4"}, missing), (Corrected<long>{5, CorrectionAbsent}));
        for (unsigned op : {9, 10, 11, 14})
            EXPECT_EQ(Long(op, {"4"}, missing), (Corrected<long>{4, CorrectionAbsent})) << op;
        EXPECT_EQ(Long(2, {}, missing), (Corrected<long>{0, CorrectionFixed})) << "of an empty list";
    }
}

TEST(CorrectionRead, KindStaysWhereTheTypeCannotBeCorrected) {
    EXPECT_EQ(Long(3, {"4"}, "7", 604), (Corrected<long>{7, CorrectionAbsent}));
    EXPECT_EQ(Long(3, {"4"}, nullptr, 604), (Corrected<long>{4, CorrectionAbsent}));
}

TEST(CorrectionRead, OutOfForceHasNoKind) {
    EXPECT_EQ(Long(0, {"4"}, "7"), (Corrected<long>{7, CorrectionAbsent}));
    EXPECT_EQ(Long(0, {"4"}, nullptr), (Corrected<long>{0, CorrectionAbsent}));
}

TEST(CorrectionRead, EmptyChoiceOfAPropertyTypeIsNone) {
    const auto property = [](const char* correction) {
        CStandard standard;
        const CCheck& check = *ReadCheck(standard, 104, Parameter(1725, 2, {"3"}, correction)).at(0);
        const CParameter<long>& parameter = *check.GetLongParameter(1725);
        return Corrected<long>{parameter.Correction, parameter.CorrectionKind};
    };
    EXPECT_EQ(property("0"), (Corrected<long>{0, CorrectionAbsent}));
    EXPECT_EQ(property("2"), (Corrected<long>{2, CorrectionFixed}));
    EXPECT_EQ(property(nullptr), (Corrected<long>{3, CorrectionFixed}));
}

TEST(CorrectionRead, OneOfAnEarlierElementStaysWhereTheMatchHasNone) {
    CStandard standard;
    const CCheck& check =
        *ReadCheck(standard, 604,
                   Parameter(1, 3, {}, "55") + Parameter(1714, 3, {"4"}, nullptr) + Parameter(2, 3, {}, "66"))
             .at(0);
    EXPECT_EQ(check.GetLongParameter(1714)->Correction, 55) << "and no default is made";
}

TEST(CorrectionRead, OneOfAnEarlierElementStaysEvenWithoutAMatch) {
    CStandard standard;
    const CCheck& check = *ReadCheck(standard, 604, Parameter(1, 3, {}, "55")).at(0);
    EXPECT_EQ(check.GetLongParameter(1714)->Correction, 55);
    EXPECT_EQ(check.GetLongParameter(1714)->Operator, OpNone);
}

TEST(CorrectionRead, TextsAndDoublesInTheirOwnForm) {
    CStandard standard;
    const CCheck& check =
        *ReadCheck(standard, 109, Parameter(1700, 9, {"Ari"}, "Arial") + Parameter(1704, 3, {"2.5"}, "3.5mm"))
             .at(0);
    EXPECT_EQ(TextOfCorrection(*check.GetStringParameter(1700)), "Arial");
    EXPECT_EQ(check.GetDoubleParameter(1704)->Correction, 3.5);
    CStandard second;
    const CCheck& derived =
        *ReadCheck(second, 109, Parameter(1700, 2, {"Arial"}, "") + Parameter(1704, 5, {"2.5"}, "")).at(0);
    EXPECT_EQ(TextOfCorrection(*derived.GetStringParameter(1700)), "Arial");
    EXPECT_EQ(derived.GetDoubleParameter(1704)->Correction, 1.0);
    CStandard third;
    const CCheck& empty = *ReadCheck(third, 109, Parameter(1700, 2, {}, "")).at(0);
    EXPECT_EQ(TextOfCorrection(*empty.GetStringParameter(1700)), "null");
}
