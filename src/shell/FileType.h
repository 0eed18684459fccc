// The association of standard files with this program, as the desktops of this platform keep it: a type of
// file, and an entry for the program that opens it, both in the user's own data folder.
#pragma once

#include "platform/Text.h"

// `program` is the full path of the executable, `icon` the SVG source of the picture of such a file. False
// where a step failed; what was written before stays.
bool WriteFileAssociation(const CString& program, const QByteArray& icon);
