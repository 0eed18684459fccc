// Acts on the tool's windows as a hand would: clicks, keys, answers to modal boxes.
#pragma once

#include "platform/Text.h"

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

class QComboBox;

namespace Gui {

// The Setup of test programs with widgets. Each test must leave no widget behind: the leak checker does not
// see those. Without a window manager nobody becomes active when a window closes; while this lives, the
// window behind does.
class Setup : public QObject {
public:
    Setup();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

// Shows a window and waits until it has the keyboard.
void Show(QWidget& window);
// Lets the program work off its events, idle updates too.
void Settle();

void Click(QWidget& target, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void ClickAt(QWidget& target, QPoint place, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
             Qt::MouseButton button = Qt::LeftButton);
void Key(QWidget& target, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void Type(QWidget& target, const CString& text); // any characters
void Wheel(QWidget& target, int angle);          // 120 is one notch away from the user
// Gives the keyboard to a control as Tab would.
void Focus(QWidget& target);

// What the tip says while the pointer rests at a place of the target; empty where there is none.
CString TipAt(QWidget& target, QPoint place);

// The control's row, chosen as by mouse or keys.
void ChooseRow(QWidget& combo, int row);
CStringArray RowsOf(const QComboBox& combo);

// Answers the next modal window: waits for it and calls `answer` with it. Where none comes within the time
// limit the test that asks `WasAnswered` fails. Nested windows: one Answer for each, made in the order in
// which they appear.
class Answer : public QObject {
public:
    explicit Answer(std::function<void(QWidget& window)> answer, int limitMs = 10000);

    bool WasAnswered() const { return m_answered; }

private:
    void Look();

    std::function<void(QWidget&)> m_answer;
    int m_left;
    bool m_answered = false;
};

// Answers that occur often.
void PressButton(QWidget& window, const CString& text); // by its text without mnemonic marks
void ChooseFile(QWidget& dialog, const CString& path);  // in a file dialog of Qt's own

// The visible child of that object name, or null.
QWidget* FindNumber(QWidget& parent, int number);

} // namespace Gui
