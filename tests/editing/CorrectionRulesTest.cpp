// Corrections between a check and the control that shows them.
#include "editing/CorrectionRules.h"
#include "engines/ParameterKinds.h"
#include "model/ParameterWording.h"
#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>

namespace {

constexpr unsigned Id = 5;

// A check of one parameter.
template <class T> class One {
public:
    One(int dataType, unsigned op, unsigned parameterType = KindPlain) : check(9001, 0, 0, 0, 1) {
        check.Parameters.Add(CreateParameter(dataType, Id, op, parameterType, false).release());
    }
    CParameter<T>& Parameter() { return static_cast<CParameter<T>&>(*check.FindParameter(Id)->Parameter); }
    One& With(std::initializer_list<T> values) {
        for (const T& value : values)
            Parameter().Values.Add(value);
        return *this;
    }
    One& Correcting(T value) {
        Parameter().SetCorrection(value);
        Parameter().CorrectionKind = CorrectionFixed;
        return *this;
    }
    CorrectionChoices Load(int style = NumberEntry) {
        CorrectionChoices record;
        record.EntryStyle = style;
        record.Strings = {"left over"};
        LoadCorrectionControl(check, Id, record);
        return record;
    }
    T Store(const CString& text, int hasValue = 1, const CStringArray& strings = {}) {
        CorrectionChoices record;
        record.Text = text;
        record.HasValue = hasValue;
        record.Strings = strings;
        StoreCorrectionValue(check, Id, record);
        learned = record.Operator;
        return Parameter().Correction;
    }
    CCheck check;
    unsigned learned = 99; // the operator that the record took over
};

CString* New(const char* text) {
    return new CString(text);
}

} // namespace

TEST(CorrectionLoad, NumbersShowTheirValues) {
    One<int> check(DataInt, OpNoneOf);
    const CorrectionChoices record = check.With({4, 9}).Correcting(9).Load();
    EXPECT_EQ(record.Strings, (CStringArray{"4", "9"}));
    EXPECT_EQ(record.Text, "9");
    EXPECT_EQ(record.HasValue, 1);
    EXPECT_EQ(record.SelectedIndex, 1);
    EXPECT_EQ(record.Operator, OpNoneOf);
    EXPECT_EQ(record.EntryStyle, NumberEntry);
}

TEST(CorrectionLoad, WithoutACorrectionOnlyTheChoicesStand) {
    const CorrectionChoices record = One<long>(DataLong, OpOneOf).With({4, 9}).Load(TextEntry);
    EXPECT_EQ(record.Strings, (CStringArray{"4", "9"}));
    EXPECT_EQ(record.HasValue, 0);
    EXPECT_EQ(record.SelectedIndex, -1);
    EXPECT_TRUE(record.Text.isEmpty());
    EXPECT_EQ(record.EntryStyle, TextEntry);
}

TEST(CorrectionLoad, ACorrectionThatIsNoChoiceStandsAlone) {
    const CorrectionChoices record = One<int>(DataInt, OpAbove).With({4}).Correcting(6).Load();
    EXPECT_EQ(record.Text, "6");
    EXPECT_EQ(record.HasValue, 1);
    EXPECT_EQ(record.SelectedIndex, -1);
}

TEST(CorrectionLoad, ValuesOfAListShowTheirTexts) {
    One<int> flag(DataInt, OpEqual, KindBoolean);
    const CorrectionChoices yes = flag.With({1}).Correcting(1).Load();
    EXPECT_EQ(yes.Strings, CStringArray{LoadString(1660)});
    EXPECT_EQ(yes.Text, "1"); // whole numbers keep the number, longs the text
    One<long> standard(DataLong, OpOneOf, KindDraftingStandard);
    const CorrectionChoices iso = standard.With({2, 8}).Correcting(8).Load(TextEntry);
    EXPECT_EQ(iso.Strings, (CStringArray{LoadString(1825), LoadString(2422)}));
    EXPECT_EQ(iso.Text, LoadString(2422));
    EXPECT_EQ(iso.SelectedIndex, 1);
}

