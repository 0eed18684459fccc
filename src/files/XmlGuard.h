// What is tested on the bytes of a document before the XML library sees them: a file is not trusted.
#pragma once

#include "platform/Text.h"

#include <QByteArray>

// Limits that no standard comes near, and that keep a hostile document under a second and 256 MiB.
namespace XmlLimits {
constexpr qsizetype Bytes = 48 * 1024 * 1024; // of the file, and of its text in UTF-8
constexpr int Depth = 64;                     // a standard is five levels deep
constexpr int AttributesOfElement = 256;      // a standard has seven
constexpr int Namespaces = 64;                // declared in the whole document; a standard has none
constexpr int Names = 10'000;                 // different ones; a standard has about thirty
constexpr qsizetype Cost = 190'000'000;       // bytes that the document and its tree may take, estimated
constexpr qsizetype AttributeBytes = 4 * 1024 * 1024;
} // namespace XmlLimits

// Why a document is refused: the number of a text of the language library and what is inserted in it.
struct XmlProblem {
    unsigned text = 0; // 0: no problem
    CString first;
    CString second;

    explicit operator bool() const { return text != 0; }
    CString Words() const;
};

// A document beyond XmlLimits::Bytes.
XmlProblem XmlTooLargeProblem();

// The document in UTF-8 without a byte order mark, or a problem.
struct XmlSource {
    QByteArray utf8;
    XmlProblem problem;
    bool hasLongTags = false; // longer than any of a standard; the parser needs care with them
};

// Decodes `bytes` by byte order mark or declaration and applies the limits. Refuses any document type
// declaration, since no standard has one and every entity attack needs one.
XmlSource GuardXml(QByteArray bytes);

// The same for a text that is already decoded; what its declaration says of an encoding is ignored.
XmlSource GuardXmlText(const CString& text);

// `text` in UTF-8 without the characters that no XML document can hold (control characters, lone
// surrogates, U+FFFE and U+FFFF). Every text that is set in a document passes here, so that what was
// saved always opens again.
QByteArray ToXmlText(const CString& text);
