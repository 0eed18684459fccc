#include "ShellRoom.h"

#include "platform/LanguageLibrary.h"
#include "shell/CatalogueButton.h"
#include "shell/ChildFrame.h"
#include "shell/TabToolbar.h"

#include <QFontMetrics>
#include <QtTest>

namespace {

class CatalogueBar : public ShellRoom {
protected:
    CatalogueBar() { Start(); }
    CTabToolbar& Bar() { return Frame().GetTabToolbar(); }
    CatalogueButton& Button(size_t position) { return *Bar().GetButtons().at(position); }
};

} // namespace

TEST_F(CatalogueBar, SevenTabsAreNamedByTheirTips) {
    ASSERT_EQ(Bar().GetTabs().count(), 7);
    for (int tab = 0; tab < 7; ++tab) {
        const CString name = LoadString(1983 + static_cast<unsigned>(tab));
        EXPECT_EQ(Bar().GetTabs().tabToolTip(tab), name);
        EXPECT_EQ(Bar().GetTabs().accessibleTabName(tab), name);
        EXPECT_TRUE(Bar().GetTabs().tabText(tab).isEmpty());
        EXPECT_FALSE(Bar().GetTabs().tabIcon(tab).isNull());
    }
    EXPECT_EQ(Bar().GetCurrentGroup(), 0u);
}

TEST_F(CatalogueBar, EachGroupShowsItsChecksInOrder) {
    const std::vector<size_t> sizes = {20, 4, 8, 8, 2, 7, 5};
    for (unsigned group = 0; group < 7; ++group) {
        Bar().FocusGroup(group);
        Gui::Settle();
        ASSERT_EQ(Bar().GetButtons().size(), sizes[group]);
        for (const auto& [type, info] : app.GetCatalogue())
            if (info->GetGroup() == group) {
                EXPECT_EQ(Button(info->GetPosition()).objectName().toUInt(), info->GetCommandID());
                EXPECT_EQ(Button(info->GetPosition()).text(), "   " + LoadString(info->GetTabTextID()));
                EXPECT_FALSE(Button(info->GetPosition()).icon().isNull());
            }
    }
}

TEST_F(CatalogueBar, AButtonStaysDownWhileItsCheckStands) {
    EXPECT_FALSE(Button(1).isChecked());
    Gui::Click(Button(1));
    EXPECT_TRUE(Button(1).isChecked());
    EXPECT_EQ(Document().GetStandard().CountLiveChecks(), 1);
    Gui::Click(Button(1));
    EXPECT_FALSE(Button(1).isChecked());
    EXPECT_EQ(Document().GetStandard().CountLiveChecks(), 0);
}

TEST_F(CatalogueBar, ButtonsFollowTheDocumentInFront) {
    Gui::Click(Button(1));
    app.OnFileNew();
    Gui::Settle();
    EXPECT_FALSE(Button(1).isChecked());
    Frame().ActivateChild(*app.GetDocuments()[0]->GetFrame());
    Gui::Settle();
    EXPECT_TRUE(Button(1).isChecked());
}

TEST_F(CatalogueBar, WithoutADocumentNothingCanBePressed) {
    app.CloseAllDocuments();
    Gui::Settle();
    EXPECT_FALSE(Button(0).isEnabled());
}

TEST_F(CatalogueBar, AChangeOfTabIsToldUnlessAllGroupsAreShown) {
    const int before = View().groupChanges;
    Gui::ClickAt(Bar().GetTabs(), Bar().GetTabs().tabRect(3).center());
    EXPECT_EQ(Bar().GetCurrentGroup(), 3u);
    EXPECT_EQ(View().groupChanges, before + 1);
    app.FlipShowAll();
    const int flipped = View().groupChanges;
    Bar().FocusGroup(1);
    EXPECT_EQ(View().groupChanges, flipped);
    Bar().FocusGroup(7); // there is none
    EXPECT_EQ(Bar().GetCurrentGroup(), 1u);
}

TEST_F(CatalogueBar, ArrowsGoThroughTheTabs) {
    Gui::Focus(Bar().GetTabs());
    Gui::Key(Bar().GetTabs(), Qt::Key_Right);
    EXPECT_EQ(Bar().GetCurrentGroup(), 1u);
    Gui::Key(Bar().GetTabs(), Qt::Key_Left);
    EXPECT_EQ(Bar().GetCurrentGroup(), 0u);
}

TEST_F(CatalogueBar, TheKeyboardReachesAndPressesEveryButton) {
    Gui::Focus(Bar().GetTabs());
    Gui::Key(Bar().GetTabs(), Qt::Key_Tab);
    EXPECT_TRUE(Button(0).hasFocus());
    Gui::Key(Button(0), Qt::Key_Tab);
    EXPECT_TRUE(Button(1).hasFocus());
    Gui::Key(Button(1), Qt::Key_Down);
    EXPECT_TRUE(Button(2).hasFocus());
    Gui::Key(Button(2), Qt::Key_End);
    EXPECT_TRUE(Button(19).hasFocus());
    Gui::Key(Button(19), Qt::Key_Home);
    Gui::Key(Button(0), Qt::Key_Up);
    EXPECT_TRUE(Button(0).hasFocus());
    Gui::Key(Button(0), Qt::Key_Space);
    EXPECT_TRUE(Button(0).isChecked());
    EXPECT_TRUE(Button(0).hasFocus());
}

TEST_F(CatalogueBar, AllTabsAreInSight) {
    for (int tab = 0; tab < 7; ++tab)
        EXPECT_TRUE(Bar().rect().contains(Bar().GetTabs().tabRect(tab).translated(Bar().GetTabs().pos())));
}

TEST_F(CatalogueBar, NoTextIsCut) {
    EXPECT_GE(Bar().GetButtonWidth(), 240);
    for (unsigned group = 0; group < 7; ++group) {
        Bar().FocusGroup(group);
        Gui::Settle();
        for (const CatalogueButton* button : Bar().GetButtons())
            EXPECT_LE(button->sizeHint().width(), Bar().GetButtonWidth()) << button->text().toStdString();
    }
}
