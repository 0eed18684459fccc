// How a parameter reads and writes its own element of a standard file.
#pragma once

#include "files/XmlElement.h"
#include "model/Parameter.h"

#include <vector>

// The `Parameter` elements of one check, selected and looked through once for all its parameters.
class ParameterElements {
public:
    explicit ParameterElements(const CXmlElement& check);

    // Fills the entry from the first element that matches it by `Type`, or by `Name` in a file without
    // types; out of force where none does. `isCorrectable`: CCheck::IsACSupported.
    void Read(const CParameterEntry& entry, bool isCorrectable) const;

    // An element with what every parameter asks it for.
    struct Item {
        const CXmlElement* element = nullptr;
        bool hasType = false;
        unsigned type = 0;
        CString name; // looked up only without a type
        bool hasCorrection = false;
    };

private:
    CXmlNodeList m_elements;
    std::vector<Item> m_items;
};

// Corrects operator and values where they do not fit, and appends the element of the parameter to its
// check's. Needs a current document.
void WriteParameter(const CParameterEntry& entry, CXmlElement& check);
