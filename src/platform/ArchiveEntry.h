// One entry of an archive that is open for reading: what its two headers say, and what is in it.
#pragma once

#include "platform/Archive.h"

#include <QByteArray>
#include <functional>
#include <minizip/unzip.h>

struct ArchiveEntry {
    unz64_file_pos position; // where its central header stands
    unz_file_info64 info;    // what its central header says
    CString path;
    bool folder;
    std::uint64_t begin; // its bytes in the archive, from the local header ...
    std::uint64_t end;   // ... to behind the packed data
};

// The general purpose flags of an entry that is encrypted in one way or another.
constexpr unsigned EncryptionFlags = 0x2041;

// Opens the zip layer's current entry for reading it as it is packed.
bool OpenPacked(unzFile zip);

// Opens the current entry, fills `begin` and `end`, and refuses it where its local header, read from `file`,
// says something else than the central one.
ArchiveResult CheckHeaders(unzFile zip, int file, const QByteArray& name, ArchiveEntry& entry);

// Reads the entry that is open to its end, block by block, and closes it. The size and the checksum of what
// really comes out count. The sink answers false, with errno, where it cannot take a block.
using ArchiveSink = std::function<bool(const char* bytes, std::size_t count)>;
ArchiveResult ReadEntry(unzFile zip, const ArchiveEntry& entry, const ArchiveSink& sink);
