#include "dialogs/AboutDlg.h"

#include "support/Gui.h"
#include "support/Language.h"

#include <QLabel>
#include <gtest/gtest.h>

TEST(AboutDlg, About_TellsNameAndVersion) {
    for (const char* language : {"English", "German"}) {
        const Language scope(language);
        CAboutDlg dialog;
        Gui::Show(dialog);
        EXPECT_EQ(dialog.windowTitle(), LoadString(61821));
        EXPECT_EQ(dialog.GetDlgItem<QLabel>(1001)->text(), "Ruleward Builder");
        EXPECT_EQ(dialog.GetDlgItem<QLabel>(1002)->text(), "Version 2026");
        EXPECT_FALSE(dialog.GetDlgItem<QLabel>(1000)->pixmap().isNull());
    }
}

TEST(AboutDlg, About_EnterAndEscapeCloseIt) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        CAboutDlg dialog;
        Gui::Answer answer([key](QWidget& window) { Gui::Key(window, key); });
        dialog.exec();
        EXPECT_TRUE(answer.WasAnswered());
    }
}
