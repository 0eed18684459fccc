#include "editing/CorrectionChoices.h"

#include "model/Parameter.h"

#include <gtest/gtest.h>

namespace {

CorrectionChoices Record(unsigned comparison, const CStringArray& strings, const CString& text = {},
                         int style = NumberEntry) {
    CorrectionChoices record;
    record.Operator = comparison;
    record.Strings = strings;
    record.Text = text;
    record.HasValue = text.isEmpty() ? 0 : 1;
    record.EntryStyle = style;
    return record;
}

// The text that stands when new choices come under the operator in force.
CString After(const CorrectionChoices& before, const CorrectionChoices& record) {
    CorrectionChoices choices = before;
    choices.SetChoices(record);
    EXPECT_TRUE(choices.Strings == record.Strings);
    return choices.Text;
}

CString Default(unsigned comparison, const CStringArray& strings, int style = NumberEntry) {
    CorrectionChoices choices = Record(comparison, strings, {}, style);
    const CString made = choices.MakeDisplayText();
    EXPECT_EQ(choices.Text, made);
    EXPECT_EQ(choices.HasValue, made.isEmpty() ? 0 : 1);
    return made;
}

struct Checked {
    bool holds;
    CString text;
    bool operator==(const Checked&) const = default;
};

void PrintTo(const Checked& checked, std::ostream* out) {
    *out << checked.holds << " \"" << checked.text.toStdString() << '"';
}

Checked Check(const CorrectionChoices& before, const CString& entered) {
    CorrectionChoices choices = before;
    const bool holds = choices.CheckCorrectionText(entered);
    return {holds, choices.Text};
}

CStringArray Counted(int from, int to) {
    CStringArray texts;
    for (int i = from; i <= to; ++i)
        texts.append(QString::number(i));
    return texts;
}

} // namespace

TEST(CorrectionChoices, StartsWithoutOperatorAndChoice) {
    const CorrectionChoices choices;
    EXPECT_EQ(choices.Operator, 0u);
    EXPECT_EQ(choices.SelectedIndex, -1);
    EXPECT_EQ(choices.HasValue, 0);
}

TEST(SetChoices, AnotherOperatorReplacesTheWholeRecord) {
    CorrectionChoices choices = Record(OpAbove, {"1"}, "7");
    CorrectionChoices record = Record(OpBelow, {"9"}, "8");
    record.SelectedIndex = 3;
    choices.SetChoices(record);
    EXPECT_EQ(choices.Operator, OpBelow);
    EXPECT_EQ(choices.Text, "8");
    EXPECT_EQ(choices.SelectedIndex, 3);
    choices.SetChoices(Record(OpNone, {}));
    EXPECT_EQ(choices.Text, "");
    EXPECT_EQ(choices.HasValue, 0);
}

TEST(SetChoices, OneOfKeepsATextThatIsFoundWithItsIndex) {
    CorrectionChoices choices = Record(OpOneOf, {"ISO", "DIN"}, "din", TextEntry);
    CorrectionChoices record = Record(OpOneOf, {"JIS", "ISO", "DIN"}, "JIS", TextEntry);
    record.SelectedIndex = 0;
    choices.SetChoices(record);
    EXPECT_EQ(choices.Text, "din");
    EXPECT_EQ(choices.SelectedIndex, 2);
    record.Strings = {"JIS", "ISO"};
    choices.SetChoices(record);
    EXPECT_EQ(choices.Text, "JIS");
    EXPECT_EQ(choices.SelectedIndex, 0);
    EXPECT_EQ(choices.HasValue, 1);
}

TEST(SetChoices, OneOfFindsTheNumberOfAPicture) {
    CorrectionChoices choices;
    choices.Operator = OpOneOf;
    choices.EntryStyle = ImageEntry;
    choices.Numbers = {1336, 1337};
    choices.Select(1);
    EXPECT_EQ(choices.Text, "1337");
    CorrectionChoices record = choices;
    record.Numbers = {1335, 1336, 1337};
    record.Text = "1335";
    record.SelectedIndex = 0;
    choices.SetChoices(record);
    EXPECT_EQ(choices.Text, "1337");
    EXPECT_EQ(choices.SelectedIndex, 2);
    record.Numbers = {1335};
    choices.SetChoices(record);
    EXPECT_EQ(choices.Text, "1335");
}

