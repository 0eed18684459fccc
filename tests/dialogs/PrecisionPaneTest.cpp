// The pane of the precision and the tolerances of dimensions, and that of the gaps of extension lines.
#include "ValueRoom.h"

namespace {

class Precision : public ValueRoom {
protected:
    Precision() : ValueRoom(409) {}
};

class Gaps : public ValueRoom {
protected:
    Gaps() : ValueRoom(314) {}
};

enum : int { Settings = 1321, Tolerances = 1323, Linear = 1338, Angular = 1339 };
constexpr std::pair<int, unsigned> Precisions[] = {{1257, 2281}, {1256, 2282}, {1262, 2283},
                                                   {1260, 2284}, {1273, 2404}, {1272, 2405}};
constexpr std::pair<int, unsigned> Fields[] = {{1328, 2307}, {1329, 2308}, {1331, 2309}, {1332, 2310}};

enum : int { Distance = 1285, Extension = 1083, UseDocumentGap = 1288 };

} // namespace

TEST_F(Precision, OffersThePrecisionsInTheOrderOfTheirCodes) {
    for (const auto& [combo, id] : Precisions) {
        EXPECT_EQ(RowsOf(Hand().Combo(combo)),
                  TextsOf({2285, 2286, 2287, 2288, 2389, 2390, 2391, 2392, 2393}));
        EXPECT_EQ(Hand().Combo(combo).currentIndex(), 0);
    }
}

TEST_F(Precision, StartsWithTheSettingsOfAllDimensions) {
    EXPECT_TRUE(Hand().IsTicked(Settings));
    EXPECT_TRUE(Hand().IsTicked(Linear));
    EXPECT_TRUE(Hand().IsTicked(Angular));
    EXPECT_EQ(Written(2314), "2:11,12,9");
    for (const auto& [combo, id] : Precisions) {
        EXPECT_TRUE(Hand().IsEnabled(combo)) << combo;
        EXPECT_EQ(Written(id), "3:0") << id;
    }
    for (const auto& [field, id] : Fields) {
        EXPECT_FALSE(Hand().IsEnabled(field)) << field;
        EXPECT_EQ(Hand().Field(field).text(), "0.0");
        EXPECT_EQ(Written(id), "0:") << id;
    }
}

TEST_F(Precision, WhatIsComparedIsWrittenBehindTheDimensions) {
    Hand().Click(Tolerances);
    EXPECT_EQ(Written(2314), "2:11,12,10");
    Hand().Click(Linear);
    EXPECT_EQ(Written(2314), "2:12,10");
    Hand().Click(Settings);
    EXPECT_EQ(Written(2314), "2:12,9");
    Hand().Click(Angular);
    EXPECT_EQ(Written(2314), "2:9");
}

TEST_F(Precision, TolerancesTakeTheSettingsOutButNotTheirValues) {
    Hand().Choose(1256, 3);
    Hand().Click(Tolerances);
    for (const auto& [combo, id] : Precisions)
        EXPECT_FALSE(Hand().IsEnabled(combo)) << combo;
    for (const auto& [field, id] : Fields) {
        EXPECT_TRUE(Hand().IsEnabled(field)) << field;
        EXPECT_EQ(Written(id), "3:0") << id;
    }
    EXPECT_EQ(Written(2282), "3:3");
}

TEST_F(Precision, EachListAndFieldHasItsParameter) {
    int row = 1;
    for (const auto& [combo, id] : Precisions) {
        Hand().Choose(combo, row);
        EXPECT_EQ(Written(id), QString("3:%1").arg(row)) << id;
        EXPECT_EQ(Correction(id), QString::number(row)) << id;
        ++row;
    }
    Hand().Click(Tolerances);
    for (const auto& [field, id] : Fields) {
        Hand().Enter(field, QString("%1.5").arg(row));
        EXPECT_EQ(Written(id), QString("3:%1.5").arg(row)) << id;
        ++row;
    }
    EXPECT_TRUE(messages.texts.isEmpty());
}

TEST_F(Precision, CorrectionsStandBesideTheirLists) {
    const std::pair<int, int> pairs[] = {{1257, 1297}, {1256, 1304}, {1262, 1299},
                                         {1260, 1298}, {1273, 1301}, {1272, 1300}};
    for (const auto& [combo, correction] : pairs) {
        Hand().Choose(combo, 2);
        EXPECT_EQ(Hand().Correction(correction).Edit()->text(), LoadString(2287)) << combo;
        EXPECT_NEAR(Hand().Correction(correction).geometry().center().y(),
                    Hand().Get(combo).geometry().center().y(), 1);
    }
}

