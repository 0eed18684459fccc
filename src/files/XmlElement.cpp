#include "files/XmlElement.h"

#include "files/XmlDocument.h"
#include "files/XmlGuard.h"
#include "platform/Format.h"

#include <array>
#include <cstring>
#include <libxml/parserInternals.h>
#include <libxml/tree.h>
#include <libxml/xmlsave.h>
#include <libxml/xpath.h>

namespace {

const xmlChar* Xml(const char* text) {
    return reinterpret_cast<const xmlChar*>(text);
}
const xmlChar* Xml(const QByteArray& text) {
    return Xml(text.constData());
}
CString Text(const xmlChar* text) {
    return QString::fromUtf8(reinterpret_cast<const char*>(text));
}

struct FreeXml {
    void operator()(xmlChar* text) const { xmlFree(text); }
    void operator()(xmlXPathContext* context) const { xmlXPathFreeContext(context); }
    void operator()(xmlXPathObject* object) const { xmlXPathFreeObject(object); }
    void operator()(xmlBuffer* buffer) const { xmlBufferFree(buffer); }
};
template <class T> using Owned = std::unique_ptr<T, FreeXml>;

// Elements out of the tree wait in their document's attic, which frees what nobody took.
xmlNode* AtticOf(const xmlNode* node) {
    return static_cast<xmlNode*>(node->doc->_private);
}

// Puts a node of the same document behind the last child. xmlAddChild would melt a text into the one
// before it: the node would be gone while an element object still stands for it, and the attic's one text
// would be copied whole for each text that joins it.
void LinkLast(xmlNode* parent, xmlNode* child) {
    child->parent = parent;
    child->prev = parent->last;
    (parent->last ? parent->last->next : parent->children) = child;
    parent->last = child;
}

void MoveToAttic(xmlNode* node) {
    xmlUnlinkNode(node);
    LinkLast(AtticOf(node), node);
}

// A text as the library takes it. Nearly all texts are short and plain, and need no memory of their own.
class XmlBytes {
public:
    explicit XmlBytes(const CString& text) {
        if (text.size() < static_cast<qsizetype>(m_short.size()) && CopyPlain(text))
            return;
        m_short[0] = 0; // stands where nothing of the text may be kept
        m_long = ToXmlText(text);
        m_length = m_long.size();
    }
    const xmlChar* Data() const { return m_long.isNull() ? Xml(m_short.data()) : Xml(m_long); }
    int Length() const { return static_cast<int>(m_length); }

private:
    bool CopyPlain(const CString& text) {
        for (const QChar c : text) {
            if (c.unicode() < 0x20 || c.unicode() > 0x7E)
                return false;
            m_short[static_cast<size_t>(m_length++)] = static_cast<char>(c.unicode());
        }
        m_short[static_cast<size_t>(m_length)] = 0;
        return true;
    }

    std::array<char, 128> m_short;
    QByteArray m_long;
    qsizetype m_length = 0;
};

// Names come from the document's dictionary: a few serve all elements and cost no copy each.
xmlChar* NameIn(xmlDoc* document, const char* name) {
    return const_cast<xmlChar*>(xmlDictLookup(document->dict, Xml(name), -1));
}

bool IsElementNamed(const xmlNode* node, const char* name) {
    return node->type == XML_ELEMENT_NODE && !node->ns &&
           std::strcmp(reinterpret_cast<const char*>(node->name), name) == 0;
}

xmlAttr* FindAttribute(const xmlNode* node, const char* name) {
    if (!node || node->type != XML_ELEMENT_NODE)
        return nullptr;
    for (xmlAttr* attribute = node->properties; attribute; attribute = attribute->next)
        if (!attribute->ns && std::strcmp(reinterpret_cast<const char*>(attribute->name), name) == 0)
            return attribute;
    return nullptr;
}

// The text of a chain of children; one text node is by far the usual case.
CString TextOfChildren(const xmlNode* parent, const xmlNode* children) {
    if (!children)
        return {};
    if (!children->next && (children->type == XML_TEXT_NODE || children->type == XML_CDATA_SECTION_NODE))
        return Text(children->content);
    const Owned<xmlChar> content(xmlNodeGetContent(parent));
    return Text(content.get());
}

bool IsBareName(const char* expression) {
    return xmlValidateNCName(Xml(expression), 0) == 0;
}

void SelectByXPath(xmlNode* node, const char* expression, CXmlNodeList& list) {
    const Owned<xmlXPathContext> context(xmlXPathNewContext(node->doc));
    context->node = node;
    context->error = [](void*, xmlError*) {}; // an expression that is none selects nothing, without a word
    const Owned<xmlXPathObject> found(xmlXPathEvalExpression(Xml(expression), context.get()));
    if (!found || !found->nodesetval)
        return;
    for (int i = 0; i < found->nodesetval->nodeNr; ++i)
        list.Add(found->nodesetval->nodeTab[i]);
}

} // namespace

