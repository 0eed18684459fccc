// The options page and the sheet of pages.
#include "editing/CheckPropertySheet.h"
#include "editing/PageRoom.h"
#include "editing/RulewardOptions.h"
#include "editing/TabCtrlInPropertySheet.h"
#include "platform/LanguageLibrary.h"

#include <QApplication>
#include <QComboBox>
#include <QRadioButton>

namespace {

constexpr unsigned Inches = 1629, Millimetres = 1624, FeetAndInches = 1631, Degrees = 1633, Radians = 1636;

class OptionsPage : public ::testing::Test {
protected:
    void Make() { options = std::make_unique<CRulewardOptions>(host); }
    void Show() {
        options->resize(800, 500);
        Gui::Show(*options);
    }
    QComboBox& Lengths() { return *options->GetDlgItem<QComboBox>(1280); }
    QComboBox& Angles() { return *options->GetDlgItem<QComboBox>(1341); }
    QRadioButton& Radio(int number) { return *options->GetDlgItem<QRadioButton>(number); }

    PageHost host;
    std::unique_ptr<CRulewardOptions> options;
};

class Sheet : public ::testing::Test {
protected:
    Sheet() {
        for (const auto& [title, key] : {std::pair("One", Qt::Key_F5), std::pair("Two", Qt::Key_F6)}) {
            const auto make = [this] {
                auto* page = new QWidget;
                page->setFocusPolicy(Qt::StrongFocus);
                ++made;
                return page;
            };
            sheet.AddPage(make, title, key, [this, title = CString(title)] { shown.append(title); });
        }
        sheet.resize(600, 400);
        shown.clear();
    }

    CCheckPropertySheet sheet;
    CStringArray shown;
    int made = 0;
};

TEST_F(Sheet, APageIsMadeWhenItIsFirstSeen) {
    EXPECT_EQ(made, 1);
    sheet.ActivatePage(1);
    EXPECT_EQ(made, 2);
    EXPECT_EQ(sheet.GetPage(1).accessibleName(), "Two");
    sheet.ActivatePage(0);
    sheet.ActivatePage(1);
    EXPECT_EQ(made, 2);
}

} // namespace

TEST_F(OptionsPage, OffersTenUnitsOfLengthAndTwoOfAngle) {
    Make();
    ASSERT_EQ(Lengths().count(), 10);
    for (int row = 0; row < 10; ++row)
        EXPECT_EQ(Lengths().itemText(row), LoadString(1621 + static_cast<unsigned>(row)));
    ASSERT_EQ(Angles().count(), 2);
    EXPECT_EQ(Angles().itemText(0), LoadString(Degrees));
    EXPECT_EQ(Angles().itemText(1), LoadString(Radians));
}

TEST_F(OptionsPage, ShowsTheUnitsOfTheNames) {
    Make();
    options->OnSetActive(LoadString(Inches), LoadString(Radians));
    EXPECT_EQ(Lengths().currentText(), LoadString(Inches));
    EXPECT_EQ(Angles().currentText(), LoadString(Radians));
}

TEST_F(OptionsPage, AUnitThatIsNotOfferedSelectsNothing) {
    Make();
    options->OnSetActive(LoadString(Inches), LoadString(Degrees));
    options->OnSetActive(LoadString(FeetAndInches), LoadString(Degrees));
    EXPECT_EQ(Lengths().currentIndex(), -1);
    EXPECT_EQ(options->LengthUnitName, LoadString(FeetAndInches));
}

TEST_F(OptionsPage, WithoutANameTheRowDecides) {
    Make();
    options->LengthUnitIndex = 3;
    options->AngleUnitIndex = -1;
    options->OnSetActive({}, {});
    EXPECT_EQ(Lengths().currentIndex(), 3);
    EXPECT_EQ(Angles().currentIndex(), -1);
}

TEST_F(OptionsPage, AChosenUnitIsTold) {
    Make();
    CStringArray told;
    options->LengthUnitChosen = [&] { told.append(options->LengthUnitName); };
    options->AngleUnitChosen = [&] { told.append(options->AngleUnitName); };
    options->OnSetActive(LoadString(Millimetres), LoadString(Degrees));
    EXPECT_TRUE(told.isEmpty()) << "showing is not choosing";
    Show();
    Gui::ChooseRow(Lengths(), 4);
    Gui::ChooseRow(Angles(), 1);
    EXPECT_EQ(told, (CStringArray{LoadString(1625), LoadString(Radians)}));
    EXPECT_EQ(options->LengthUnitIndex, 4);
    EXPECT_EQ(options->AngleUnitIndex, 1);
}

TEST_F(OptionsPage, TheConfigurationIsThatOfTheStandard) {
    host.standard.RunRWConfigOption = 1;
    Make();
    EXPECT_TRUE(Radio(1239).isChecked());
    Show();
    Gui::Click(Radio(1238));
    EXPECT_EQ(host.standard.RunRWConfigOption, 0);
    host.standard.RunRWConfigOption = 1;
    options->OnSetActive({}, {});
    EXPECT_TRUE(Radio(1239).isChecked());
    EXPECT_FALSE(Radio(1238).isChecked());
}

TEST_F(OptionsPage, AConfigurationThatIsNotOfferedIsKept) {
    host.standard.RunRWConfigOption = 7;
    Make();
    options->OnSetActive({}, {});
    EXPECT_FALSE(Radio(1238).isChecked());
    EXPECT_FALSE(Radio(1239).isChecked());
    EXPECT_EQ(host.standard.RunRWConfigOption, 7);
}

TEST_F(OptionsPage, EveryInputHasANameAndAKey) {
    Make();
    EXPECT_FALSE(Lengths().accessibleName().isEmpty());
    EXPECT_FALSE(Angles().accessibleName().isEmpty());
    EXPECT_TRUE(Radio(1238).text().contains('&'));
    EXPECT_TRUE(Radio(1239).text().contains('&'));
}

TEST_F(Sheet, AClickedTabShowsItsPage) {
    Gui::Show(sheet);
    Gui::ClickAt(sheet.GetTabs(), sheet.GetTabs().tabRect(1).center());
    EXPECT_EQ(sheet.GetActivePage(), 1);
    EXPECT_EQ(shown, CStringArray{"Two"});
}

TEST_F(Sheet, APageIsToldEvenIfItIsInFrontAlready) {
    sheet.ActivatePage(0);
    EXPECT_EQ(shown, CStringArray{"One"});
}

TEST_F(Sheet, KeysSwitchThePages) {
    Gui::Show(sheet);
    sheet.GetTabs().setFocus();
    Gui::Key(sheet.GetTabs(), Qt::Key_F6);
    EXPECT_EQ(sheet.GetActivePage(), 1);
    Gui::Key(*QApplication::focusWidget(), Qt::Key_F5);
    EXPECT_EQ(sheet.GetActivePage(), 0);
    Gui::Key(*QApplication::focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(sheet.GetActivePage(), 1);
    Gui::Key(*QApplication::focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(sheet.GetActivePage(), 0) << "from the last page on to the first";
    Gui::Key(*QApplication::focusWidget(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(sheet.GetActivePage(), 1);
}

TEST_F(Sheet, ATabTellsItsPageAndKey) {
    EXPECT_EQ(sheet.GetTabs().tabToolTip(0), "One (F5)");
}