TEST(CorrectionLoad, PicturesShowTheirNumbers) {
    for (const unsigned kind : {KindArrowStyle, KindLineThickness, KindLineStyle}) {
        const CorrectionChoices record = One<int>(DataInt, OpOneOf, kind).With({1, 2}).Correcting(2).Load();
        ASSERT_EQ(record.Numbers.size(), 2) << kind;
        EXPECT_TRUE(record.Strings.isEmpty()) << kind;
        EXPECT_EQ(record.Text, QString::number(record.Numbers[1])) << kind;
        EXPECT_EQ(record.SelectedIndex, 1) << kind;
        EXPECT_EQ(record.EntryStyle, ImageEntry) << kind;
    }
    const CorrectionChoices none =
        One<long>(DataLong, OpNoneOf, KindSharpDisplay).With({1}).Correcting(1).Load();
    EXPECT_EQ(none.Numbers.size(), 1);
    EXPECT_EQ(none.HasValue, 0); // only a list or an equality shows a picture
}

TEST(CorrectionLoad, KindsThatAreShownAsPictures) {
    for (const unsigned kind : {3, 20, 21, 25, 26, 27, 28, 29, 32})
        EXPECT_TRUE(IsShownAsPictures(DataLong, kind)) << kind;
    for (unsigned kind = 0; kind < ParameterKindCount; ++kind)
        EXPECT_EQ(IsShownAsPictures(DataInt, kind), kind == 3 || kind == 20 || kind == 21) << kind;
    EXPECT_FALSE(IsShownAsPictures(DataUnsigned, KindColor));
    EXPECT_FALSE(IsShownAsPictures(DataDouble, KindArrowStyle));
}

TEST(CorrectionLoad, DecimalsAreShort) {
    const CorrectionChoices record = One<double>(DataDouble, OpBetween).With({2.5, 3}).Correcting(2.5).Load();
    EXPECT_EQ(record.Strings, (CStringArray{"2.5", "3"}));
    EXPECT_EQ(record.Text, "2.5");
    EXPECT_EQ(record.SelectedIndex, 0);
}

TEST(CorrectionLoad, TextsAreComparedWithCase) {
    One<CString*> check(DataText, OpContains);
    const CorrectionChoices record = check.With({New("ab"), New("AB")}).Correcting(New("AB")).Load(TextEntry);
    EXPECT_EQ(record.Strings, (CStringArray{"ab", "AB"}));
    EXPECT_EQ(record.SelectedIndex, 1);
}

TEST(CorrectionLoad, ColoursAreSignedNumbers) {
    One<unsigned long> check(DataUnsigned, OpOneOf, KindColor);
    const CorrectionChoices record = check.With({255, 0xFFFFFFFFul}).Correcting(0xFFFFFFFFul).Load();
    EXPECT_EQ(record.Strings, (CStringArray{"255", "-1"}));
    EXPECT_EQ(record.Text, "-1");
    EXPECT_EQ(record.SelectedIndex, 1);
    EXPECT_EQ(One<unsigned long>(DataUnsigned, OpAbove).With({5}).Correcting(5).Load().HasValue, 0);
}

TEST(CorrectionLoad, YesOrNoAlwaysHasAValue) {
    const CorrectionChoices record = One<bool>(DataBool, OpNone, KindBoolean).With({true}).Load();
    EXPECT_EQ(record.Strings, CStringArray{LoadString(1660)});
    EXPECT_EQ(record.Text, LoadString(1660));
    EXPECT_EQ(record.HasValue, 1);
}

TEST(CorrectionLoad, NothingInForceIsEmpty) {
    for (const CorrectionChoices& record :
         {One<int>(DataInt, OpNone).With({4}).Correcting(4).Load(), One<int>(DataInt, OpEqual).Load(),
          One<bool>(DataBool, OpEqual).Load(),
          One<COleDateTime*>(DataDate, OpEqual).With({nullptr}).Load()}) {
        EXPECT_TRUE(record.Strings.isEmpty() && record.Numbers.isEmpty() && record.Text.isEmpty());
        EXPECT_EQ(record.HasValue, 0);
        EXPECT_EQ(record.SelectedIndex, -1);
        EXPECT_EQ(record.Operator, OpNone);
    }
}

