// Another language for the length of a test; the English texts are in force again afterwards.
#pragma once

#include "platform/LanguageLibrary.h"

class Language {
public:
    explicit Language(const char* name) { LoadLanguage(RULEWARD_BIN_FOLDER, name); }
    ~Language() { LoadLanguage(RULEWARD_BIN_FOLDER, "English"); }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;
};
