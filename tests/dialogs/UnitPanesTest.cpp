// The panes of the units of a document and of dimensions: what they offer, what has a say, what they write.
#include "ValueRoom.h"

#include <QApplication>

namespace {

class DocumentUnits : public ValueRoom {
protected:
    DocumentUnits() : ValueRoom(108) {}
};

class DimensionUnits : public ValueRoom {
protected:
    DimensionUnits() : ValueRoom(405) {}
};

// Controls, as they are numbered in both panes.
enum : int {
    Decimal = 1029,
    DualLengths = 1096,
    DualFraction,
    DualPlaces,
    DualPlacesField,
    DualDenominator = 1101,
    DualRounding = 1105,
    Angles = 1104,
    AnglePlaces = 1106,
    AnglePlacesField,
    Lengths = 1109,
    Places,
    PlacesField,
    Denominator = 1113,
    DenominatorField,
    Rounding = 1116,
    Fraction,
    MassLengths,
    MassPlaces,
    Masses = 1122,
    Volumes,
    Forces,
    Custom = 1130,
    DualDecimal = 1132,
    UseDocument
};

constexpr int CustomGroup[] = {1109, 1118, 1122, 1123, 1124, 1110, 1119,
                               1113, 1111, 1120, 1114, 1029, 1117, 1116};
constexpr unsigned CustomParameters[] = {1664, 1665, 1666, 1667, 1668, 1676, 1677, 1678, 1679, 1680};
constexpr int MillimeterRow = 3, MilsRow = 7;

} // namespace

TEST_F(DocumentUnits, OfferTheToldRows) {
    const CStringArray lengths = TextsOf({1621, 1622, 1623, 1624, 1625, 1626, 1627, 1628, 1629, 1630, 1631});
    for (const int list : {Lengths, DualLengths, MassLengths})
        EXPECT_EQ(RowsOf(Hand().List(list)), lengths) << list;
    EXPECT_EQ(RowsOf(Hand().List(Masses)), TextsOf({1637, 1638, 1639, 1640}));
    EXPECT_EQ(RowsOf(Hand().List(Volumes)), TextsOf({1641, 1642, 1643, 1644, 1645, 1646, 1647, 1649, 1650}));
    EXPECT_EQ(RowsOf(Hand().List(Forces)), TextsOf({1651, 1652, 1653, 1654, 1655, 1656}));
    EXPECT_EQ(RowsOf(Hand().List(Angles)), TextsOf({1633, 1634, 1635, 1636}));
    const CStringArray operators = {LoadString(1632), "=", "<", ">", ">=", "<="};
    for (const int combo : {1119, 1110, 1113, 1098, 1101, 1106}) {
        EXPECT_EQ(RowsOf(Hand().Combo(combo)), operators) << combo;
        EXPECT_EQ(Hand().Combo(combo).currentIndex(), 0) << combo;
    }
    for (const int combo : {Rounding, DualRounding})
        EXPECT_EQ(RowsOf(Hand().Combo(combo)), TextsOf({1632, 1660, 1661}));
    for (const int field : {1111, 1114, 1099, 1102, 1107, 1120}) {
        EXPECT_EQ(Hand().Spin(field).minimum(), 0);
        EXPECT_EQ(Hand().Spin(field).maximum(), 8);
    }
}

// Nothing has to be scrolled to be found.
TEST_F(DocumentUnits, EveryUnitIsInSight) {
    for (const int number : {Lengths, DualLengths, MassLengths, Masses, Volumes, Forces, Angles}) {
        const QListWidget& list = Hand().List(number);
        for (int row = 0; row < list.count(); ++row) {
            const QRect place = list.visualItemRect(list.item(row));
            EXPECT_TRUE(list.viewport()->rect().contains(place)) << number << ", row " << row;
        }
    }
}

