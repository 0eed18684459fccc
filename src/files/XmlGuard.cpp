#include "files/XmlGuard.h"

#include "files/XmlEncoding.h"
#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"

#include <algorithm>
#include <cstring>

namespace {

// Sizes of the library's nodes as the heap keeps them.
constexpr qsizetype NodeCost = 128;
constexpr qsizetype SmallestText = 32;              // a text that is kept beside its node, however short
constexpr qsizetype AttributeCost = 112 + NodeCost; // its value is a text node

// What the tool itself keeps of a check, which has its parameters whatever the file holds of them: the
// check type with the most, and the richest child of a container. And of a value, beside its characters.
constexpr qsizetype CheckCost = 5600;
constexpr qsizetype ChildCheckCost = 1700;
constexpr qsizetype ValueCost = 112;

// What a node keeps of a text beside itself: a short one lies within the node, a long one is kept with
// room to grow.
qsizetype TextCost(qsizetype length) {
    return length < 16 ? 0 : 2 * length + 16;
}

XmlProblem Problem(unsigned text, qsizetype limit) {
    return {text, CString::number(limit), {}};
}

// Walks the markup of a document once. It needs no more understanding than where tags, quoted values,
// comments, CDATA sections and processing instructions begin and end; the parser judges the rest, and
// stops at the first thing that is not well formed.
class MarkupScan {
public:
    explicit MarkupScan(const QByteArray& utf8)
        : m_at(utf8.constData()), m_end(m_at + utf8.size()), m_cost(utf8.size()) {}

    // The number of the text of the first problem, or 0.
    unsigned Run() {
        while (const char* open = Find('<')) {
            if (open > m_at)
                m_cost += NodeCost + TextCost(open - m_at);
            m_at = open + 1;
            if (const unsigned problem = Markup())
                return problem;
            m_longestTag = std::max(m_longestTag, static_cast<qsizetype>(m_at - open));
            if (m_cost > XmlLimits::Cost)
                return XmlTooManyElements;
        }
        return 0;
    }

    qsizetype LongestTag() const { return m_longestTag; }

private:
    const char* Find(char c) const {
        return m_at < m_end ? static_cast<const char*>(std::memchr(m_at, c, m_end - m_at)) : nullptr;
    }
    bool Starts(const char* text) const {
        const auto length = static_cast<qsizetype>(std::strlen(text));
        return m_end - m_at >= length && std::memcmp(m_at, text, length) == 0;
    }
    // Moves behind the next `mark`, or to the end where there is none.
    void SkipPast(const char* mark) {
        const auto length = static_cast<qsizetype>(std::strlen(mark));
        while (const char* found = Find(mark[0])) {
            m_at = found;
            if (Starts(mark)) {
                m_at += length;
                return;
            }
            ++m_at;
        }
        m_at = m_end;
    }

    unsigned Markup() {
        if (Starts("/")) {
            SkipPast(">");
            --m_depth;
            return 0;
        }
        if (!Starts("!") && !Starts("?"))
            return Element();
        if (SkipNode("!--", "-->") || SkipNode("![CDATA[", "]]>") || SkipNode("?", "?>"))
            return 0;
        return XmlDoctype;
    }

    // Where the markup is of this kind, moves behind it. The end is sought behind the whole of the
    // beginning: the parser does not take "<!-->" for a comment either.
    bool SkipNode(const char* begin, const char* end) {
        if (!Starts(begin))
            return false;
        const char* open = m_at;
        m_at += std::strlen(begin);
        SkipPast(end);
        m_cost += NodeCost + SmallestText + TextCost(m_at - open);
        return true;
    }

    unsigned Element() {
        if (++m_depth > XmlLimits::Depth)
            return XmlTooDeep;
        m_cost += NodeCost + ModelCost();
        const char* tag = m_at;
        int attributes = 0;
        for (; m_at < m_end; ++m_at) {
            if (*m_at == '>') {
                m_depth -= m_at[-1] == '/' ? 1 : 0;
                ++m_at;
                return 0;
            }
            if (*m_at != '"' && *m_at != '\'')
                continue;
            if (++attributes > XmlLimits::AttributesOfElement)
                return XmlTooManyAttributes;
            if (IsNamespace(tag, m_at) && ++m_namespaces > XmlLimits::Namespaces)
                return XmlTooManyNames;
            if (const unsigned problem = Value())
                return problem;
        }
        return 0;
    }

