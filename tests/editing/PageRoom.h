// A page of checks in a window of its own, over a standard without a document.
#pragma once

#include "dialogs/PaneFactory.h"
#include "editing/PageDialog.h"
#include "support/CheckNumbers.h"
#include "support/Gui.h"

#include <gtest/gtest.h>

// The shell as a page sees it: a standard, a catalogue bar, and a note of what was asked.
class PageHost : public EditingHost {
public:
    CStandard& GetStandard() override { return standard; }
    UnitSettingsList& GetUnitSettings() override { return unitSettings; }
    bool TakeLoadedFlag() override { return std::exchange(loaded, false); }
    std::unique_ptr<CExtDialog> MakePane(const PageCheckRow& row) override { return ::MakePane(*this, row); }
    CPageDialog& GetChecksPage() override { return *page; }
    void ActivatePage(SheetPage) override {}
    unsigned CurrentGroup() const override { return group; }
    void FocusGroup(unsigned asked) override {
        const bool isOther = std::exchange(group, asked) != asked;
        if (isOther && !showAll)
            page->RelayoutKeepScroll();
    }
    bool IsShowingAll() const override { return showAll; }
    void CheckActiveChanged(const CPDCheckInfo& info) override { changed.push_back(info.GetCommandID()); }
    void ShowHelp(unsigned, unsigned) override {}
    void ShowContextMenu(const QPoint& place) override { menus.push_back(place); }
    void ArmUpdate() override {}

    CStandard standard;
    UnitSettingsList unitSettings;
    CPageDialog* page = nullptr;
    bool loaded = false;
    unsigned group = 0;
    bool showAll = true;
    std::vector<unsigned> changed; // commands of checks that came or went
    std::vector<QPoint> menus;
};

class PageRoom : public ::testing::Test {
protected:
    PageRoom() {
        host.standard.Unit = 0;
        host.standard.AngularUnit = 0;
        page = new CPageDialog(host, &window);
        host.page = page;
        window.resize(1000, 600);
        page->setGeometry(window.rect());
    }
    ~PageRoom() override { delete page; }

    void Show() { Gui::Show(window); }
    void Resize(int width, int height) {
        window.resize(width, height);
        page->setGeometry(0, 0, width, height);
        Gui::Settle();
    }
    void Add(std::initializer_list<MQC_CheckType_e> types) {
        for (const MQC_CheckType_e type : types)
            page->AddCheck(type, nullptr);
    }
    CExtDialog& Pane(MQC_CheckType_e type) { return *page->GetPane(type, false); }
    int Size(MQC_CheckType_e type) { return Pane(type).LogicalSize; }
    int Position(MQC_CheckType_e type) const {
        const auto entry = page->GetTypePositions().find(type);
        return entry == page->GetTypePositions().end() ? -1 : entry->second;
    }
    CCheck* Live(MQC_CheckType_e type) {
        CCheck* check = nullptr;
        host.standard.FindLiveByType(type, check);
        return check;
    }
    void Step(bool isUndo) {
        int step = -1;
        const MQC_CheckType_e type = host.standard.StepHistory(isUndo, step);
        ASSERT_NE(type, 0);
        page->ApplyHistoryStep(type, step, isUndo);
    }
    void Undo() { Step(true); }
    void Redo() { Step(false); }
    // Types of the panes that are seen, from top to bottom.
    std::vector<MQC_CheckType_e> Seen() const {
        std::map<int, MQC_CheckType_e> byTop;
        for (const auto& [type, position] : page->GetTypePositions())
            if (const CExtDialog* pane = page->GetPane(type, false); !pane->isHidden())
                byTop[pane->y()] = type;
        std::vector<MQC_CheckType_e> seen;
        for (const auto& [top, type] : byTop)
            seen.push_back(type);
        return seen;
    }
    void ExpectAgreement();

    PageHost host;
    QWidget window;
    CPageDialog* page;
};

// The page's maps, its panes and the standard tell the same.
inline void PageRoom::ExpectAgreement() {
    CheckList live;
    host.standard.GetLiveChecks(live);
    std::map<MQC_CheckType_e, CCheck*> expected;
    int next = 0;
    for (CCheck* check : live) {
        if (!page->GetPane(check->Type, false) || !expected.emplace(check->Type, check).second)
            continue;
        const CExtDialog& pane = Pane(check->Type);
        EXPECT_EQ(Position(check->Type), next) << check->Type;
        EXPECT_EQ(pane.Position, next) << check->Type;
        const auto sequence = page->GetPositionSequences().find(next);
        ASSERT_NE(sequence, page->GetPositionSequences().end()) << check->Type;
        EXPECT_EQ(sequence->second, static_cast<int>(check->Sequence));
        EXPECT_EQ(page->TypeAtPosition(next + pane.LogicalSize - 1), check->Type);
        EXPECT_NE(pane.DisplayState, CExtDialog::Hidden);
        EXPECT_EQ(pane.Criticality, check->Criticality) << check->Type;
        next += pane.LogicalSize;
    }
    EXPECT_EQ(page->GetTypePositions().size(), expected.size());
    EXPECT_EQ(page->GetPositionSequences().size(), expected.size());
    EXPECT_EQ(std::max(page->GetNextPosition(), 0), next);
    const std::vector<int>& selection = page->GetSelection();
    for (const int position : selection)
        EXPECT_TRUE(page->GetPositionSequences().count(position)) << position;
    if (const int selected = page->GetSelectedPosition(); selected != -1) {
        EXPECT_NE(std::ranges::find(selection, selected), selection.end());
    }
    for (const MQC_CheckType_e type : page->GetTable().Order()) {
        const bool isPlaced = expected.count(type) > 0;
        const CExtDialog& pane = Pane(type);
        EXPECT_EQ(page->GetTable().Find(type)->IsActive(), isPlaced) << type;
        EXPECT_EQ(pane.DisplayState != CExtDialog::Hidden, isPlaced) << type;
        const bool isSelected = isPlaced && std::ranges::find(selection, pane.Position) != selection.end();
        EXPECT_EQ(pane.Selected, isSelected) << type;
    }
}