TEST_F(DocumentUnits, UnitSystemsAreWrittenInTheirOwnOrder) {
    for (const int box : {1128, 1126, 1129, 1130, 1127})
        Hand().Click(box);
    EXPECT_EQ(Written(1663), "2:1,4,3,2,5");
    Hand().Click(1127);
    EXPECT_EQ(Written(1663), "2:4,3,2,5");
    for (const int box : {1128, 1126, 1129, 1130})
        Hand().Click(box);
    EXPECT_EQ(Written(1663), "0:");
}

TEST_F(DocumentUnits, TheCustomSystemAloneOpensItsGroup) {
    for (const int number : CustomGroup)
        EXPECT_FALSE(Hand().IsEnabled(number)) << number;
    Hand().Click(1127);
    EXPECT_FALSE(Hand().IsEnabled(Lengths));
    Hand().Click(Custom);
    for (const int open : {1109, 1118, 1122, 1123, 1124, 1110, 1119})
        EXPECT_TRUE(Hand().IsEnabled(open)) << open;
    for (const int closed : {1111, 1120, 1029, 1117, 1113, 1114, 1116})
        EXPECT_FALSE(Hand().IsEnabled(closed)) << closed;
    EXPECT_TRUE(Hand().IsEnabled(DualLengths));
    EXPECT_TRUE(Hand().IsEnabled(Angles));
}

TEST_F(DocumentUnits, WithoutTheCustomSystemItsGroupIsNotWritten) {
    Hand().Click(Custom);
    Hand().ClickRow(Lengths, MilsRow);
    Hand().Click(Fraction);
    Hand().Choose(Places, EqualRow);
    Hand().Choose(Denominator, AtMostRow);
    Hand().Choose(Rounding, YesRow);
    for (const int list : {MassLengths, Masses, Volumes, Forces})
        Hand().ClickRow(list, 2);
    Hand().Choose(MassPlaces, AboveRow);
    EXPECT_EQ(Written(1664), "2:9");
    EXPECT_EQ(Written(1665), "3:0");
    EXPECT_EQ(Written(1666), "2:2");
    EXPECT_EQ(Written(1667), "8:1"); // the arrow keys led past "<"
    EXPECT_EQ(Written(1668), "2:1");
    EXPECT_EQ(Written(1676), "2:8");
    EXPECT_EQ(Written(1677), "2:3");
    EXPECT_EQ(Written(1678), "2:3");
    EXPECT_EQ(Written(1679), "2:3");
    EXPECT_EQ(Written(1680), "6:1");
    Hand().Click(Custom);
    for (const unsigned id : CustomParameters) {
        EXPECT_EQ(Written(id), "0:") << id;
        EXPECT_EQ(Correction(id), "none") << id;
    }
    Hand().Click(Custom); // the controls kept their state
    EXPECT_EQ(Written(1664), "2:9");
}

TEST_F(DocumentUnits, EveryRowWritesItsCode) {
    Hand().Click(Custom);
    const std::pair<int, unsigned> lists[] = {{Lengths, 1664}, {DualLengths, 1669}, {MassLengths, 1676},
                                              {Masses, 1677},  {Volumes, 1678},     {Forces, 1679},
                                              {Angles, 1674}};
    const CString codes[] = {"6,7,8,0,1,2,10,9,3,4,5",
                             "6,7,8,0,1,2,10,9,3,4,5",
                             "6,7,8,0,1,2,10,9,3,4,5",
                             "1,2,3,4",
                             "1,2,3,4,5,6,7,9,10",
                             "1,2,3,4,5,6",
                             "0,1,2,3"};
    int place = 0;
    for (const auto& [list, id] : lists) {
        for (int row = Hand().List(list).count() - 1; row >= 0; --row)
            Hand().ClickRow(list, row);
        EXPECT_EQ(Written(id), "2:" + codes[place++]) << id;
    }
}

