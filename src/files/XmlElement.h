// One element of an XML document, and a list of them. An element object is a handle: it owns nothing of
// the document and must not be used after its document is gone.
#pragma once

#include "platform/Text.h"

#include <memory>
#include <vector>

struct _xmlDoc;
struct _xmlNode;
class CXmlNodeList;

class CXmlElement {
public:
    explicit CXmlElement(_xmlNode* node) : m_node(node) {}
    // A new element of a document, not yet attached.
    static CXmlElement MakeIn(_xmlDoc* document, const char* name);

    // Sets or adds an attribute; characters that no document can hold are left out.
    bool SetAttribute(const char* name, const CString& value);
    // True only when the attribute exists and is not empty; `outValue` stays when it does not exist.
    bool GetAttribute(const char* name, CString& outValue) const;
    // Replaces the text of an existing attribute; nothing is created.
    bool ChangeAttribute(const char* name, const CString& value);

    // Moves an element here, also from another document; null does nothing.
    void AppendChild(const CXmlElement* element);
    // Appends a new element that nobody will look at again. A current document that is only written keeps
    // it as text, in a tenth of the memory.
    void AppendFinished(std::unique_ptr<CXmlElement> element);
    // Creates in the current document and appends; null when there is no current document.
    std::unique_ptr<CXmlElement> AddChild(const char* name);
    // Creates a child of the same document that holds this text.
    void AddTextChild(const char* name, const CString& text);
    // Takes a child out; it stays usable, and may be appended elsewhere, while its document lives.
    void RemoveChild(const CXmlElement* element);
    // Takes a child out and frees it with all below it; no handle to any of it may be used afterwards.
    void DestroyChild(const CXmlElement* element);
    std::unique_ptr<CXmlElement> CloneDeep() const;

    void SetText(const CString& text);
    void GetText(CString& outText) const;
    bool GetInt(int& out) const;       // "%d"; false, with `out` unchanged, where the text is no number
    bool GetLong(long& out) const;     // "%ld"
    bool GetDouble(double& out) const; // "%lf"
    void GetBaseName(CString& outName) const;
    bool HasBaseName(const char* name) const;

    std::unique_ptr<CXmlElement> GetParent() const; // null for the root
    CXmlNodeList GetChildNodes() const;             // every child node, in order
    // The nodes that an XPath expression selects, relative to this element. A bare name selects the
    // child elements of that name.
    CXmlNodeList SelectNodes(const char* expression) const;
    std::unique_ptr<CXmlElement> SelectSingleNode(const char* expression) const; // null for no match
    void GetXml(CString& outText) const;

private:
    _xmlNode* m_node; // null: stands for no node; texts are empty and nothing can be set
};

class CXmlNodeList {
public:
    int GetCount() const { return static_cast<int>(m_elements.size()); }
    const CXmlElement* GetAt(int index) const { return &m_elements[static_cast<size_t>(index)]; }
    CXmlElement* GetAt(int index) { return &m_elements[static_cast<size_t>(index)]; }
    void Add(_xmlNode* node) { m_elements.emplace_back(node); }

private:
    std::vector<CXmlElement> m_elements;
};
