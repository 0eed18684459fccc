// Who is working and what time it is. Both may be fixed, so that what is written can be compared.
#pragma once

#include "platform/Text.h"

// The logged-in user's name and the local time, or what FixSession gave.
CString SessionUser();
COleDateTime SessionNow();

// Fixes both for the rest of the process; an invalid time leaves the clock running.
void FixSession(const CString& user, const COleDateTime& now);
