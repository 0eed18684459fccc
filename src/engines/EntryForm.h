// How many values an operator takes. An operator is known by the text that its combo box shows.
#pragma once

#include "platform/Text.h"

enum class EntryForm {
    Unknown,
    Single, // one value
    List,   // any number of values, separated by commas
    Range   // at most two values, separated by a comma
};

EntryForm FormOf(const CString& operatorText);