TEST_F(Precision, AnEmptyFieldIsZeroAndAPointAloneIsNothing) {
    Hand().Click(Tolerances);
    Hand().Enter(1328, "");
    EXPECT_EQ(Written(2307), "3:0");
    Hand().Enter(1328, ".");
    EXPECT_EQ(Written(2307), "0:");
    EXPECT_EQ(Written(2308), "3:0");
}

TEST_F(Precision, FieldsTakeOneLength) {
    Hand().Click(Tolerances);
    Hand().Enter(1328, "1a.5");
    EXPECT_EQ(Written(2307), "3:1.5");
    Hand().Enter(1328, "1,");
    EXPECT_EQ(messages.texts, CStringArray{LoadString(1977)});
    EXPECT_EQ(Hand().Field(1328).text(), "1");
    messages.texts.clear();
    Hand().Enter(1331, "10000000"); // of an angle, yet checked as a length
    EXPECT_EQ(messages.texts, CStringArray{LoadString(2191)});
    EXPECT_EQ(Hand().Field(1331).text(), "");
    EXPECT_EQ(Written(2309), "3:0");
}

TEST_F(Precision, ShowsTheUnitsOfLengthsAndAngles) {
    EXPECT_EQ(Hand().Get<QLabel>(1333).text(), "mm");
    EXPECT_EQ(Hand().Get<QLabel>(1335).text(), "mm");
    EXPECT_EQ(Hand().Get<QLabel>(1334).text(), LoadString(1633));
    EXPECT_EQ(Hand().Get<QLabel>(1337).text(), LoadString(1633));
    const std::pair<int, int> labels[] = {{1328, 1333}, {1329, 1335}, {1331, 1334}, {1332, 1337}};
    for (const auto& [field, label] : labels) {
        const auto entry = std::ranges::find_if(
            room.units, [&](const auto& unit) { return unit->ValueControl == &Hand().Field(field); });
        ASSERT_NE(entry, room.units.end());
        EXPECT_EQ((*entry)->LabelControl, &Hand().Get<QLabel>(label));
        EXPECT_EQ((*entry)->Dimension, field < 1330 ? 2u : 3u);
    }
}

TEST_F(Precision, ACheckIsShownWithAllItsValues) {
    CCheck check(409, 0, 0, 0, 1);
    Require<long>(check.GetLongParameter(2314), OpOneOf, {12, 10});
    Require<long>(check.GetLongParameter(2284), OpEqual, {8});
    Require<double>(check.GetDoubleParameter(2310), OpEqual, {0.0000254});
    Pane().LoadCheck(check);
    EXPECT_FALSE(Hand().IsTicked(Linear));
    EXPECT_TRUE(Hand().IsTicked(Angular));
    EXPECT_TRUE(Hand().IsTicked(Tolerances));
    EXPECT_FALSE(Hand().IsEnabled(1260));
    EXPECT_EQ(Hand().Combo(1260).currentIndex(), 8);
    EXPECT_EQ(Hand().Field(1332).text(), "0.0000254");
    EXPECT_EQ(Hand().Field(1328).text(), "0.0");
    Pane().LoadCheck(CCheck(409, 0, 0, 0, 1));
    EXPECT_TRUE(Hand().IsTicked(Settings));
    EXPECT_FALSE(Hand().IsTicked(Angular));
    EXPECT_EQ(Hand().Combo(1260).currentIndex(), 0);
    EXPECT_EQ(Hand().Field(1332).text(), "0.0");
}

// What a file brings and no control can show goes with the next change.
TEST_F(Precision, WhatHasNoControlIsDropped) {
    CCheck check(409, 0, 0, 0, 1);
    Require<long>(check.GetLongParameter(2314), OpOneOf, {7, 12, 9}); // a comparison without a box
    Require<long>(check.GetLongParameter(2281), OpEqual, {9});        // a precision without a row
    Require<long>(check.GetLongParameter(2282), OpOneOf, {3, 4});     // a second precision
    Require<double>(check.GetDoubleParameter(2307), OpEqual, {1});    // while settings are compared
    const auto passed = Passed(check);
    EXPECT_EQ(::Written(*passed, 2314), "2:12,9");
    EXPECT_EQ(::Written(*passed, 2281), "3:0");
    EXPECT_EQ(::Written(*passed, 2282), "3:3");
    EXPECT_EQ(::Written(*passed, 2307), "0:");
}