TEST_F(DocumentUnits, FractionsGoWithTheirUnits) {
    Hand().Click(Custom);
    for (int row = 0; row < Hand().List(Lengths).count(); ++row) {
        const bool isFractional = row == 6 || row == 7 || row == 8 || row == 10;
        for (const auto& [list, decimal, fraction] :
             {std::tuple(Lengths, Decimal, Fraction), std::tuple(DualLengths, DualDecimal, DualFraction)}) {
            Hand().ClickRow(list, row);
            EXPECT_EQ(Hand().IsEnabled(decimal), isFractional) << row;
            EXPECT_EQ(Hand().IsEnabled(fraction), isFractional) << row;
            Hand().ClickRow(list, row);
        }
    }
    Hand().ClickRow(DualLengths, MilsRow);
    EXPECT_FALSE(Hand().IsEnabled(DualDenominator));
    Hand().Click(DualFraction);
    EXPECT_TRUE(Hand().IsEnabled(DualDenominator));
    EXPECT_TRUE(Hand().IsEnabled(DualRounding));
    EXPECT_FALSE(Hand().IsEnabled(1102));
    Hand().Choose(DualDenominator, EqualRow);
    EXPECT_TRUE(Hand().IsEnabled(1102));
    Hand().Choose(DualRounding, NoRow);
    EXPECT_EQ(Written(1671), "2:2");
    EXPECT_EQ(Written(1672), "3:0");
    EXPECT_EQ(Written(1673), "2:0");
    Hand().Click(DualFraction);
    EXPECT_FALSE(Hand().IsEnabled(DualRounding));
    EXPECT_EQ(Written(1671), "0:");
    EXPECT_EQ(Written(1672), "0:");
    EXPECT_EQ(Written(1673), "0:");
}

TEST_F(DocumentUnits, ATickedFractionIsWrittenAlsoWhenItsUnitIsGone) {
    Hand().Click(Custom);
    Hand().ClickRow(Lengths, MilsRow);
    Hand().Click(Fraction);
    Hand().Choose(Denominator, EqualRow);
    Hand().Enter(DenominatorField, "4");
    Hand().Choose(Rounding, YesRow);
    Hand().ClickRow(Lengths, MilsRow);
    Hand().ClickRow(Lengths, MillimeterRow);
    EXPECT_TRUE(Hand().IsTicked(Fraction));
    for (const int closed : {int(Fraction), int(Denominator), int(DenominatorField), int(Rounding)})
        EXPECT_FALSE(Hand().IsEnabled(closed)) << closed;
    EXPECT_EQ(Written(1664), "2:0");
    EXPECT_EQ(Written(1666), "2:2");
    EXPECT_EQ(Written(1667), "3:4");
    EXPECT_EQ(Written(1668), "2:1");
}

TEST_F(DocumentUnits, OnlyDegreesAndRadiansHaveDecimalPlaces) {
    for (int row = 0; row < 4; ++row) {
        Hand().ClickRow(Angles, row);
        EXPECT_EQ(Hand().IsEnabled(AnglePlaces), row == 0 || row == 3) << row;
        Hand().ClickRow(Angles, row);
    }
    Hand().ClickRow(Angles, 0);
    Hand().Choose(AnglePlaces, AtLeastRow);
    EXPECT_TRUE(Hand().IsEnabled(AnglePlacesField));
    Hand().ClickRow(Angles, 0);
    EXPECT_FALSE(Hand().IsEnabled(AnglePlacesField));
    EXPECT_EQ(Written(1675), "7:1"); // written by the boxes, enabled or not
}

TEST_F(DocumentUnits, DegreesAndMinutesOfACheckLeaveTheirPlacesDisabled) {
    CCheck check(108, 0, 0, 0, 1);
    Require<long>(check.GetLongParameter(1674), OpOneOf, {1});
    Pane().LoadCheck(check);
    EXPECT_EQ(Hand().List(Angles).ChosenTexts(), CStringArray{LoadString(1634)});
    EXPECT_FALSE(Hand().IsEnabled(AnglePlaces));
    EXPECT_FALSE(Hand().IsEnabled(AnglePlacesField));
}

