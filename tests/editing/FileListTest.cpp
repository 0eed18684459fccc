#include "editing/FileList.h"

#include "platform/LanguageLibrary.h"
#include "support/ShownWindow.h"

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextDocument>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

class Files : public testing::Test {
protected:
    Files() : m_list(*m_window.Add<FileList>()), m_changes(&m_list, &FileList::FilesChanged) {
        EXPECT_TRUE(m_window.Show());
    }

    void Select(const QList<int>& rows) {
        m_list.clearSelection();
        for (const int row : rows)
            m_list.topLevelItem(row)->setSelected(true);
    }

    QList<int> Selected() const {
        QList<int> rows;
        for (int row = 0; row < m_list.topLevelItemCount(); ++row)
            if (m_list.topLevelItem(row)->isSelected())
                rows.append(row);
        return rows;
    }

    void Drop(const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(m_list.viewport(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                        Qt::NoModifier);
        QApplication::sendEvent(m_list.viewport(), &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    }

    ShownWindow m_window;
    FileList& m_list;
    QSignalSpy m_changes;
};

} // namespace

TEST_F(Files, ShowNamesAndPaths) {
    EXPECT_EQ(m_list.headerItem()->text(0), LoadString(130));
    EXPECT_EQ(m_list.headerItem()->text(1), LoadString(131));
    m_list.SetPaths({"/data/b.xls", "C:\\Tables\\a.btl"});
    EXPECT_EQ(m_list.topLevelItem(0)->text(0), "b.xls");
    EXPECT_EQ(m_list.topLevelItem(1)->text(0), "a.btl");
    EXPECT_EQ(m_list.topLevelItem(1)->toolTip(0), "C:\\Tables\\a.btl");
    EXPECT_EQ(m_list.Paths(), (CStringArray{"/data/b.xls", "C:\\Tables\\a.btl"}));
    EXPECT_TRUE(m_changes.isEmpty());
}

TEST_F(Files, TheNamesHaveTwiceTheWidthOfThePaths) {
    const QHeaderView& heading = *m_list.header();
    EXPECT_NEAR(heading.sectionSize(0), 2 * heading.sectionSize(1), 2);
    EXPECT_EQ(heading.length(), m_list.viewport()->width());
}

TEST_F(Files, KeepTheUsersOrderUnderAClickOnTheHeading) {
    m_list.SetPaths({"/b", "/c", "/a"});
    for (const int column : {0, 1, 1}) {
        const QPoint place(m_list.header()->sectionViewportPosition(column) + 10, 5);
        QTest::mouseClick(m_list.header()->viewport(), Qt::LeftButton, {}, place);
        EXPECT_EQ(m_list.Paths(), (CStringArray{"/b", "/c", "/a"}));
    }
}

TEST_F(Files, AreAddedOnceWithoutRegardToCase) {
    EXPECT_EQ(m_list.AddPaths({"/a.xls", "/A.XLS", "/b.xls"}), 2);
    EXPECT_EQ(m_list.AddPaths({"/B.xls"}), 0);
    EXPECT_EQ(m_list.Paths(), (CStringArray{"/a.xls", "/b.xls"}));
    EXPECT_EQ(Selected(), QList<int>{1});
    EXPECT_EQ(m_changes.size(), 1);
}

TEST_F(Files, TheFirstThatIsNotAcceptedEndsTheWalk) {
    m_list.Accepts = [](const CString& path) { return path.endsWith(".xls"); };
    EXPECT_EQ(m_list.AddPaths({"/a.xls", "/b.txt", "/c.xls"}), 1);
    EXPECT_EQ(m_list.Paths(), CStringArray{"/a.xls"});
}

TEST_F(Files, AreDroppedFromTheFileManager) {
    Drop({QUrl::fromLocalFile("/a.xls"), QUrl("http://example.org/b.xls"), QUrl::fromLocalFile("/c.xls")});
    EXPECT_EQ(m_list.Paths(), (CStringArray{"/a.xls", "/c.xls"}));
    EXPECT_EQ(m_changes.size(), 1);
}

TEST_F(Files, DeleteRemovesAllThatIsSelected) {
    m_list.SetPaths({"/0", "/1", "/2", "/3", "/4"});
    Select({1, 3});
    m_list.setFocus();
    QTest::keyClick(&m_list, Qt::Key_Delete);
    EXPECT_EQ(m_list.Paths(), (CStringArray{"/0", "/2", "/4"}));
    EXPECT_EQ(Selected(), QList<int>{1});
    EXPECT_EQ(m_changes.size(), 1);
    Select({2});
    QTest::keyClick(&m_list, Qt::Key_Delete);
    EXPECT_EQ(Selected(), QList<int>{1});
    Select({0, 1});
    QTest::keyClick(&m_list, Qt::Key_Delete);
    EXPECT_TRUE(m_list.Paths().isEmpty());
    QTest::keyClick(&m_list, Qt::Key_Delete);
    EXPECT_EQ(m_changes.size(), 3);
}

TEST_F(Files, DeleteOfTheNumberPadRemovesAndWithShiftDoesNot) {
    m_list.SetPaths({"/0", "/1"});
    m_list.setFocus();
    Select({0});
    QTest::keyClick(&m_list, Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(m_list.topLevelItemCount(), 2);
    QTest::keyClick(&m_list, Qt::Key_Delete, Qt::KeypadModifier);
    EXPECT_EQ(m_list.Paths(), CStringArray{"/1"});
}

TEST_F(Files, MoveWithTheirSelection) {
    m_list.SetPaths({"/0", "/1", "/2", "/3"});
    Select({1, 2});
    m_list.MoveSelected(1);
    EXPECT_EQ(m_list.Paths(), (CStringArray{"/0", "/3", "/1", "/2"}));
    EXPECT_EQ(Selected(), (QList<int>{2, 3}));
    m_list.MoveSelected(1);
    EXPECT_EQ(m_changes.size(), 1);
    m_list.MoveSelected(-1);
    m_list.MoveSelected(-1);
    EXPECT_EQ(m_list.Paths(), (CStringArray{"/1", "/2", "/0", "/3"}));
    m_list.MoveSelected(-1);
    EXPECT_EQ(m_changes.size(), 3);
}

TEST_F(Files, TheMenuSelectsWhatIsUnderThePointerAndRemovesIt) {
    m_list.SetPaths({"/0", "/1", "/2"});
    Select({0});
    const QPoint point = m_list.visualItemRect(m_list.topLevelItem(2)).center();
    QTest::mouseClick(m_list.viewport(), Qt::RightButton, {}, point);
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, m_list.viewport()->mapToGlobal(point));
    QApplication::sendEvent(m_list.viewport(), &event);
    EXPECT_EQ(Selected(), QList<int>{2});
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().last()).center());
    EXPECT_EQ(m_list.Paths(), (CStringArray{"/0", "/1"}));
}

