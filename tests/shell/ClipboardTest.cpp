// Checks are copied, cut and pasted.
#include "ViewRoom.h"

#include "platform/LanguageLibrary.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>

namespace {

constexpr unsigned AskToReplace = 1937;

class Clipboard : public ViewRoom {
protected:
    CheckClipboard& Held() { return app.GetCheckClipboard(); }
    std::vector<MQC_CheckType_e> HeldTypes() {
        std::vector<MQC_CheckType_e> types;
        for (const auto& check : Held().checks)
            types.push_back(check->Type);
        return types;
    }
    void Select(MQC_CheckType_e type) { Page().SelectPane(Position(type)); }
    void AlsoSelect(MQC_CheckType_e type) { Page().ToggleSelection(Position(type)); }
    using Types = std::vector<MQC_CheckType_e>;
};

// A type with a pane and a parameter that is a length.
struct LengthParameter {
    MQC_CheckType_e type = 0;
    unsigned id = 0;
};

LengthParameter FindLength() {
    for (const CheckTypeDefinition& definition : AllCheckTypes())
        for (const ParameterDefinition& parameter : definition.parameters)
            if (FindPageCheck(definition.type) && !FindContainerType(definition.type) &&
                parameter.dataType == DataDouble && parameter.parameterType == 1)
                return {definition.type, parameter.id};
    return {};
}

} // namespace

TEST_F(Clipboard, CopiesTheSelectedChecksInTheOrderOfTheirPositions) {
    Send(AddFeatures);
    Send(AddReferences);
    Send(AddDatum);
    Select(Datum);
    AlsoSelect(Features);
    EXPECT_TRUE(Send(Command::Copy));
    EXPECT_EQ(HeldTypes(), (Types{Features, Datum}));
    EXPECT_EQ(Standard().CountLiveChecks(), 3);
}

TEST_F(Clipboard, CopyingNothingEmptiesIt) {
    Send(AddReferences);
    Send(AddDatum);
    Send(Command::Copy);
    EXPECT_EQ(HeldTypes(), Types{Datum});
    Page().RemoveCheck(Datum, true);
    ASSERT_TRUE(Page().GetSelection().empty());
    Send(Command::Copy);
    EXPECT_TRUE(Held().checks.empty());
}

