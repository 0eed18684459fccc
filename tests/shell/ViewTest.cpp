// The commands of a document's pages.
#include "ViewRoom.h"

#include "editing/PageSheet.h"
#include "engines/ActiveUnit.h"
#include "platform/LanguageLibrary.h"

#include <QCheckBox>
#include <QLineEdit>

namespace {

constexpr unsigned AddDrafting = 32771, AddArrowheads = 32772, AddReferences = 32775, AddNoteFont = 32896,
                   AddDatum = 32778, AddFeatures = 32893;
constexpr MQC_CheckType_e Drafting = 101, Arrowheads = 102, References = 107, NoteFont = 109, Datum = 301,
                          Features = 701;
constexpr unsigned UnknownInRange = 32800, NothingToDo = 32859;

using ViewCommands = ViewRoom;

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
    Gui::Click(*Pane(Drafting).GetDlgItem<QCheckBox>(1020));
    auto& field = *Pane(Drafting).GetDlgItem<QLineEdit>(1315);
    Gui::Focus(field);
    Gui::Type(field, "AB");
    const int steps = Standard().GetHistoryIndex();
    Gui::Key(field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Standard().GetHistoryIndex(), steps - 1);
    EXPECT_EQ(field.text(), "A");
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

TEST_F(ViewCommands, TheEnginesAskForTheUnitOfTheDocumentInFront) {
    const int first = Standard().Unit;
    EXPECT_EQ(ActiveLengthUnit(), first);
    New();
    Standard().Unit = first + 1;
    EXPECT_EQ(ActiveLengthUnit(), first + 1);
    Send(Command::CloseAll);
    EXPECT_EQ(ActiveLengthUnit(), NoActiveUnit);
}

TEST_F(ViewCommands, ContentFromOutsideIsTakenUpWhileThePageIsInFront) {
    EXPECT_TRUE(Standard().LoadFromXmlText("<Standard Unit=\"3\" AngularUnit=\"3\" Version=\"2026\">"
                                           "<Check Type=\"301\" Criticality=\"2\"/></Standard>"));
    Document().SetLoaded(true);
    View().RebuildDisplay();
    EXPECT_EQ(Position(Datum), 0);
    EXPECT_EQ(View().GetLengthUnitName(), CString("Inches"));
    EXPECT_EQ(View().GetAngleUnitName(), CString("Radians"));
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
