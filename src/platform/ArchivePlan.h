// What is looked at in an archive before any of it is unpacked: kinds, names, sizes and places of all
// entries.
#pragma once

#include "platform/ArchiveEntry.h"
#include "platform/ArchiveNames.h"

#include <vector>

class ArchivePlan {
public:
    // The zip layer's archive, and the file of `archiveSize` bytes that it reads.
    ArchivePlan(unzFile zip, int file, std::uint64_t archiveSize)
        : m_zip(zip), m_file(file), m_archiveSize(archiveSize) {}

    ArchiveResult Make();
    const std::vector<ArchiveEntry>& Entries() const { return m_entries; } // in the archive's order

private:
    ArchiveResult AddCurrent();
    ArchiveResult CheckCurrent(const QByteArray& bytes, ArchiveEntry& entry);
    ArchiveResult CheckSizes(const ArchiveEntry& entry) const;
    ArchiveResult CheckTogether() const;

    unzFile m_zip;
    int m_file;
    std::uint64_t m_archiveSize;
    std::uint64_t m_total = 0; // bytes that come out, by the headers; reading holds each entry to its size
    ArchiveNames m_names;
    std::vector<ArchiveEntry> m_entries;
};
