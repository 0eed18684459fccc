#include "platform/Message.h"

#include <cstdio>
#include <utility>

namespace {

MessageHandler& CurrentHandler() {
    static MessageHandler handler;
    return handler;
}

} // namespace

MessageAnswer ShowMessage(const CString& text, MessageButtons buttons) {
    if (const MessageHandler handler = CurrentHandler())
        return handler(text, buttons);
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
    switch (buttons) {
    case MessageButtons::YesNo: return MessageAnswer::No;
    case MessageButtons::SaveDiscardCancel: return MessageAnswer::Cancel;
    case MessageButtons::Ok: break;
    }
    return MessageAnswer::Ok;
}

MessageScope::MessageScope(MessageHandler handler) : m_previous(std::move(CurrentHandler())) {
    CurrentHandler() = std::move(handler);
}

MessageScope::~MessageScope() {
    CurrentHandler() = std::move(m_previous);
}
