// Loads another language for its own life, and English again afterwards.
#pragma once

#include "platform/LanguageLibrary.h"

class LanguageScope {
public:
    explicit LanguageScope(const CString& language) { LoadLanguage(RULEWARD_BIN_FOLDER, language); }
    ~LanguageScope() { LoadLanguage(RULEWARD_BIN_FOLDER, "English"); }
    LanguageScope(const LanguageScope&) = delete;
    LanguageScope& operator=(const LanguageScope&) = delete;
};
