// A standard opened as the tool opens it: unpacked into a folder of its own, tested, and loaded.
#pragma once

#include "cli/WorkFolder.h"
#include "files/XmlDocument.h"
#include "model/Standard.h"

class OpenedStandard {
public:
    // False where the file is refused; `Reason` then says why in one sentence.
    bool Open(const CString& path);

    // The header as it stands in the file, which the model does not keep.
    CString HeaderText(const char* attribute) const;
    // The XML of the working copy.
    CXmlElement* XmlRoot() { return m_document.Root.get(); }
    CString WorkingFolder() const { return m_folder.path() + "/standard"; }
    CString WorkingFile() const { return m_workingFile; }

    CStandard Standard;
    CString Reason;
    bool HasFailed = false; // refused for want of a temporary folder: nothing is said of the file
    int Version = 0;        // as the file says; a missing one counts as 0

private:
    bool Refuse(const CString& reason);
    bool Unpack(const CString& path);

    QTemporaryDir m_folder{WorkFolderTemplate()};
    CString m_workingFile;
    CXmlDocument m_document;
};

// Why a file that a command was given cannot be read; empty where it can.
CString WhyNotReadable(const CString& path);

// The name of the XML in the archive `target`: that of the archive, where it is one by which it is found.
CString NameInside(const CString& target);

// Writes a standard under a new name: header, XML in the working folder, and the pack over `target`.
// The former XML of the folder gives way. False, with `reason`, where it failed; the target is as it was.
// After a success `reason` may be a warning.
bool SaveOpenedStandard(OpenedStandard& opened, const CString& target, CString& reason);
