#include "platform/widgets/MessageBoxes.h"

#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "support/Gui.h"

#include <QMessageBox>
#include <gtest/gtest.h>

namespace {

MessageAnswer Ask(MessageButtons buttons, std::function<void(QWidget&)> act) {
    const Gui::Answer answer(std::move(act));
    const MessageAnswer result = ShowMessageBox("The file is in use.\n<b>Details</b>", buttons);
    EXPECT_TRUE(answer.WasAnswered());
    return result;
}

std::function<void(QWidget&)> Press(unsigned button) {
    return [button](QWidget& box) { Gui::PressButton(box, LoadString(button)); };
}

std::function<void(QWidget&)> Strike(Qt::Key key) {
    return [key](QWidget& box) { Gui::Key(box, key); };
}

} // namespace

TEST(MessageBoxes, EachButtonIsAnAnswer) {
    EXPECT_EQ(Ask(MessageButtons::Ok, Press(ButtonOk)), MessageAnswer::Ok);
    EXPECT_EQ(Ask(MessageButtons::YesNo, Press(ButtonYes)), MessageAnswer::Yes);
    EXPECT_EQ(Ask(MessageButtons::YesNo, Press(ButtonNo)), MessageAnswer::No);
    EXPECT_EQ(Ask(MessageButtons::SaveDiscardCancel, Press(ButtonSave)), MessageAnswer::Save);
    EXPECT_EQ(Ask(MessageButtons::SaveDiscardCancel, Press(ButtonDiscard)), MessageAnswer::Discard);
    EXPECT_EQ(Ask(MessageButtons::SaveDiscardCancel, Press(ButtonCancel)), MessageAnswer::Cancel);
}

TEST(MessageBoxes, EscapeIsTheCarefulAnswer) {
    EXPECT_EQ(Ask(MessageButtons::Ok, Strike(Qt::Key_Escape)), MessageAnswer::Ok);
    EXPECT_EQ(Ask(MessageButtons::YesNo, Strike(Qt::Key_Escape)), MessageAnswer::No);
    EXPECT_EQ(Ask(MessageButtons::SaveDiscardCancel, Strike(Qt::Key_Escape)), MessageAnswer::Cancel);
}

TEST(MessageBoxes, ReturnIsTheFirstAnswer) {
    EXPECT_EQ(Ask(MessageButtons::SaveDiscardCancel, Strike(Qt::Key_Return)), MessageAnswer::Save);
}

TEST(MessageBoxes, TheTextIsPlainAndCanBeCopied) {
    Ask(MessageButtons::Ok, [](QWidget& window) {
        auto& box = dynamic_cast<QMessageBox&>(window);
        EXPECT_EQ(box.text(), "The file is in use.");
        EXPECT_EQ(box.informativeText(), "<b>Details</b>");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_TRUE(box.textInteractionFlags() & Qt::TextSelectableByMouse);
        EXPECT_EQ(box.accessibleDescription(), "The file is in use.\n<b>Details</b>");
        box.close();
    });
}

TEST(MessageBoxes, AnEmptyTextIsShownToo) {
    const Gui::Answer answer([](QWidget& box) { box.close(); });
    EXPECT_EQ(ShowMessageBox({}, MessageButtons::Ok), MessageAnswer::Ok);
    EXPECT_TRUE(answer.WasAnswered());
}
