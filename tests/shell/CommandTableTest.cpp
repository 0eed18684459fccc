#include "shell/CommandTable.h"

#include "model/Catalogue.h"
#include "platform/LanguageLibrary.h"
#include "support/Language.h"

#include <QFile>
#include <QMap>
#include <QSet>
#include <gtest/gtest.h>

TEST(CommandTable, EveryCommandHasAText) {
    for (const ToolCommand& row : ToolCommands())
        EXPECT_EQ(TextOfCommand(row.id).text.isEmpty(), row.row == MenuRow::Separator) << row.id;
    for (const AppCheckRow& row : AppChecks())
        EXPECT_FALSE(TextOfCommand(row.info.GetCommandID()).text.isEmpty()) << row.info.GetCommandID();
    EXPECT_TRUE(TextOfCommand(32789).text.isEmpty());
}

TEST(CommandTable, AStringWithACommandsNumberIsNotItsText) {
    int strings = 0;
    for (unsigned id = Command::FirstOfCatalogue; id < 32940; ++id) {
        const CString string = LoadString(id);
        if (string.isEmpty())
            continue;
        ++strings;
        const CString text = TextOfCommand(id).text;
        EXPECT_EQ(text.isEmpty(), !FindToolCommand(id) && !FindAppCheckByCommand(id)) << id;
        EXPECT_FALSE(text == string) << id;
    }
    EXPECT_GT(strings, 3);
}

TEST(CommandTable, NoTwoCommandsShareAKey) {
    for (const char* name : {"English", "German"}) {
        const Language language(name);
        QMap<QString, unsigned> owners;
        for (const ToolCommand& row : ToolCommands()) {
            for (const QKeySequence& keys : ShortcutsOf(row.id)) {
                const QString text = keys.toString(QKeySequence::PortableText);
                EXPECT_FALSE(text.isEmpty()) << row.id;
                EXPECT_FALSE(owners.contains(text)) << text.toStdString() << " of " << row.id;
                owners.insert(text, row.id);
            }
        }
        EXPECT_GT(owners.size(), 9);
    }
}

TEST(CommandTable, NoTwoItemsOfAMenuShareAMnemonic) {
    for (const char* name : {"English", "German"}) {
        const Language language(name);
        QMap<MenuName, QSet<QChar>> taken;
        for (const ToolCommand& row : ToolCommands()) {
            const QString text = TextOfCommand(row.id).text.toLower();
            const qsizetype at = text.indexOf('&');
            if (at < 0 || row.menu == MenuName::None)
                continue;
            EXPECT_FALSE(taken[row.menu].contains(text[at + 1])) << name << ' ' << text.toStdString();
            taken[row.menu].insert(text[at + 1]);
        }
    }
}

TEST(CommandTable, TheKeyToldInATextIsTheShortcut) {
    EXPECT_EQ(TextOfCommand(Command::Undo).text, "&Undo");
    EXPECT_EQ(TextOfCommand(Command::Undo).accelerator, "Ctrl+Z");
    EXPECT_EQ(ShortcutsOf(Command::Undo).value(0), QKeySequence("Ctrl+Z"));
    EXPECT_EQ(ShortcutsOf(Command::Close).value(0), QKeySequence("Ctrl+W"));
    EXPECT_TRUE(ShortcutsOf(Command::Merge).isEmpty());
}

TEST(CommandTable, PlainTextsLoseMarksAndPoints) {
    EXPECT_EQ(WithoutMnemonic("&Open..."), "Open");
    EXPECT_EQ(WithoutMnemonic("Save && &close"), "Save & close");
    EXPECT_EQ(WithoutMnemonic("odd&"), "odd");
}

TEST(CommandTable, TheToolbarHoldsTheTenCommandsOfItsStrip) {
    int buttons = 0;
    for (const unsigned id : MainToolbarCommands())
        if (id != 0) {
            ++buttons;
            EXPECT_NE(FindToolCommand(id), nullptr) << id;
        }
    EXPECT_EQ(buttons, 10);
}

TEST(CommandTable, ThePageOfCommandsIsUpToDate) {
    const Language language("English");
    const QString page = CommandsPage();
    QFile file(RULEWARD_SOURCE_FOLDER "/docs/commands.md");
    if (qEnvironmentVariableIsSet("RULEWARD_WRITE_PAGES")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(page.toUtf8());
        file.close();
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()), page)
        << "Run this test with RULEWARD_WRITE_PAGES=1 to write the page anew.";
}
