// A page of checks over a standard of its own, in a window, as the tool would show it.
#pragma once

#include "dialogs/PaneFactory.h"
#include "editing/PageDialog.h"
#include "platform/LanguageLibrary.h"
#include "support/Gui.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>

class PaneRoom final : public EditingHost {
public:
    PaneRoom() : m_page(std::make_unique<CPageDialog>(*this)) { m_page->resize(1100, 700); }

    CStandard& GetStandard() override { return standard; }
    UnitSettingsList& GetUnitSettings() override { return units; }
    CSettingsKey* GetSettings() override { return settings; }
    bool TakeLoadedFlag() override { return std::exchange(isLoaded, false); }
    std::unique_ptr<CExtDialog> MakePane(const PageCheckRow& row) override { return ::MakePane(*this, row); }
    CPageDialog& GetChecksPage() override { return *m_page; }
    void ActivatePage(SheetPage) override {}
    unsigned CurrentGroup() const override { return 0; }
    void FocusGroup(unsigned) override {}
    bool IsShowingAll() const override { return true; }
    void CheckActiveChanged(const CPDCheckInfo&) override {}
    void ShowHelp(unsigned command, unsigned topic) override { helpAsked.emplace_back(command, topic); }
    void ShowContextMenu(const QPoint& place) override { menusAsked.push_back(place); }
    void ArmUpdate() override {}

    void Show() { Gui::Show(*m_page); }
    // A new check, whose pane is then shown and selected.
    CExtDialog& Add(MQC_CheckType_e type) {
        m_page->AddCheck(type, nullptr);
        Gui::Settle();
        return *m_page->GetPane(type, false);
    }
    // Takes up what stands in the standard.
    void TakeUp() {
        isLoaded = true;
        m_page->TakeUpLoadedChecks();
        Gui::Settle();
    }
    CExtDialog* Pane(MQC_CheckType_e type) { return m_page->GetPane(type, false); }
    CCheck* Live(MQC_CheckType_e type) const {
        CCheck* check = nullptr;
        standard.FindLiveByType(type, check);
        return check;
    }

    CStandard standard;
    UnitSettingsList units;
    CSettingsKey* settings = nullptr;
    bool isLoaded = false;
    std::vector<std::pair<unsigned, unsigned>> helpAsked; // command and topic
    std::vector<QPoint> menusAsked;

private:
    std::unique_ptr<CPageDialog> m_page;
};

// A pane's picture, caption and page of help, by number.
struct ToldPane {
    MQC_CheckType_e type;
    unsigned icon, caption, topic;
};

// Adds the panes and asks each for help by its key.
inline void ExpectPanes(std::initializer_list<ToldPane> panes) {
    constexpr unsigned HelpCommand = 15;
    PaneRoom room;
    room.Show();
    for (const ToldPane& told : panes) {
        CExtDialog& pane = room.Add(told.type);
        EXPECT_EQ(pane.IconID, told.icon) << told.type;
        EXPECT_EQ(pane.Caption, LoadString(told.caption)) << told.type;
        QWidget& criticality = *pane.GetDlgItem<QWidget>(CExtDialog::CriticalityControl);
        Gui::Focus(criticality);
        Gui::Key(criticality, Qt::Key_F1);
        ASSERT_FALSE(room.helpAsked.empty()) << told.type;
        EXPECT_EQ(room.helpAsked.back(), std::pair(HelpCommand, told.topic)) << told.type;
    }
    EXPECT_EQ(room.helpAsked.size(), panes.size());
}
