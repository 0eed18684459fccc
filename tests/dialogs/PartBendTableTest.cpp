// The pane of the bend tables.
#include "CheckRoom.h"

#include "editing/ComboBoxExt.h"
#include "support/TestFolder.h"

#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QHeaderView>
#include <QMenu>

namespace {

constexpr unsigned Tables = 1741;

class BendTables : public CheckRoom {
protected:
    enum Control : int { Add = 1270, Remove, List, Correction = 1304 };

    BendTables() : CheckRoom(BendTable) {
        for (const char* name : {"a.xls", "b.BTL", "c.xls", "notes.txt"})
            folder.Put(name, "x");
    }
    CString PathOf(const CString& name) const { return folder.Path(name); }
    CString AllOf(const CStringArray& names) const {
        CStringArray paths;
        for (const CString& name : names)
            paths.append(PathOf(name));
        return "2:" + paths.join(u',');
    }
    CMyStatic& CorrectionBox() { return Hand().Get<CMyStatic>(Correction); }

    const TestFolder folder;
};

} // namespace

TEST_F(BendTables, AnEmptyListIsInForce) {
    EXPECT_EQ(Written(Tables), "2:");
    EXPECT_EQ(WrittenCorrection(Live(), Tables), "none");
    EXPECT_FALSE(Hand().IsEnabled(Remove));
}

TEST_F(BendTables, TheButtonAsksForFilesAndRemembersTheirFolder) {
    CChkbldsetting settings;
    room.settings = &settings;
    settings.SetString("LastAccessedBendTableFolder", "/");
    CString startedIn;
    CStringArray filters;
    const Gui::Answer answer([&](QWidget& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.fileMode(), QFileDialog::ExistingFiles);
        EXPECT_EQ(files.defaultSuffix(), "xls");
        startedIn = files.directory().path();
        filters = files.nameFilters();
        Gui::ChooseFile(dialog, '"' + PathOf("a.xls") + "\" \"" + PathOf("b.BTL") + '"');
    });
    Hand().Click(Add);
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_EQ(startedIn, "/");
    EXPECT_EQ(filters, CStringArray{"Bend Tables (*.xls *.btl)"});
    EXPECT_EQ(Written(Tables), AllOf({"a.xls", "b.BTL"}));
    EXPECT_EQ(Hand().List(List).SelectedRows(), QList<int>{1});
    CString last;
    settings.GetString("LastAccessedBendTableFolder", last);
    EXPECT_EQ(last, folder.Path());
}

TEST_F(BendTables, WithoutAChoiceNothingChanges) {
    const Gui::Answer answer([](QWidget& dialog) { dialog.close(); });
    Hand().Click(Add);
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_EQ(Written(Tables), "2:");
}

TEST_F(BendTables, FilesAreDroppedUponTheList) {
    EXPECT_TRUE(Hand().Drop(List, {PathOf("c.xls"), PathOf("a.xls")}));
    EXPECT_EQ(Written(Tables), AllOf({"c.xls", "a.xls"}));
}

TEST_F(BendTables, BothKindsOfTableAreTakenInAnyCase) {
    EXPECT_TRUE(Hand().Drop(List, {"/t/one.btl", "/t/two.XLS", "/t/three.Btl"}));
    EXPECT_EQ(Written(Tables), "2:/t/one.btl,/t/two.XLS,/t/three.Btl");
}

TEST_F(BendTables, AnotherKindOfFileEndsTheWalk) {
    Hand().Drop(List, {PathOf("a.xls"), PathOf("notes.txt"), PathOf("c.xls")});
    EXPECT_EQ(Written(Tables), AllOf({"a.xls"}));
}

TEST_F(BendTables, ATableIsListedOnce) {
    Hand().Drop(List, {PathOf("a.xls"), PathOf("a.xls").toUpper(), PathOf("c.xls")});
    EXPECT_EQ(Written(Tables), AllOf({"a.xls", "c.xls"}));
    Hand().Drop(List, {PathOf("c.xls")});
    EXPECT_EQ(Written(Tables), AllOf({"a.xls", "c.xls"}));
}

