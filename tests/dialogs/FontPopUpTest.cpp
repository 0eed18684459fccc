// The dialog that adds font checks of a document.
#include "FontRoom.h"

#include "dialogs/DocFontCheckPopUpDlg.h"
#include "dialogs/FontPanes.h"
#include "editing/ExACRichEdit.h"
#include "support/StandardText.h"

#include <algorithm>

namespace {

constexpr int Ok = 1, Cancel = 2, Apply = 1240, Help = 1244;

class FontPopUp : public testing::Test {
protected:
    void SetUp() override {
        room.standard.Unit = 3;
        room.Show();
    }
    // The dialog, shown for a check.
    CDocFontCheckPopUpDlg& Open(MQC_CheckType_e type) {
        m_dialog = std::make_unique<CDocFontCheckPopUpDlg>(room, type, &room.GetChecksPage());
        Gui::Show(*m_dialog);
        return *m_dialog;
    }
    FontHand Hand() { return FontHand(*m_dialog); }
    QAbstractButton& Button(int number) { return Hand().Get<QAbstractButton>(number); }
    std::vector<MQC_CheckType_e> LiveTypes() const {
        std::vector<MQC_CheckType_e> types;
        for (const CCheck* check : LiveOf(room.standard))
            types.push_back(check->Type);
        std::ranges::sort(types);
        return types;
    }

    PaneRoom room;
    std::unique_ptr<CDocFontCheckPopUpDlg> m_dialog;
};

using TypeList = std::vector<MQC_CheckType_e>;

} // namespace

TEST_F(FontPopUp, ShowsABoxForEachCheckAndTicksTheOneAskedFor) {
    Open(112);
    EXPECT_EQ(m_dialog->windowTitle(), LoadString(2240));
    for (const DocumentFontCheck& check : DocumentFontChecks()) {
        EXPECT_TRUE(Button(check.box).isVisible()) << check.type;
        EXPECT_TRUE(Button(check.box).isEnabled()) << check.type;
        EXPECT_EQ(Button(check.box).isChecked(), check.type == 112) << check.type;
    }
    for (const int button : {Ok, Cancel, Apply, Help})
        EXPECT_TRUE(Button(button).isVisible()) << button;
    for (const int label : {1210, 1211, 1212, 1213})
        EXPECT_EQ(Hand().Get<QLabel>(label).text(), "in") << label;
    EXPECT_TRUE(room.units.empty()); // nothing is left behind that would follow a unit
    EXPECT_EQ(Hand().Combo(1249).currentIndex(), 1);
}

TEST_F(FontPopUp, ThePaneHidesBoxesAndButtons) {
    const FontHand pane(room.Add(Font::Notes));
    for (const DocumentFontCheck& check : DocumentFontChecks())
        EXPECT_FALSE(pane.Get(check.box).isVisible()) << check.type;
    for (const int button : {Ok, Cancel, Apply, Help})
        EXPECT_FALSE(pane.Get(button).isVisible()) << button;
}

TEST_F(FontPopUp, OkAddsEachTickedCheckWithTheSameValues) {
    Open(109);
    Hand().Click(1516); // 111
    Hand().Click(1531); // 117
    Hand().ClickRow(Font::Styles, 2);
    Hand().Enter(Font::HeightCombo, Font::Between, "2,3");
    Hand().Choose(1249, 3);
    Hand().Click(Ok);
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_EQ(LiveTypes(), (TypeList{109, 111, 117}));
    for (const MQC_CheckType_e type : {109, 111, 117}) {
        const CCheck& live = *room.Live(type);
        EXPECT_EQ(Font::Written(live, Font::Style), "2:3") << type;
        EXPECT_EQ(Font::Written(live, Font::Height), "1:2,3") << type;
        EXPECT_EQ(live.GetDoubleParameter(Font::Height)->Correction, 2) << type;
        EXPECT_EQ(live.Criticality, 3u) << type;
        EXPECT_EQ(live.Name, CCheck(type, 0, 0, 0, 1).Name) << type;
        EXPECT_EQ(FontHand(*room.Pane(type)).Field(Font::HeightField).text(), "2 , 3") << type;
    }
}

TEST_F(FontPopUp, ApplyAddsAndStays) {
    Open(109);
    Hand().Click(Apply);
    EXPECT_TRUE(m_dialog->isVisible());
    EXPECT_EQ(LiveTypes(), TypeList{109});
    EXPECT_FALSE(Button(1242).isEnabled());
    EXPECT_FALSE(Button(1242).isChecked());
    EXPECT_FALSE(Button(Apply).isEnabled());
    Hand().Click(1515);
    EXPECT_TRUE(Button(Apply).isEnabled());
    Hand().Click(Apply);
    EXPECT_EQ(LiveTypes(), (TypeList{109, 110}));
    Hand().Click(Ok);
    EXPECT_EQ(LiveTypes(), (TypeList{109, 110}));
}

