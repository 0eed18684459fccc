// The stylesheet that shows the report form of a standard as a page, with headings in the tool's language.
#pragma once

#include "platform/FileResult.h"
#include "platform/LanguageLibrary.h"

#include <functional>

using TextSource = std::function<CString(unsigned number)>;

// The texts stand in the stylesheet as they are: one with "&" or "<" breaks it.
CString BuildStylesheet(const TextSource& texts = LoadString);

// Writes the stylesheet to the folder under that name. It passes through a document first, so one that is
// broken is told by message 2040 and not written.
FileResult WriteStylesheet(const CString& folder, const CString& name, const TextSource& texts = LoadString);
