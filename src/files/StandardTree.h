// The stored form of a standard as a tree in the current document.
#pragma once

#include "files/XmlDocument.h"
#include "model/Standard.h"

// Appends the element `Standard` with the checks of `standard`, deleted ones included, to the document,
// which must be the current one.
void BuildStandardTree(CXmlDocument& document, const CStandard& standard);
