// The place of a command's temporary folder.
#pragma once

#include "platform/Text.h"

#include <QTemporaryDir>

// For QTemporaryDir, which would go elsewhere without a word where $TMPDIR is missing.
inline CString WorkFolderTemplate() {
    const CString told = qEnvironmentVariable("TMPDIR");
    return (told.isEmpty() ? CString("/tmp") : told) + "/kvstd-XXXXXX";
}