TEST_F(BendTables, RowsAreRemovedByButtonKeyAndMenu) {
    Hand().Drop(List, {"/t/1.xls", "/t/2.xls", "/t/3.xls", "/t/4.xls", "/t/5.xls"});
    Hand().ClickRow(List, 1);
    Hand().Click(Remove);
    EXPECT_EQ(Written(Tables), "2:/t/1.xls,/t/3.xls,/t/4.xls,/t/5.xls");
    EXPECT_EQ(Hand().List(List).SelectedRows(), QList<int>{1});
    Hand().ClickRow(List, 3, Qt::ControlModifier);
    Gui::Key(Hand().Get(List), Qt::Key_Delete);
    EXPECT_EQ(Written(Tables), "2:/t/1.xls,/t/4.xls");
    EXPECT_EQ(Hand().List(List).SelectedRows(), QList<int>{1});

    FileList& list = Hand().List(List);
    const QPoint place = list.visualItemRect(list.topLevelItem(0)).center();
    Gui::ClickAt(*list.viewport(), place, Qt::NoModifier, Qt::RightButton);
    EXPECT_TRUE(room.menusAsked.empty()); // the page's menu would stand over the list's
    QContextMenuEvent ask(QContextMenuEvent::Mouse, place, list.viewport()->mapToGlobal(place));
    QApplication::sendEvent(list.viewport(), &ask);
    auto* menu = list.findChild<QMenu*>();
    ASSERT_TRUE(menu);
    auto* remove = menu->findChild<QAction*>("32915");
    ASSERT_TRUE(remove);
    Gui::ClickAt(*menu, menu->actionGeometry(remove).center());
    Gui::Settle();
    EXPECT_EQ(Written(Tables), "2:/t/4.xls");
    Gui::Key(Hand().Get(List), Qt::Key_Delete);
    EXPECT_EQ(Written(Tables), "2:");
    EXPECT_FALSE(Hand().IsEnabled(Remove));
}

TEST_F(BendTables, TheMenuAsksForFilesAsWell) {
    FileList& list = Hand().List(List);
    QContextMenuEvent ask(QContextMenuEvent::Keyboard, {5, 50}, list.viewport()->mapToGlobal(QPoint(5, 50)));
    QApplication::sendEvent(list.viewport(), &ask);
    auto* menu = list.findChild<QMenu*>();
    ASSERT_TRUE(menu);
    EXPECT_FALSE(menu->findChild<QAction*>("32915")->isEnabled()); // nothing is selected
    const Gui::Answer answer([&](QWidget& dialog) { Gui::ChooseFile(dialog, PathOf("c.xls")); });
    Gui::ClickAt(*menu, menu->actionGeometry(menu->actions().first()).center());
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_EQ(Written(Tables), AllOf({"c.xls"}));
}

TEST_F(BendTables, TheListKeepsTheUsersOrder) {
    Hand().Drop(List, {"/t/b.xls", "/t/c.xls", "/t/a.xls"});
    QHeaderView& heading = *Hand().List(List).header();
    for (const int column : {0, 1, 1})
        Gui::ClickAt(*heading.viewport(), {heading.sectionViewportPosition(column) + 10, 5});
    EXPECT_EQ(Written(Tables), "2:/t/b.xls,/t/c.xls,/t/a.xls");
    EXPECT_EQ(Hand().List(List).topLevelItem(0)->text(0), "b.xls");
}