TEST_F(Files, TheMenuRemovesNothingWithoutASelection) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 50},
                            m_list.viewport()->mapToGlobal(QPoint(5, 50)));
    QApplication::sendEvent(m_list.viewport(), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_FALSE(menu->actions().last()->isEnabled());
    QSignalSpy wanted(&m_list, &FileList::AddWanted);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().first()).center());
    EXPECT_EQ(wanted.size(), 1);
}

TEST(MultiColumnList, ShowsRowsUnderTheirGroups) {
    MultiColumnList list;
    list.SetColumns({{"Type", 1}, {"Folder", 2}, {"Sub-folders", 1}});
    QTreeWidgetItem* group = list.AddGroup("Templates");
    QTreeWidgetItem* row = list.AddRow({{{"Parts"}, {"/data"}}}, group);
    EXPECT_EQ(group->childCount(), 1);
    EXPECT_TRUE(group->isExpanded());
    EXPECT_FALSE(group->flags().testFlag(Qt::ItemIsSelectable));
    EXPECT_EQ(list.RowOf(*row).TextAt(1), "/data");
    EXPECT_EQ(list.RowOf(*row).TextAt(2), "");
    EXPECT_EQ(list.RowOf(*row).TextAt(3), "");
    EXPECT_EQ(list.AddRow({{{"single"}}})->parent(), nullptr);
}

TEST_F(Files, APathIsNeverTakenForMarkup) {
    const CString path = "/rules/<img src=\"/etc/hostname\"><b>bold</b>.btl";
    m_list.SetPaths({path});
    QTextDocument shown;
    shown.setHtml(m_list.topLevelItem(0)->toolTip(0));
    EXPECT_EQ(shown.toPlainText(), path);
    EXPECT_FALSE(m_list.topLevelItem(0)->toolTip(0).contains("<img"));
}
