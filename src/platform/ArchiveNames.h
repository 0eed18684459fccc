// The names in an archive: which are taken, and which may stand side by side.
#pragma once

#include "platform/Archive.h"

#include <QByteArray>
#include <QHash>

struct ArchiveName {
    CString path; // levels apart by "/", none at either end
    bool folder = false;
};

// Reads the name of an entry, with "/" or "\" between its levels; an empty one at the end names a folder.
ArchiveResult ReadArchiveName(const QByteArray& bytes, ArchiveName& out);

// A name for the eye: short, and without anything that could disturb a message.
CString ShownArchiveName(const QByteArray& bytes);
CString ShownArchiveName(const CString& name);

// The names of one archive. Upper and lower case count as equal, since the same archive is unpacked on
// systems that do not tell them apart.
class ArchiveNames {
public:
    ArchiveResult Add(const ArchiveName& name);

private:
    enum class Kind { Implied, Folder, File };
    struct Known {
        CString path;
        Kind kind;
    };

    ArchiveResult AddLevelsAbove(const CString& path);
    ArchiveResult Insert(const CString& path, Kind kind);

    QHash<CString, Known> m_names; // by path in folded case
};
