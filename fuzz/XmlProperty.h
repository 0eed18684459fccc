// What holds for any bytes at all that are loaded as a document.
#pragma once

#include "files/StandardTree.h"
#include "files/XmlDocument.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/TextNumbers.h"

#include <algorithm>
#include <memory>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

// A file without a name, which is loaded by the path of its handle.
class NamelessFile {
public:
    NamelessFile() : m_handle(::memfd_create("document", MFD_CLOEXEC)) {}
    ~NamelessFile() { ::close(m_handle); }
    NamelessFile(const NamelessFile&) = delete;
    NamelessFile& operator=(const NamelessFile&) = delete;

    // The path of the file that now holds `bytes`.
    CString With(const QByteArray& bytes) const {
        const bool written = ::ftruncate(m_handle, 0) == 0 &&
                             ::pwrite(m_handle, bytes.constData(), static_cast<size_t>(bytes.size()), 0) ==
                                 static_cast<ssize_t>(bytes.size());
        return written ? "/proc/self/fd/" + CString::number(m_handle) : CString();
    }

private:
    int m_handle;
};

class XmlRoom {
public:
    // What does not hold, or an empty text.
    std::string Try(const QByteArray& bytes) {
        int messages = 0;
        const MessageScope count([&messages](const CString&, MessageButtons) {
            ++messages;
            return MessageAnswer::Ok;
        });
        CXmlDocument document;
        const CXmlElement* root = document.Load(m_file.With(bytes), true);
        if (messages != (root ? 0 : 1))
            return "not exactly one message for a refused document";
        return root ? ProblemOfOpened(document, *root) : ProblemOfRefused(bytes, document.GetLoadError());
    }

private:
    // The guard alone finds every document type: the parser must never come to see one.
    static std::string ProblemOfRefused(const QByteArray& bytes, const CString& reason) {
        if (reason.isEmpty())
            return "refused without a reason";
        if (!GuardXml(bytes).problem && reason == LoadString(XmlDoctype))
            return "a document type has passed the guard";
        return {};
    }

    std::string ProblemOfOpened(const CXmlDocument& document, const CXmlElement& root) {
        if (DepthOf(root) > XmlLimits::Depth)
            return "deeper than the guard allows";
        const QByteArray first = document.GetBytes();
        CXmlDocument again;
        if (!again.Load(m_file.With(first), false))
            return "what was written cannot be read: " + again.GetLoadError().toStdString();
        if (again.GetBytes() != first)
            return "a second writing gives other bytes";
        return ProblemOfStandard(first);
    }

    static int DepthOf(const CXmlElement& element) {
        int depth = 0;
        CXmlNodeList children = element.SelectNodes("*");
        for (int i = 0; i < children.GetCount(); ++i)
            depth = std::max(depth, DepthOf(*children.GetAt(i)));
        return depth + 1;
    }

    // A standard has settled once it was written: a parameter that is not in force is written once more,
    // with the operator 0, and then left out.
    std::string ProblemOfStandard(const QByteArray& bytes) {
        const QByteArray first = Rewritten(bytes);
        const QByteArray second = Rewritten(first);
        if (second.isEmpty() || second != Rewritten(second))
            return "a standard does not settle";
        if (first != second && !first.contains("<Operator>0</Operator>"))
            return "a standard changes when it is read back";
        return {};
    }

    // Read as a standard and written again; empty where it cannot be read.
    QByteArray Rewritten(const QByteArray& bytes) {
        CStandard standard;
        if (!standard.LoadFromFile(m_file.With(bytes)))
            return {};
        CXmlDocument document;
        const CurrentXmlDocument current(document);
        BuildStandardTree(document, standard);
        return document.GetBytes();
    }

    NamelessFile m_file;
};