bool CXmlElement::SetAttribute(const char* name, const CString& value) {
    if (!m_node)
        return false;
    const XmlBytes text(value);
    if (FindAttribute(m_node, name))
        return xmlSetProp(m_node, Xml(name), text.Data());
    // An empty value needs no text node: it is read and written as the empty text all the same.
    const xmlChar* content = text.Length() > 0 ? text.Data() : nullptr;
    return xmlNewNsPropEatName(m_node, nullptr, NameIn(m_node->doc, name), content);
}

bool CXmlElement::GetAttribute(const char* name, CString& outValue) const {
    const xmlAttr* attribute = FindAttribute(m_node, name);
    if (!attribute)
        return false;
    outValue = TextOfChildren(reinterpret_cast<const xmlNode*>(attribute), attribute->children);
    return !outValue.isEmpty();
}

bool CXmlElement::ChangeAttribute(const char* name, const CString& value) {
    return FindAttribute(m_node, name) && SetAttribute(name, value);
}

void CXmlElement::AppendChild(const CXmlElement* element) {
    if (!m_node || !element || !element->m_node)
        return;
    xmlNode* child = element->m_node;
    xmlUnlinkNode(child);
    // Names may belong to the other document's dictionary, so a move between documents is an adoption.
    if (child->doc != m_node->doc)
        xmlDOMWrapAdoptNode(nullptr, child->doc, child, m_node->doc, m_node, 0);
    LinkLast(m_node, child);
}

void CXmlElement::AppendFinished(std::unique_ptr<CXmlElement> element) {
    if (!m_node || !element || !element->m_node)
        return;
    if (!g_CurrentXmlDocument || !g_CurrentXmlDocument->IsOnlyWritten()) {
        AppendChild(element.get());
        return;
    }
    const QByteArrayView text = g_CurrentXmlDocument->Serialise(element->m_node);
    xmlNode* node = xmlNewDocTextLen(m_node->doc, Xml(text.constData()), static_cast<int>(text.size()));
    node->name = xmlStringTextNoenc; // its "<" and "&" are markup already
    LinkLast(m_node, node);
    xmlUnlinkNode(element->m_node);
    xmlFreeNode(element->m_node);
}

std::unique_ptr<CXmlElement> CXmlElement::AddChild(const char* name) {
    if (!g_CurrentXmlDocument)
        return nullptr;
    auto child = g_CurrentXmlDocument->CreateElement(name);
    AppendChild(child.get());
    return child;
}

void CXmlElement::AddTextChild(const char* name, const CString& text) {
    if (!m_node)
        return;
    xmlNode* node = xmlNewDocNodeEatName(m_node->doc, nullptr, NameIn(m_node->doc, name), nullptr);
    LinkLast(m_node, node);
    CXmlElement(node).SetText(text);
}

CXmlElement CXmlElement::MakeIn(_xmlDoc* document, const char* name) {
    xmlNode* node = xmlNewDocNodeEatName(document, nullptr, NameIn(document, name), nullptr);
    LinkLast(AtticOf(node), node);
    return CXmlElement(node);
}

void CXmlElement::RemoveChild(const CXmlElement* element) {
    if (!element || !element->m_node || element->m_node->parent != m_node)
        return;
    MoveToAttic(element->m_node);
}

