// Messages to the user. The logic says what is to be told; who shows it is settled by the program:
// the tool shows a box, the command line prints a line, a test records the event and answers it.
#pragma once

#include "platform/Text.h"

#include <functional>

enum class MessageButtons { Ok, YesNo, SaveDiscardCancel };
enum class MessageAnswer { Ok, Yes, No, Save, Discard, Cancel };

// Shows `text` and waits for the answer. An empty text is an event like any other.
MessageAnswer ShowMessage(const CString& text, MessageButtons buttons = MessageButtons::Ok);

using MessageHandler = std::function<MessageAnswer(const CString& text, MessageButtons buttons)>;

// Puts a handler in force for its own life and the one before it back in force afterwards.
// With no handler at all, messages go to standard error and questions are answered with No or Cancel.
class MessageScope {
public:
    explicit MessageScope(MessageHandler handler);
    ~MessageScope();
    MessageScope(const MessageScope&) = delete;
    MessageScope& operator=(const MessageScope&) = delete;

private:
    MessageHandler m_previous;
};
