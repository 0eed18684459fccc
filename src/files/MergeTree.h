// The standard that a merge makes: the document of its base, into which the checks of the other files are
// moved, and the merge folder with their side files.
#pragma once

#include "files/MergeNotes.h"
#include "files/XmlDocument.h"

#include <deque>
#include <unordered_map>

// A file to be merged.
struct MergeSource {
    CString listed;  // the path that the user knows
    CString folder;  // where it was unpacked
    CString xmlPath; // where its XML stands if it is a standard
};

class MergeTree {
public:
    // `notes` must outlive the tree.
    MergeTree(const CString& mergeFolder, MergeNotes& notes) : m_folder(mergeFolder), m_notes(notes) {}

    // False, without a message, where the file is no standard.
    bool OpenBase(const MergeSource& source);
    // Brings the side folders of the base's own checks, deleted ones included.
    void MoveSideFoldersOfBase(const MergeSource& base);
    // Moves the live checks of a file to the end, each in the place of the first check of its type. The
    // user is told of a file that is no standard, and of a check without a type, which ends its file.
    void Take(const MergeSource& source);
    // Why the result cannot be saved; empty when it is, and opens again.
    CString Save(const CString& path) const;

private:
    struct Origin;
    bool TakeCheck(const CXmlElement& check, const Origin& origin);
    bool RemoveFirst(const CString& type);
    void ConvertUnits(const CXmlElement& check, const CString& name, const Origin& origin);
    void NoteVersion(const CXmlElement& root, const MergeSource& source);
    void MoveSideFolder(const MergeSource& source, const CString& type) const;

    CString m_folder;
    MergeNotes& m_notes;
    CXmlDocument m_document;
    // The result's checks by the text of their type, in the order of the document: whether a type is there
    // already, and which check of it is the first, must not cost a walk for every check.
    std::unordered_map<CString, std::deque<CXmlElement>> m_checks;
};
