// Zip archives, the outer form of a standard. An archive that is read is not trusted: everything that
// could reach out of the folder, fill the disk or mean two things at once is refused.
#pragma once

#include "platform/Text.h"

#include <cstdint>

// What no archive of a standard comes near, and what keeps a hostile one under a second and 256 MiB.
// The writer keeps to them as well, so that what was packed can always be unpacked.
namespace ArchiveLimits {
constexpr int Names = 4096;    // files and folders, those that only stand in a path included
constexpr int NameBytes = 256; // of the whole path of an entry, in UTF-8
constexpr std::uint64_t TotalBytes = 128 * 1024 * 1024;
constexpr std::uint64_t Ratio = 200;             // unpacked bytes to the archive's own, ...
constexpr std::uint64_t RatioFrom = 1024 * 1024; // ... looked at from this many unpacked bytes on
} // namespace ArchiveLimits

constexpr std::size_t ArchiveBlock = 16384; // bytes that are read and written at a time

enum class ArchiveStatus {
    Done,
    Unreadable, // the zip layer could not open or read it: a copy under another path may do better
    Refused,    // it was read, and it is not taken
    Failed      // the folder or the archive could not be written, or a file of the folder not read
};

struct ArchiveResult {
    ArchiveStatus status = ArchiveStatus::Done;
    int code = 0;      // 0, -104 for an archive that cannot be opened, else -103 (refused) or -1 (failed)
    unsigned text = 0; // number of the text that gives the reason
    CString insert;    // what stands for its %1

    explicit operator bool() const { return status == ArchiveStatus::Done; }
    CString Words() const;
};

ArchiveResult ArchiveUnreadable(unsigned text);
ArchiveResult ArchiveRefused(unsigned text, const CString& insert);
ArchiveResult ArchiveFailed(unsigned text, const CString& name, int systemError);

// Unpacks `source` into `folder`, which exists. A file that stands there already is neither overwritten
// nor removed, and no link in the folder is followed. Unless all went well, nothing new is left behind.
ArchiveResult ExtractArchive(const CString& source, const CString& folder);

// Packs every file under `folder` into a new archive that takes the place of `target`. Links and special
// files are left out, folders without files too. The same files give the same bytes. Unless all went
// well, `target` is as it was.
ArchiveResult WriteArchive(const CString& target, const CString& folder);
