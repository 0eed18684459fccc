// What opening a standard would drop or repair, found by looking at its XML beside the types of the
// catalogue. The tool itself says nothing of it: it takes what it knows.
#pragma once

#include "files/XmlElement.h"
#include "platform/Text.h"

#include <vector>

struct Finding {
    CString check; // "3 (Layers)", or empty for the standard itself
    CString what;  // "dropped" or "repaired", and why
};

std::vector<Finding> FindFindings(const CXmlElement& root);
