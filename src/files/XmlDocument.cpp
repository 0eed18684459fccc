#include "files/XmlDocument.h"

#include "files/XmlParse.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/ReplaceFile.h"
#include "platform/TextNumbers.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <libxml/tree.h>
#include <libxml/xmlsave.h>

CXmlDocument* g_CurrentXmlDocument = nullptr;

struct CXmlDocument::Handle {
    xmlDoc* document = nullptr;
    xmlNode* attic = nullptr; // holds the elements that are not, or no longer, in the tree

    explicit Handle(xmlDoc* owned) : document(owned) {
        if (!document->dict)
            document->dict = xmlDictCreate();
        attic = xmlNewDocNode(document, nullptr, reinterpret_cast<const xmlChar*>("attic"), nullptr);
        document->_private = attic;
        // Without an encoding every letter beyond ASCII would be written as a character reference.
        if (!document->encoding)
            document->encoding = xmlStrdup(reinterpret_cast<const xmlChar*>("UTF-8"));
    }
    ~Handle() {
        xmlFreeNode(attic);
        xmlFreeDoc(document);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
};

// Turns nodes into text, one after the other.
struct CXmlDocument::Writer {
    Buffer buffer{xmlBufferCreateSize(4096)};
    xmlSaveCtxt* save = xmlSaveToBuffer(buffer.get(), "UTF-8", XML_SAVE_NO_DECL | XML_SAVE_AS_XML);

    Writer() = default;
    ~Writer() { xmlSaveClose(save); }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
};

void FreeXmlBuffer::operator()(_xmlBuffer* buffer) const {
    xmlBufferFree(buffer);
}

namespace {

// What the library notes for a document that has no XML declaration.
constexpr int NoDeclaration = -1;

// Reads a whole file; anything else is refused, since it might never end.
bool ReadFile(const CString& path, QByteArray& bytes, XmlProblem& problem) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        problem = {FileNotOrdinary, {}, {}};
        return false;
    }
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        bytes = file.read(std::min<qint64>(file.size(), XmlLimits::Bytes) + 1);
    if (file.error() != QFile::NoError)
        problem = {XmlCannotRead, file.errorString(), {}};
    return !problem;
}

} // namespace

CXmlDocument::CXmlDocument(Use use)
    : m_handle(std::make_unique<Handle>(xmlNewDoc(reinterpret_cast<const xmlChar*>("1.0")))),
      m_writer(use == Use::OnlyWritten ? std::make_unique<Writer>() : nullptr) {}

CXmlDocument::~CXmlDocument() = default;

std::unique_ptr<CXmlElement> CXmlDocument::CreateElement(const char* name) {
    return std::make_unique<CXmlElement>(CXmlElement::MakeIn(m_handle->document, name));
}

void CXmlDocument::AppendRoot(const CXmlElement& element) {
    CXmlElement document(reinterpret_cast<xmlNode*>(m_handle->document));
    document.AppendChild(&element);
    Root = std::make_unique<CXmlElement>(element);
}

CXmlElement* CXmlDocument::Load(const CString& path, bool showError) {
    QByteArray bytes;
    XmlProblem problem;
    CXmlElement* root = nullptr;
    if (ReadFile(path, bytes, problem))
        root = Parse(GuardXml(std::move(bytes)));
    else
        m_loadError = problem.Words();
    if (!root && showError)
        ShowMessage(LoadString(2040) + "\n" + path + "\n" + m_loadError);
    return root;
}

CXmlElement* CXmlDocument::LoadXmlText(const CString& text) {
    CXmlElement* root = Parse(GuardXmlText(text));
    if (!root)
        ShowMessage(LoadString(2040) + "\n" + m_loadError);
    return root;
}

CXmlElement* CXmlDocument::Parse(const XmlSource& source) {
    Root.reset();
    m_loadError.clear();
    XmlProblem problem = source.problem;
    XmlTree tree = problem ? nullptr : ParseXml(source, problem, m_leftOut);
    if (!tree)
        return Refuse(problem.Words());
    m_handle = std::make_unique<Handle>(tree.release());
    Root = std::make_unique<CXmlElement>(xmlDocGetRootElement(m_handle->document));
    return Root.get();
}

CXmlElement* CXmlDocument::Refuse(const CString& reason) {
    m_loadError = reason;
    return nullptr;
}

// The whole document as it is written.
CXmlDocument::Buffer CXmlDocument::SerialiseAll() const {
    Buffer buffer(xmlBufferCreate());
    xmlBufferSetAllocationScheme(buffer.get(), XML_BUFFER_ALLOC_DOUBLEIT);
    if (m_handle->document->standalone != NoDeclaration)
        xmlBufferCCat(buffer.get(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    xmlSaveCtxt* save = xmlSaveToBuffer(buffer.get(), "UTF-8", XML_SAVE_NO_DECL | XML_SAVE_AS_XML);
    for (xmlNode* node = m_handle->document->children; node; node = node->next)
        xmlSaveTree(save, node);
    xmlSaveClose(save);
    return buffer;
}

QByteArrayView CXmlDocument::Serialise(_xmlNode* node) {
    xmlBuffer* buffer = m_writer->buffer.get();
    xmlBufferEmpty(buffer);
    xmlSaveTree(m_writer->save, node);
    xmlSaveFlush(m_writer->save);
    return {reinterpret_cast<const char*>(xmlBufferContent(buffer)), xmlBufferLength(buffer)};
}

QByteArray CXmlDocument::GetBytes() const {
    const Buffer buffer = SerialiseAll();
    return {reinterpret_cast<const char*>(xmlBufferContent(buffer.get())), xmlBufferLength(buffer.get())};
}

void CXmlDocument::Save(const CString& path) const {
    const Buffer buffer = SerialiseAll();
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(xmlBufferContent(buffer.get())),
                                               xmlBufferLength(buffer.get()));
    // What the limits would refuse at the next opening must not replace what can be opened now.
    if (const XmlProblem problem = GuardXml(bytes).problem)
        throw CXmlError(path + ": " + problem.Words());
    const FileResult written = WriteWorkingFile(path, bytes);
    if (!written)
        throw CXmlError(path + ": " + written.reason);
}

CString CXmlDocument::GetXmlText() const {
    CString text;
    if (Root)
        Root->GetXml(text);
    return text;
}
