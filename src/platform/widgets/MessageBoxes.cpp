#include "platform/widgets/MessageBoxes.h"

#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

struct Choice {
    QMessageBox::ButtonRole role;
    unsigned text;
    MessageAnswer answer;
};

// The first is the one that Return presses, the last the one of Escape.
std::vector<Choice> ChoicesOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::YesNo:
        return {{QMessageBox::YesRole, ButtonYes, MessageAnswer::Yes},
                {QMessageBox::NoRole, ButtonNo, MessageAnswer::No}};
    case MessageButtons::SaveDiscardCancel:
        return {{QMessageBox::AcceptRole, ButtonSave, MessageAnswer::Save},
                {QMessageBox::DestructiveRole, ButtonDiscard, MessageAnswer::Discard},
                {QMessageBox::RejectRole, ButtonCancel, MessageAnswer::Cancel}};
    case MessageButtons::Ok: break;
    }
    return {{QMessageBox::AcceptRole, ButtonOk, MessageAnswer::Ok}};
}

QWidget* WindowInFront() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

} // namespace

MessageAnswer ShowMessageBox(const CString& text, MessageButtons buttons) {
    QMessageBox box(WindowInFront());
    box.setIcon(buttons == MessageButtons::Ok ? QMessageBox::Warning : QMessageBox::Question);
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText); // a file's name must not be taken for markup
    box.setText(text.section('\n', 0, 0));
    box.setInformativeText(text.section('\n', 1));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setAccessibleName(text.section('\n', 0, 0));
    box.setAccessibleDescription(text);
    const std::vector<Choice> choices = ChoicesOf(buttons);
    std::vector<QPushButton*> made;
    for (const Choice& choice : choices)
        made.push_back(box.addButton(LoadString(choice.text), choice.role));
    box.setDefaultButton(made.front());
    box.setEscapeButton(made.back());
    box.exec();
    for (size_t index = 0; index < made.size(); ++index)
        if (box.clickedButton() == made[index])
            return choices[index].answer;
    return choices.back().answer;
}
