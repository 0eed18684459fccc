#include "platform/widgets/ControlHost.h"

#include "support/Gui.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSpinBox>
#include <gtest/gtest.h>

namespace {

constexpr int NameEdit = 1, AgreeBox = 2, FirstRadio = 3, SecondRadio = 4, ColorCombo = 5, CountBox = 6,
              RowList = 7;

class Form : public QWidget, public ControlHost {
public:
    Form() : ControlHost(static_cast<QWidget&>(*this)) {
        auto* layout = new QHBoxLayout(this);
        auto* combo = new QComboBox;
        combo->addItems({"red", "green", "blue"});
        auto* list = new QListWidget;
        list->addItems({"one", "two"});
        int number = NameEdit;
        for (QWidget* control :
             std::initializer_list<QWidget*>{new QLineEdit, new QCheckBox("Agree"), new QRadioButton("First"),
                                             new QRadioButton("Second"), combo, new QSpinBox, list}) {
            AddControl(number++, control);
            layout->addWidget(control);
        }
    }

    void Wire() {
        On(NameEdit, ControlEvent::Change, &Form::OnChange);
        On(NameEdit, ControlEvent::KillFocus, &Form::OnKillFocus);
        On(AgreeBox, ControlEvent::Clicked, &Form::OnClicked);
        On(ColorCombo, ControlEvent::SelChange, &Form::OnSelChange);
        On(RowList, ControlEvent::SelChange, &Form::OnSelChange);
        On(99, ControlEvent::Clicked, &Form::OnClicked); // no such control
    }

    CString Name;
    int Agree = 0, Radio = -1, Color = -1, Count = 0;
    int changes = 0, leavings = 0, clicks = 0, choices = 0;

protected:
    void DoDataExchange(DataExchange& exchange) override {
        exchange.Text(NameEdit, Name);
        exchange.Check(AgreeBox, Agree);
        exchange.Radio({FirstRadio, SecondRadio}, Radio);
        exchange.ComboIndex(ColorCombo, Color);
        exchange.Number(CountBox, Count);
        exchange.Check(98, Agree); // no such control
    }

private:
    void OnChange() {
        ++changes;
        UpdateData(true);
    }
    void OnKillFocus() { ++leavings; }
    void OnClicked() { ++clicks; }
    void OnSelChange() { ++choices; }
};

} // namespace

TEST(ControlHost, DataGoBothWays) {
    Form form;
    form.Name = "bolt";
    form.Agree = 1;
    form.Radio = 1;
    form.Color = 2;
    form.Count = 7;
    ASSERT_TRUE(form.UpdateData(false));
    EXPECT_EQ(form.GetDlgItem<QLineEdit>(NameEdit)->text(), "bolt");
    EXPECT_TRUE(form.GetDlgItem<QRadioButton>(SecondRadio)->isChecked());
    form.GetDlgItem<QRadioButton>(FirstRadio)->setChecked(true);
    form.GetDlgItem<QCheckBox>(AgreeBox)->setChecked(false);
    form.GetDlgItem<QComboBox>(ColorCombo)->setCurrentIndex(0);
    form.GetDlgItem<QSpinBox>(CountBox)->setValue(9);
    ASSERT_TRUE(form.UpdateData(true));
    EXPECT_EQ(form.Agree, 0);
    EXPECT_EQ(form.Radio, 0);
    EXPECT_EQ(form.Color, 0);
    EXPECT_EQ(form.Count, 9);
}

TEST(ControlHost, ShowingDataRaisesNoEvent) {
    Form form;
    form.Wire();
    form.Name = "nut";
    form.Color = 1;
    form.UpdateData(false);
    EXPECT_EQ(form.changes + form.choices + form.clicks, 0);
}

TEST(ControlHost, WhatAHandDoesIsTold) {
    Form form;
    form.Wire();
    Gui::Show(form);
    Gui::Focus(*form.GetDlgItem(NameEdit));
    Gui::Type(*form.GetDlgItem(NameEdit), "äb");
    EXPECT_EQ(form.changes, 2);
    EXPECT_EQ(form.Name, "äb");
    Gui::Key(*form.GetDlgItem(NameEdit), Qt::Key_Tab);
    EXPECT_EQ(form.leavings, 1);
    Gui::Click(*form.GetDlgItem(AgreeBox));
    EXPECT_EQ(form.clicks, 1);
    Gui::ChooseRow(*form.GetDlgItem(ColorCombo), 2);
    EXPECT_EQ(form.choices, 2);
    EXPECT_EQ(form.GetDlgItem<QComboBox>(ColorCombo)->currentIndex(), 2);
}

TEST(ControlHost, ATextSetByCodeCountsAsAChange) {
    Form form;
    form.Wire();
    form.GetDlgItem<QLineEdit>(NameEdit)->setText("x");
    EXPECT_EQ(form.changes, 1);
}

TEST(ControlHost, AControlOfAnotherClassIsNone) {
    const Form form;
    EXPECT_EQ(form.GetDlgItem<QLineEdit>(AgreeBox), nullptr);
    EXPECT_EQ(form.GetDlgItem(99), nullptr);
}