    qsizetype ModelCost() const {
        if (Starts("Check"))
            return m_depth == 2 ? CheckCost : ChildCheckCost;
        return Starts("Value") ? ValueCost : 0;
    }

    // Moves to the quote that closes the value begun here.
    unsigned Value() {
        const char* open = m_at++;
        const char* close = Find(*open);
        m_at = close ? close : m_end - 1;
        m_cost += AttributeCost + TextCost(m_at - open);
        return m_at - open > XmlLimits::AttributeBytes ? XmlTooLong : 0;
    }

    // True where the value that begins at `quote` is that of an attribute "xmlns" or "xmlns:prefix". The
    // parser seeks each prefix among all declarations, so they are counted.
    static bool IsNamespace(const char* tag, const char* quote) {
        const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
        while (quote > tag && (isBlank(quote[-1]) || quote[-1] == '='))
            --quote;
        const char* name = quote;
        while (name > tag && !isBlank(name[-1]) && name[-1] != '"' && name[-1] != '\'')
            --name;
        return quote - name >= 5 && std::memcmp(name, "xmlns", 5) == 0;
    }

    const char* m_at;
    const char* m_end;
    qsizetype m_cost;
    int m_depth = 0;
    qsizetype m_longestTag = 0;
    int m_namespaces = 0;
};

XmlProblem ProblemOf(unsigned text) {
    switch (text) {
    case XmlTooDeep: return Problem(text, XmlLimits::Depth);
    case XmlTooManyAttributes: return Problem(text, XmlLimits::AttributesOfElement);
    default: return {text, {}, {}};
    }
}

void Scan(XmlSource& source) {
    constexpr qsizetype LongTag = 1024 * 1024;
    MarkupScan scan(source.utf8);
    source.problem = ProblemOf(scan.Run());
    source.hasLongTags = scan.LongestTag() > LongTag;
}

XmlSource GuardUtf8(XmlSource source) {
    if (source.problem)
        return source;
    if (source.utf8.isEmpty())
        source.problem = {XmlEmpty, {}, {}};
    else if (source.utf8.size() > XmlLimits::Bytes)
        source.problem = XmlTooLargeProblem();
    else if (!source.utf8.isValidUtf8() || source.utf8.contains('\0'))
        source.problem = {XmlBadBytes, {}, {}};
    else
        Scan(source);
    return source;
}

} // namespace

CString XmlProblem::Words() const {
    const CString words = LoadString(text);
    if (!second.isEmpty())
        return words.arg(first, second);
    return first.isEmpty() ? words : words.arg(first);
}

XmlProblem XmlTooLargeProblem() {
    return Problem(XmlTooLarge, XmlLimits::Bytes / (1024 * 1024));
}

XmlSource GuardXml(QByteArray bytes) {
    if (bytes.size() > XmlLimits::Bytes)
        return {{}, XmlTooLargeProblem()};
    return GuardUtf8(DecodeXml(std::move(bytes)));
}

XmlSource GuardXmlText(const CString& text) {
    return GuardUtf8({ToXmlText(text), {}});
}

QByteArray ToXmlText(const CString& text) {
    const auto isAllowed = [](ushort c) {
        return c >= 0x20 ? c < 0xFFFE && (c < 0xD800 || c > 0xDFFF) : c == 9 || c == 10 || c == 13;
    };
    qsizetype at = 0;
    while (at < text.size() && isAllowed(text[at].unicode()))
        ++at;
    if (at == text.size())
        return text.toUtf8();
    CString clean = text.left(at);
    for (; at < text.size(); ++at) {
        const QChar c = text[at];
        if (c.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate())
            clean.append(c).append(text[++at]);
        else if (isAllowed(c.unicode()))
            clean.append(c);
    }
    return clean.toUtf8();
}
