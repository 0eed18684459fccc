// The folder into which an archive is unpacked. What was made in it goes again unless it is kept.
#pragma once

#include "platform/Archive.h"
#include "platform/Descriptor.h"

#include <QByteArray>
#include <QSet>
#include <vector>

class ArchiveFolder {
public:
    ArchiveFolder() = default;
    ~ArchiveFolder();
    ArchiveFolder(const ArchiveFolder&) = delete;
    ArchiveFolder& operator=(const ArchiveFolder&) = delete;

    ArchiveResult Open(const CString& folder);

    // Paths are relative to the folder, with "/" between their levels, and were looked at before.
    ArchiveResult MakeFolder(const CString& path); // with every level above; one may stand there already
    ArchiveResult MakeFile(const CString& path, Descriptor& out); // with its folder; new and empty

    void Keep() { m_made.clear(); }

private:
    struct Made {
        QByteArray path;
        bool folder;
    };

    ArchiveResult MakeLevel(const CString& path);

    Descriptor m_folder;
    QSet<CString> m_levels; // folders that are known to be no links
    std::vector<Made> m_made;
};
