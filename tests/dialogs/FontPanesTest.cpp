// What the panes of the font checks offer, and which of it has a say.
#include "FontRoom.h"

#include "dialogs/FontPanes.h"
#include "editing/ExACRichEdit.h"
#include "support/Language.h"

#include <QApplication>
#include <QFontDatabase>
#include <algorithm>
#include <map>

namespace {

using FontPane = FontRoom;

class OverridingFontPane : public FontRoom {
protected:
    OverridingFontPane() : FontRoom(Font::Dimensions) {}
};

constexpr int OwnControls[] = {1001, 1002, 1003, 1004, 1006, 1007, 1008, 1136, 1137, 1138};

} // namespace

TEST(FontChecks, EachOfTheDocumentsFontsHasItsCaptionPictureAndHelp) {
    ExpectPanes({{109, 1149, 1908, 1006},
                 {110, 1157, 1916, 1014},
                 {111, 1150, 1909, 1007},
                 {112, 1151, 1910, 1008},
                 {113, 1152, 1911, 1009},
                 {114, 1153, 1912, 1010},
                 {115, 1154, 1913, 1011},
                 {116, 1155, 1914, 1012},
                 {117, 1156, 1915, 1013},
                 {119, 1253, 2185, 1015},
                 {120, 1254, 2189, 1016},
                 {403, 1161, 1699, 1203},
                 {202, 1159, 1715, 1102}});
}

TEST(FontChecks, AnUnknownTypeLooksLikeTheFirst) {
    PaneRoom room;
    const CDocFontCheckDlg pane(room, 118);
    EXPECT_EQ(pane.IconID, 1149u);
    EXPECT_EQ(pane.Caption, LoadString(1908));
    EXPECT_EQ(pane.CheckType, 118);
}

TEST_F(FontPane, OffersTheToldRows) {
    const CStringArray points = {LoadString(1632), "=", "<", ">", "<=", ">="};
    const CStringArray lengths = points + CStringArray{LoadString(1657), LoadString(1658), LoadString(1659)};
    EXPECT_EQ(Gui::RowsOf(Hand().Combo(Font::HeightCombo)), lengths);
    EXPECT_EQ(Gui::RowsOf(Hand().Combo(Font::SpacingCombo)), lengths);
    EXPECT_EQ(Gui::RowsOf(Hand().Combo(Font::PointsCombo)), points);
    EXPECT_EQ(Gui::RowsOf(Hand().Combo(Font::PointSizes)),
              CString("8,9,10,11,12,14,16,18,20,22,24,26,28,36,48,72").split(u','));
    for (const int box : {Font::StrikeoutBox, Font::UnderlineBox})
        EXPECT_EQ(Gui::RowsOf(Hand().Combo(box)),
                  (CStringArray{LoadString(1632), LoadString(1660), LoadString(1661)}));
    const auto& styles = Hand().Get<CChoiceList>(Font::Styles);
    ASSERT_EQ(styles.count(), 4);
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(styles.item(row)->text(), LoadString(1695 + static_cast<unsigned>(row)));
    const auto& names = Hand().Get<CChoiceList>(Font::Names);
    EXPECT_GT(names.count(), 0);
    for (int row = 0; row < names.count(); ++row)
        EXPECT_TRUE(QFontDatabase::hasFamily(names.item(row)->text()));
}

TEST_F(FontPane, StartsWithHeightsInUnitsAndNothingRequired) {
    EXPECT_TRUE(Hand().Get<QAbstractButton>(Font::Units).isChecked());
    for (const int enabled : {1001, 1003, 1007, 1008, 1136, 1137})
        EXPECT_TRUE(Hand().IsEnabled(enabled)) << enabled;
    for (const int disabled : {1002, 1004, 1006, 1138})
        EXPECT_FALSE(Hand().IsEnabled(disabled)) << disabled;
    for (const int first : {1001, 1003, 1006, 1007, 1008, 1138})
        EXPECT_EQ(Hand().Combo(first).currentIndex(), 0) << first;
    for (unsigned id = Font::Name; id <= Font::PointHeight; ++id)
        EXPECT_EQ(Written(id), "0:") << id;
}

TEST_F(FontPane, ShowsTheUnitBesideEachHeight) {
    for (const int label : {1210, 1211, 1212, 1213})
        EXPECT_EQ(Hand().Get<QLabel>(label).text(), "mm") << label;
}

