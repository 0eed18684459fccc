// Shows the program's messages in boxes over the window in front.
#pragma once

#include "platform/Message.h"

// The handler of messages of a program with windows, for a MessageScope. It waits for the answer; closing a
// box is the careful answer: No, or Cancel. An empty text makes an empty box.
MessageAnswer ShowMessageBox(const CString& text, MessageButtons buttons);