void CXmlElement::DestroyChild(const CXmlElement* element) {
    if (!element || !element->m_node || element->m_node->parent != m_node)
        return;
    xmlUnlinkNode(element->m_node);
    xmlFreeNode(element->m_node);
}

std::unique_ptr<CXmlElement> CXmlElement::CloneDeep() const {
    if (!m_node)
        return std::make_unique<CXmlElement>(nullptr);
    xmlNode* copy = xmlDocCopyNode(m_node, m_node->doc, 1);
    LinkLast(AtticOf(m_node), copy);
    return std::make_unique<CXmlElement>(copy);
}

void CXmlElement::SetText(const CString& text) {
    if (!m_node)
        return;
    while (m_node->children)
        MoveToAttic(m_node->children);
    const XmlBytes bytes(text);
    if (bytes.Length() > 0)
        LinkLast(m_node, xmlNewDocTextLen(m_node->doc, bytes.Data(), bytes.Length()));
}

void CXmlElement::GetText(CString& outText) const {
    outText.clear();
    if (m_node && m_node->type == XML_ELEMENT_NODE)
        outText = TextOfChildren(m_node, m_node->children);
    else if (m_node)
        outText = Text(Owned<xmlChar>(xmlNodeGetContent(m_node)).get());
}

bool CXmlElement::GetInt(int& out) const {
    CString text;
    GetText(text);
    return ParseInt(text, out);
}

bool CXmlElement::GetLong(long& out) const {
    CString text;
    GetText(text);
    return ParseLong(text, out);
}

bool CXmlElement::GetDouble(double& out) const {
    CString text;
    GetText(text);
    return ParseDouble(text, out);
}

void CXmlElement::GetBaseName(CString& outName) const {
    outName = m_node ? Text(m_node->name) : CString();
}

bool CXmlElement::HasBaseName(const char* name) const {
    return m_node && m_node->name && std::strcmp(reinterpret_cast<const char*>(m_node->name), name) == 0;
}

std::unique_ptr<CXmlElement> CXmlElement::GetParent() const {
    xmlNode* parent = m_node ? m_node->parent : nullptr;
    if (!parent || parent->type != XML_ELEMENT_NODE || parent == AtticOf(parent))
        return nullptr;
    return std::make_unique<CXmlElement>(parent);
}

CXmlNodeList CXmlElement::GetChildNodes() const {
    CXmlNodeList list;
    for (xmlNode* child = m_node ? m_node->children : nullptr; child; child = child->next)
        list.Add(child);
    return list;
}

CXmlNodeList CXmlElement::SelectNodes(const char* expression) const {
    CXmlNodeList list;
    if (!m_node)
        return list;
    if (!IsBareName(expression)) {
        SelectByXPath(m_node, expression, list);
        return list;
    }
    for (xmlNode* child = m_node->children; child; child = child->next)
        if (IsElementNamed(child, expression))
            list.Add(child);
    return list;
}

std::unique_ptr<CXmlElement> CXmlElement::SelectSingleNode(const char* expression) const {
    if (!m_node)
        return nullptr;
    if (!IsBareName(expression)) {
        CXmlNodeList list;
        SelectByXPath(m_node, expression, list);
        return list.GetCount() ? std::make_unique<CXmlElement>(*list.GetAt(0)) : nullptr;
    }
    for (xmlNode* child = m_node->children; child; child = child->next)
        if (IsElementNamed(child, expression))
            return std::make_unique<CXmlElement>(child);
    return nullptr;
}

void CXmlElement::GetXml(CString& outText) const {
    outText.clear();
    if (!m_node)
        return;
    const Owned<xmlBuffer> buffer(xmlBufferCreate());
    xmlSaveCtxt* save = xmlSaveToBuffer(buffer.get(), "UTF-8", XML_SAVE_NO_DECL | XML_SAVE_AS_XML);
    xmlSaveTree(save, m_node);
    xmlSaveClose(save);
    outText = Text(xmlBufferContent(buffer.get()));
}
