// Which characters a field takes.
#pragma once

#include "platform/Text.h"

struct CharacterFilter {
    CString Filter;
    bool FilterIsExclude = true; // the filter names what is refused; otherwise all that is taken

    bool Refuses(QChar character) const { return Filter.contains(character) == FilterIsExclude; }

    // The text without what is refused.
    CString Admitted(const CString& text) const;
};
