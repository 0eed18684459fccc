#include "editing/MyStatic.h"

#include "editing/ComboBoxExt.h"
#include "editing/ExACRichEdit.h"
#include "model/Parameter.h"
#include "platform/LanguageLibrary.h"
#include "platform/widgets/Look.h"
#include "support/Messages.h"
#include "support/ShownWindow.h"

#include <QAbstractItemView>
#include <gtest/gtest.h>

namespace {

class CorrectionControl : public testing::Test {
protected:
    CorrectionControl() : m_control(*m_window.Add<CMyStatic>()), m_other(*m_window.Add<QLineEdit>()) {
        EXPECT_TRUE(m_window.Show());
        QObject::connect(&m_control, &CMyStatic::Committed, &m_control, [this] { ++m_commits; });
    }

    void Set(int mode, unsigned comparison, const CStringArray& strings, const CString& text = {}) {
        m_control.SetMode(mode, -1);
        CorrectionChoices record;
        record.Operator = comparison;
        record.Strings = strings;
        record.EntryStyle = mode;
        record.Text = text;
        record.HasValue = text.isEmpty() ? 0 : 1;
        record.SelectedIndex = static_cast<int>(strings.indexOf(text));
        m_control.SetChoices(record);
    }

    void SetImages(const QList<int>& numbers, int selected) {
        m_control.SetMode(ImageEntry, 0);
        CorrectionChoices record;
        record.Operator = OpOneOf;
        record.Numbers = numbers;
        record.EntryStyle = ImageEntry;
        record.Text = QString::number(numbers[selected]);
        record.HasValue = 1;
        record.SelectedIndex = selected;
        m_control.SetChoices(record);
    }

    void Enter(const CString& text) {
        Edit().setFocus();
        Edit().selectAll();
        QTest::keyClicks(&Edit(), text);
    }

    void Leave() {
        m_other.setFocus();
        QCoreApplication::processEvents();
    }

    QRgb Ground() { return Edit().palette().color(QPalette::Base).rgb(); }
    CExACRichEdit& Edit() { return *m_control.Edit(); }
    CComboBoxExt& List() { return *m_control.List(); }

    ShownWindow m_window;
    CMyStatic& m_control;
    QLineEdit& m_other;
    int m_commits = 0;
    Messages m_messages;
};

} // namespace

TEST_F(CorrectionControl, ChildrenHaveTheirNumbers) {
    EXPECT_EQ(Edit().objectName(), "10001");
    EXPECT_EQ(List().objectName(), "10002");
    EXPECT_EQ(m_control.Mode(), TextEntry);
}

TEST_F(CorrectionControl, WithoutAnOperatorTheFieldIsEmptyAndDisabled) {
    EXPECT_TRUE(Edit().isVisible());
    EXPECT_FALSE(Edit().isEnabled());
    EXPECT_EQ(Edit().text(), "");
    Set(NumberEntry, OpAbove, {"4"}, "9");
    EXPECT_TRUE(Edit().isEnabled());
    EXPECT_EQ(Edit().text(), "9");
    m_control.SetChoices({});
    EXPECT_FALSE(Edit().isEnabled());
    EXPECT_EQ(Edit().text(), "");
}

TEST_F(CorrectionControl, SetModeForgetsTheChoices) {
    Set(TextEntry, OpOneOf, {"A", "B"}, "B");
    m_control.SetMode(TextEntry, 7);
    EXPECT_EQ(m_control.Extra(), 7);
    EXPECT_TRUE(m_control.Choices.Strings.isEmpty());
    EXPECT_EQ(m_control.Choices.Operator, 0u);
    EXPECT_EQ(m_control.Choices.SelectedIndex, -1);
}

TEST_F(CorrectionControl, ADefaultIsMadeAndShown) {
    Set(NumberEntry, OpAbove, {"4"});
    EXPECT_EQ(Edit().text(), "5");
    EXPECT_EQ(m_control.Choices.HasValue, 1);
    EXPECT_EQ(m_commits, 0);
}

