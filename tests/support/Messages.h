// Records the messages that the logic shows, and answers its questions.
#pragma once

#include "platform/Message.h"

class Messages {
public:
    explicit Messages(MessageAnswer answer = MessageAnswer::Ok)
        : m_scope([this, answer](const CString& text, MessageButtons) {
              texts.append(text);
              return answer;
          }) {}

    CStringArray texts; // in the order in which they were shown

private:
    MessageScope m_scope;
};