TEST_F(DocumentUnits, AnglesWithoutAValueTextAreGoodCorrections) {
    Hand().ClickRow(Angles, 1);
    EXPECT_EQ(Correction(1674), "1");
    EXPECT_EQ(RowsOf(*Hand().Correction(1314).List()), TextsOf({1634}));
    Hand().ClickRow(Angles, 2);
    EXPECT_EQ(Correction(1674), "1");
    Gui::ChooseRow(*Hand().Correction(1314).List(), 1);
    EXPECT_EQ(Correction(1674), "2");
    Hand().ClickRow(Angles, 0);
    EXPECT_EQ(RowsOf(*Hand().Correction(1314).List()), TextsOf({1633, 1634, 1635}));
    EXPECT_EQ(Correction(1674), "2");
    Hand().ClickRow(Angles, 2);
    EXPECT_EQ(Correction(1674), "0");
    CCheck check(108, 0, 0, 0, 1);
    Require<long>(check.GetLongParameter(1674), OpOneOf, {1, 2});
    check.GetLongParameter(1674)->SetCorrection(2);
    check.GetLongParameter(1674)->CorrectionKind = CorrectionFixed;
    const auto passed = Passed(check);
    EXPECT_EQ(WrittenCorrection(*passed, 1674), "2");
    EXPECT_EQ(Hand().Correction(1314).List()->currentText(), LoadString(1635));
}

TEST_F(DocumentUnits, ABoundOfZeroBecomesOneWhenLessThanIsChosen) {
    Hand().Choose(DualPlaces, EqualRow);
    EXPECT_EQ(Written(1670), "3:0");
    Hand().Choose(DualPlaces, BelowRow);
    EXPECT_EQ(Hand().Spin(DualPlacesField).value(), 1);
    EXPECT_EQ(Written(1670), "5:1");
    EXPECT_EQ(Correction(1670), "0");
}

TEST_F(DocumentUnits, ABoundOfZeroBecomesOneWhenAnotherChoiceIsMade) {
    Hand().Choose(DualPlaces, BelowRow);
    Hand().Enter(DualPlacesField, "0");
    EXPECT_EQ(Written(1670), "5:0"); // not yet
    Hand().Click(1127);
    EXPECT_EQ(Written(1670), "5:1");
    Hand().Enter(DualPlacesField, "0");
    Hand().Leave();
    EXPECT_EQ(Written(1670), "5:1");
    Hand().Enter(DualPlacesField, "");
    Pane().NormalizeZeroValues();
    EXPECT_EQ(Written(1670), "5:1");
}

TEST_F(DocumentUnits, NumbersAreTypedOrStepped) {
    Hand().Choose(DualPlaces, EqualRow);
    Hand().Enter(DualPlacesField, "a-+5.");
    EXPECT_EQ(Written(1670), "3:5");
    Gui::Key(Hand().Spin(DualPlacesField), Qt::Key_Up);
    EXPECT_EQ(Written(1670), "3:6");
    Hand().Enter(DualPlacesField, "9"); // beyond the range
    EXPECT_EQ(Written(1670), "3:0");
    Hand().Leave();
    EXPECT_EQ(Hand().Spin(DualPlacesField).text(), "0");
    for (int step = 0; step < 12; ++step)
        Gui::Key(Hand().Spin(DualPlacesField), Qt::Key_Up);
    EXPECT_EQ(Written(1670), "3:8");
}

TEST_F(DocumentUnits, AnEmptyNumberIsZeroAndSaysSoOnLeaving) {
    Hand().Choose(DualPlaces, EqualRow);
    Hand().Enter(DualPlacesField, "3");
    Hand().Enter(DualPlacesField, "");
    EXPECT_EQ(Written(1670), "3:0");
    EXPECT_EQ(Hand().Spin(DualPlacesField).text(), "");
    Hand().Leave();
    EXPECT_EQ(Hand().Spin(DualPlacesField).text(), "0");
}

