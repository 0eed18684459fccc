// The commands of a document's pages.
#include "ViewRoom.h"

#include "editing/PageSheet.h"
#include "engines/ActiveUnit.h"
#include "platform/LanguageLibrary.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>

namespace {

constexpr unsigned UnknownInRange = 32800, NothingToDo = 32859;

constexpr int Iso = 1007; // a control

class ViewCommands : public ViewRoom {
protected:
    // A button of the catalogue bar, by mouse.
    void Press(MQC_CheckType_e type) {
        CTabToolbar& bar = app.GetMainFrame()->GetTabToolbar();
        const PageCheckRow& row = *FindPageCheck(type);
        Gui::ClickAt(bar.GetTabs(), bar.GetTabs().tabRect(static_cast<int>(row.group)).center());
        Gui::Click(*Gui::FindNumber(bar, static_cast<int>(row.commandID)));
    }
};

} // namespace

TEST_F(ViewCommands, ANewDocumentShowsAnEmptyPageUnderItsTitle) {
    EXPECT_EQ(View().GetSheet().GetActivePage(), ChecksPage);
    EXPECT_EQ(Standard().Name, Document().GetTitle());
    EXPECT_TRUE(Page().GetTypePositions().empty());
    EXPECT_TRUE(Page().hasFocus());
}

TEST_F(ViewCommands, ACommandOfTheCatalogueTwiceAddsACheckAndTakesItAway) {
    EXPECT_TRUE(Send(AddReferences));
    EXPECT_NE(Live(References), nullptr);
    CommandState state;
    EXPECT_TRUE(View().OnUpdateCommand(AddReferences, state));
    EXPECT_TRUE(state.checked);
    EXPECT_TRUE(Page().hasFocus());
    EXPECT_TRUE(Send(AddReferences));
    EXPECT_EQ(Live(References), nullptr);
    EXPECT_EQ(Position(References), -1);
}

