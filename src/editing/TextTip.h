// Tips that show a text as it is.
#pragma once

#include "platform/Text.h"

class QLineEdit;

// A tip with just these characters: a name or path from a file must not be taken for markup, which could also
// name a picture to be loaded.
CString PlainTip(const CString& text);

// Makes the whole text of a field, which may be longer than the field, its tip. To be called when a tip is
// asked for.
void TellTextByTip(QLineEdit& field);
