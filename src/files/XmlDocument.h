// An XML document for one load or one save. Everything that the system does with XML goes through this
// class, CXmlElement and CXmlNodeList.
#pragma once

#include "files/XmlElement.h"
#include "files/XmlGuard.h"
#include "files/XmlParse.h"

#include <memory>
#include <stdexcept>

struct _xmlBuffer;
struct _xmlDoc;

struct FreeXmlBuffer {
    void operator()(_xmlBuffer* buffer) const;
};

// A document that could not be written. The words name the file and the reason.
class CXmlError : public std::runtime_error {
public:
    explicit CXmlError(const CString& words) : std::runtime_error(words.toStdString()) {}
};

class CXmlDocument {
public:
    // OnlyWritten: what CXmlElement::AppendFinished appends cannot be found in the tree again.
    enum class Use { Any, OnlyWritten };
    explicit CXmlDocument(Use use = Use::Any);
    ~CXmlDocument();
    CXmlDocument(const CXmlDocument&) = delete;
    CXmlDocument& operator=(const CXmlDocument&) = delete;

    std::unique_ptr<CXmlElement> CreateElement(const char* name); // not yet attached
    void AppendRoot(const CXmlElement& element);

    // Elements below the root and attributes of these names are left out of what is loaded from now on.
    // For a reader that never looks at them: they would take half of the time and memory.
    void LeaveOut(XmlNames names) { m_leftOut = names; }
    // The root, owned by the document, or null where the file is missing, refused or not well formed;
    // with `showError` the user is told text 2040 with the file and the reason.
    CXmlElement* Load(const CString& path, bool showError);
    // The same from a text; a failure is always shown.
    CXmlElement* LoadXmlText(const CString& text);
    // Why the last load failed, in words; empty after a success.
    const CString& GetLoadError() const { return m_loadError; }

    bool IsOnlyWritten() const { return m_writer != nullptr; }
    // One node of a document that is only written, as text. Valid until the next call.
    QByteArrayView Serialise(_xmlNode* node);

    // Writes the document without declaration and white space of its own, as UTF-8, whole or not at all. It
    // is a working copy that is packed over the user's file afterwards, and only the pack is brought to the
    // disk. Throws CXmlError, and then the file is as it was.
    void Save(const CString& path) const;
    QByteArray GetBytes() const; // what Save writes
    CString GetXmlText() const;  // the root element as text

    std::unique_ptr<CXmlElement> Root; // the root element once known

private:
    CXmlElement* Parse(const XmlSource& source);
    CXmlElement* Refuse(const CString& reason);

    using Buffer = std::unique_ptr<_xmlBuffer, FreeXmlBuffer>;
    Buffer SerialiseAll() const;

    struct Handle;
    struct Writer;
    std::unique_ptr<Handle> m_handle;
    std::unique_ptr<Writer> m_writer; // of a document that is only written
    CString m_loadError;
    XmlNames m_leftOut;
};

// The document in which a build creates its elements; null when no build is running.
extern CXmlDocument* g_CurrentXmlDocument;

// Makes a document the current one for its own life. A build inside a build is not supported.
class CurrentXmlDocument {
public:
    explicit CurrentXmlDocument(CXmlDocument& document) { g_CurrentXmlDocument = &document; }
    ~CurrentXmlDocument() { g_CurrentXmlDocument = nullptr; }
    CurrentXmlDocument(const CurrentXmlDocument&) = delete;
    CurrentXmlDocument& operator=(const CurrentXmlDocument&) = delete;
};
