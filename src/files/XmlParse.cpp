#include "files/XmlParse.h"

#include "platform/TextNumbers.h"

#include <algorithm>
#include <cstring>
#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/tree.h>
#include <new>
#include <vector>

namespace {

// What the parser reads. Once there is a problem it sees the end of the document, since the library would
// else go on and make a message of each of a million errors.
struct Feed {
    const char* at;
    const char* end;
    int piece;                           // bytes that the library is given at a time
    int leftOutDepth = 0;                // within an element that is left out
    std::vector<const xmlChar*> leftOut; // names, as the parser's dictionary keeps them
    std::vector<const xmlChar*> kept;    // the attributes of an element that are not left out
    xmlParserCtxt* context = nullptr;
    XmlProblem problem;
};

Feed& FeedOf(void* context) {
    return *static_cast<Feed*>(static_cast<xmlParserCtxt*>(context)->_private);
}

int ReadPiece(void* user, char* buffer, int length) {
    Feed& feed = *static_cast<Feed*>(user);
    // Names are looked up in a table that does not grow, so a document of a million names takes ten seconds.
    if (feed.context && !feed.problem && xmlDictSize(feed.context->dict) > XmlLimits::Names)
        feed.problem = {XmlTooManyNames, {}, {}};
    if (feed.problem)
        return 0;
    const auto count =
        static_cast<int>(std::min<qsizetype>(std::min(length, feed.piece), feed.end - feed.at));
    std::memcpy(buffer, feed.at, static_cast<size_t>(count));
    feed.at += count;
    return count;
}

// The library's words without what a document could smuggle into a message: line breaks, characters that
// steer a terminal, names of endless length.
CString CleanWords(const char* message) {
    constexpr qsizetype Longest = 160;
    CString words = QString::fromUtf8(message).simplified();
    words.removeIf([](QChar c) { return !c.isPrint() && !c.isSurrogate(); });
    return words.size() > Longest ? words.left(Longest) + "..." : words;
}

// Also an undeclared prefix or a namespace that is no address counts: what is opened must be writable.
void NoteError(void* context, xmlError* error) {
    Feed& feed = FeedOf(context);
    if (!feed.problem && error->level >= XML_ERR_ERROR)
        feed.problem = {XmlNotWellFormed, CString::number(error->line), CleanWords(error->message)};
}

// The guard lets no document type pass; should one slip through, nothing of it is read.
void StopAtDoctype(void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
    FeedOf(context).problem = {XmlDoctype, {}, {}};
    xmlStopParser(static_cast<xmlParserCtxt*>(context));
}

// Every name that the parser passes stands once in its dictionary, so the place tells a name.
bool IsLeftOut(const Feed& feed, const xmlChar* name) {
    return std::find(feed.leftOut.begin(), feed.leftOut.end(), name) != feed.leftOut.end();
}

// The library passes five pointers for an attribute, the first of them its name.
constexpr int PointersOfAttribute = 5;

void StartElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri,
                  int namespaces, const xmlChar** namespaceList, int attributes, int defaulted,
                  const xmlChar** attributeList) {
    Feed& feed = FeedOf(context);
    const bool isRoot = feed.context->node == nullptr;
    if (feed.leftOutDepth > 0 || (!isRoot && IsLeftOut(feed, name))) {
        ++feed.leftOutDepth;
        return;
    }
    // The list stays the library's: it frees values by their place in it.
    feed.kept.clear();
    for (int i = 0; i < attributes; ++i) {
        const xmlChar** attribute = attributeList + i * PointersOfAttribute;
        if (!IsLeftOut(feed, *attribute))
            feed.kept.insert(feed.kept.end(), attribute, attribute + PointersOfAttribute);
    }
    const auto kept = static_cast<int>(feed.kept.size()) / PointersOfAttribute;
    xmlSAX2StartElementNs(context, name, prefix, uri, namespaces, namespaceList, kept, defaulted,
                          feed.kept.data());
}

void EndElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri) {
    Feed& feed = FeedOf(context);
    if (feed.leftOutDepth > 0)
        --feed.leftOutDepth;
    else
        xmlSAX2EndElementNs(context, name, prefix, uri);
}

void AddText(void* context, const xmlChar* text, int length) {
    if (FeedOf(context).leftOutDepth == 0)
        xmlSAX2Characters(context, text, length);
}

// CDATA is text. An empty section is nothing: an empty text node would be written as "<a></a>" once, and as
// "<a/>" when that is read back.
void AddCdata(void* context, const xmlChar* text, int length) {
    if (length > 0)
        AddText(context, text, length);
}

struct FreeContext {
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};

void Prepare(xmlParserCtxt& context, Feed& feed, XmlNames leftOut) {
    // No entity is ever replaced and nothing is fetched; limits of the library itself stay on.
    xmlCtxtUseOptions(&context, XML_PARSE_NONET | XML_PARSE_COMPACT | XML_PARSE_IGNORE_ENC);
    context.loadsubset |= XML_SKIP_IDS; // a table of xml:id values would cost more than the tree
    context.sax->cdataBlock = AddCdata;
    for (const char* name : leftOut)
        feed.leftOut.push_back(xmlDictLookup(context.dict, reinterpret_cast<const xmlChar*>(name), -1));
    if (!leftOut.empty()) {
        context.sax->startElementNs = StartElement;
        context.sax->endElementNs = EndElement;
        context.sax->characters = AddText;
        context.sax->ignorableWhitespace = AddText;
    }
    context.sax->internalSubset = StopAtDoctype;
    context.sax->serror = NoteError;
    context._private = &feed;
    feed.context = &context;
}

} // namespace

void FreeXmlDoc::operator()(_xmlDoc* document) const {
    xmlFreeDoc(document);
}

XmlTree ParseXml(const XmlSource& source, XmlProblem& problem, XmlNames leftOut) {
    // The library drops what it has read only while little lies ahead, and refuses 10 MB of it: with larger
    // pieces, documents with long attributes would open or not by chance.
    const int piece = source.hasLongTags ? 400 : 4000;
    const char* begin = source.utf8.constData();
    Feed feed{begin, begin + source.utf8.size(), piece, 0, {}, {}, nullptr, {}};
    const std::unique_ptr<xmlParserCtxt, FreeContext> context(
        xmlCreateIOParserCtxt(nullptr, nullptr, ReadPiece, nullptr, &feed, XML_CHAR_ENCODING_UTF8));
    if (!context)
        throw std::bad_alloc();
    Prepare(*context, feed, leftOut);
    xmlParseDocument(context.get());
    XmlTree tree(context->myDoc);
    context->myDoc = nullptr;
    if (!feed.problem && !context->wellFormed)
        feed.problem = {XmlNotWellFormed, "1", "-"};
    problem = feed.problem;
    return problem ? nullptr : std::move(tree);
}
