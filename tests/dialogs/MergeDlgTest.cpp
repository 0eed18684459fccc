#include "dialogs/MergeDlg.h"

#include "files/MergeRoom.h"
#include "support/Gui.h"
#include "support/Language.h"

#include <QDropEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <QUrl>

namespace {

const CStringArray Filters{"Ruleward Standard (*.kvstd)"};

class MergeDlgTest : public MergeRoom {
protected:
    void SetUp() override { Open(); }

    void Open() {
        dialog = std::make_unique<CMergeDlg>(Run(), Filters);
        dialog->ShowHelp = [this](unsigned command, unsigned topic) { help = {command, topic}; };
        Gui::Show(*dialog);
    }

    QWidget& At(int number) const { return *Gui::FindNumber(*dialog, number); }
    QTreeWidget& List() const { return dynamic_cast<QTreeWidget&>(At(1136)); }
    void Press(int number) { Gui::Click(At(number)); }

    // Chooses files in the dialog that Add opens.
    void Add(const CStringArray& paths) {
        Gui::Answer answer([&paths](QWidget& box) {
            Gui::ChooseFile(box, paths.size() == 1 ? paths[0] : "\"" + paths.join("\" \"") + "\"");
        });
        Press(1008);
        EXPECT_TRUE(answer.WasAnswered());
    }

    CStringArray Names() const {
        CStringArray names;
        for (int row = 0; row < List().topLevelItemCount(); ++row)
            names.append(List().topLevelItem(row)->text(0));
        return names;
    }
    CStringArray SelectedNames() const {
        CStringArray names;
        for (const QTreeWidgetItem* item : List().selectedItems())
            names.append(item->text(0));
        return names;
    }
    void ClickRow(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        const QRect place = List().visualItemRect(List().topLevelItem(row));
        Gui::ClickAt(*List().viewport(), place.center(), modifiers);
    }
    // Whether Remove, Up, Down and OK may be pressed.
    std::vector<bool> Enabled() const {
        std::vector<bool> enabled;
        for (const int number : {1217, 1218, 1219, 1})
            enabled.push_back(At(number).isEnabled());
        return enabled;
    }

    CString PutOne(const CString& name, const CString& type) {
        return Put(name, Standard(Check(type, name.section('.', 0, 0))));
    }

    std::unique_ptr<CMergeDlg> dialog;
    std::pair<unsigned, unsigned> help;
};

} // namespace

TEST_F(MergeDlgTest, Merge_ButtonsFollowTheNumberOfFiles) {
    EXPECT_EQ(Enabled(), (std::vector<bool>{false, false, false, false}));
    Add({PutOne("a.kvstd", "1")});
    EXPECT_EQ(Enabled(), (std::vector<bool>{true, false, false, true}));
    Add({PutOne("b.kvstd", "2")});
    EXPECT_EQ(Enabled(), (std::vector<bool>{true, true, true, true}));
    Press(1217);
    EXPECT_EQ(Enabled(), (std::vector<bool>{true, false, false, true}));
    EXPECT_TRUE(At(1008).isEnabled());
    EXPECT_TRUE(At(1006).isEnabled());
    EXPECT_TRUE(At(2).isEnabled());
}

TEST_F(MergeDlgTest, Merge_AddedFilesStandInOrderAndTheLastIsSelected) {
    const CStringArray paths{PutOne("a.kvstd", "1"), PutOne("c.kvstd", "2"), PutOne("b.kvstd", "3")};
    Add(paths);
    EXPECT_EQ(Names(), (CStringArray{"a.kvstd", "c.kvstd", "b.kvstd"}));
    EXPECT_EQ(List().topLevelItem(1)->text(1), paths[1]);
    EXPECT_EQ(SelectedNames(), CStringArray{"b.kvstd"});
}

TEST_F(MergeDlgTest, Merge_TheSamePathStandsOnce) {
    const CString path = PutOne("a.kvstd", "1");
    Add({path});
    Add({path});
    EXPECT_EQ(Names(), CStringArray{"a.kvstd"});
    const CString other = PutOne("A.KVSTD", "1"); // but for case the same
    Add({other});
    EXPECT_EQ(Names(), CStringArray{"a.kvstd"});
}

TEST_F(MergeDlgTest, Merge_AddingStopsAtAWrongExtension) {
    Add({PutOne("a.kvstd", "1"), PutOne("b.txt", "2"), PutOne("c.kvstd", "3")});
    EXPECT_EQ(Names(), CStringArray{"a.kvstd"});
    Add({PutOne("d.KvStd", "4")});
    EXPECT_EQ(Names(), (CStringArray{"a.kvstd", "d.KvStd"}));
}