TEST_F(CorrectionControl, ANumberFieldTakesDigitsAndOnePoint) {
    Set(NumberEntry, OpAbove, {"0"}, "1");
    Enter("1a2.5.7");
    EXPECT_EQ(Edit().text(), "12.75");
    EXPECT_EQ(m_control.Choices.Text, "12.75");
}

TEST_F(CorrectionControl, TheCaretStandsBehindTheFirstPointAfterASecond) {
    Set(NumberEntry, OpAbove, {"0"}, "1");
    Enter("2.5");
    QTest::keyClicks(&Edit(), ".");
    EXPECT_EQ(Edit().text(), "2.5");
    EXPECT_EQ(Edit().cursorPosition(), 2);
}

TEST_F(CorrectionControl, ATextFieldTakesEverything) {
    Set(TextEntry, OpContains, {"ab"}, "ab");
    Enter("xab-1. 5");
    EXPECT_EQ(Edit().text(), "xab-1. 5");
}

TEST_F(CorrectionControl, TheGroundTellsWhetherTheEntryHolds) {
    Set(NumberEntry, OpAtLeast, {"10"}, "12");
    EXPECT_EQ(Ground(), Look::CorrectionGround);
    Enter("1");
    EXPECT_EQ(Ground(), qRgb(0xFF, 0x96, 0x96));
    QTest::keyClicks(&Edit(), "5");
    EXPECT_EQ(Ground(), qRgb(0xFF, 0xFF, 0xFF));
    Leave();
    EXPECT_EQ(Ground(), Look::CorrectionGround);
    EXPECT_EQ(m_commits, 1);
    EXPECT_TRUE(m_messages.texts.isEmpty());
    EXPECT_EQ(m_control.Choices.Text, "15");
}

TEST_F(CorrectionControl, LeavingARefusedEntryWarnsAndComesBack) {
    Set(NumberEntry, OpAtLeast, {"10"}, "12");
    Enter("3");
    Leave();
    EXPECT_EQ(m_messages.texts, CStringArray{LoadString(2419)});
    EXPECT_EQ(Edit().text(), "10");
    EXPECT_EQ(Edit().selectedText(), "10");
    EXPECT_TRUE(Edit().hasFocus());
    EXPECT_EQ(m_commits, 1);
    Leave();
    EXPECT_EQ(m_messages.texts.size(), 1);
    EXPECT_TRUE(m_other.hasFocus());
    EXPECT_EQ(m_commits, 2);
}

TEST_F(CorrectionControl, TabLeavesTheFieldToo) {
    Set(TextEntry, OpBeginsWith, {"KV-"}, "KV-1");
    Enter("X");
    QTest::keyClick(&Edit(), Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_messages.texts.size(), 1);
    EXPECT_EQ(Edit().text(), "KV-");
}

TEST_F(CorrectionControl, AnEmptiedFieldIsNoCorrectionAndIsLeftQuietly) {
    Set(NumberEntry, OpAtLeast, {"10"}, "12");
    Edit().setFocus();
    Edit().selectAll();
    QTest::keyClick(&Edit(), Qt::Key_Delete);
    Leave();
    EXPECT_TRUE(m_messages.texts.isEmpty());
    EXPECT_EQ(m_control.Choices.HasValue, 0);
    EXPECT_EQ(m_commits, 1);
}

TEST_F(CorrectionControl, SeveralChoicesAreAList) {
    Set(TextEntry, OpOneOf, {"ISO", "DIN"}, "DIN");
    EXPECT_TRUE(List().isVisible());
    EXPECT_FALSE(Edit().isVisible());
    EXPECT_EQ(List().currentText(), "DIN");
    Set(NumberEntry, OpOneOf, {"1", "2"}, "1");
    EXPECT_TRUE(List().isVisible());
    Set(NumberEntry, OpOneOf, {"1"}, "1");
    EXPECT_TRUE(Edit().isVisible());
    EXPECT_FALSE(List().isVisible());
}

