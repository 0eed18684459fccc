// Panes that set only the criticality never lose what a file brought.
#include "support/PaneRoom.h"
#include "support/RandomStandard.h"
#include "support/StandardText.h"

#include "dialogs/KeepingCheckDlg.h"

#include <QComboBox>

namespace {

std::vector<MQC_CheckType_e> KeptTypes(PaneRoom& room) {
    std::vector<MQC_CheckType_e> types;
    for (const PageCheckRow& row : PageChecks())
        if (dynamic_cast<CKeepingCheckDlg*>(room.Pane(row.type)))
            types.push_back(row.type);
    return types;
}

// A standard that holds every kept type with values.
void Fill(PaneRoom& room, unsigned seed) {
    RandomStandard random(seed, RandomStandard::Taste::Fitting);
    for (const MQC_CheckType_e type : KeptTypes(room)) {
        auto check = random.Check(type);
        check->LifeStatus = LifeInForce;
        check->Criticality = 1;
        unsigned sequence = 0;
        room.standard.InsertCheck(std::move(check), sequence);
    }
}

} // namespace

TEST(KeepingPanes, ACriticalityChangesNothingElse) {
    for (const unsigned seed : {1u, 2u, 3u}) {
        PaneRoom room;
        Fill(room, seed);
        const CString before = LiveTextOf(room.standard);
        room.Show();
        room.TakeUp();
        for (const MQC_CheckType_e type : KeptTypes(room)) {
            QWidget* combo = room.Pane(type)->GetDlgItem<QWidget>(1249);
            if (type == 122)
                continue; // has no criticality of its own
            Gui::ChooseRow(*combo, 3);
            EXPECT_EQ(room.Live(type)->Criticality, 3u) << type;
        }
        CStandard reopened;
        ReadText(TextOf(room.standard), reopened);
        for (const MQC_CheckType_e type : KeptTypes(room)) {
            CCheck* check = nullptr;
            reopened.FindLiveByType(type, check);
            ASSERT_TRUE(check) << type;
            check->Criticality = 1;
        }
        EXPECT_EQ(LiveTextOf(reopened), before) << seed;
    }
}

TEST(KeepingPanes, WhatIsPendingIsNoChange) {
    PaneRoom room;
    Fill(room, 4);
    room.Show();
    room.TakeUp();
    for (const MQC_CheckType_e type : KeptTypes(room))
        room.Pane(type)->OnCriticalityChanged();
    EXPECT_FALSE(room.standard.CanUndo());
}

TEST(KeepingPanes, TheCustomChecksKeepACriticalityThatTheirPaneDoesNotShow) {
    PaneRoom room;
    Fill(room, 5);
    room.Live(122)->Criticality = 3;
    room.Show();
    room.TakeUp();
    room.Pane(122)->OnCriticalityChanged();
    EXPECT_EQ(room.Live(122)->Criticality, 3u);
    auto copy = CStandard::MakeCheck(122);
    room.Pane(122)->FillCheck(*copy);
    EXPECT_EQ(copy->Criticality, 3u);
}

TEST(KeepingPanes, ACopyOfACheckArrivesWhole) {
    PaneRoom source, target;
    Fill(source, 5);
    target.Show();
    for (const MQC_CheckType_e type : KeptTypes(source)) {
        target.GetChecksPage().AddCheck(type, source.Live(type));
        ASSERT_TRUE(target.Live(type)) << type;
    }
    Gui::Settle();
    EXPECT_EQ(LiveTextOf(target.standard), LiveTextOf(source.standard));
}

TEST(KeepingPanes, ANewCheckHasNoValues) {
    PaneRoom room;
    room.Show();
    room.Add(108);
    CStandard empty;
    unsigned sequence = 0;
    empty.InsertCheck(CStandard::MakeCheck(108), sequence);
    EXPECT_EQ(LiveTextOf(room.standard), LiveTextOf(empty));
}
