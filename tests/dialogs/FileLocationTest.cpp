// The pane of the file locations.
#include "CheckRoom.h"

#include "editing/FolderList.h"
#include "engines/EnumEngine.h"
#include "engines/ParameterKinds.h"
#include "model/CheckManager.h"
#include "support/Messages.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <set>

namespace {

constexpr MQC_CheckType_e FileLocation = 124;
constexpr int TypeCount = 36;

class Locations : public CheckRoom {
protected:
    enum Control : int {
        List = 1274,
        Add = 1325,
        Remove,
        Up,
        Down,
        AllListed,
        InOrder,
        NoOthers,
        Types = 1341
    };

    Locations() : CheckRoom(FileLocations) {
        for (const char* name : {"one", "two", "three", "four"})
            QDir(folder.Path()).mkdir(name);
        folder.Put("file", "x");
    }
    CStringArray PathsOf(const CStringArray& names) const {
        CStringArray paths;
        for (const CString& name : names)
            paths.append(folder.Path(name));
        return paths;
    }
    bool Drop(const CStringArray& names) { return Hand().Drop(List, PathsOf(names)); }
    // By the button and the picker.
    void Pick(const CString& name) {
        const Gui::Answer answer([&](QWidget& dialog) { Gui::ChooseFile(dialog, folder.Path(name)); });
        Hand().Click(Add);
        EXPECT_TRUE(answer.WasAnswered());
        Gui::Settle();
    }
    // "<type>:<folder>,...:<subfolders>" of each entry, the folders by their last names.
    static CString EntriesOf(const CCheck& check) {
        CStringArray entries;
        for (const CCheck* entry : check.Children) {
            CStringArray names;
            for (const CString* path : entry->GetStringParameter(2474)->Values)
                names.append(path->section(u'/', -1));
            entries.append(QString("%1:%2:%3")
                               .arg(entry->GetLongParameter(2473)->Values[0])
                               .arg(names.join(u','))
                               .arg(entry->GetBoolParameter(2476)->Values[0]));
        }
        return entries.join(u' ');
    }
    CString Entries() { return EntriesOf(Live()); }
    CString Buttons() {
        CString text;
        for (const int button : {Remove, Up, Down})
            text += Hand().IsEnabled(button) ? u'1' : u'0';
        return text;
    }
    static void AddEntry(CCheckManager& container, long type, const CStringArray& folders,
                         std::optional<bool> subfolders) {
        auto entry = container.MakeChild();
        entry->GetLongParameter(2473)->Operator = OpEqual;
        entry->GetLongParameter(2473)->Values.Add(type);
        entry->GetStringParameter(2474)->Operator = OpOneOf;
        for (const CString& path : folders)
            entry->GetStringParameter(2474)->Values.Add(new CString(path));
        if (subfolders)
            entry->GetBoolParameter(2476)->Values.Add(*subfolders);
        container.Children.Add(entry.release());
    }
    static void SetType(CCheck& check, long type) {
        check.GetLongParameter(2478)->Operator = OpEqual;
        check.GetLongParameter(2478)->Values.Add(type);
    }

    const TestFolder folder;
};

} // namespace

TEST_F(Locations, EachTypeOfFileHasItsRow) {
    const QComboBox& types = Hand().Combo(Types);
    ASSERT_EQ(types.count(), TypeCount);
    for (int row = 0; row < TypeCount; ++row) {
        CString name;
        CEnumEngine().GetDisplayString(KindFileLocationType, static_cast<unsigned long>(row), name);
        EXPECT_EQ(types.itemText(row), name);
        EXPECT_FALSE(name.isEmpty());
    }
}

TEST_F(Locations, StartWithoutFoldersAndWithoutEntries) {
    EXPECT_EQ(Live().Children.Count, 0);
    EXPECT_EQ(Written(2478), "3:0");
    EXPECT_EQ(Written(2477), "2:");
    EXPECT_EQ(Buttons(), "000");
}

