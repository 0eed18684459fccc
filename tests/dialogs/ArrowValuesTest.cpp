// Sizes of arrows: what is typed, what is written; and what is dropped of a check that is shown.
#include "ArrowRoom.h"

#include "engines/ActiveUnit.h"
#include "support/GuiTool.h"
#include "support/Messages.h"

#include <QAbstractItemView>
#include <QTest>

namespace {

class ArrowValues : public ArrowRoom {
protected:
    ArrowValues() {
        SetActiveLengthUnitProvider([this] { return room.standard.Unit; });
    }
    ~ArrowValues() override { SetActiveLengthUnitProvider({}); }

    // Shows a parameter as a file could hold it, and writes it again.
    template <class T>
    CString Rewritten(MQC_CheckType_e type, unsigned id, unsigned op, const std::vector<T>& values) {
        CCheck check(type, 0, 0, 0, 1);
        VisitParameter(*check.FindParameter(id), [&]<class U>(CParameter<U>& parameter) {
            parameter.Operator = op;
            if constexpr (std::is_arithmetic_v<U>)
                for (const T value : values)
                    parameter.Values.Add(static_cast<U>(value));
        });
        Pane(type).LoadCheck(check);
        Pane(type).OnParameterChanged();
        return Written(type, id);
    }

    Messages messages;
};

} // namespace

TEST_F(ArrowValues, EachFieldGoesWithTheComparisonInFrontOfIt) {
    int row = 0;
    for (const Arrow::Size& size : Arrow::Sizes) {
        Hand(Arrow::Document).Enter(size, Arrow::Equal, QString::number(++row) + ".5");
        EXPECT_EQ(Written(Arrow::Document, size.parameter), QString("3:%1.5").arg(row));
        EXPECT_EQ(WrittenCorrection(*room.Live(Arrow::Document), size.parameter), QString("%1.5").arg(row));
    }
    EXPECT_TRUE(messages.texts.isEmpty());
}

TEST_F(ArrowValues, AnOperatorOpensItsFieldAndAnyClosesIt) {
    const Arrow::Size& size = Arrow::Sizes[4];
    Hand(Arrow::Document).Choose(size.combo, Arrow::Equal);
    EXPECT_TRUE(Hand(Arrow::Document).IsEnabled(size.value));
    Gui::Type(Hand(Arrow::Document).Get(size.value), "2");
    Hand(Arrow::Document).Choose(size.combo, Arrow::Any);
    EXPECT_FALSE(Hand(Arrow::Document).IsEnabled(size.value));
    EXPECT_EQ(Written(Arrow::Document, size.parameter), "0:");
}

TEST_F(ArrowValues, AnOperatorChosenByMouseGivesTheFieldTheKeyboard) {
    const Arrow::Size& size = Arrow::Sizes[2];
    QComboBox& combo = Hand(Arrow::Document).Combo(size.combo);
    combo.showPopup();
    Gui::Settle();
    const QModelIndex row = combo.model()->index(Arrow::Equal, 0);
    const QPoint place(5, combo.view()->visualRect(row).center().y());
    QTest::mouseClick(combo.view()->viewport(), Qt::LeftButton, {}, place, 500);
    Gui::Settle();
    EXPECT_EQ(combo.currentIndex(), Arrow::Equal);
    EXPECT_TRUE(Hand(Arrow::Document).Field(size.value).hasFocus());
}

TEST_F(ArrowValues, ARangeHasBothBoundsOnLeaving) {
    Hand(Arrow::Document).Enter(Arrow::Sizes[0], Arrow::Between, "3");
    Hand(Arrow::Document).Leave();
    EXPECT_EQ(Written(Arrow::Document, 1552), "1:3,3");
    Hand(Arrow::Document).Enter(Arrow::Sizes[5], Arrow::Between, "3,");
    Hand(Arrow::Document).Leave();
    EXPECT_EQ(Written(Arrow::Document, 1557), "1:3,3");
    Hand(Arrow::Document).Enter(Arrow::Sizes[1], Arrow::Equal, "");
    Hand(Arrow::Document).Leave();
    EXPECT_EQ(Written(Arrow::Document, 1553), "0:");
}

