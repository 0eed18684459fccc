// How the bytes of a document become UTF-8.
#pragma once

#include "files/XmlGuard.h"

// Decodes by byte order mark or declaration. The mark is not in the result; a problem comes back where the
// encoding is not known, the bytes are not valid in it, or the result grows beyond XmlLimits::Bytes.
XmlSource DecodeXml(QByteArray bytes);
