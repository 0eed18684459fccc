// What the panes of the font checks cannot show and therefore drop when the check is written again.
#include "FontRoom.h"

namespace {

// A check of the type that the pane edits, to be filled with what its controls cannot show.
class DroppedByFonts : public FontRoom {
protected:
    explicit DroppedByFonts(MQC_CheckType_e type = Font::Notes) : FontRoom(type), check(type, 0, 0, 0, 1) {}

    // Shows the check, and changes something else.
    void ShowAndEdit() {
        Pane().LoadCheck(check);
        Hand().Choose(1249, 3);
    }
    template <class T> void Require(CParameter<T>& parameter, unsigned op, const std::vector<T>& values) {
        parameter.Operator = op;
        for (const T& value : values)
            parameter.Values.Add(value);
    }
    void RequireNames(unsigned op, const CStringArray& names) {
        auto& parameter = *check.GetStringParameter(Font::Name);
        parameter.Operator = op;
        for (const CString& name : names)
            parameter.Values.Add(new CString(name));
    }
    void RequireHeight(unsigned op, const std::vector<double>& values) {
        Require(*check.GetDoubleParameter(Font::Height), op, values);
    }
    void RequirePoints(unsigned op, const std::vector<int>& values) {
        Require(*check.GetIntParameter(Font::PointHeight), op, values);
    }

    CCheck check;
};

class DroppedByTheFontOfTheDocument : public DroppedByFonts {
protected:
    DroppedByTheFontOfTheDocument() : DroppedByFonts(Font::Dimensions) {}
};

} // namespace

TEST_F(DroppedByFonts, DecimalsBeyondTheSixth) {
    RequireHeight(OpEqual, {0.1234567891});
    ShowAndEdit();
    EXPECT_EQ(Hand().Field(Font::HeightField).text(), "0.123457");
    EXPECT_EQ(Live().GetDoubleParameter(Font::Height)->Values[0], 0.123457);
}

TEST_F(DroppedByFonts, AComparisonOfHeightsThatIsNotOnOffer) {
    RequireHeight(OpNotEqual, {2});
    ShowAndEdit();
    EXPECT_EQ(Hand().Combo(Font::HeightCombo).currentIndex(), 0);
    EXPECT_EQ(Written(Font::Height), "0:");
}

TEST_F(DroppedByFonts, AComparisonOfPointsThatIsNotOnOffer) {
    RequirePoints(OpBetween, {10, 12});
    ShowAndEdit();
    EXPECT_TRUE(Hand().Get<QAbstractButton>(Font::Points).isChecked());
    EXPECT_EQ(Written(Font::PointHeight), "0:10");
}

TEST_F(DroppedByFonts, PointsBeyondTheFirst) {
    RequirePoints(OpEqual, {10, 12});
    ShowAndEdit();
    EXPECT_EQ(Written(Font::PointHeight), "3:10");
}

TEST_F(DroppedByFonts, PointsWithoutASizeBecomeZero) {
    RequirePoints(OpAtLeast, {});
    ShowAndEdit();
    EXPECT_EQ(Written(Font::PointHeight), "7:0");
}

TEST_F(DroppedByFonts, HeightsInUnitsBesideOneInPoints) {
    RequireHeight(OpEqual, {2});
    RequirePoints(OpEqual, {10});
    ShowAndEdit();
    EXPECT_EQ(Written(Font::PointHeight), "3:10");
    EXPECT_EQ(Written(Font::Height), "0:");
}

TEST_F(DroppedByFonts, AStyleWithoutARow) {
    Require(*check.GetLongParameter(Font::Style), OpOneOf, {9L, 3L});
    ShowAndEdit();
    EXPECT_EQ(Written(Font::Style), "2:3");
}

TEST_F(DroppedByFonts, AnotherComparisonOfNamesAndStyles) {
    RequireNames(OpNoneOf, {"Missing Face"});
    Require(*check.GetLongParameter(Font::Style), OpEqual, {3L});
    ShowAndEdit();
    EXPECT_EQ(Written(Font::Name), "2:Missing Face");
    EXPECT_EQ(Written(Font::Style), "2:3");
}

TEST_F(DroppedByFonts, AComparisonOfNamesAndStylesWithoutValues) {
    RequireNames(OpOneOf, {});
    Require(*check.GetLongParameter(Font::Style), OpOneOf, {});
    ShowAndEdit();
    EXPECT_EQ(Written(Font::Name), "0:");
    EXPECT_EQ(Written(Font::Style), "0:");
}

TEST_F(DroppedByFonts, TheOrderOfNamesAndWhatStandsTwice) {
    const auto& list = Hand().Get<CChoiceList>(Font::Names);
    const CString first = list.item(0)->text(), second = list.item(1)->text();
    RequireNames(OpOneOf, {second, "Missing Face", first, second, "Missing Face"});
    Require(*check.GetLongParameter(Font::Style), OpOneOf, {4L, 1L, 4L});
    ShowAndEdit();
    EXPECT_EQ(Written(Font::Name), "2:" + first + u',' + second + ",Missing Face");
    EXPECT_EQ(Written(Font::Style), "2:1,4");
}

TEST_F(DroppedByFonts, AnswersBeyondTheFirst) {
    Require(*check.GetIntParameter(Font::Strikeout), OpOneOf, {1, 0});
    Require(*check.GetIntParameter(Font::Underline), OpOneOf, {0, 1});
    ShowAndEdit();
    EXPECT_EQ(Written(Font::Strikeout), "3:1");
    EXPECT_EQ(Written(Font::Underline), "3:0");
}

TEST_F(DroppedByTheFontOfTheDocument, EverythingElse) {
    Require(*check.GetIntParameter(Font::DocumentFont), OpEqual, {1});
    RequireNames(OpOneOf, {"Missing Face"});
    RequireHeight(OpEqual, {2});
    ShowAndEdit();
    EXPECT_EQ(Written(Font::DocumentFont), "3:1");
    for (unsigned id = Font::Name; id <= Font::PointHeight; ++id)
        EXPECT_EQ(Written(id), "0:") << id;
}

TEST_F(DroppedByTheFontOfTheDocument, ThatItIsForbidden) {
    Require(*check.GetIntParameter(Font::DocumentFont), OpEqual, {0});
    ShowAndEdit();
    EXPECT_EQ(Written(Font::DocumentFont), "3:1");
}