TEST_F(Gaps, EachFieldIsWrittenKeyByKey) {
    Hand().Enter(Distance, "1.5");
    Hand().Enter(Extension, "2");
    EXPECT_EQ(Written(2293), "3:1.5");
    EXPECT_EQ(Written(2294), "3:2");
    EXPECT_EQ(Correction(2293), "1.5");
    EXPECT_EQ(Correction(2294), "2");
    EXPECT_EQ(Written(1690), "0:");
    Hand().Enter(Distance, "");
    EXPECT_EQ(Written(2293), "3:");
}

TEST_F(Gaps, TokensThatAreNoNumbersAreLeftOut) {
    Hand().Enter(Distance, "1.5,.,2");
    EXPECT_EQ(Written(2293), "3:1.5,2");
    Hand().Enter(Extension, "2x");
    EXPECT_EQ(Written(2294), "3:2");
}

TEST_F(Gaps, ALengthOutOfBoundsIsRefused) {
    Hand().Enter(Distance, "10000000");
    EXPECT_EQ(messages.texts, CStringArray{LoadString(2191)});
    EXPECT_EQ(Written(2293), "3:");
}

TEST_F(Gaps, TheSettingOfTheDocumentTakesTheFieldsOut) {
    Hand().Enter(Distance, "1.5");
    Hand().Click(UseDocumentGap);
    EXPECT_EQ(Written(1690), "3:1");
    EXPECT_EQ(Written(2293), "0:");
    EXPECT_EQ(Written(2294), "0:");
    EXPECT_EQ(Correction(1690), "1");
    EXPECT_FALSE(Hand().IsEnabled(Distance));
    EXPECT_FALSE(Hand().IsEnabled(Extension));
    Gui::Key(Hand().Get(UseDocumentGap), Qt::Key_Space);
    EXPECT_EQ(Written(2293), "3:1.5");
    EXPECT_TRUE(Hand().IsEnabled(Distance));
}

TEST_F(Gaps, EachUnitStandsBesideItsField) {
    const std::pair<QWidget*, int> labels[] = {{&Hand().Get(Distance), 1286},
                                               {&Hand().Get(Extension), 1287},
                                               {Hand().Correction(1297).Edit(), 1289},
                                               {Hand().Correction(1298).Edit(), 1290}};
    for (const auto& [field, number] : labels) {
        const auto entry =
            std::ranges::find_if(room.units, [&](const auto& unit) { return unit->ValueControl == field; });
        ASSERT_NE(entry, room.units.end()) << number;
        EXPECT_EQ((*entry)->LabelControl, &Hand().Get<QLabel>(number));
        EXPECT_EQ(Hand().Get<QLabel>(number).text(), "mm");
        const auto middle = [&](const QWidget& widget) {
            return widget.mapTo(&Pane(), widget.rect().center()).y();
        };
        EXPECT_NEAR(middle(*field), middle(Hand().Get(number)), 2) << number;
    }
}

TEST_F(Gaps, ACheckIsShownToTenDecimals) {
    CCheck check(314, 0, 0, 0, 1);
    Require<double>(check.GetDoubleParameter(2293), OpEqual, {0.0000254, 2});
    Pane().LoadCheck(check);
    EXPECT_EQ(Hand().Field(Distance).text(), "0.0000254 , 2");
    EXPECT_EQ(Hand().Field(Extension).text(), "");
}

TEST_F(Gaps, FiftyValuesAreToldByTheTip) {
    CStringArray values;
    for (int i = 1; i <= 50; ++i)
        values.append(QString::number(i) + ".5");
    Hand().Enter(Distance, values.join(u','));
    EXPECT_EQ(Live().GetDoubleParameter(2293)->Values.Count, 50);
    EXPECT_EQ(Gui::TipAt(Hand().Get(Distance), {5, 5}), "<qt>" + values.join(u','));
    EXPECT_EQ(Gui::TipAt(Hand().Get(Extension), {5, 5}), "");
}

// Any comparison is shown as an equality, and beyond ten decimals nothing is.
TEST_F(Gaps, WhatHasNoControlIsDropped) {
    CCheck check(314, 0, 0, 0, 1);
    Require<double>(check.GetDoubleParameter(2293), OpAtMost, {2});
    Require<double>(check.GetDoubleParameter(2294), OpEqual, {1.00000000009});
    const auto passed = Passed(check);
    EXPECT_EQ(::Written(*passed, 2293), "3:2");
    EXPECT_NEAR(passed->GetDoubleParameter(2294)->Values[0], 1.0000000001, 1e-13);
}
