// The only place where the XML library parses.
#pragma once

#include "files/XmlGuard.h"

#include <memory>
#include <span>

struct _xmlDoc;

struct FreeXmlDoc {
    void operator()(_xmlDoc* document) const;
};
using XmlTree = std::unique_ptr<_xmlDoc, FreeXmlDoc>;

// Names of elements and attributes that are to be left out of a tree, for a reader that never looks at them.
using XmlNames = std::span<const char* const>;

// The tree of a document that has passed the guard; null, with `problem` set, where it is not well formed.
// Nothing but the given bytes is read, and parsing ends at the first error.
XmlTree ParseXml(const XmlSource& source, XmlProblem& problem, XmlNames leftOut = {});