TEST_F(ViewCommands, AButtonOfTheCatalogueTwiceAndUndoKeepThePlace) {
    Send(AddReferences);
    Press(Datum);
    Send(AddFeatures);
    const int place = Position(Datum);
    const int next = Position(Features);
    ASSERT_GT(place, 0);
    Press(Datum);
    EXPECT_EQ(Live(Datum), nullptr);
    EXPECT_EQ(Position(Features), place);
    EXPECT_TRUE(Pane(Datum).isHidden());
    Gui::Key(*QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    ASSERT_NE(Live(Datum), nullptr);
    EXPECT_EQ(Position(Datum), place);
    EXPECT_EQ(Position(Features), next);
    EXPECT_FALSE(Pane(Datum).isHidden());
}

TEST_F(ViewCommands, UndoBringsARemovedCheckBackToItsOldPlace) {
    Send(AddReferences);
    Send(AddDatum);
    Send(AddFeatures);
    const int place = Position(Datum);
    Send(AddDatum);
    EXPECT_EQ(Position(Datum), -1);
    EXPECT_TRUE(Send(Command::Undo));
    EXPECT_EQ(Position(Datum), place);
    EXPECT_NE(Live(Datum), nullptr);
    EXPECT_TRUE(Send(Command::Redo));
    EXPECT_EQ(Position(Datum), -1);
}

TEST_F(ViewCommands, TheKeyForUndoInAFieldUndoesAStepOfTheStandard) {
    Send(AddDrafting);
    Gui::Click(*Pane(Drafting).GetDlgItem<QCheckBox>(OwnStandard));
    auto& field = *Pane(Drafting).GetDlgItem<QLineEdit>(NameOfStandard);
    Gui::Focus(field);
    Gui::Type(field, "AB");
    const int steps = Standard().GetHistoryIndex();
    Gui::Key(field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Standard().GetHistoryIndex(), steps - 1);
    EXPECT_EQ(field.text(), "A");
}

TEST_F(ViewCommands, EnterAndEscapeInAPaneDoNothing) {
    Send(AddDrafting);
    Gui::Click(*Pane(Drafting).GetDlgItem<QCheckBox>(OwnStandard));
    auto& field = *Pane(Drafting).GetDlgItem<QLineEdit>(NameOfStandard);
    Gui::Type(field, "Acme");
    const int steps = Standard().GetHistoryIndex();
    QWidget* const controls[] = {&Pane(Drafting), &field, Pane(Drafting).GetDlgItem<QCheckBox>(OwnStandard),
                                 Pane(Drafting).GetDlgItem<QComboBox>(CExtDialog::CriticalityControl)};
    for (QWidget* control : controls)
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
            Gui::Focus(*control);
            Gui::Key(*control, key);
            EXPECT_EQ(Standard().GetHistoryIndex(), steps) << control->metaObject()->className();
            EXPECT_FALSE(Pane(Drafting).isHidden());
            EXPECT_EQ(field.text(), "Acme");
            EXPECT_TRUE(Document().GetFrame()->isMaximized());
        }
    EXPECT_EQ(app.GetDocuments().size(), 1u);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(ViewCommands, AFontCommandAsksAndAddsOrRemovesItsCheck) {
    View().ActivatePage(SummaryPage);
    const Gui::Answer cancel([](QWidget& dialog) { Gui::PressButton(dialog, LoadString(2144)); });
    Send(AddNoteFont);
    EXPECT_TRUE(cancel.WasAnswered());
    EXPECT_EQ(Live(NoteFont), nullptr);
    EXPECT_EQ(View().GetSheet().GetActivePage(), ChecksPage);
    const Gui::Answer add([](QWidget& dialog) { Gui::PressButton(dialog, LoadString(2143)); });
    Send(AddNoteFont);
    EXPECT_TRUE(add.WasAnswered());
    EXPECT_NE(Live(NoteFont), nullptr);
    EXPECT_TRUE(Page().hasFocus());
    Send(AddNoteFont);
    EXPECT_EQ(Live(NoteFont), nullptr);
}

TEST_F(ViewCommands, AnUnknownCommandOfTheCatalogueShowsThePageOfChecks) {
    View().ActivatePage(SummaryPage);
    EXPECT_TRUE(Send(UnknownInRange));
    EXPECT_EQ(View().GetSheet().GetActivePage(), ChecksPage);
    EXPECT_TRUE(Page().hasFocus());
    EXPECT_EQ(Standard().CountLiveChecks(), 0);
}

TEST_F(ViewCommands, ACommandWithoutEffectHasNone) {
    View().ActivatePage(SummaryPage);
    EXPECT_TRUE(Send(NothingToDo));
    EXPECT_EQ(View().GetSheet().GetActivePage(), SummaryPage);
}

TEST_F(ViewCommands, AddingFromAnotherPageShowsThePageOfChecks) {
    View().ActivatePage(OptionsPage);
    Send(AddReferences);
    EXPECT_EQ(View().GetSheet().GetActivePage(), ChecksPage);
    EXPECT_NE(Live(References), nullptr);
}

TEST_F(ViewCommands, CommandsAreEnabledWhereTheyHaveSomethingToDo) {
    EXPECT_FALSE(IsEnabled(Command::Undo));
    EXPECT_FALSE(IsEnabled(Command::Redo));
    EXPECT_FALSE(IsEnabled(Command::Copy));
    EXPECT_FALSE(IsEnabled(Command::Cut));
    EXPECT_TRUE(IsEnabled(Command::Paste));
    EXPECT_TRUE(IsEnabled(Command::ShowAllChecks));
    EXPECT_TRUE(IsEnabled(Command::Print));
    EXPECT_TRUE(IsEnabled(Command::PrintAtOnce));
    EXPECT_TRUE(IsEnabled(Command::Save));
    EXPECT_FALSE(IsEnabled(Command::PrintPreview));
    Send(AddReferences);
    for (const unsigned command : {Command::Undo, Command::Copy, Command::Cut})
        EXPECT_TRUE(IsEnabled(command)) << command;
    Send(Command::Undo);
    EXPECT_TRUE(IsEnabled(Command::Redo));
    EXPECT_FALSE(IsEnabled(Command::Copy)) << "a deleted check is none to copy";
}

TEST_F(ViewCommands, OnTheOtherPagesThereIsNothingToEdit) {
    Send(AddReferences);
    for (const SheetPage page : {SummaryPage, OptionsPage}) {
        View().ActivatePage(page);
        for (const unsigned command :
             {Command::Undo, Command::Copy, Command::Cut, Command::Paste, Command::ShowAllChecks})
            EXPECT_FALSE(IsEnabled(command)) << command;
        EXPECT_TRUE(IsEnabled(AddDatum));
        EXPECT_TRUE(IsEnabled(Command::Print));
    }
}

TEST_F(ViewCommands, PrintingIsHandedOnInItsTwoModes) {
    Send(Command::Print);
    Send(Command::PrintAtOnce);
    ASSERT_EQ(prints.size(), 2u);
    EXPECT_EQ(prints[0], std::pair(&Standard(), PrintMode::WithDialog));
    EXPECT_EQ(prints[1], std::pair(&Standard(), PrintMode::AtOnce));
}

TEST_F(ViewCommands, PrintingLeavesTheHistoryAsItIs) {
    Send(AddDrafting);
    Gui::Click(*Pane(Drafting).GetDlgItem<QCheckBox>(Iso));
    SetCriticality(Drafting, 3);
    Send(Command::Undo);
    const int steps = Standard().GetHistoryIndex();
    EXPECT_TRUE(Send(Command::Print));
    EXPECT_TRUE(Send(Command::PrintAtOnce));
    EXPECT_EQ(prints.size(), 2u);
    EXPECT_EQ(Standard().GetHistoryIndex(), steps);
    EXPECT_TRUE(Standard().CanRedo());
}

TEST_F(ViewCommands, CloseAllClosesEveryDocument) {
    New();
    Send(Command::CloseAll);
    EXPECT_TRUE(app.GetDocuments().empty());
}

TEST_F(ViewCommands, OnlyLiveChecksCountAndMakeADocumentModified) {
    Send(AddReferences);
    Send(AddDatum);
    Send(AddDatum);
    EXPECT_EQ(Standard().CountLiveChecks(), 1);
    app.GetRouter().UpdateNow();
    EXPECT_TRUE(Document().IsModified());
}

TEST_F(ViewCommands, WithoutShowAllOnlyTheGroupInFrontIsSeen) {
    Send(AddReferences);
    Send(AddDatum);
    ASSERT_FALSE(app.IsShowingAll());
    EXPECT_TRUE(Pane(References).isHidden());
    EXPECT_FALSE(Pane(Datum).isHidden());
    Send(Command::ShowAllChecks);
    EXPECT_FALSE(Pane(References).isHidden());
    EXPECT_FALSE(Pane(Datum).isHidden());
    Send(Command::ShowAllChecks);
    app.GetMainFrame()->GetTabToolbar().FocusGroup(0);
    EXPECT_FALSE(Pane(References).isHidden());
    EXPECT_TRUE(Pane(Datum).isHidden());
}

TEST_F(ViewCommands, EachOpenDocumentFollowsShowAll) {
    Send(AddReferences);
    Send(AddDatum);
    CExtDialog& hidden = Pane(References);
    New();
    Send(Command::ShowAllChecks);
    EXPECT_FALSE(hidden.isHidden());
}

TEST_F(ViewCommands, ADocumentThatComesToTheFrontShowsTheGroupInFront) {
    Send(AddReferences);
    CChildFrame& first = *Document().GetFrame();
    CExtDialog& pane = Pane(References);
    New();
    app.GetMainFrame()->GetTabToolbar().FocusGroup(1);
    app.GetMainFrame()->ActivateChild(first);
    Gui::Settle();
    app.GetRouter().ActionOf(Command::ShowAllChecks);
    app.GetRouter().UpdateNow();
    EXPECT_TRUE(pane.isHidden());
}

TEST_F(ViewCommands, TheSummaryShowsEachCheckAndLeadsToItsPane) {
    Send(AddFeatures);
    Send(AddReferences);
    Pane(References).ToggleExpand();
    View().ActivatePage(SummaryPage);
    EXPECT_EQ(View().GetSummaryPage().LastRow, 2);
    EXPECT_EQ(View().GetSummaryPage().NameToType.value(Live(References)->Name), References);
    static_cast<EditingHost&>(View()).ActivatePage(ChecksPage);
    Page().ShowCheck(References);
    EXPECT_TRUE(Pane(References).Expanded);
    EXPECT_FALSE(Pane(References).isHidden());
}

TEST_F(ViewCommands, SummaryAndOptionsTakeWhatThePaneHasNotWrittenYet) {
    Send(AddArrowheads);
    Pane(Arrowheads).Criticality = 3;
    View().ActivatePage(SummaryPage);
    EXPECT_EQ(Live(Arrowheads)->Criticality, 3u);
    Pane(Arrowheads).Criticality = 2;
    View().ActivatePage(OptionsPage);
    EXPECT_EQ(Live(Arrowheads)->Criticality, 2u);
}

TEST_F(ViewCommands, SavingTakesWhatThePaneHasNotWrittenYet) {
    const TestFolder folder;
    Send(AddArrowheads);
    ASSERT_TRUE(Document().SaveStandardAs(folder.Path("a.kvstd")));
    Pane(Arrowheads).Criticality = 3;
    EXPECT_TRUE(Send(Command::Save));
    CStandard saved;
    ASSERT_TRUE(saved.LoadFromFile(Document().GetWorkingFile()));
    CCheck* check = nullptr;
    saved.FindLiveByType(Arrowheads, check);
    ASSERT_NE(check, nullptr);
    EXPECT_EQ(check->Criticality, 3u);
    EXPECT_FALSE(Document().IsModified());
}

// Corrections are compared in a way by which most of them differ from themselves.
TEST_F(ViewCommands, WhatAnUnchangedPaneWritesMayBeAStep) {
    Send(AddDrafting);
    Gui::Click(*Pane(Drafting).GetDlgItem<QCheckBox>(Iso));
    ASSERT_EQ(Live(Drafting)->GetLongParameter(1578)->Correction, 2);
    const int steps = Standard().GetHistoryIndex();
    View().ActivatePage(SummaryPage);
    EXPECT_EQ(Standard().GetHistoryIndex(), steps + 1);
    View().ActivatePage(OptionsPage);
    EXPECT_EQ(Standard().GetHistoryIndex(), steps + 2);
    Send(AddReferences); // its pane is the selected one from now on, and writes nothing on its own
    View().ActivatePage(SummaryPage);
    EXPECT_EQ(Standard().GetHistoryIndex(), steps + 3);
}

TEST_F(ViewCommands, TheEnginesAskForTheUnitOfTheDocumentInFront) {
    const int first = Standard().Unit;
    EXPECT_EQ(ActiveLengthUnit(), first);
    New();
    Standard().Unit = first + 1;
    EXPECT_EQ(ActiveLengthUnit(), first + 1);
    Send(Command::CloseAll);
    EXPECT_EQ(ActiveLengthUnit(), NoActiveUnit);
}

TEST_F(ViewCommands, ContentFromOutsideIsTakenUpWhicheverPageIsInFront) {
    for (const SheetPage page : {ChecksPage, SummaryPage, OptionsPage}) {
        New();
        View().ActivatePage(page);
        EXPECT_TRUE(Standard().LoadFromXmlText("<Standard Unit=\"3\" AngularUnit=\"3\" Version=\"2026\">"
                                               "<Check Type=\"301\" Criticality=\"2\"/></Standard>"));
        Document().SetLoaded(true);
        View().RebuildDisplay();
        EXPECT_EQ(View().GetSheet().GetActivePage(), ChecksPage);
        EXPECT_EQ(Position(Datum), 0) << page;
        EXPECT_FALSE(Document().IsLoaded());
        EXPECT_EQ(View().GetLengthUnitName(), CString("Inches"));
        EXPECT_EQ(View().GetAngleUnitName(), CString("Radians"));
    }
}

TEST_F(ViewCommands, AFileOpensWithItsChecksOnThePage) {
    TestFolder folder;
    folder.Put("a.kvstd", "<Standard Unit=\"2\" AngularUnit=\"0\" Version=\"2026\"><Check Type=\"701\"/>"
                          "<Check Type=\"107\" LifeStatus=\"1\"/><Check Type=\"301\"/></Standard>");
    ASSERT_NE(app.OpenDocumentFile(folder.Path("a.kvstd")), nullptr);
    Gui::Settle();
    EXPECT_EQ(Position(Features), 0);
    EXPECT_GT(Position(Datum), 0);
    EXPECT_EQ(Position(References), -1);
    EXPECT_EQ(Standard().Name, folder.Path("a.kvstd"));
    app.GetRouter().UpdateNow();
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(ViewCommands, ACheckWithoutAPaneSurvivesASave) {
    const TestFolder folder;
    folder.Put("a.kvstd", "<Standard Unit=\"2\" AngularUnit=\"0\" Version=\"2026\"><Check Type=\"301\"/>"
                          "<Check Type=\"605\" Name=\"Hidden\" Criticality=\"3\"/></Standard>");
    ASSERT_NE(app.OpenDocumentFile(folder.Path("a.kvstd")), nullptr);
    Gui::Settle();
    EXPECT_EQ(Page().GetTypePositions().size(), 1u);
    View().ActivatePage(SummaryPage);
    EXPECT_EQ(View().GetSummaryPage().LastRow, 1);
    Send(AddReferences);
    EXPECT_TRUE(Send(Command::Save));
    CStandard saved;
    ASSERT_TRUE(saved.LoadFromFile(Document().GetWorkingFile()));
    EXPECT_EQ(saved.CountLiveChecks(), 3);
    CCheck* hidden = nullptr;
    saved.FindLiveByType(605, hidden);
    ASSERT_NE(hidden, nullptr);
    EXPECT_EQ(hidden->Name, "Hidden");
    EXPECT_EQ(hidden->Criticality, 3u);
}