TEST_F(Locations, AFolderIsChosenByThePicker) {
    Pick("one");
    Pick("two");
    EXPECT_EQ(Hand().List(List).Paths(), PathsOf({"one", "two"}));
    EXPECT_EQ(Hand().List(List).SelectedRows(), QList<int>{1});
    EXPECT_EQ(Entries(), "0:one,two:1");
    const CCheck& entry = *Live().Children[0];
    EXPECT_EQ(entry.Type, FileLocation);
    EXPECT_EQ(entry.Name, Hand().Combo(Types).itemText(0));
    EXPECT_EQ(entry.GetLongParameter(2473)->Operator, unsigned(OpEqual));
    EXPECT_EQ(entry.GetStringParameter(2474)->Operator, unsigned(OpOneOf));
    EXPECT_EQ(entry.GetBoolParameter(2476)->Operator, unsigned(OpEqual));
}

TEST_F(Locations, ACancelledPickerChangesNothing) {
    const Gui::Answer answer([](QWidget& dialog) { dialog.close(); });
    Hand().Click(Add);
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_EQ(Live().Children.Count, 0);
}

TEST_F(Locations, AFolderThatIsListedIsRefused) {
    Pick("one");
    const Messages messages;
    Pick("one");
    EXPECT_EQ(messages.texts, CStringArray{LoadString(2475)});
    EXPECT_EQ(Entries(), "0:one:1");
    Hand().Drop(List, {folder.Path("one") + '/'});
    EXPECT_EQ(messages.texts.size(), 2);
    EXPECT_EQ(Entries(), "0:one:1");
}

TEST_F(Locations, ARefusedFolderChangesNothing) {
    Pick("one");
    Pick("two");
    Hand().List(List).clearSelection();
    Hand().ClickRow(List, 1);
    const int before = room.standard.GetHistoryIndex();
    const Messages messages;
    Pick("one");
    EXPECT_EQ(messages.texts.size(), 1);
    EXPECT_EQ(room.standard.GetHistoryIndex(), before);
    EXPECT_EQ(Hand().List(List).SelectedRows(), QList<int>{1});
}

TEST_F(Locations, AnAddedFolderIsInSightAndAloneSelected) {
    CCheckManager check(FileLocations);
    CStringArray paths;
    for (int i = 0; i < 100; ++i)
        paths.append(QString("/a/%1").arg(i));
    AddEntry(check, 0, paths, true);
    Pane().LoadCheck(check);
    FileList& list = Hand().List(List);
    Hand().ClickRow(List, 3);
    Pick("one");
    EXPECT_EQ(list.SelectedRows(), QList<int>{100});
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.topLevelItem(100))));
}

TEST_F(Locations, RemovingTheLastRowSelectsTheOneBefore) {
    Drop({"one", "two", "three"});
    Gui::Key(Hand().Get(List), Qt::Key_Delete);
    EXPECT_EQ(Entries(), "0:one,two:1");
    EXPECT_EQ(Hand().List(List).SelectedRows(), QList<int>{1});
    EXPECT_EQ(Buttons(), "110");
}

TEST_F(Locations, CaseMakesNoOtherFolder) {
    QDir(folder.Path()).mkdir("ONE");
    Pick("one");
    const Messages messages;
    Pick("ONE");
    EXPECT_EQ(messages.texts, CStringArray{LoadString(2475)});
    EXPECT_EQ(Entries(), "0:one:1");
}

TEST_F(Locations, FoldersAreDroppedUponTheListAndFilesAreNot) {
    EXPECT_TRUE(Drop({"two", "file", "one"}));
    EXPECT_EQ(Entries(), "0:two,one:1");
    EXPECT_FALSE(Drop({"file"}));
    const Messages messages;
    EXPECT_TRUE(Drop({"one", "three"})); // a new one beside a known one
    EXPECT_EQ(Entries(), "0:two,one,three:1");
    EXPECT_TRUE(messages.texts.isEmpty());
}

TEST_F(Locations, ATypeWithoutFoldersHasNoEntry) {
    Drop({"one"});
    Hand().Choose(Types, 5);
    EXPECT_EQ(Hand().List(List).topLevelItemCount(), 0);
    EXPECT_EQ(Entries(), "0:one:1");
    EXPECT_EQ(Written(2478), "3:5");
    Drop({"two"});
    EXPECT_EQ(Entries(), "0:one:1 5:two:0");
    Hand().Choose(Types, 0);
    EXPECT_EQ(Hand().List(List).Paths(), PathsOf({"one"}));
    Gui::Key(Hand().Get(List), Qt::Key_Home);
    Gui::Key(Hand().Get(List), Qt::Key_Delete);
    EXPECT_EQ(Entries(), "5:two:0");
}