TEST(SetChoices, EqualTakesTheRecord) {
    EXPECT_EQ(After(Record(OpEqual, {"1"}, "1"), Record(OpEqual, {"2"}, "2")), "2");
}

TEST(SetChoices, NoneOfKeepsATextThatIsNotInTheList) {
    EXPECT_EQ(After(Record(OpNoneOf, {"1"}, "5"), Record(OpNoneOf, {"2", "3"}, "4")), "5");
}

TEST(SetChoices, NoneOfCountsUpFromTheFirstEntry) {
    EXPECT_EQ(After(Record(OpNoneOf, {"1"}, "2"), Record(OpNoneOf, {"2", "3", "4"}, "9")), "5");
    EXPECT_EQ(After(Record(OpNoneOf, {"1"}, "2.0"), Record(OpNoneOf, {"2.5", "3.0", "2"}, "9")), "4");
    EXPECT_EQ(After(Record(OpNoneOf, {"x"}, "A", TextEntry), Record(OpNoneOf, {"A", "A1"}, "9", TextEntry)),
              "A2");
}

TEST(SetChoices, NoneOfLeavesTheTextWhereAHundredNumbersAreTaken) {
    EXPECT_EQ(After(Record(OpNoneOf, {"9"}, "7"), Record(OpNoneOf, Counted(1, 101), "5")), "7");
    EXPECT_EQ(After(Record(OpNoneOf, {"9"}, "7"), Record(OpNoneOf, Counted(1, 100), "5")), "101");
}

TEST(SetChoices, ComparisonsReadWholeNumbers) {
    const auto after = [](unsigned comparison, const CString& own, const CString& bound) {
        return After(Record(comparison, {"0"}, own), Record(comparison, {bound}, "new"));
    };
    EXPECT_EQ(after(OpBelow, "4", "5"), "4");
    EXPECT_EQ(after(OpBelow, "5", "5"), "new");
    EXPECT_EQ(after(OpBelow, "2.2", "2.5"), "new");
    EXPECT_EQ(after(OpAbove, "6", "5"), "6");
    EXPECT_EQ(after(OpAbove, "5", "5"), "new");
    EXPECT_EQ(after(OpAtLeast, "5", "5"), "5");
    EXPECT_EQ(after(OpAtLeast, "4", "5"), "new");
    EXPECT_EQ(after(OpAtLeast, "2.2", "2.5"), "2.2");
    EXPECT_EQ(after(OpAtMost, "5", "5"), "5");
    EXPECT_EQ(after(OpAtMost, "6", "5"), "new");
}

TEST(SetChoices, NotEqualStepsAsideFromTheBound) {
    EXPECT_EQ(After(Record(OpNotEqual, {"1"}, "5"), Record(OpNotEqual, {"5"}, "9")), "6");
    EXPECT_EQ(After(Record(OpNotEqual, {"1"}, "4"), Record(OpNotEqual, {"5"}, "9")), "4");
    const auto after = [](const CString& own) {
        return After(Record(OpNotEqual, {"x"}, own, TextEntry), Record(OpNotEqual, {"A"}, "A1", TextEntry));
    };
    EXPECT_EQ(after(""), "A1");
    EXPECT_EQ(after("A"), "A1");
    EXPECT_EQ(after("B"), "B");
}

TEST(SetChoices, BetweenKeepsATextWithinTwoBoundsInEitherOrder) {
    const auto after = [](const CString& own, const CStringArray& bounds) {
        return After(Record(OpBetween, {"0", "9"}, own), Record(OpBetween, bounds, "new"));
    };
    EXPECT_EQ(after("3", {"3", "5"}), "3");
    EXPECT_EQ(after("5", {"5", "3"}), "5");
    EXPECT_EQ(after("2", {"3", "5"}), "new");
    EXPECT_EQ(after("2.2", {"2.5", "3.5"}), "new");
    EXPECT_EQ(after("", {"0", "5"}), "new");
    EXPECT_EQ(after("3", {"3"}), "new");
}

