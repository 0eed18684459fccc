#include "files/XmlEncoding.h"

#include "platform/TextNumbers.h"

#include <algorithm>
#include <libxml/encoding.h>
#include <libxml/xmlerror.h>
#include <memory>

namespace {

// The encoding of a document, and how many bytes of byte order mark stand in front of it.
struct Encoding {
    QByteArray name; // in capitals; empty where it is not known
    qsizetype markLength = 0;
};

// Encodings in which markup characters are never a part of another character's bytes once decoded, and
// that tools of the last decades wrote. Anything else is refused rather than guessed. A declaration that
// could be read byte by byte is not in UTF-16, whatever it says.
bool IsKnownName(const QByteArray& name) {
    static const char* const Names[] = {"UTF-8",     "UTF8",   "US-ASCII", "ASCII",  "SHIFT_JIS",
                                        "SHIFT-JIS", "EUC-JP", "EUC-KR",   "GB2312", "GBK",
                                        "GB18030",   "BIG5",   "KOI8-R"};
    for (const char* known : Names)
        if (name == known)
            return true;
    for (const char* family : {"ISO-8859-", "WINDOWS-125"}) {
        const QByteArray number =
            name.startsWith(family) ? name.mid(static_cast<qsizetype>(qstrlen(family))) : QByteArray();
        if (number.size() == 1 || number.size() == 2)
            return std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
    }
    return false;
}

// The name in the document's own declaration, empty where it has none. The declaration is ASCII in every
// encoding that is accepted here without a byte order mark.
QByteArray DeclaredName(const QByteArray& bytes) {
    if (!bytes.startsWith("<?xml") || bytes.size() < 6 || !QByteArray(" \t\r\n").contains(bytes[5]))
        return {};
    const QByteArray declaration = bytes.left(bytes.indexOf("?>"));
    const qsizetype at = declaration.indexOf("encoding");
    for (qsizetype open = at; at >= 0 && open < declaration.size(); ++open) {
        const char quote = declaration[open];
        if (quote != '"' && quote != '\'')
            continue;
        const qsizetype close = declaration.indexOf(quote, open + 1);
        return close < 0 ? QByteArray() : declaration.mid(open + 1, close - open - 1).toUpper();
    }
    return {};
}

// A byte order mark counts before the declaration.
Encoding EncodingOf(const QByteArray& bytes) {
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return {"UTF-8", 3};
    if (bytes.startsWith("\xFF\xFE"))
        return {"UTF-16LE", 2};
    if (bytes.startsWith("\xFE\xFF"))
        return {"UTF-16BE", 2};
    if (bytes.startsWith(QByteArray("<\0", 2)))
        return {"UTF-16LE", 0};
    if (bytes.startsWith(QByteArray("\0<", 2)))
        return {"UTF-16BE", 0};
    const QByteArray declared = DeclaredName(bytes);
    if (declared.isEmpty())
        return {"UTF-8", 0};
    return {IsKnownName(declared) ? declared : QByteArray(), 0};
}

bool IsUtf8(const QByteArray& name) {
    return name == "UTF-8" || name == "UTF8" || name == "US-ASCII" || name == "ASCII";
}

// While it lives, the converters' complaints are not printed: the reason is told in the message.
class QuietConverters {
public:
    QuietConverters() : m_function(xmlStructuredError), m_context(xmlStructuredErrorContext) {
        xmlSetStructuredErrorFunc(nullptr, [](void*, xmlError*) {});
    }
    ~QuietConverters() { xmlSetStructuredErrorFunc(m_context, m_function); }
    QuietConverters(const QuietConverters&) = delete;
    QuietConverters& operator=(const QuietConverters&) = delete;

private:
    xmlStructuredErrorFunc m_function;
    void* m_context;
};

struct FreeXml {
    void operator()(xmlCharEncodingHandler* handler) const { xmlCharEncCloseFunc(handler); }
    void operator()(xmlBuffer* buffer) const { xmlBufferFree(buffer); }
};
template <class T> using Owned = std::unique_ptr<T, FreeXml>;

// Decodes one piece to the end of `utf8`. The result is the number of bytes used, which leaves a character
// that is cut by the piece's end; 0 where nothing could be read.
qsizetype DecodePiece(xmlCharEncodingHandler* handler, const char* piece, qsizetype length,
                      QByteArray& utf8) {
    const Owned<xmlBuffer> in(xmlBufferCreateStatic(const_cast<char*>(piece), static_cast<size_t>(length)));
    const Owned<xmlBuffer> out(xmlBufferCreate());
    if (xmlCharEncInFunc(handler, out.get(), in.get()) < 0)
        return 0;
    utf8.append(reinterpret_cast<const char*>(xmlBufferContent(out.get())), xmlBufferLength(out.get()));
    return length - xmlBufferLength(in.get());
}

// Piece by piece, so that a document that grows in UTF-8 is refused before it fills the memory.
XmlSource DecodeWith(const QByteArray& name, const QByteArray& bytes) {
    constexpr qsizetype Piece = 64 * 1024;
    const QuietConverters quiet;
    const Owned<xmlCharEncodingHandler> handler(xmlFindCharEncodingHandler(name.constData()));
    if (!handler)
        return {{}, {XmlEncoding, {}, {}}};
    QByteArray utf8;
    for (qsizetype at = 0; at < bytes.size();) {
        const qsizetype used =
            DecodePiece(handler.get(), bytes.constData() + at, std::min(Piece, bytes.size() - at), utf8);
        if (used == 0)
            return {{}, {XmlBadBytes, {}, {}}};
        if (utf8.size() > XmlLimits::Bytes)
            return {{}, XmlTooLargeProblem()};
        at += used;
    }
    return {utf8, {}};
}

} // namespace

XmlSource DecodeXml(QByteArray bytes) {
    const Encoding encoding = EncodingOf(bytes);
    if (encoding.name.isEmpty())
        return {{}, {XmlEncoding, {}, {}}};
    bytes.remove(0, encoding.markLength);
    if (IsUtf8(encoding.name))
        return {std::move(bytes), {}};
    return DecodeWith(encoding.name, bytes);
}