TEST_F(FontPane, UnitsOfCorrectionsStandBesideTheirFields) {
    room.Add(Font::Dimensions);
    room.Add(Font::Annotations);
    const auto labelOf = [this](MQC_CheckType_e type, int correction) {
        const FontHand hand(*room.Pane(type));
        for (const auto& entry : room.units)
            if (entry->ValueControl == hand.Correction(correction).Edit())
                return entry->LabelControl->objectName().toInt();
        return 0;
    };
    EXPECT_EQ(labelOf(Font::Notes, 1300), 1213);
    EXPECT_EQ(labelOf(Font::Notes, 1301), 1212);
    for (const MQC_CheckType_e type : {Font::Dimensions, Font::Annotations}) {
        EXPECT_EQ(labelOf(type, 1301), 1212);
        EXPECT_EQ(labelOf(type, 1302), 1213);
    }
    // And on the row of the field, whatever the number.
    for (const MQC_CheckType_e type : {Font::Notes, Font::Dimensions, Font::Annotations})
        for (const auto& entry : room.units)
            if (const FontHand hand(*room.Pane(type)); room.Pane(type)->isAncestorOf(entry->LabelControl)) {
                const auto middle = [&](const QWidget& widget) {
                    return widget.mapTo(room.Pane(type), widget.rect().center()).y();
                };
                EXPECT_NEAR(middle(*entry->LabelControl), middle(*entry->ValueControl), 2);
            }
}

TEST_F(FontPane, FontsAreChosenByClicksAndByKeys) {
    const auto& list = Hand().Get<CChoiceList>(Font::Names);
    ASSERT_GE(list.count(), 2);
    const CString first = list.item(0)->text(), second = list.item(1)->text();
    Hand().ClickRow(Font::Names, 1);
    EXPECT_EQ(Written(Font::Name), "2:" + second);
    Hand().ClickRow(Font::Names, 0);
    EXPECT_EQ(Written(Font::Name), "2:" + first + u',' + second);
    Gui::Key(Hand().Get(Font::Names), Qt::Key_Down);
    Gui::Key(Hand().Get(Font::Names), Qt::Key_Space);
    EXPECT_EQ(Written(Font::Name), "2:" + first);
}

TEST_F(FontPane, WithoutAFontTheNameIsNotTestedAndItsCorrectionIsEmpty) {
    Hand().ClickRow(Font::Names, 0);
    EXPECT_FALSE(Hand().Correction(1304).Choices.Strings.isEmpty());
    Hand().ClickRow(Font::Names, 0);
    EXPECT_EQ(Written(Font::Name), "0:");
    EXPECT_TRUE(Hand().Correction(1304).Choices.Strings.isEmpty());
    EXPECT_EQ(Hand().Correction(1304).Choices.HasValue, 0);
}

TEST_F(FontPane, AllStylesAreSeenAtOnceAndAreHitAnywhereInTheirRow) {
    for (const int width : {740, 1100}) {
        room.GetChecksPage().resize(width, 900);
        Gui::Settle();
        const auto& list = Hand().Get<CChoiceList>(Font::Styles);
        for (int row = 0; row < list.count(); ++row) {
            const QRect place = list.visualItemRect(list.item(row));
            EXPECT_TRUE(list.viewport()->rect().contains(place)) << width << ' ' << row;
            EXPECT_GE(place.width(), list.viewport()->width() / 2 - 2) << width << ' ' << row;
            EXPECT_EQ(place.height(), CChoiceList::RowHeight);
        }
    }
}

TEST_F(FontPane, StylesWriteTheirCodes) {
    for (int row = 3; row >= 0; --row)
        Hand().ClickRow(Font::Styles, row);
    EXPECT_EQ(Written(Font::Style), "2:1,2,3,4");
    Hand().ClickRow(Font::Styles, 0);
    EXPECT_EQ(Written(Font::Style), "2:2,3,4");
    EXPECT_EQ(Live().GetLongParameter(Font::Style)->Correction, 4); // chosen first, and still listed
    Hand().ClickRow(Font::Styles, 3);
    EXPECT_EQ(Live().GetLongParameter(Font::Style)->Correction, 2);
}