TEST_F(Clipboard, CutTakesSeveralChecksAway) {
    Send(AddFeatures);
    Send(AddReferences);
    Send(AddDatum);
    Select(Features);
    AlsoSelect(References);
    AlsoSelect(Datum);
    Send(Command::Cut);
    EXPECT_EQ(HeldTypes(), (Types{Features, References, Datum}));
    EXPECT_EQ(Standard().CountLiveChecks(), 0);
    EXPECT_EQ(Page().GetNextPosition(), -1);
    Send(Command::Paste);
    EXPECT_EQ(Standard().CountLiveChecks(), 3);
    EXPECT_EQ(Position(Features), 0);
    EXPECT_EQ(Page().GetSelectedPosition(), Position(Datum)) << "the last pasted is selected";
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(Clipboard, AFieldOfTextKeepsItsOwnClipboard) {
    Send(AddReferences);
    Send(Command::Copy);
    Send(AddDrafting);
    auto* field = Pane(Drafting).GetDlgItem<QLineEdit>(NameOfStandard);
    ASSERT_NE(field, nullptr);
    Gui::Click(*Pane(Drafting).GetDlgItem<QCheckBox>(OwnStandard));
    Gui::Focus(*field);
    field->setText("Letters");
    field->selectAll();
    ASSERT_EQ(QApplication::focusWidget(), field);
    EXPECT_TRUE(Send(Command::Copy));
    EXPECT_EQ(QApplication::clipboard()->text(), "Letters");
    EXPECT_EQ(HeldTypes(), Types{References});
    Send(Command::Cut);
    EXPECT_EQ(field->text(), "");
    EXPECT_EQ(Standard().CountLiveChecks(), 2);
    Send(Command::Paste);
    EXPECT_EQ(field->text(), "Letters");
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(Clipboard, KeysInAFieldOfTextLeaveTheChecksAlone) {
    Send(AddReferences);
    Send(Command::Copy);
    Send(AddDrafting);
    Gui::Click(*Pane(Drafting).GetDlgItem<QCheckBox>(OwnStandard));
    auto& field = *Pane(Drafting).GetDlgItem<QLineEdit>(NameOfStandard);
    Gui::Focus(field);
    Gui::Type(field, "Letters");
    Gui::Key(field, Qt::Key_Home, Qt::ShiftModifier);
    Gui::Key(field, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Letters");
    Gui::Key(field, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(field.text(), "");
    Gui::Key(field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), "Letters");
    EXPECT_EQ(HeldTypes(), Types{References});
    EXPECT_EQ(Standard().CountLiveChecks(), 2);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(Clipboard, KeysCopyChecksAndNothingOnceTheirPaneIsClosed) {
    Send(AddReferences);
    Send(AddDatum);
    ASSERT_TRUE(Page().hasFocus());
    QApplication::clipboard()->setText("before");
    Gui::Key(Page(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(HeldTypes(), Types{Datum});
    EXPECT_EQ(QApplication::clipboard()->text(), "before");
    Gui::Click(*Pane(Datum).GetDlgItem<QWidget>(CExtDialog::CloseControl));
    ASSERT_EQ(Standard().CountLiveChecks(), 1);
    Gui::Key(Page(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(Held().checks.empty());
    Gui::Key(Page(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Standard().CountLiveChecks(), 1);
}

TEST_F(Clipboard, WithoutTheKeyboardNothingIsPasted) {
    Send(AddReferences);
    Send(Command::Cut);
    QApplication::focusWidget()->clearFocus();
    ASSERT_EQ(QApplication::focusWidget(), nullptr);
    Send(Command::Paste);
    EXPECT_EQ(Standard().CountLiveChecks(), 0);
}

TEST_F(Clipboard, PastingOverACheckAsksAndTakesTheNewValues) {
    Send(AddReferences);
    SetCriticality(References, 3);
    Send(Command::Copy);
    SetCriticality(References, 0);
    Send(Command::Paste);
    EXPECT_EQ(told, CStringArray{Live(References)->Name + LoadString(AskToReplace)});
    EXPECT_EQ(Live(References)->Criticality, 3u);
    EXPECT_EQ(Pane(References).Criticality, 3u);
    Send(Command::Undo);
    EXPECT_EQ(Live(References)->Criticality, 0u);
}

TEST_F(Clipboard, PastingOverACheckWithNoChangesNothing) {
    Send(AddReferences);
    SetCriticality(References, 3);
    Send(Command::Copy);
    SetCriticality(References, 0);
    const int steps = Standard().GetHistoryIndex();
    answer = MessageAnswer::No;
    Send(Command::Paste);
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(Live(References)->Criticality, 0u);
    EXPECT_EQ(Standard().GetHistoryIndex(), steps);
}

TEST_F(Clipboard, PastedValuesWinOverThoseOfADeletedCheck) {
    Send(AddReferences);
    SetCriticality(References, 3);
    Send(Command::Copy);
    SetCriticality(References, 0);
    Page().RemoveCheck(References, true);
    Send(Command::Paste);
    ASSERT_NE(Live(References), nullptr);
    EXPECT_EQ(Live(References)->Criticality, 3u);
    EXPECT_EQ(Pane(References).Criticality, 3u);
    EXPECT_EQ(Position(References), 0);
}

TEST_F(Clipboard, ChecksOutliveTheDocumentTheyCameFrom) {
    Send(AddReferences);
    SetCriticality(References, 2);
    Send(Command::Copy);
    Document().GetFrame()->CloseUnasked();
    Gui::Settle();
    New();
    Send(Command::Paste);
    ASSERT_NE(Live(References), nullptr);
    EXPECT_EQ(Live(References)->Criticality, 2u);
}

TEST_F(Clipboard, LengthsAreConvertedToTheUnitOfTheStandard) {
    const LengthParameter length = FindLength();
    ASSERT_NE(length.type, 0);
    View().ApplyUnits(0, 0);
    const unsigned command = FindPageCheck(length.type)->commandID;
    Send(command);
    auto edited = CStandard::CloneCheck(*Live(length.type));
    CParameter<double>* parameter = edited->GetDoubleParameter(length.id);
    parameter->Operator = 2;
    parameter->Values.Clear();
    parameter->Values.Add(25.4);
    Standard().EditCheck(std::move(edited));
    Page().LoadPane(*Live(length.type));
    Send(Command::Copy);
    New();
    View().ApplyUnits(3, 0);
    Send(Command::Paste);
    ASSERT_NE(Live(length.type), nullptr);
    const CParameter<double>* pasted = Live(length.type)->GetDoubleParameter(length.id);
    ASSERT_EQ(pasted->Values.Count, 1);
    EXPECT_NEAR(pasted->Values[0], 1.0, 1e-9);
}
