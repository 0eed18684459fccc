#include "editing/ComparisonPair.h"

#include "editing/ComboBoxExt.h"
#include "platform/LanguageLibrary.h"
#include "support/Gui.h"
#include "support/Messages.h"
#include "support/ShownWindow.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

class Comparison : public testing::Test {
protected:
    explicit Comparison(bool isLength = false)
        : m_combo(*m_window.Add<CComboBoxExt>()), m_value(*m_window.Add<QLineEdit>()),
          m_pair(&m_combo, &m_value, isLength), m_changes(&m_pair, &ComparisonPair::Changed) {
        m_pair.Fill({0, 3, 5, 6, 8, 7, 1, 2, 4});
        EXPECT_TRUE(m_window.Show());
    }

    // Chooses an operator from the open list.
    void Choose(const CString& text) {
        m_combo.showPopup();
        const QModelIndex row = m_combo.model()->index(m_combo.findText(text), 0);
        m_combo.view()->scrollTo(row);
        const QRect rect = m_combo.view()->visualRect(row);
        QTest::mouseClick(m_combo.view()->viewport(), Qt::LeftButton, {}, {5, rect.center().y()}, 500);
    }

    CString Typed(const CString& text) {
        m_value.setFocus();
        m_value.selectAll();
        QTest::keyClicks(&m_value, text);
        return m_value.text();
    }

    ShownWindow m_window;
    CComboBoxExt& m_combo;
    QLineEdit& m_value;
    ComparisonPair m_pair;
    QSignalSpy m_changes;
    Messages m_messages;
};

} // namespace

TEST_F(Comparison, OffersTheToldRowsAndStartsWithNone) {
    EXPECT_EQ(Gui::RowsOf(m_combo), (CStringArray{LoadString(1632), "=", "<", ">", "<=", ">=",
                                                  LoadString(1657), LoadString(1658), LoadString(1659)}));
    EXPECT_EQ(m_pair.Operator(), 0u);
    EXPECT_FALSE(m_value.isEnabled());
}

TEST_F(Comparison, AChosenOperatorEnablesTheValueAndGivesItTheFocus) {
    Choose(">=");
    EXPECT_EQ(m_pair.Operator(), 7u);
    EXPECT_TRUE(m_value.isEnabled());
    EXPECT_TRUE(m_value.hasFocus());
    EXPECT_EQ(m_changes.size(), 1);
}

TEST_F(Comparison, TheFirstRowEmptiesAndDisablesTheValue) {
    m_pair.Show(3, "12");
    Choose(LoadString(1632));
    EXPECT_EQ(m_value.text(), "");
    EXPECT_FALSE(m_value.isEnabled());
    EXPECT_EQ(m_pair.Operator(), 0u);
    EXPECT_EQ(m_changes.size(), 1);
    EXPECT_TRUE(m_messages.texts.isEmpty());
}

TEST_F(Comparison, AnotherOperatorFitsTheValue) {
    Choose(LoadString(1657));
    EXPECT_EQ(m_value.text(), "0,0");
    m_pair.Show(2, "1,2,3");
    Choose(LoadString(1657));
    EXPECT_EQ(m_value.text(), "1,2");
    Choose("=");
    EXPECT_EQ(m_value.text(), "1");
    m_pair.Show(3, "0");
    Choose("<");
    EXPECT_EQ(m_value.text(), "1");
}

TEST_F(Comparison, ArrowsWalkThroughTheOperators) {
    m_combo.setFocus();
    QTest::keyClick(&m_combo, Qt::Key_Down);
    QTest::keyClick(&m_combo, Qt::Key_Down);
    EXPECT_EQ(m_combo.currentText(), "<");
    EXPECT_TRUE(m_combo.hasFocus());
    EXPECT_EQ(m_value.text(), "1");
    EXPECT_EQ(m_changes.size(), 2);
}

TEST_F(Comparison, EachKeyIsCheckedAndTold) {
    m_pair.Show(5, "");
    EXPECT_EQ(Typed("1.2.3"), "1.23");
    EXPECT_EQ(m_messages.texts, CStringArray{LoadString(1978)});
    EXPECT_EQ(m_changes.size(), 5);
    EXPECT_TRUE(m_value.hasFocus());
    EXPECT_EQ(Typed("0"), "1");
    EXPECT_EQ(Typed("."), ".");
}

TEST_F(Comparison, ARangeTakesTwoValues) {
    m_pair.Show(1, "");
    EXPECT_EQ(Typed("1,2,3"), "1,23");
    EXPECT_EQ(m_messages.texts, CStringArray{LoadString(1979)});
    EXPECT_EQ(m_pair.Values(), (CStringArray{"1", "23"}));
}

TEST_F(Comparison, AMinusSignIsRefusedAtOnce) {
    m_pair.Show(2, "");
    EXPECT_EQ(Typed("-5"), "5");
    EXPECT_EQ(m_messages.texts, CStringArray{LoadString(1977)});
}

TEST_F(Comparison, ANumberBeyondTheBoundsIsCut) {
    m_pair.Show(3, "");
    EXPECT_EQ(Typed("1000001"), "100000");
    EXPECT_EQ(m_messages.texts, CStringArray{LoadString(2043)});
}

TEST_F(Comparison, TheCaretStaysWhereARefusedCharacterWasTyped) {
    m_pair.Show(3, "1234");
    m_value.setFocus();
    m_value.setCursorPosition(2);
    QTest::keyClicks(&m_value, "x");
    EXPECT_EQ(m_value.text(), "1234");
    EXPECT_EQ(m_value.cursorPosition(), 2);
}

TEST_F(Comparison, ShowingTellsNobodyAndChecksNothing) {
    m_pair.Show(1, "1.5 , 2.5");
    EXPECT_EQ(m_value.text(), "1.5 , 2.5");
    EXPECT_TRUE(m_value.isEnabled());
    m_pair.Show(0, "7");
    EXPECT_EQ(m_value.text(), "");
    EXPECT_FALSE(m_value.isEnabled());
    m_pair.Show(14, "7"); // not on offer
    EXPECT_EQ(m_pair.Operator(), 0u);
    EXPECT_TRUE(m_changes.isEmpty());
    EXPECT_TRUE(m_messages.texts.isEmpty());
}

TEST_F(Comparison, TheTipTellsTheWholeTextAndNothingWithoutOne) {
    m_pair.Show(2, "1 , 2");
    EXPECT_EQ(Gui::TipAt(m_value, {5, 5}), "<qt>1 , 2");
    m_pair.Show(0, {});
    EXPECT_EQ(Gui::TipAt(m_value, {5, 5}), "");
}

TEST_F(Comparison, CanBeDisabledAsAWhole) {
    m_pair.Show(3, "1");
    m_pair.SetEnabled(false);
    EXPECT_FALSE(m_combo.isEnabled());
    EXPECT_FALSE(m_value.isEnabled());
    m_pair.SetEnabled(true);
    EXPECT_TRUE(m_value.isEnabled());
}