TEST_F(FontPane, ASingleStyleIsAGoodCorrectionAndLooksLikeOne) {
    Hand().ClickRow(Font::Styles, 2);
    const CMyStatic& correction = Hand().Correction(1297);
    EXPECT_TRUE(correction.List()->isVisible());
    EXPECT_EQ(correction.List()->currentText(), LoadString(1697));
    EXPECT_EQ(Live().GetLongParameter(Font::Style)->Correction, 3);
}

TEST_F(FontPane, YesAndNoAreWrittenWithTheirCorrection) {
    Hand().Choose(Font::StrikeoutBox, 1);
    EXPECT_EQ(Written(Font::Strikeout), "3:1");
    EXPECT_EQ(Hand().Correction(1298).Edit()->text(), LoadString(1660));
    EXPECT_EQ(Live().GetIntParameter(Font::Strikeout)->Correction, 1);
    Hand().Choose(Font::UnderlineBox, 2);
    EXPECT_EQ(Written(Font::Underline), "3:0");
    EXPECT_EQ(Hand().Correction(1299).Edit()->text(), LoadString(1661));
    EXPECT_EQ(Live().GetIntParameter(Font::Underline)->Correction, 0);
    Hand().Choose(Font::StrikeoutBox, 0);
    EXPECT_EQ(Written(Font::Strikeout), "0:");
}

TEST_F(FontPane, HeightInPointsTakesTheOtherHeightsOut) {
    Hand().Click(Font::Points);
    for (const int disabled : {1001, 1002, 1003, 1004, 1138})
        EXPECT_FALSE(Hand().IsEnabled(disabled)) << disabled;
    EXPECT_TRUE(Hand().IsEnabled(Font::PointsCombo));
    Hand().Choose(Font::PointsCombo, Font::AtLeast);
    EXPECT_TRUE(Hand().IsEnabled(Font::PointSizes));
    Hand().Choose(Font::PointSizes, 4);
    EXPECT_EQ(Written(Font::PointHeight), "7:12");
    EXPECT_EQ(Written(Font::Height), "0:");
    Hand().Choose(Font::PointsCombo, Font::Any);
    EXPECT_FALSE(Hand().IsEnabled(Font::PointSizes));
    Hand().Click(Font::Units);
    EXPECT_TRUE(Hand().IsEnabled(Font::HeightCombo));
    EXPECT_FALSE(Hand().IsEnabled(Font::PointsCombo));
}

TEST_F(FontPane, AClickOnUnitsGoesOnInTheHeightAndAKeyStays) {
    Hand().Enter(Font::HeightCombo, Font::Equal, "3");
    Hand().Click(Font::Points);
    Hand().Click(Font::Units);
    EXPECT_EQ(QApplication::focusWidget(), &Hand().Get(Font::HeightField));
    Gui::Focus(Hand().Get(Font::Units));
    Gui::Key(Hand().Get(Font::Units), Qt::Key_Right);
    EXPECT_TRUE(Hand().Get<QAbstractButton>(Font::Points).isChecked());
    Gui::Key(Hand().Get(Font::Points), Qt::Key_Left);
    EXPECT_TRUE(Hand().Get<QAbstractButton>(Font::Units).isChecked());
    EXPECT_EQ(Written(Font::Height), "3:3");
    EXPECT_EQ(QApplication::focusWidget(), &Hand().Get(Font::Units));
}

TEST_F(FontPane, HeightsInUnitsAreLostOnlyWhenPointsAreChosen) {
    Hand().Enter(Font::HeightCombo, Font::Equal, "3");
    Hand().Choose(Font::UnderlineBox, 1);
    EXPECT_EQ(Written(Font::Height), "3:3");
    Hand().Click(Font::Points);
    EXPECT_EQ(Written(Font::Height), "0:");
    Hand().Click(Font::Units);
    EXPECT_EQ(Written(Font::Height), "3:3"); // the boxes kept it
}

