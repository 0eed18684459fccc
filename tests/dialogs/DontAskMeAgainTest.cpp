// The message that may be switched off.
#include "dialogs/RWDontAskMeAgainMsgBoxDlg.h"
#include "support/Gui.h"

#include <QAbstractButton>
#include <QLabel>
#include <gtest/gtest.h>

namespace {

constexpr int OkButton = 1, Box = 1316, Text = 1317;

// Shows the message and answers it.
bool Ask(bool showsBox, const std::function<void(CRWDontAskMeAgainMsgBoxDlg&)>& act) {
    CRWDontAskMeAgainMsgBoxDlg dialog("The plates were renamed.", showsBox);
    const Gui::Answer answer([&](QWidget& window) {
        EXPECT_EQ(&window, &dialog);
        act(dialog);
    });
    const bool isUnwanted = dialog.DoModal();
    EXPECT_TRUE(answer.WasAnswered());
    return isUnwanted;
}

void Tick(CRWDontAskMeAgainMsgBoxDlg& dialog) {
    Gui::Click(*dialog.GetDlgItem(Box));
}

void PressOk(CRWDontAskMeAgainMsgBoxDlg& dialog) {
    Gui::Click(*dialog.GetDlgItem(OkButton));
}

} // namespace

TEST(DontAskMeAgain, TheBoxIsToldAfterOk) {
    EXPECT_TRUE(Ask(true, [](auto& dialog) {
        EXPECT_EQ(dialog.template GetDlgItem<QLabel>(Text)->text(), "The plates were renamed.");
        EXPECT_TRUE(dialog.GetDlgItem(Box)->isVisible());
        Tick(dialog);
        PressOk(dialog);
    }));
    EXPECT_FALSE(Ask(true, PressOk));
    EXPECT_FALSE(Ask(true, [](auto& dialog) {
        Tick(dialog);
        Tick(dialog);
        Gui::Key(dialog, Qt::Key_Return);
    }));
}

TEST(DontAskMeAgain, TheBoxIsShownOnlyWhereAskedFor) {
    EXPECT_FALSE(Ask(false, [](auto& dialog) {
        EXPECT_FALSE(dialog.GetDlgItem(Box)->isVisible());
        PressOk(dialog);
    }));
}

TEST(DontAskMeAgain, ATickCountsOnlyWithOk) {
    EXPECT_FALSE(Ask(true, [](auto& dialog) {
        Tick(dialog);
        Gui::Key(dialog, Qt::Key_Escape);
    }));
}

TEST(DontAskMeAgain, ATextIsNoMarkup) {
    const CRWDontAskMeAgainMsgBoxDlg dialog("<b>Plates</b> & Co", false);
    EXPECT_EQ(dialog.GetDlgItem<QLabel>(Text)->textFormat(), Qt::PlainText);
}