TEST(CorrectionStore, NumbersAreReadFromTheText) {
    EXPECT_EQ(One<int>(DataInt, OpAbove).With({4}).Store(" 12x"), 12);
    EXPECT_EQ(One<long>(DataLong, OpAbove).With({4}).Store("-3"), -3);
    EXPECT_EQ(One<double>(DataDouble, OpAbove).With({4}).Store("2.25"), 2.25);
    EXPECT_EQ(One<unsigned long>(DataUnsigned, OpEqual).With({4}).Store("7"), 7ul);
}

TEST(CorrectionStore, AValueThatIsNoneIsStoredAsAbsent) {
    One<int> check(DataInt, OpAbove);
    check.With({4}).Correcting(9).Store("5", 0);
    EXPECT_EQ(check.Parameter().CorrectionKind, CorrectionAbsent);
    check.Store("5", 1);
    EXPECT_EQ(check.Parameter().CorrectionKind, CorrectionFixed);
}

TEST(CorrectionStore, NothingIsStoredForWhatIsNotInForceExceptTexts) {
    One<int> number(DataInt, OpNone);
    EXPECT_EQ(number.Correcting(9).Store("5", 0), 9);
    EXPECT_EQ(number.Parameter().CorrectionKind, CorrectionFixed);
    EXPECT_EQ(number.learned, OpNone);
    One<CString*> text(DataText, OpNone);
    EXPECT_EQ(*text.Correcting(New("old")).Store("new", 0), "new");
    EXPECT_EQ(text.Parameter().CorrectionKind, CorrectionAbsent);
}

TEST(CorrectionStore, RecordsLearnTheOperatorOfNumbers) {
    One<int> number(DataInt, OpBelow);
    number.With({4}).Store("3");
    EXPECT_EQ(number.learned, OpBelow);
    One<CString*> text(DataText, OpContains);
    text.With({New("a")}).Store("a");
    EXPECT_EQ(text.learned, OpNone);
}

TEST(CorrectionStore, AChoiceThatIsNoNumberGivesItsValue) {
    const CStringArray yesNo = {LoadString(1660), LoadString(1661)};
    One<int> check(DataInt, OpOneOf, KindBoolean);
    EXPECT_EQ(check.With({1, 0}).Store(yesNo[0], 1, yesNo), 1);
    EXPECT_EQ(check.Store(yesNo[1], 1, yesNo), 0);
}

TEST(CorrectionStore, TextsOfAListGiveTheirCode) {
    One<long> unit(DataLong, OpOneOf, KindLengthUnit);
    EXPECT_EQ(unit.With({3, 0}).Store(LoadString(1624)), 0);
    EXPECT_EQ(unit.Store("no unit"), -1);
    One<long> state(DataLong, OpOneOf, KindSketchState); // shown, but not to be found by its text
    EXPECT_EQ(state.With({7}).Store("shown", 1, {"shown"}), 7);
}

TEST(CorrectionStore, AnUnknownDraftingStandardIsTheCustomOne) {
    One<long> standard(DataLong, OpOneOf, KindDraftingStandard);
    standard.With({2, 8});
    EXPECT_EQ(standard.Store(LoadString(1825)), 2);
    EXPECT_EQ(standard.Store("Werksnorm"), 8);
}

TEST(CorrectionStore, PicturesGiveTheirCode) {
    for (const unsigned kind : {3, 20, 21, 25, 26, 27, 28, 29, 32}) {
        One<long> check(DataLong, OpOneOf, kind);
        const CorrectionChoices record = check.With({1, 2}).Correcting(2).Load();
        ASSERT_EQ(record.HasValue, 1) << kind;
        check.Parameter().Correction = 0;
        EXPECT_EQ(check.Store(record.Text), 2) << kind;
    }
}

TEST(CorrectionStore, YesOrNoFollowsTheText) {
    One<bool> check(DataBool, OpEqual, KindLengthUnit);
    EXPECT_TRUE(check.With({true}).Store(LoadString(1625)));
    EXPECT_FALSE(check.Store(LoadString(1624))); // the text of the code 0
}

TEST(CorrectionStore, AParameterThatIsMissingIsLeftOut) {
    CCheck check(9001, 0, 0, 0, 1);
    CorrectionChoices record;
    record.Text = "5";
    StoreCorrectionValue(check, 77, record);
    LoadCorrectionControl(check, 77, record);
    EXPECT_TRUE(record.Text.isEmpty());
}