TEST_F(OverridingFontPane, TheFontOfTheDocumentTakesAllElseOut) {
    Hand().ClickRow(Font::Names, 0);
    Hand().Enter(Font::HeightCombo, Font::Equal, "3");
    Hand().Click(Font::DocumentFontBox);
    EXPECT_EQ(Written(Font::DocumentFont), "3:1");
    for (unsigned id = Font::Name; id <= Font::PointHeight; ++id)
        EXPECT_EQ(Written(id), "0:") << id;
    for (const int number : OwnControls)
        EXPECT_FALSE(Hand().IsEnabled(number)) << number;
    EXPECT_EQ(Hand().Correction(1304).Edit()->text(), LoadString(1660));
    Gui::Key(Hand().Get(Font::DocumentFontBox), Qt::Key_Space);
    EXPECT_EQ(Written(Font::DocumentFont), "0:");
    EXPECT_EQ(Written(Font::Height), "3:3");
    EXPECT_TRUE(Hand().IsEnabled(Font::HeightField));
}

TEST_F(OverridingFontPane, LoadingTheFontOfTheDocumentDisablesTheRest) {
    CCheck check(Font::Dimensions, 0, 0, 0, 1);
    check.GetIntParameter(Font::DocumentFont)->Operator = OpEqual;
    check.GetIntParameter(Font::DocumentFont)->Values.Add(1);
    Pane().LoadCheck(check);
    EXPECT_TRUE(Hand().Get<QAbstractButton>(Font::DocumentFontBox).isChecked());
    for (const int number : OwnControls)
        EXPECT_FALSE(Hand().IsEnabled(number)) << number;
    Pane().LoadCheck(CCheck(Font::Dimensions, 0, 0, 0, 1));
    EXPECT_FALSE(Hand().Get<QAbstractButton>(Font::DocumentFontBox).isChecked());
    EXPECT_TRUE(Hand().IsEnabled(Font::Names));
}

TEST_F(FontPane, TheCriticalityIsWrittenWithTheRest) {
    Hand().ClickRow(Font::Styles, 0);
    Hand().Choose(1249, 3);
    EXPECT_EQ(Live().Criticality, 3u);
    EXPECT_EQ(Written(Font::Style), "2:1");
}

TEST_F(FontPane, EveryInputHasANameOfItsOwn) {
    std::map<CString, CString> names;
    for (const int number : {1001, 1002, 1003, 1004, 1006, 1007, 1008, 1136, 1137, 1138, 1297, 1298, 1299,
                             1300, 1301, 1302, 1304, 1249}) {
        const CString name = Hand().Get(number).accessibleName();
        EXPECT_FALSE(name.isEmpty()) << number;
        EXPECT_TRUE(names.emplace(name, name).second) << name.toStdString();
    }
    EXPECT_EQ(Hand().Get(Font::HeightField).accessibleName(), LoadString(1704));
    EXPECT_EQ(Hand().Get(Font::SpacingField).accessibleName(), LoadString(1705));
}

TEST_F(FontPane, TabFollowsTheRows) {
    Hand().Enter(Font::HeightCombo, Font::Equal, "3");
    Hand().Enter(Font::SpacingCombo, Font::Equal, "1");
    Gui::Focus(Hand().Get(Font::Names));
    CStringArray order;
    for (int step = 0; step < 9; ++step) {
        const QWidget* now = QApplication::focusWidget();
        while (now && now->objectName().toInt() == 0)
            now = now->parentWidget();
        order.append(now ? now->objectName() : CString());
        Gui::Key(*QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, (CStringArray{"1136", "1137", "1007", "1008", "1000", "1001", "1002", "10001", "1003"}));
}

TEST(FontChecks, KeysOfTheLabelsDifferInEachLanguage) {
    for (const char* name : {"English", "German"}) {
        const Language language(name);
        for (const MQC_CheckType_e type : {Font::Notes, Font::Dimensions, Font::Annotations}) {
            PaneRoom room;
            room.Show();
            const CExtDialog& pane = room.Add(type);
            CString keys;
            const auto note = [&keys](const CString& text) {
                if (const qsizetype mark = text.indexOf(u'&'); mark >= 0 && mark + 1 < text.size())
                    keys += text[mark + 1].toLower();
            };
            for (const auto* label : pane.findChildren<QLabel*>())
                note(label->text());
            for (const auto* button : pane.findChildren<QAbstractButton*>())
                if (button->isVisible())
                    note(button->text());
            CString different = keys;
            std::sort(different.begin(), different.end());
            different.erase(std::unique(different.begin(), different.end()), different.end());
            EXPECT_EQ(keys.size(), different.size()) << name << ' ' << keys.toStdString();
        }
    }
}