TEST_F(FontPopUp, CancelAddsNothing) {
    Open(109);
    Hand().ClickRow(Font::Styles, 0);
    Hand().Click(Cancel);
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_TRUE(LiveTypes().empty());
    EXPECT_FALSE(room.standard.CanUndo());
}

TEST_F(FontPopUp, OkWithoutATickAddsNothing) {
    Open(109);
    Hand().Click(1242);
    EXPECT_FALSE(Button(Apply).isEnabled());
    Hand().Click(Ok);
    EXPECT_TRUE(LiveTypes().empty());
}

TEST_F(FontPopUp, AHeldCheckIsTickedAndGreyAndNotAddedAgain) {
    room.Add(113);
    FontHand(*room.Pane(113)).Choose(Font::UnderlineBox, 1);
    Open(109);
    EXPECT_TRUE(Button(1527).isChecked());
    EXPECT_FALSE(Button(1527).isEnabled());
    Hand().Click(Ok);
    EXPECT_EQ(LiveTypes(), (TypeList{109, 113}));
    EXPECT_EQ(Font::Written(*room.Live(113), Font::Underline), "3:1");
}

TEST_F(FontPopUp, ADeletedCheckOffersItsValuesAndTakesTheNewOnes) {
    FontHand(room.Add(110)).Enter(Font::HeightCombo, Font::Equal, "4");
    FontHand(*room.Pane(110)).Choose(1249, 2);
    room.GetChecksPage().RemoveCheck(110, true);
    Open(110);
    EXPECT_EQ(Hand().Field(Font::HeightField).text(), "4");
    EXPECT_EQ(Hand().Combo(1249).currentIndex(), 2);
    Hand().Enter(Font::HeightCombo, Font::Equal, "5");
    Hand().Click(Ok);
    EXPECT_EQ(LiveTypes(), TypeList{110});
    EXPECT_EQ(Font::Written(*room.Live(110), Font::Height), "3:5");
    EXPECT_EQ(AllOf(room.standard).size(), 1u);
}

TEST_F(FontPopUp, OtherChecksThatAreDeletedTakeTheNewValuesToo) {
    FontHand(room.Add(110)).Enter(Font::HeightCombo, Font::Equal, "4");
    room.GetChecksPage().RemoveCheck(110, true);
    Open(109);
    EXPECT_EQ(Hand().Field(Font::HeightField).text(), "");
    Hand().Click(1515);
    Hand().Enter(Font::HeightCombo, Font::Equal, "6");
    Hand().Click(Ok);
    EXPECT_EQ(Font::Written(*room.Live(110), Font::Height), "3:6");
}

TEST_F(FontPopUp, CorrectionsFollowTheRequirements) {
    Open(109);
    Hand().Choose(Font::StrikeoutBox, 2);
    EXPECT_EQ(Hand().Correction(1298).Edit()->text(), LoadString(1661));
    Hand().Enter(Font::HeightCombo, Font::Above, "3");
    EXPECT_EQ(Hand().Correction(1300).Edit()->text(), "4");
}

TEST_F(FontPopUp, KeepsItsSizeWhileCorrectionsComeAndGo) {
    Open(109);
    const QSize before = m_dialog->size();
    Hand().ClickRow(Font::Styles, 2);
    Hand().Enter(Font::HeightCombo, Font::OneOf, "2,3");
    Hand().Choose(Font::HeightCombo, Font::Equal);
    Hand().ClickRow(Font::Styles, 2);
    EXPECT_EQ(m_dialog->size(), before);
}

TEST_F(FontPopUp, HelpOpensTheFirstPage) {
    Open(109);
    Hand().Click(Help);
    ASSERT_EQ(room.helpAsked.size(), 1u);
    EXPECT_EQ(room.helpAsked[0].first, 0u);
}

TEST_F(FontPopUp, ReturnAddsAndEscapeDoesNot) {
    Open(109);
    Gui::Key(*m_dialog, Qt::Key_Escape);
    EXPECT_TRUE(LiveTypes().empty());
    Open(109);
    Gui::Key(Hand().Get(Font::Styles), Qt::Key_Return);
    EXPECT_EQ(LiveTypes(), TypeList{109});
}

TEST_F(FontPopUp, EveryInputHasANameOfItsOwn) {
    Open(109);
    CStringArray names;
    for (const QWidget* input : m_dialog->findChildren<QWidget*>()) {
        if (!input->isVisible() || !(input->focusPolicy() & Qt::TabFocus))
            continue;
        const auto* button = qobject_cast<const QAbstractButton*>(input);
        const CString name = button ? button->text() : input->accessibleName();
        EXPECT_FALSE(name.isEmpty()) << input->metaObject()->className() << input->objectName().toStdString();
        const bool isPart = input->parentWidget()->accessibleName() == name; // of a box that holds it
        EXPECT_TRUE(isPart || !names.contains(name)) << name.toStdString();
        names.append(name);
    }
    EXPECT_GE(names.size(), 30);
}
