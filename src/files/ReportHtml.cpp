#include "files/ReportHtml.h"

#include "files/XmlGuard.h"
#include "platform/LanguageLibrary.h"
#include "platform/ReplaceFile.h"
#include "platform/TextNumbers.h"

#include <QFile>
#include <QFileInfo>
#include <cstdarg>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>
#include <libxslt/security.h>
#include <libxslt/transform.h>
#include <libxslt/xsltInternals.h>
#include <libxslt/xsltutils.h>
#include <memory>

namespace {

struct FreeXslt {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
    void operator()(xsltStylesheet* stylesheet) const { xsltFreeStylesheet(stylesheet); }
    void operator()(xsltTransformContext* context) const { xsltFreeTransformContext(context); }
    void operator()(xsltSecurityPrefs* rights) const { xsltFreeSecurityPrefs(rights); }
};
template <class T> using Owned = std::unique_ptr<T, FreeXslt>;

// Everything that a stylesheet could reach is forbidden, and for its own life also to stylesheets that are
// being read, which look for these rights in a place that they all share.
class NoRights {
public:
    NoRights() : m_rights(xsltNewSecurityPrefs()), m_before(xsltGetDefaultSecurityPrefs()) {
        for (const xsltSecurityOption option :
             {XSLT_SECPREF_READ_FILE, XSLT_SECPREF_WRITE_FILE, XSLT_SECPREF_CREATE_DIRECTORY,
              XSLT_SECPREF_READ_NETWORK, XSLT_SECPREF_WRITE_NETWORK})
            xsltSetSecurityPrefs(m_rights.get(), option, xsltSecurityForbid);
        xsltSetDefaultSecurityPrefs(m_rights.get());
    }
    ~NoRights() { xsltSetDefaultSecurityPrefs(m_before); }
    NoRights(const NoRights&) = delete;
    NoRights& operator=(const NoRights&) = delete;

    xsltSecurityPrefs* Get() const { return m_rights.get(); }

private:
    Owned<xsltSecurityPrefs> m_rights;
    xsltSecurityPrefs* m_before;
};

// Collects what the libraries have to say, which would go to standard error, for its own life.
class LibraryWords {
public:
    LibraryWords() {
        xsltSetGenericErrorFunc(&words, Add);
        xmlSetGenericErrorFunc(&words, Add);
    }
    ~LibraryWords() {
        xsltSetGenericErrorFunc(nullptr, nullptr);
        xmlSetGenericErrorFunc(nullptr, nullptr);
    }
    LibraryWords(const LibraryWords&) = delete;
    LibraryWords& operator=(const LibraryWords&) = delete;

    static void Add(void* target, const char* format, ...) {
        va_list arguments;
        va_start(arguments, format);
        *static_cast<CString*>(target) += CString::vasprintf(format, arguments);
        va_end(arguments);
    }

    CString words;
};

FileResult Failure(const CString& reason) {
    return {false, LoadString(ReportNotTransformed).arg(reason.simplified())};
}

Owned<xmlDoc> ReadDocument(const CString& path, FileResult& result) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        result = Failure(path + ": " + file.errorString());
        return nullptr;
    }
    const XmlSource source = GuardXml(file.read(XmlLimits::Bytes + 1));
    if (source.problem) {
        result = Failure(path + ": " + source.problem.Words());
        return nullptr;
    }
    constexpr int Options =
        XML_PARSE_NONET | XML_PARSE_NOCDATA | XML_PARSE_IGNORE_ENC | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
    Owned<xmlDoc> document(xmlReadMemory(source.utf8.constData(), static_cast<int>(source.utf8.size()),
                                         nullptr, "UTF-8", Options));
    if (!document) {
        const xmlError* error = xmlGetLastError();
        result = Failure(path + ": " + QString::fromUtf8(error ? error->message : ""));
    }
    return document;
}

QByteArray Transform(xmlDoc* document, xsltStylesheet* stylesheet, const NoRights& rights, CString& words) {
    const Owned<xsltTransformContext> context(xsltNewTransformContext(stylesheet, document));
    xsltSetTransformErrorFunc(context.get(), &words, LibraryWords::Add);
    xsltSetCtxtSecurityPrefs(rights.Get(), context.get());
    const Owned<xmlDoc> page(
        xsltApplyStylesheetUser(stylesheet, document, nullptr, nullptr, nullptr, context.get()));
    xmlChar* text = nullptr;
    int size = 0;
    // A reading that was forbidden is an error in its state, while the page comes out all the same.
    if (!page || context->state != XSLT_STATE_OK ||
        xsltSaveResultToString(&text, &size, page.get(), stylesheet) < 0)
        return {};
    QByteArray html(reinterpret_cast<const char*>(text), size);
    xmlFree(text);
    return html;
}

} // namespace

ReportPage RenderReportHtml(const CString& xmlPath, const CString& stylesheetPath) {
    ReportPage page;
    const NoRights rights;
    LibraryWords library;
    const Owned<xmlDoc> document = ReadDocument(xmlPath, page.result);
    Owned<xmlDoc> program = document ? ReadDocument(stylesheetPath, page.result) : nullptr;
    if (!program)
        return page;
    const Owned<xsltStylesheet> stylesheet(xsltParseStylesheetDoc(program.get()));
    if (stylesheet) {
        static_cast<void>(program.release()); // the stylesheet frees it
        page.html = Transform(document.get(), stylesheet.get(), rights, library.words);
    }
    if (page.html.isEmpty())
        page.result = Failure(library.words);
    return page;
}

FileResult WriteReportHtml(const QByteArray& html, const CString& target) {
    return ReplaceFile(target, html);
}