TEST_F(CorrectionControl, ChoosingFromTheListCommits) {
    Set(TextEntry, OpOneOf, {"ISO", "DIN", "JIS"}, "ISO");
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(m_control.Choices.Text, "DIN");
    EXPECT_EQ(m_control.Choices.SelectedIndex, 1);
    EXPECT_EQ(m_control.Choices.HasValue, 1);
    EXPECT_EQ(m_commits, 1);
    List().showPopup();
    const QModelIndex row = List().model()->index(2, 0);
    const QPoint point(5, List().view()->visualRect(row).center().y());
    QTest::mouseClick(List().view()->viewport(), Qt::LeftButton, {}, point, 500);
    EXPECT_EQ(m_control.Choices.Text, "JIS");
    EXPECT_EQ(m_commits, 2);
}

TEST_F(CorrectionControl, NewChoicesKeepTheUsersOwn) {
    Set(TextEntry, OpOneOf, {"ISO", "DIN", "JIS"}, "JIS");
    CorrectionChoices record = m_control.Choices;
    record.Strings = {"DIN", "JIS"};
    record.Text = "DIN";
    record.SelectedIndex = 0;
    m_control.SetChoices(record);
    EXPECT_EQ(List().count(), 2);
    EXPECT_EQ(List().currentText(), "JIS");
    EXPECT_EQ(m_commits, 0);
}

TEST_F(CorrectionControl, PicturesAreChosenByTheirNumber) {
    SetImages({1336, 1337, 1338}, 0);
    EXPECT_TRUE(List().isVisible());
    EXPECT_FALSE(List().itemIcon(1).isNull());
    EXPECT_EQ(List().iconSize(), QSize(48, 32));
    EXPECT_FALSE(List().itemText(1).isEmpty());
    EXPECT_EQ(List().itemData(1, Qt::ToolTipRole).toString(), List().itemText(1));
    EXPECT_EQ(List().toolTip(), List().itemText(0));
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(m_control.Choices.Text, "1337");
    EXPECT_EQ(m_commits, 1);
}

TEST_F(CorrectionControl, WithoutAnOperatorAPictureListIsEmptyAndDisabled) {
    m_control.SetMode(ImageEntry, 0);
    EXPECT_TRUE(List().isVisible());
    EXPECT_FALSE(List().isEnabled());
    EXPECT_EQ(List().count(), 0);
}

TEST_F(CorrectionControl, WhatMustEqualAWordIsShownAndNotTyped) {
    Set(NumberEntry, OpEqual, {"No"}, "No");
    EXPECT_EQ(Edit().text(), "No");
    EXPECT_TRUE(Edit().isReadOnly());
    Enter("12");
    Leave();
    EXPECT_EQ(Edit().text(), "No");
    EXPECT_TRUE(m_messages.texts.isEmpty());
    Set(NumberEntry, OpEqual, {"3"}, "3");
    EXPECT_FALSE(Edit().isReadOnly());
}

TEST_F(CorrectionControl, TheNameReachesBothInputs) {
    m_control.SetName("Text height, correction");
    EXPECT_EQ(m_control.accessibleName(), "Text height, correction");
    EXPECT_EQ(Edit().accessibleName(), "Text height, correction");
    EXPECT_EQ(List().accessibleName(), "Text height, correction");
}

TEST_F(CorrectionControl, FocusGoesToTheInputThatIsShown) {
    Set(NumberEntry, OpAbove, {"1"}, "2");
    m_control.setFocus();
    EXPECT_TRUE(Edit().hasFocus());
    Set(TextEntry, OpOneOf, {"A", "B"}, "A");
    m_other.setFocus();
    m_control.setFocus();
    EXPECT_TRUE(List().hasFocus());
}

TEST_F(CorrectionControl, ARequirementThatComesMeanwhileSparesTheWarning) {
    Set(NumberEntry, OpAtLeast, {"10"}, "12");
    Enter("3");
    m_other.setFocus();
    Set(NumberEntry, OpAbove, {"1"}, "3");
    QCoreApplication::processEvents();
    EXPECT_TRUE(m_messages.texts.isEmpty());
}