TEST_F(DocumentUnits, EachPairHasItsParameter) {
    Hand().Click(Custom);
    for (const int list : {Lengths, DualLengths})
        Hand().ClickRow(list, MilsRow);
    Hand().Click(Fraction);
    Hand().Click(DualFraction);
    Hand().ClickRow(Angles, 3);
    const std::pair<int, unsigned> pairs[] = {{1110, 1665}, {1113, 1667}, {1098, 1670},
                                              {1101, 1672}, {1106, 1675}, {1119, 1680}};
    const unsigned codes[] = {OpEqual, OpBelow, OpAbove, OpAtLeast, OpAtMost};
    for (const auto& [combo, id] : pairs) {
        const int field = combo == 1119 ? 1120 : combo + 1;
        for (int row = EqualRow; row <= AtMostRow; ++row) {
            Hand().Choose(combo, row);
            Hand().Enter(field, QString::number(row + 1));
            EXPECT_EQ(Written(id), QString("%1:%2").arg(codes[row - 1]).arg(row + 1)) << combo;
        }
        Hand().Choose(combo, AnyRow);
        EXPECT_FALSE(Hand().IsEnabled(field)) << field;
        EXPECT_EQ(Written(id), "0:") << combo;
    }
}

TEST_F(DocumentUnits, WhatAnotherStateLeftInTheControlsIsNotShownForACheck) {
    Hand().Click(Custom);
    Hand().ClickRow(Lengths, MilsRow);
    Hand().ClickRow(DualLengths, MilsRow);
    Hand().Choose(DualPlaces, EqualRow);
    Hand().Click(Custom);
    CCheck check(108, 0, 0, 0, 1);
    Require<long>(check.GetLongParameter(1663), OpOneOf, {4});
    const auto passed = Passed(check);
    EXPECT_EQ(::Written(*passed, 1663), "2:4");
    for (const unsigned id : {1664u, 1669u, 1670u})
        EXPECT_EQ(::Written(*passed, id), "0:") << id;
}

// What a file brings and no control can show goes with the next change. A number beyond the range stays.
TEST_F(DocumentUnits, WhatHasNoControlIsDropped) {
    CCheck check(108, 0, 0, 0, 1);
    Require<long>(check.GetLongParameter(1663), OpOneOf, {2, 77});  // a system without a box
    Require<long>(check.GetLongParameter(1669), OpOneOf, {3, 99});  // a unit without a row
    Require<long>(check.GetLongParameter(1671), OpOneOf, {2, 5});   // a format without a box
    Require<long>(check.GetLongParameter(1674), OpOneOf, {3, 4});   // an angle without a row
    Require<long>(check.GetLongParameter(1670), OpBetween, {2, 4}); // a comparison that is not on offer
    Require<long>(check.GetLongParameter(1672), OpAtMost, {64, 3}); // a second number; the first is high
    Require<int>(check.GetIntParameter(1673), OpEqual, {1});        // a yes of another kind
    const auto passed = Passed(check);
    EXPECT_EQ(::Written(*passed, 1663), "2:2");
    EXPECT_EQ(::Written(*passed, 1669), "2:3");
    EXPECT_EQ(::Written(*passed, 1671), "2:2");
    EXPECT_EQ(::Written(*passed, 1674), "2:3");
    EXPECT_EQ(::Written(*passed, 1670), "0:");
    EXPECT_EQ(::Written(*passed, 1672), "8:64");
    EXPECT_EQ(::Written(*passed, 1673), "2:1");
}

// The custom group of a check without the custom system is shown, disabled, and not written again.
TEST_F(DocumentUnits, TheGroupOfACheckWithoutTheCustomSystemIsDropped) {
    CCheck check(108, 0, 0, 0, 1);
    Require<long>(check.GetLongParameter(1664), OpOneOf, {0});
    EXPECT_EQ(::Written(*Passed(check), 1664), "0:");
    EXPECT_FALSE(Hand().IsEnabled(Lengths));
}