TEST(SetChoices, OtherOperatorsChangeNothing) {
    CorrectionChoices choices = Record(OpContains, {"a"}, "xay", TextEntry);
    choices.SetChoices(Record(OpContains, {"b"}, "b", TextEntry));
    EXPECT_EQ(choices.Text, "xay");
    EXPECT_EQ(choices.Strings, CStringArray{"a"});
}

TEST(CorrectionDefault, NumbersAreMadeOfTheFirstEntry) {
    EXPECT_EQ(Default(OpBetween, {"2.5", "9"}), "2");
    EXPECT_EQ(Default(OpEqual, {"4"}), "4");
    EXPECT_EQ(Default(OpAtLeast, {"4"}), "4");
    EXPECT_EQ(Default(OpAtMost, {"4"}), "4");
    EXPECT_EQ(Default(OpBelow, {"4"}), "3");
    EXPECT_EQ(Default(OpAbove, {"4"}), "5");
    EXPECT_EQ(Default(OpNotEqual, {"4"}), "5");
    EXPECT_EQ(Default(OpNoneOf, {"4", "5", "7"}), "6");
    EXPECT_EQ(Default(OpNoneOf, Counted(1, 101)), "");
    EXPECT_EQ(Default(OpOneOf, {"4"}), "");
    EXPECT_EQ(Default(OpAbove, {}), "");
}

TEST(CorrectionDefault, AWordIsNoNumberAndStandsForItself) {
    EXPECT_EQ(Default(OpEqual, {"No"}), "No");
}

TEST(CorrectionDefault, TextsAreMadeOfTheFirstEntry) {
    for (const unsigned comparison : {OpEqual, OpContains, OpBeginsWith, OpEndsWith})
        EXPECT_EQ(Default(comparison, {"A", "B"}, TextEntry), "A") << comparison;
    EXPECT_EQ(Default(OpNotEqual, {"A"}, TextEntry), "A1");
    EXPECT_EQ(Default(OpOneOf, {"A"}, TextEntry), "");
    EXPECT_EQ(Default(OpNoneOf, {"A"}, TextEntry), "");
}

TEST(CorrectionDefault, AValueIsNotReplaced) {
    CorrectionChoices choices = Record(OpAbove, {"4"}, "77");
    EXPECT_EQ(choices.MakeDisplayText(), "77");
}

TEST(CheckCorrectionText, AnEmptyTextIsValidAndNoValue) {
    CorrectionChoices choices = Record(OpAbove, {"4"}, "77");
    EXPECT_TRUE(choices.CheckCorrectionText(""));
    EXPECT_EQ(choices.HasValue, 0);
    EXPECT_EQ(choices.Text, "");
}

TEST(CheckCorrectionText, NumbersAreComparedWithTheirFractions) {
    const auto check = [](unsigned comparison, const CStringArray& strings, const CString& entered) {
        return Check(Record(comparison, strings), entered);
    };
    EXPECT_EQ(check(OpBelow, {"2.5"}, "2.4"), (Checked{true, "2.4"}));
    EXPECT_EQ(check(OpBelow, {"2.5"}, "2.5"), (Checked{false, "1"}));
    EXPECT_EQ(check(OpAbove, {"2.5"}, "2.6"), (Checked{true, "2.6"}));
    EXPECT_EQ(check(OpAbove, {"2.5"}, "2.5"), (Checked{false, "3"}));
    EXPECT_EQ(check(OpAtLeast, {"2.0"}, "2"), (Checked{true, "2"}));
    EXPECT_EQ(check(OpAtLeast, {"2"}, "1.9"), (Checked{false, "2"}));
    EXPECT_EQ(check(OpAtMost, {"2.5"}, "2.6"), (Checked{false, "2"}));
    EXPECT_EQ(check(OpNotEqual, {"2"}, "2.0"), (Checked{false, "3"}));
    EXPECT_EQ(check(OpEqual, {"2"}, "2.00"), (Checked{true, "2.00"}));
    EXPECT_EQ(check(OpBetween, {"5", "3"}, "3"), (Checked{true, "3"}));
    EXPECT_EQ(check(OpBetween, {"3", "5"}, "6"), (Checked{false, "3"}));
    EXPECT_EQ(check(OpNoneOf, {"3", "5"}, "5.0"), (Checked{false, "4"}));
    EXPECT_EQ(check(OpOneOf, {"3", "5"}, "5.0"), (Checked{true, "5.0"}));
    EXPECT_EQ(check(OpOneOf, {"3", "5"}, "4"), (Checked{false, "3"}));
    EXPECT_EQ(check(OpAbove, {"2"}, "."), (Checked{false, "3"}));
    EXPECT_EQ(check(OpAbove, {}, "1"), (Checked{true, "1"}));
}

