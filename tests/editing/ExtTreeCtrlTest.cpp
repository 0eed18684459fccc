#include "editing/ExtTreeCtrl.h"

#include "platform/Text.h"
#include "support/ShownWindow.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

class TickTree : public testing::Test {
protected:
    TickTree() : m_tree(*m_window.Add<CExtTreeCtrl>()), m_changes(&m_tree, &CExtTreeCtrl::TreeItemChanged) {
        m_steel = m_tree.AddItem("Steel");
        m_mild = m_tree.AddItem("Mild", m_steel);
        m_hard = m_tree.AddItem("Hard", m_steel);
        m_glass = m_tree.AddItem("Glass");
        m_steel->setExpanded(true);
        EXPECT_TRUE(m_window.Show());
    }

    // Clicks at a place from the left of the item's box.
    void Click(QTreeWidgetItem& item, int x = 25) {
        const QRect rect = m_tree.visualItemRect(&item);
        QTest::mouseClick(m_tree.viewport(), Qt::LeftButton, {}, {rect.left() + x, rect.center().y()});
    }

    CString Ticks() const {
        CString ticks;
        for (const QTreeWidgetItem* item : {m_steel, m_mild, m_hard, m_glass})
            ticks.append(CExtTreeCtrl::IsTicked(*item) ? '1' : '0');
        return ticks;
    }

    ShownWindow m_window;
    CExtTreeCtrl& m_tree;
    QSignalSpy m_changes;
    QTreeWidgetItem* m_steel;
    QTreeWidgetItem* m_mild;
    QTreeWidgetItem* m_hard;
    QTreeWidgetItem* m_glass;
};

} // namespace

TEST_F(TickTree, AClickOnTheTextOrTheBoxTicksAndSelects) {
    Click(*m_glass, 25);
    EXPECT_EQ(Ticks(), "0001");
    EXPECT_TRUE(m_glass->isSelected());
    Click(*m_glass, 8);
    EXPECT_EQ(Ticks(), "0000");
    EXPECT_EQ(m_changes.size(), 2);
}

TEST_F(TickTree, ATopItemTicksAndUnticksItsChildren) {
    Click(*m_steel);
    EXPECT_EQ(Ticks(), "1110");
    Click(*m_steel);
    EXPECT_EQ(Ticks(), "0000");
}

TEST_F(TickTree, TheLastChildTickedTicksTheParent) {
    Click(*m_mild);
    EXPECT_EQ(Ticks(), "0100");
    Click(*m_hard);
    EXPECT_EQ(Ticks(), "1110");
    EXPECT_EQ(m_changes.size(), 2);
}

TEST_F(TickTree, UntickingAChildUnticksTheParentButNoSibling) {
    Click(*m_steel);
    Click(*m_mild);
    EXPECT_EQ(Ticks(), "0010");
}

TEST_F(TickTree, TicksBelowChildrenFollowTheTopItem) {
    QTreeWidgetItem* grade = m_tree.AddItem("Grade", m_mild);
    m_mild->setExpanded(true);
    Click(*m_steel);
    EXPECT_TRUE(CExtTreeCtrl::IsTicked(*grade));
    Click(*grade);
    EXPECT_EQ(Ticks(), "1010");
}

TEST_F(TickTree, TheExpandButtonAndTheRoomBesideTheTextDoNotTick) {
    Click(*m_steel, -10);
    EXPECT_FALSE(m_steel->isExpanded());
    Click(*m_glass, 200);
    EXPECT_EQ(Ticks(), "0000");
    EXPECT_TRUE(m_changes.isEmpty());
}

TEST_F(TickTree, TheSecondOfTwoQuickClicksTicksAndDoesNotFold) {
    Click(*m_steel);
    const QRect rect = m_tree.visualItemRect(m_steel);
    const QPoint point(rect.left() + 25, rect.center().y());
    QMouseEvent second(QEvent::MouseButtonDblClick, point, m_tree.viewport()->mapToGlobal(point),
                       Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_tree.viewport(), &second);
    QTest::mouseRelease(m_tree.viewport(), Qt::LeftButton, {}, point);
    EXPECT_TRUE(m_steel->isExpanded());
    EXPECT_EQ(Ticks(), "0000");
    EXPECT_EQ(m_changes.size(), 2);
}

TEST_F(TickTree, AReleaseElsewhereDoesNotTick) {
    const auto at = [this](QTreeWidgetItem* item) {
        const QRect rect = m_tree.visualItemRect(item);
        return QPoint(rect.left() + 25, rect.center().y());
    };
    QTest::mousePress(m_tree.viewport(), Qt::LeftButton, {}, at(m_mild));
    QTest::mouseRelease(m_tree.viewport(), Qt::LeftButton, {}, at(m_glass));
    EXPECT_EQ(Ticks(), "0000");
}

TEST_F(TickTree, SpaceTicksTheCurrentItem) {
    m_tree.setFocus();
    m_tree.setCurrentItem(m_hard);
    QTest::keyClick(&m_tree, Qt::Key_Space);
    EXPECT_EQ(Ticks(), "0010");
    QTest::keyClick(&m_tree, Qt::Key_Space);
    EXPECT_EQ(Ticks(), "0000");
    EXPECT_EQ(m_changes.size(), 2);
}

TEST_F(TickTree, LoadingTicksOneItemAndTellsNobody) {
    CExtTreeCtrl::SetTick(*m_steel, true);
    EXPECT_EQ(Ticks(), "1000");
    EXPECT_TRUE(m_changes.isEmpty());
}
