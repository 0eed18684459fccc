// What a checker's result was compared with, shown beside what was found.
#pragma once

#include "files/XmlElement.h"

// Whether parameters of a check of this element's type tell what was expected of them.
bool ShowsExpectedValue(const CXmlElement& check);

// Gives `parameter`, found in `check`, a child `ExpectedValue` with copies of the values of the same
// parameter of `expected`; nothing where that has none. Works in the current document.
void AddExpectedValue(CXmlElement& parameter, const CXmlElement& check, const CXmlElement& expected);