TEST_F(ArrowValues, ALengthOutOfBoundsAndOtherCharactersAreRefused) {
    Hand(Arrow::Document).Enter(Arrow::Sizes[3], Arrow::Equal, "1a-b;2");
    EXPECT_EQ(Written(Arrow::Document, 1555), "3:12");
    EXPECT_TRUE(messages.texts.isEmpty());
    Hand(Arrow::Document).Enter(Arrow::Sizes[3], Arrow::Equal, "10000000");
    EXPECT_EQ(messages.texts, CStringArray{LoadString(2191)});
}

TEST_F(ArrowValues, NothingBelowZeroCanBeRequired) {
    Hand(Arrow::Document).Enter(Arrow::Sizes[0], Arrow::Below, "0");
    EXPECT_EQ(Written(Arrow::Document, 1552), "5:1");
    Hand(Arrow::Document).Enter(Arrow::Sizes[0], Arrow::Below, ".5");
    EXPECT_EQ(Written(Arrow::Document, 1552), "5:0.5");
}

TEST_F(ArrowValues, BoundsOfZeroFromAFileBecomeOne) {
    CCheck check(Arrow::Document, 0, 0, 0, 1);
    const auto set = [&](unsigned id, unsigned op, double value) {
        check.GetDoubleParameter(id)->Operator = op;
        check.GetDoubleParameter(id)->Values.Add(value);
    };
    set(1552, OpBelow, 0);
    set(1553, OpAtMost, 0);
    set(1557, OpBelow, 0.5);
    Pane(Arrow::Document).LoadCheck(check);
    Pane(Arrow::Document).NormalizeZeroValues();
    EXPECT_EQ(Written(Arrow::Document, 1552), "5:1");
    EXPECT_EQ(Written(Arrow::Document, 1553), "8:0");
    EXPECT_EQ(Written(Arrow::Document, 1557), "5:0.5");
}

TEST_F(ArrowValues, FiftyValuesAreWrittenAndToldByTheTip) {
    CStringArray values;
    for (int i = 1; i <= 50; ++i)
        values.append(QString::number(i) + ".25");
    Hand(Arrow::Document).Enter(Arrow::Sizes[0], Arrow::OneOf, values.join(u','));
    EXPECT_EQ(Written(Arrow::Document, 1552), "2:" + values.join(u','));
    EXPECT_EQ(Gui::TipAt(Hand(Arrow::Document).Get(1003), {5, 5}), "<qt>" + values.join(u','));
}

TEST_F(ArrowValues, ALoadedCheckReplacesAllThatWasShown) {
    const ArrowHand hand = Hand(Arrow::Dimensions);
    for (const int box : {1112, 1122, 1067, 1077, 1075})
        hand.Click(box);
    const CCheck empty(Arrow::Dimensions, 0, 0, 0, 1);
    Pane(Arrow::Dimensions).LoadCheck(empty);
    for (const Arrow::Group& group : Arrow::Groups) {
        if (group.type != Arrow::Dimensions)
            continue;
        for (const int box : group.boxes)
            EXPECT_TRUE(!hand.Box(box).isChecked() && hand.IsEnabled(box)) << box;
    }
    EXPECT_FALSE(hand.Box(1077).isChecked() || hand.Box(1075).isChecked());
}

TEST_F(ArrowValues, LoadingWritesNothing) {
    Hand(Arrow::Document).Enter(Arrow::Sizes[0], Arrow::Between, "3,4");
    Hand(Arrow::Annotations).Click(1073);
    const int before = room.standard.GetHistoryIndex();
    for (const MQC_CheckType_e type : Arrow::All)
        Pane(type).LoadCheck(CCheck(type, 0, 0, 0, 1));
    Gui::Settle();
    EXPECT_EQ(room.standard.GetHistoryIndex(), before);
    EXPECT_EQ(Written(Arrow::Document, 1552), "1:3,4");
}

TEST_F(ArrowValues, SizesAndTheirCorrectionsFollowTheUnit) {
    GuiTool tool;
    tool.Standard().Unit = 0;
    tool.PressCheck(Arrow::Document);
    const ArrowHand hand(*tool.Pane(Arrow::Document));
    hand.Enter(Arrow::Sizes[0], Arrow::Between, "25.4,50.8");
    hand.Enter(Arrow::Sizes[1], Arrow::Equal, "254");
    tool.View().ApplyUnits(3, 0); // inches
    Gui::Settle();
    CCheck* live = nullptr;
    tool.Standard().FindLiveByType(Arrow::Document, live);
    ASSERT_TRUE(live);
    EXPECT_EQ(::Written(*live, 1552), "1:1,2");
    EXPECT_EQ(WrittenCorrection(*live, 1552), "1");
    EXPECT_EQ(::Written(*live, 1553), "3:10");
    EXPECT_EQ(WrittenCorrection(*live, 1553), "10");
}

