#include "platform/ArchivePlan.h"

#include "platform/TextNumbers.h"

#include <algorithm>
#include <sys/stat.h>
#include <zlib.h>

namespace {

// What the central header says of the kind of an entry, and of how it is packed.
ArchiveResult CheckKind(const ArchiveEntry& entry) {
    const CString shown = ShownArchiveName(entry.path);
    const auto mode = static_cast<mode_t>(entry.info.external_fa >> 16 & S_IFMT);
    if (mode == S_IFLNK)
        return ArchiveRefused(ArchiveHoldsLink, shown);
    if (mode != 0 && mode != S_IFREG && mode != S_IFDIR)
        return ArchiveRefused(ArchiveHoldsSpecial, shown);
    if (mode == S_IFDIR && !entry.folder)
        return ArchiveRefused(ArchiveFileAndFolder, shown);
    if (entry.info.flag & EncryptionFlags)
        return ArchiveRefused(ArchiveEncrypted, shown);
    if (entry.info.compression_method != 0 && entry.info.compression_method != Z_DEFLATED)
        return ArchiveRefused(ArchiveUnknownMethod, shown);
    return {};
}

} // namespace

ArchiveResult ArchivePlan::Make() {
    unz_global_info64 archive;
    // Of an end record that is cut short the zip layer takes the missing bytes for zeros.
    if (unzGetGlobalInfo64(m_zip, &archive) != UNZ_OK || archive.number_entry == 0)
        return ArchiveUnreadable(ArchiveDamaged);
    if (archive.number_entry > ArchiveLimits::Names)
        return ArchiveRefused(ArchiveTooManyNames, CString::number(ArchiveLimits::Names));
    int state = unzGoToFirstFile(m_zip);
    for (; state == UNZ_OK; state = unzGoToNextFile(m_zip))
        if (ArchiveResult result = AddCurrent(); !result)
            return result;
    if (state != UNZ_END_OF_LIST_OF_FILE)
        return ArchiveUnreadable(ArchiveDamaged);
    return CheckTogether();
}

ArchiveResult ArchivePlan::AddCurrent() {
    ArchiveEntry entry{};
    QByteArray name(ArchiveLimits::NameBytes + 1, '\0');
    if (unzGetFilePos64(m_zip, &entry.position) != UNZ_OK ||
        unzGetCurrentFileInfo64(m_zip, &entry.info, name.data(), name.size(), nullptr, 0, nullptr, 0) !=
            UNZ_OK)
        return ArchiveUnreadable(ArchiveDamaged);
    name.truncate(
        static_cast<qsizetype>(entry.info.size_filename)); // a name that is too long fills all 257 bytes
    if (ArchiveResult result = CheckCurrent(name, entry); !result)
        return result;
    m_total += entry.info.uncompressed_size;
    m_entries.push_back(entry);
    return {};
}

ArchiveResult ArchivePlan::CheckCurrent(const QByteArray& bytes, ArchiveEntry& entry) {
    ArchiveName name;
    if (ArchiveResult result = ReadArchiveName(bytes, name); !result)
        return result;
    entry.path = name.path;
    entry.folder = name.folder;
    if (ArchiveResult result = CheckKind(entry); !result)
        return result;
    if (ArchiveResult result = m_names.Add(name); !result)
        return result;
    if (ArchiveResult result = CheckSizes(entry); !result)
        return result;
    return CheckHeaders(m_zip, m_file, bytes, entry);
}

ArchiveResult ArchivePlan::CheckSizes(const ArchiveEntry& entry) const {
    const bool stored = entry.info.compression_method == 0;
    if (entry.info.compressed_size > m_archiveSize || (entry.folder && entry.info.uncompressed_size != 0) ||
        (stored && entry.info.compressed_size != entry.info.uncompressed_size))
        return ArchiveRefused(ArchiveWrongSize, ShownArchiveName(entry.path));
    if (entry.info.uncompressed_size > ArchiveLimits::TotalBytes)
        return ArchiveRefused(ArchiveTooLarge, CString::number(ArchiveLimits::TotalBytes >> 20));
    return {};
}

ArchiveResult ArchivePlan::CheckTogether() const {
    if (m_total > ArchiveLimits::TotalBytes)
        return ArchiveRefused(ArchiveTooLarge, CString::number(ArchiveLimits::TotalBytes >> 20));
    if (m_total > ArchiveLimits::RatioFrom && m_total / ArchiveLimits::Ratio > m_archiveSize)
        return ArchiveRefused(ArchiveTooDense, CString::number(ArchiveLimits::Ratio));
    std::vector<const ArchiveEntry*> order;
    for (const ArchiveEntry& entry : m_entries)
        order.push_back(&entry);
    std::sort(order.begin(), order.end(), [](auto* a, auto* b) { return a->begin < b->begin; });
    for (std::size_t i = 1; i < order.size(); ++i)
        if (order[i]->begin < order[i - 1]->end)
            return ArchiveRefused(ArchiveOverlap, ShownArchiveName(order[i]->path));
    return {};
}
