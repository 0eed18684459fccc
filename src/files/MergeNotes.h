// What a merge has to tell beside its messages: the report of replaced checks, and warnings.
#pragma once

#include "platform/Text.h"

#include <QHash>
#include <vector>

struct MergeWarning {
    unsigned text;  // its number in the language library
    CString source; // the path as it was listed
    CString check;  // the check's name; empty for the whole file
    CString insert; // what stands for its %1

    CString Words() const; // without source and check
};

// A path of more than 53 characters by its first and last 25.
CString ShortenSourcePath(const CString& path);

class MergeNotes {
public:
    // One line for each name: a later replacement overwrites it in its place.
    void Replaced(const CString& check, const CString& source);
    void Warn(const MergeWarning& warning) { m_warnings.push_back(warning); }

    // "name  --  path" under a heading; nothing where no check was replaced.
    CStringArray Report() const;
    const std::vector<MergeWarning>& Warnings() const { return m_warnings; }

private:
    CStringArray m_lines;
    QHash<CString, qsizetype> m_lineOf; // by check name
    std::vector<MergeWarning> m_warnings;
};