TEST_F(DocumentUnits, UndoShowsTheCustomGroupAgain) {
    Hand().Click(Custom);
    Hand().ClickRow(Lengths, MilsRow);
    Hand().Click(Custom);
    ASSERT_EQ(Written(1664), "0:");
    int step = 0;
    room.standard.StepHistory(true, step);
    Pane().LoadCheck(Live());
    EXPECT_TRUE(Hand().IsTicked(Custom));
    EXPECT_EQ(Hand().List(Lengths).ChosenTexts(), TextsOf({1628}));
    EXPECT_TRUE(Hand().IsEnabled(Lengths));
}

TEST_F(DimensionUnits, TheUnitsOfTheDocumentTakeAllElseOut) {
    Hand().ClickRow(Lengths, MilsRow);
    Hand().Click(Fraction);
    Hand().Choose(Denominator, EqualRow);
    Hand().Choose(Places, EqualRow);
    Hand().ClickRow(Angles, 0);
    Hand().Choose(AnglePlaces, EqualRow);
    Hand().Click(UseDocument);
    EXPECT_EQ(Written(1690), "3:1");
    for (const unsigned id : {1664u, 1665u, 1666u, 1667u, 1668u, 1674u, 1675u})
        EXPECT_EQ(Written(id), "0:") << id;
    for (const int closed : {1109, 1104, 1110, 1106, 1111, 1107, 1114, 1029, 1117, 1116, 1113})
        EXPECT_FALSE(Hand().IsEnabled(closed)) << closed;
    EXPECT_EQ(Hand().Correction(1304).Edit()->text(), LoadString(1660));
    Gui::Key(Hand().Get(UseDocument), Qt::Key_Space);
    EXPECT_EQ(Written(1690), "0:");
    EXPECT_EQ(Written(1664), "2:9");
    EXPECT_EQ(Written(1667), "3:0");
    EXPECT_EQ(Written(1675), "3:0");
}

TEST_F(DimensionUnits, AnglesOfAnyKindHaveDecimalPlaces) {
    EXPECT_TRUE(Hand().IsEnabled(AnglePlaces));
    Hand().ClickRow(Angles, 1);
    EXPECT_TRUE(Hand().IsEnabled(AnglePlaces));
    Hand().Choose(AnglePlaces, AtMostRow);
    Hand().Enter(AnglePlacesField, "2");
    EXPECT_EQ(Written(1674), "2:1");
    EXPECT_EQ(Written(1675), "8:2");
}

TEST_F(DimensionUnits, ABoundOfZeroBecomesOneInEachPair) {
    Hand().ClickRow(Lengths, MilsRow);
    Hand().Click(Fraction);
    for (const auto& [combo, id] : {std::pair(1110, 1665u), std::pair(1113, 1667u), std::pair(1106, 1675u)}) {
        Hand().Choose(combo, BelowRow);
        Hand().Enter(combo + 1, "0");
        EXPECT_EQ(Written(id), "5:0");
        Pane().NormalizeZeroValues();
        EXPECT_EQ(Written(id), "5:1");
    }
}

TEST_F(DimensionUnits, LoadingTheUnitsOfTheDocumentDisablesTheRest) {
    CCheck check(405, 0, 0, 0, 1);
    Require<int>(check.GetIntParameter(1690), OpEqual, {1});
    EXPECT_EQ(::Written(*Passed(check), 1690), "3:1");
    EXPECT_FALSE(Hand().IsEnabled(Lengths));
    Pane().LoadCheck(CCheck(405, 0, 0, 0, 1));
    EXPECT_FALSE(Hand().IsTicked(UseDocument));
    EXPECT_TRUE(Hand().IsEnabled(Lengths));
}

TEST_F(DocumentUnits, TabLeadsFromRowToRow) {
    Hand().Click(Custom);
    Gui::Focus(Hand().Get(1127));
    CStringArray order;
    for (int step = 0; step < 11; ++step) {
        const QWidget* now = QApplication::focusWidget();
        while (now && now->objectName().toInt() == 0)
            now = now->parentWidget();
        order.append(now ? now->objectName() : CString());
        Gui::Key(*QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, (CStringArray{"1127", "1126", "1129", "1128", "1130", "10002", "1109", "1110", "1118",
                                   "1119", "1122"}));
}