TEST_F(BendTables, TheCorrectionIsATableOfTheList) {
    EXPECT_EQ(CorrectionBox().Mode(), TextEntry);
    EXPECT_EQ(CorrectionBox().Extra(), -1);

    Hand().Drop(List, {"/t/1.xls", "/t/2.xls", "/t/3.xls"});
    EXPECT_EQ(WrittenCorrection(Live(), Tables), "/t/1.xls");
    EXPECT_EQ(CorrectionBox().List()->toolTip(), "/t/1.xls");
    Gui::ChooseRow(*CorrectionBox().List(), 1);
    EXPECT_EQ(CorrectionBox().List()->toolTip(), "/t/2.xls");
    EXPECT_EQ(WrittenCorrection(Live(), Tables), "/t/2.xls");
    Hand().ClickRow(List, 0);
    Hand().Click(Remove);
    EXPECT_EQ(WrittenCorrection(Live(), Tables), "/t/2.xls"); // chosen, and still listed
    Hand().Click(Remove);
    EXPECT_EQ(Written(Tables), "2:/t/3.xls");
    EXPECT_EQ(WrittenCorrection(Live(), Tables), "/t/3.xls");
    Hand().Click(Remove);
    EXPECT_EQ(WrittenCorrection(Live(), Tables), "none");
}

TEST_F(BendTables, TipsTellWhatIsShort) {
    EXPECT_EQ(Hand().Get(Add).toolTip(), LoadString(1344));
    Hand().Drop(List, {"/a/long/way/to/a.xls"});
    const QTreeWidgetItem& row = *Hand().List(List).topLevelItem(0);
    EXPECT_EQ(row.text(0), "a.xls");
    EXPECT_EQ(row.text(1), "/a/long/way/to/a.xls");
    QWidget& rows = *Hand().List(List).viewport();
    const int y = Hand().List(List).visualItemRect(&row).center().y();
    EXPECT_EQ(Gui::TipAt(rows, {5, y}), "/a/long/way/to/a.xls");
    EXPECT_EQ(Gui::TipAt(rows, {rows.width() - 5, y}), "/a/long/way/to/a.xls");
    EXPECT_EQ(Gui::TipAt(rows, {5, rows.height() - 5}), ""); // no row
}

TEST_F(BendTables, ACheckIsShownAndNothingOfItDropped) {
    CCheck check(BendTable, 0, 0, 0, 1);
    auto* tables = check.GetStringParameter(Tables);
    tables->Operator = OpOneOf;
    for (const char* path : {"C:\\Tables\\z.btl", "/t/a.xls", "odd"})
        tables->Values.Add(new CString(path));
    Pane().LoadCheck(check);
    EXPECT_EQ(Hand().List(List).topLevelItem(0)->text(0), "z.btl");
    EXPECT_EQ(::Written(*Shown(), Tables), "2:C:\\Tables\\z.btl,/t/a.xls,odd");
    Pane().LoadCheck(CCheck(BendTable, 0, 0, 0, 1));
    EXPECT_EQ(Hand().List(List).topLevelItemCount(), 0);
}

TEST_F(BendTables, AThousandStayQuick) {
    CStringArray paths;
    for (int i = 0; i < 1000; ++i)
        paths.append(QString("/tables/of/the/department/%1.xls").arg(i));
    QElapsedTimer timer;
    timer.start();
    Hand().Drop(List, paths);
    const qint64 add = timer.restart();
    EXPECT_EQ(Live().GetStringParameter(Tables)->Values.Count, 1000);
    Hand().ClickRow(List, 500);
    timer.restart();
    Gui::Key(Hand().Get(List), Qt::Key_Delete);
    const qint64 removeOne = timer.restart();
    Hand().List(List).selectAll();
    timer.restart();
    Gui::Key(Hand().Get(List), Qt::Key_Delete);
    const qint64 removeAll = timer.elapsed();
    EXPECT_EQ(Written(Tables), "2:");
    RecordProperty("addMs", static_cast<int>(add));
    RecordProperty("removeOneMs", static_cast<int>(removeOne));
    RecordProperty("removeAllMs", static_cast<int>(removeAll));
    // Far above what it takes: a sanitizer and a busy machine are allowed for.
    EXPECT_LT(add, 3000);
    EXPECT_LT(removeOne, 1000);
    EXPECT_LT(removeAll, 3000);
}
