// What came of the work on a user's file.
#pragma once

#include "platform/Text.h"

struct FileResult {
    bool ok = true;
    CString reason; // why it failed, in the user's language; where it is ok, empty or a warning

    explicit operator bool() const { return ok; }
};

// A failure with the text of that number, and what the system says of `error` (an errno) where it is not 0.
FileResult FileFailure(unsigned text, int error = 0);