TEST(CheckCorrectionText, AReplacementIsNeverRefusedInItsTurn) {
    EXPECT_EQ(Check(Record(OpEqual, {"2.5"}), "3"), (Checked{false, "2.5"}));
    EXPECT_EQ(Check(Record(OpAtLeast, {"2.5"}), "1"), (Checked{false, "2.5"}));
    EXPECT_EQ(Check(Record(OpBetween, {"2.5", "3.5"}), "1"), (Checked{false, "2.5"}));
    EXPECT_EQ(Check(Record(OpBetween, {"2.5"}), "1"), (Checked{true, "1"}));
    EXPECT_EQ(Check(Record(OpNoneOf, Counted(1, 101)), "5"), (Checked{false, ""}));
    EXPECT_EQ(Check(Record(OpEqual, {"No"}), "No"), (Checked{true, "No"}));
    EXPECT_EQ(Check(Record(OpEqual, {"No"}), "4"), (Checked{false, "No"}));
}

TEST(CheckCorrectionText, TextsAreHeldAgainstTheFirstEntry) {
    const auto check = [](unsigned comparison, const CString& entered) {
        return Check(Record(comparison, {"ab", "cd"}, {}, TextEntry), entered);
    };
    EXPECT_EQ(check(OpContains, "xaby"), (Checked{true, "xaby"}));
    EXPECT_EQ(check(OpContains, "xcdy"), (Checked{false, "ab"}));
    EXPECT_EQ(check(OpBeginsWith, "abx"), (Checked{true, "abx"}));
    EXPECT_EQ(check(OpBeginsWith, "xab"), (Checked{false, "ab"}));
    EXPECT_EQ(check(OpEndsWith, "xab"), (Checked{true, "xab"}));
    EXPECT_EQ(check(OpEndsWith, "abx"), (Checked{false, "ab"}));
    EXPECT_EQ(check(OpNotEqual, "x"), (Checked{true, "x"}));
    EXPECT_EQ(check(OpNotEqual, "ab"), (Checked{false, "ab1"}));
    EXPECT_EQ(check(OpOneOf, "CD"), (Checked{true, "CD"}));
    EXPECT_EQ(check(OpOneOf, "x"), (Checked{false, "ab"}));
    EXPECT_EQ(check(OpEqual, "x"), (Checked{true, "x"}));
}

TEST(CorrectionSelect, TakesTheEntryAsTheValue) {
    CorrectionChoices choices = Record(OpOneOf, {"A", "B"}, {}, TextEntry);
    choices.Select(1);
    EXPECT_EQ(choices.Text, "B");
    EXPECT_EQ(choices.HasValue, 1);
    EXPECT_EQ(choices.SelectedIndex, 1);
    choices.Select(2);
    EXPECT_EQ(choices.Text, "B");
}

TEST(CorrectionSelect, FurtherStylesTakeTheNumberOfThePicture) {
    for (const int style : {2, 3, 4, 9}) {
        CorrectionChoices choices = Record(OpOneOf, {"A"}, {}, style);
        choices.Numbers = {1124};
        choices.Select(0);
        EXPECT_EQ(choices.Text, style == 3 ? "A" : "1124") << style;
    }
}
