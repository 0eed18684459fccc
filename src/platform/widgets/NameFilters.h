// The filter texts of the language library in the form of this platform's file dialogs.
#pragma once

#include "platform/Text.h"

// `text` holds pairs of name and patterns, parted by "|"; several patterns are parted by ";".
CStringArray NameFiltersOf(const CString& text);
