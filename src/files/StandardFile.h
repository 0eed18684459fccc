// What can be told of a standard file before it is loaded. CStandard's own loading and saving is defined in
// the source beside this header.
#pragma once

#include "platform/Text.h"

// The version that the tool writes, and the newest that it opens.
constexpr int ToolVersion = 2026;

// 1 when the file exists, loads as XML and its root is named exactly "Standard"; else 0. With `showError`
// a file that does not load is told to the user.
int IsStandardFile(const CString& path, bool showError);

// 0 refused by IsStandardFile, 1 the tool's own version, 2 later, 3 earlier, also a missing one.
// `outVersion` takes the number of a file that was not refused.
int GetFileVersion(const CString& path, int& outVersion);