TEST_F(Locations, SomeTypesLookIntoSubfolders) {
    const std::set<int> with = {0, 3, 10, 11, 16, 22, 24, 26, 27, 30, 32};
    for (int type = 0; type < TypeCount; ++type) {
        Hand().Choose(Types, type);
        Drop({"one"});
        const CCheck& entry = *Live().Children[type];
        EXPECT_EQ(entry.GetLongParameter(2473)->Values[0], type);
        EXPECT_EQ(entry.GetBoolParameter(2476)->Values[0], with.contains(type)) << type;
    }
}

TEST_F(Locations, ButtonsFollowTheSelection) {
    Drop({"one", "two", "three", "four"}); // selects the last
    EXPECT_EQ(Buttons(), "110");
    Hand().ClickRow(List, 0);
    EXPECT_EQ(Buttons(), "101");
    Hand().ClickRow(List, 1);
    EXPECT_EQ(Buttons(), "111");
    Hand().ClickRow(List, 0, Qt::ControlModifier);
    EXPECT_EQ(Buttons(), "101"); // up is not possible for the first row
    Hand().ClickRow(List, 3, Qt::ControlModifier);
    EXPECT_EQ(Buttons(), "100");
    Hand().List(List).selectAll();
    EXPECT_EQ(Buttons(), "100");
    Hand().List(List).clearSelection();
    EXPECT_EQ(Buttons(), "000");
}

TEST_F(Locations, ARowMovesUpAndDownWithItsSelection) {
    Drop({"one", "two", "three"});
    Hand().Click(Up);
    EXPECT_EQ(Entries(), "0:one,three,two:1");
    EXPECT_EQ(Hand().List(List).SelectedRows(), QList<int>{1});
    Hand().Click(Up);
    EXPECT_EQ(Entries(), "0:three,one,two:1");
    EXPECT_EQ(Buttons(), "101");
    Gui::Key(Hand().Get(Down), Qt::Key_Space);
    EXPECT_EQ(Entries(), "0:one,three,two:1");
    EXPECT_EQ(Hand().List(List).SelectedRows(), QList<int>{1});
}

TEST_F(Locations, RemovedRowsGoTogether) {
    Drop({"one", "two", "three", "four"});
    Hand().ClickRow(List, 0);
    Hand().ClickRow(List, 2, Qt::ControlModifier);
    Hand().Click(Remove);
    EXPECT_EQ(Entries(), "0:two,four:1");
    EXPECT_EQ(Hand().List(List).SelectedRows(), QList<int>{0});
    EXPECT_EQ(Buttons(), "101");
}

TEST_F(Locations, RulesAreWrittenInTheirOrder) {
    Hand().Click(NoOthers);
    Hand().Click(AllListed);
    EXPECT_EQ(Written(2477), "2:0,2");
    Hand().Click(InOrder);
    EXPECT_EQ(Written(2477), "2:0,1,2");
    for (const int box : {AllListed, InOrder, NoOthers})
        Gui::Key(Hand().Get(box), Qt::Key_Space);
    EXPECT_EQ(Written(2477), "2:");
}

TEST_F(Locations, ACheckIsShownFromItsSelectedType) {
    CCheckManager check(FileLocations);
    AddEntry(check, 3, {"/a", "/b"}, false);
    AddEntry(check, 7, {"/c"}, true);
    SetType(check, 7);
    check.GetLongParameter(2477)->Operator = OpOneOf;
    check.GetLongParameter(2477)->Values.Add(1);
    Pane().LoadCheck(check);
    EXPECT_EQ(Hand().Combo(Types).currentIndex(), 7);
    EXPECT_EQ(Hand().List(List).Paths(), CStringArray{"/c"});
    EXPECT_TRUE(Hand().IsChecked(InOrder));
    EXPECT_FALSE(Hand().IsChecked(AllListed));
    EXPECT_EQ(EntriesOf(*Shown()), "3:a,b:0 7:c:1"); // what the file tells of subfolders stands
    Pane().LoadCheck(CCheckManager(FileLocations));
    EXPECT_EQ(Hand().Combo(Types).currentIndex(), 0);
    EXPECT_EQ(Hand().List(List).topLevelItemCount(), 0);
    EXPECT_EQ(Shown()->Children.Count, 0);
}