TEST_F(MergeDlgTest, Merge_CancelledAddingChangesNothing) {
    Gui::Answer answer([](QWidget& box) { Gui::Key(box, Qt::Key_Escape); });
    Press(1008);
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_EQ(Names(), CStringArray());
}

TEST_F(MergeDlgTest, Merge_DroppedFilesAreAdded) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(PutOne("a.kvstd", "1")), QUrl("http://host/x.kvstd"),
                  QUrl::fromLocalFile(PutOne("b.kvstd", "2"))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(dialog.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(dialog.get(), &drop);
    EXPECT_EQ(Names(), (CStringArray{"a.kvstd", "b.kvstd"}));
    EXPECT_EQ(Enabled(), (std::vector<bool>{true, true, true, true}));
}

TEST_F(MergeDlgTest, Merge_DroppedTextIsNotTaken) {
    QMimeData data;
    data.setText("a.kvstd");
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(dialog.get(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(MergeDlgTest, Merge_RemoveTakesAllSelectedRows) {
    Add({PutOne("a.kvstd", "1"), PutOne("b.kvstd", "2"), PutOne("c.kvstd", "3")});
    ClickRow(0);
    ClickRow(2, Qt::ControlModifier);
    Press(1217);
    EXPECT_EQ(Names(), CStringArray{"b.kvstd"});
}

TEST_F(MergeDlgTest, Merge_DeleteKeyRemoves) {
    Add({PutOne("a.kvstd", "1"), PutOne("b.kvstd", "2")});
    ClickRow(0);
    Gui::Key(List(), Qt::Key_Delete);
    EXPECT_EQ(Names(), CStringArray{"b.kvstd"});
    ClickRow(0);
    Gui::Key(List(), Qt::Key_Delete);
    EXPECT_EQ(Enabled(), (std::vector<bool>{false, false, false, false}));
}

TEST_F(MergeDlgTest, Merge_MovedRowStaysSelected) {
    Add({PutOne("a.kvstd", "1"), PutOne("b.kvstd", "2"), PutOne("c.kvstd", "3")});
    ClickRow(2);
    Press(1218);
    EXPECT_EQ(Names(), (CStringArray{"a.kvstd", "c.kvstd", "b.kvstd"}));
    EXPECT_EQ(List().topLevelItem(1)->text(1), folder.Path("c.kvstd"));
    EXPECT_EQ(SelectedNames(), CStringArray{"c.kvstd"});
    Press(1218);
    Press(1218); // is first: nothing happens
    EXPECT_EQ(Names(), (CStringArray{"c.kvstd", "a.kvstd", "b.kvstd"}));
    for (int i = 0; i < 3; ++i)
        Press(1219);
    EXPECT_EQ(Names(), (CStringArray{"a.kvstd", "b.kvstd", "c.kvstd"}));
    EXPECT_EQ(SelectedNames(), CStringArray{"c.kvstd"});
    EXPECT_EQ(messages.texts, CStringArray());
}

TEST_F(MergeDlgTest, Merge_OnlyOneRowIsMoved) {
    Add({PutOne("a.kvstd", "1"), PutOne("b.kvstd", "2")});
    List().selectAll();
    Press(1218);
    Press(1219);
    List().clearSelection();
    Press(1218);
    Press(1219);
    EXPECT_EQ(messages.texts,
              (CStringArray{LoadString(2124), LoadString(2125), LoadString(2126), LoadString(2127)}));
    EXPECT_EQ(Names(), (CStringArray{"a.kvstd", "b.kvstd"}));
}

TEST_F(MergeDlgTest, Merge_OneFileIsNotEnough) {
    Add({PutOne("a.kvstd", "1")});
    Press(1);
    EXPECT_EQ(messages.texts, CStringArray{LoadString(2128)});
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(MergeDlgTest, Merge_LowerFileWinsAndTheResultIsOpened) {
    const CString first = Put("a.kvstd", Standard(Check("101", "A") + Check("203", "A")));
    const CString second = Put("b.kvstd", Standard(Check("101", "B")));
    CString opened;
    dialog.reset();
    CMergeDlg modal(Run(), Filters);
    modal.OpenDocumentFile = [&opened](const CString& path) { opened = path; };
    Gui::Answer act([&](QWidget& box) {
        Gui::Click(*Gui::FindNumber(box, 1008));
        Gui::Click(*Gui::FindNumber(box, 1));
    });
    Gui::Answer add([&](QWidget& box) { Gui::ChooseFile(box, "\"" + first + "\" \"" + second + "\""); });
    Gui::Answer save([this](QWidget& box) { Gui::ChooseFile(box, folder.Path("merged")); });
    EXPECT_EQ(modal.DoModal(), QDialog::Accepted);
    EXPECT_TRUE(save.WasAnswered());
    resultPath = folder.Path("merged.kvstd");
    EXPECT_EQ(opened, resultPath);
    EXPECT_EQ(ChecksOf(ListedPath()), (CStringArray{"203 A", "101 B"}));
    EXPECT_EQ(messages.texts, CStringArray());
}

TEST_F(MergeDlgTest, Merge_GivingUpTheTargetKeepsTheDialog) {
    Add({PutOne("a.kvstd", "1"), PutOne("b.kvstd", "2")});
    Gui::Answer answer([](QWidget& box) { Gui::Key(box, Qt::Key_Escape); });
    Press(1);
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Names(), (CStringArray{"a.kvstd", "b.kvstd"}));
}

TEST_F(MergeDlgTest, Merge_FilesThatAreNoStandardsKeepTheDialog) {
    Add({Put("a.kvstd", "<Other/>"), Put("b.kvstd", "nothing")});
    Press(1);
    EXPECT_EQ(messages.texts, (CStringArray{LoadString(2130) + files[0], LoadString(2129) + files[1]}));
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(MergeDlgTest, Merge_HelpShowsItsTopic) {
    Press(1006);
    EXPECT_EQ(help, (std::pair<unsigned, unsigned>{15, 3001}));
}

TEST_F(MergeDlgTest, Merge_EscapeOpensNothing) {
    dialog.reset();
    CMergeDlg modal(Run(), Filters);
    modal.OpenDocumentFile = [](const CString&) { FAIL() << "A document was opened."; };
    Gui::Answer answer([](QWidget& box) { Gui::Key(box, Qt::Key_Escape); });
    EXPECT_EQ(modal.DoModal(), QDialog::Rejected);
}

TEST_F(MergeDlgTest, Merge_WorksByKeyboard) {
    EXPECT_TRUE(List().hasFocus());
    std::vector<int> order;
    Add({PutOne("a.kvstd", "1"), PutOne("b.kvstd", "2")});
    Gui::Focus(List());
    for (int step = 0; step < 8; ++step) {
        order.push_back(QApplication::focusWidget()->objectName().toInt());
        Gui::Key(*QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, (std::vector<int>{1136, 1008, 1217, 1218, 1219, 1006, 1, 2}));
    EXPECT_FALSE(List().accessibleName().isEmpty());
    Gui::Key(*dialog, Qt::Key_R, Qt::AltModifier); // shows the button pressed for a moment
    EXPECT_TRUE(QTest::qWaitFor([this] { return Names() == CStringArray{"a.kvstd"}; }, 2000));
}

TEST_F(MergeDlgTest, Merge_ColumnsShareTheWidth) {
    const int width = List().viewport()->width();
    EXPECT_EQ(List().header()->sectionSize(0), width / 4 * 2);
    EXPECT_EQ(List().header()->sectionSize(0) + List().header()->sectionSize(1), width);
    EXPECT_EQ(List().headerItem()->text(0), LoadString(32917));
    EXPECT_EQ(List().headerItem()->text(1), LoadString(32919));
}

TEST_F(MergeDlgTest, Merge_TextsAndTipsAreThoseOfTheLibrary) {
    for (const char* language : {"English", "German"}) {
        const Language scope(language);
        Open();
        EXPECT_EQ(dialog->windowTitle(), LoadString(2138));
        const std::vector<std::tuple<int, unsigned, unsigned>> texts = {
            {1008, 2139, 1590}, {1217, 2140, 1592}, {1218, 2141, 1594}, {1219, 2142, 1596},
            {1, 2143, 0},       {2, 2144, 0},       {1006, 2145, 0}};
        for (const auto& [number, text, tip] : texts) {
            const auto& button = dynamic_cast<QPushButton&>(At(number));
            EXPECT_EQ(button.text(), LoadString(text));
            EXPECT_EQ(button.toolTip(), tip ? LoadString(tip) : CString());
            EXPECT_GE(button.width(), button.sizeHint().width()) << number;
        }
        EXPECT_EQ(List().toolTip(), LoadString(1598));
        dialog.reset();
    }
}