// What is dropped when a check is shown and written again.

TEST_F(ArrowValues, DecimalsBeyondTheSixthAreDropped) {
    EXPECT_EQ(Rewritten<double>(Arrow::Document, 1552, OpEqual, {0.1234567891}), "3:0.123457");
}

TEST_F(ArrowValues, ASizeComparedInAWayThatIsNotOnOfferIsDropped) {
    EXPECT_EQ(Rewritten<double>(Arrow::Document, 1555, OpNotEqual, {2}), "0:");
    EXPECT_EQ(Rewritten<double>(Arrow::Document, 1555, OpLeftOut, {2}), "0:");
}

TEST_F(ArrowValues, AValueWithoutABoxIsDropped) {
    EXPECT_EQ(Rewritten<int>(Arrow::Document, 1559, OpOneOf, {11, 4, -1, 99}), "2:4");
    EXPECT_EQ(Rewritten<int>(Arrow::Dimensions, 1569, OpOneOf, {3, 1}), "2:1");
    EXPECT_EQ(Rewritten<int>(Arrow::Annotations, 1583, OpOneOf, {11}), "0:");
}

TEST_F(ArrowValues, AnotherOrderAndRepetitionsOfChoicesAreDropped) {
    EXPECT_EQ(Rewritten<int>(Arrow::Annotations, 1583, OpOneOf, {0, 1, 9, 1}), "2:9,1,0");
}

TEST_F(ArrowValues, AnotherComparisonOfChoicesIsDropped) {
    EXPECT_EQ(Rewritten<int>(Arrow::Annotations, 1583, OpNoneOf, {1}), "2:1");
    EXPECT_EQ(Rewritten<int>(Arrow::Dimensions, 1569, OpEqual, {1}), "2:1");
}

TEST_F(ArrowValues, ValuesOfWhatIsNotInForceAreDropped) {
    EXPECT_EQ(Rewritten<int>(Arrow::Annotations, 1583, OpNone, {1}), "0:");
    EXPECT_EQ(Rewritten<int>(Arrow::Dimensions, 1567, OpNone, {1}), "0:");
    EXPECT_EQ(Rewritten<double>(Arrow::Document, 1552, OpNone, {1}), "0:");
}

TEST_F(ArrowValues, ANoToTheStyleOfTheDocumentIsDropped) {
    for (const Arrow::DocumentBox& document : Arrow::DocumentBoxes) {
        EXPECT_EQ(Rewritten<int>(document.type, document.parameter, OpEqual, {0}), "0:");
        EXPECT_EQ(Rewritten<int>(document.type, document.parameter, OpOneOf, {1}), "3:1");
    }
}

TEST_F(ArrowValues, StylesBesideThatOfTheDocumentAreDropped) {
    CCheck check(Arrow::Annotations, 0, 0, 0, 1);
    for (const unsigned id : {1567u, 1583u}) {
        check.GetIntParameter(id)->Operator = OpOneOf;
        check.GetIntParameter(id)->Values.Add(1);
    }
    Pane(Arrow::Annotations).LoadCheck(check);
    EXPECT_TRUE(Hand(Arrow::Annotations).Box(1075).isChecked()); // grey, and not written
    Pane(Arrow::Annotations).OnParameterChanged();
    EXPECT_EQ(Written(Arrow::Annotations, 1567), "3:1");
    EXPECT_EQ(Written(Arrow::Annotations, 1583), "0:");
}

TEST_F(ArrowValues, ACorrectionThatIsNoneOfTheStylesGivesWayToTheFirstOfThem) {
    CCheck check(Arrow::Annotations, 0, 0, 0, 1);
    auto* style = check.GetIntParameter(1583);
    style->Operator = OpOneOf;
    for (const int value : {9, 0})
        style->Values.Add(value);
    style->SetCorrection(5);
    style->CorrectionKind = CorrectionFixed;
    Pane(Arrow::Annotations).LoadCheck(check);
    Pane(Arrow::Annotations).OnParameterChanged();
    EXPECT_EQ(WrittenCorrection(*room.Live(Arrow::Annotations), 1583), "9");
}
