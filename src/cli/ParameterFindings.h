// What reading the parameters of one check would drop or repair.
#pragma once

#include "files/XmlElement.h"
#include "platform/Text.h"

CStringArray FindParameterFindings(const CXmlElement& check, int type);

// Whether the first parameter of the type has a value; without one an entry of a container is not kept.
bool HasFirstValue(const CXmlElement& check, int type);