// Several entries of one type become one; nothing of them is lost.
TEST_F(Locations, EntriesOfOneTypeAreOneList) {
    CCheckManager check(FileLocations);
    AddEntry(check, 2, {"/a"}, std::nullopt);
    AddEntry(check, 2, {"/b"}, true);
    Pane().LoadCheck(check);
    EXPECT_EQ(EntriesOf(*Shown()), "2:a,b:1");
}

// Dropped: entries of an unknown type, entries without folders, a selected type and rules that are unknown.
TEST_F(Locations, WhatItCannotShowGoesWithTheNextChange) {
    CCheckManager check(FileLocations);
    AddEntry(check, 36, {"/a"}, true);
    AddEntry(check, -1, {"/a"}, true);
    AddEntry(check, 4, {}, true);
    AddEntry(check, 1, {"/b"}, true);
    SetType(check, 99);
    check.GetLongParameter(2477)->Operator = OpOneOf;
    check.GetLongParameter(2477)->Values.Add(3);
    Pane().LoadCheck(check);
    EXPECT_EQ(EntriesOf(*Shown()), "1:b:1");
    EXPECT_EQ(::Written(*Shown(), 2478), "3:0");
    EXPECT_EQ(::Written(*Shown(), 2477), "2:");
}

TEST_F(Locations, UndoShowsTheListsAsTheyWere) {
    Drop({"one"});
    Drop({"two"});
    int step = 0;
    const MQC_CheckType_e type = room.standard.StepHistory(true, step);
    room.GetChecksPage().ApplyHistoryStep(type, step, true);
    EXPECT_EQ(Entries(), "0:one:1");
    EXPECT_EQ(Hand().List(List).Paths(), PathsOf({"one"}));
}

TEST_F(Locations, TheCriticalityIsWrittenWithTheRest) {
    Drop({"one"});
    Hand().Choose(1249, 0);
    EXPECT_EQ(Live().Criticality, 0u);
    EXPECT_EQ(Entries(), "0:one:1");
}

TEST_F(Locations, TipsTellWhatButtonsDoAndWhereFoldersAre) {
    EXPECT_EQ(Hand().Get(Add).toolTip(), LoadString(2463));
    EXPECT_EQ(Hand().Get(Remove).toolTip(), LoadString(2464));
    EXPECT_EQ(Hand().Get(Up).toolTip(), LoadString(2465));
    EXPECT_EQ(Hand().Get(Down).toolTip(), LoadString(2466));
    EXPECT_EQ(Hand().Get(List).toolTip(), LoadString(2467));
    Drop({"one"});
    FileList& list = Hand().List(List);
    const int y = list.visualItemRect(list.topLevelItem(0)).center().y();
    EXPECT_EQ(Gui::TipAt(*list.viewport(), {5, y}), folder.Path("one"));
    EXPECT_EQ(Gui::TipAt(*list.viewport(), {5, list.viewport()->height() - 5}), LoadString(2467));
}

TEST_F(Locations, AThousandStayQuick) {
    CCheckManager check(FileLocations);
    CStringArray paths;
    for (int i = 0; i < 1000; ++i)
        paths.append(QString("/a/folder/of/the/department/%1").arg(i));
    AddEntry(check, 0, paths, true);
    QElapsedTimer timer;
    timer.start();
    Pane().LoadCheck(check);
    const qint64 load = timer.restart();
    Hand().ClickRow(List, 500);
    timer.restart();
    Hand().Click(Up);
    const qint64 move = timer.restart();
    Drop({"one"});
    const qint64 add = timer.restart();
    EXPECT_EQ(Hand().List(List).topLevelItemCount(), 1001);
    Hand().List(List).selectAll();
    timer.restart();
    Hand().Click(Remove);
    const qint64 remove = timer.elapsed();
    EXPECT_EQ(Live().Children.Count, 0);
    RecordProperty("loadMs", static_cast<int>(load));
    RecordProperty("moveMs", static_cast<int>(move));
    RecordProperty("addMs", static_cast<int>(add));
    RecordProperty("removeMs", static_cast<int>(remove));
    // Far above what it takes: a sanitizer and a busy machine are allowed for.
    for (const qint64 time : {load, move, add, remove})
        EXPECT_LT(time, 3000);
}
