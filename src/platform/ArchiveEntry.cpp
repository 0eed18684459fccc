#include "platform/ArchiveEntry.h"

#include "platform/ArchiveNames.h"
#include "platform/TextNumbers.h"

#include <QtEndian>
#include <array>
#include <cerrno>
#include <unistd.h>
#include <zlib.h>

namespace {

constexpr std::uint32_t InExtraField = 0xffffffff; // instead of a size that stands in the zip64 field
constexpr unsigned Streamed = 0x0008; // the sizes follow the data, the local header may lack them
constexpr qsizetype LocalHeaderBytes = 30;

std::uint16_t Read16(const char* bytes) {
    return qFromLittleEndian<std::uint16_t>(bytes);
}

std::uint32_t Read32(const char* bytes) {
    return qFromLittleEndian<std::uint32_t>(bytes);
}

// The data of the zip64 field among the extra fields, empty where there is none.
QByteArray FindZip64(const QByteArray& extra) {
    constexpr int Zip64 = 1;
    for (qsizetype at = 0; at + 4 <= extra.size();) {
        const qsizetype size = Read16(extra.constData() + at + 2);
        if (Read16(extra.constData() + at) == Zip64)
            return extra.mid(at + 4, size);
        at += 4 + size;
    }
    return {};
}

// Whether a size in the local header is that of the central one. `wide` is the place of its 64 bits in the
// zip64 field, or null.
bool SizeAgrees(std::uint64_t local, const char* wide, std::uint64_t central, bool streamed) {
    if (local == InExtraField && wide)
        local = qFromLittleEndian<std::uint64_t>(wide);
    return local == central || (streamed && local == 0);
}

bool SizesAgree(const char* header, const QByteArray& extra, const unz_file_info64& info) {
    const bool streamed = (Read16(header + 6) & Streamed) != 0;
    const QByteArray zip64 = FindZip64(extra);
    const char* const unpacked = zip64.size() >= 8 ? zip64.constData() : nullptr;
    const char* const packed = zip64.size() >= 16 ? zip64.constData() + 8 : nullptr;
    return SizeAgrees(Read32(header + 22), unpacked, info.uncompressed_size, streamed) &&
           SizeAgrees(Read32(header + 18), packed, info.compressed_size, streamed);
}

bool HeadersAgree(unzFile zip, int file, const QByteArray& name, ArchiveEntry& entry) {
    const std::uint64_t dataBegin = unzGetCurrentFileZStreamPos64(zip);
    QByteArray extra(unzGetLocalExtrafield(zip, nullptr, 0), '\0');
    const int extraRead = extra.isEmpty() ? 0 : unzGetLocalExtrafield(zip, extra.data(), extra.size());
    const std::uint64_t headerBytes = LocalHeaderBytes + name.size() + extra.size();
    if (extraRead != extra.size() || dataBegin < headerBytes)
        return false;
    entry.begin = dataBegin - headerBytes;
    entry.end = dataBegin + entry.info.compressed_size;
    QByteArray header(LocalHeaderBytes + name.size(), '\0');
    if (::pread(file, header.data(), header.size(), static_cast<off_t>(entry.begin)) != header.size())
        return false;
    const unsigned differentFlags = Read16(header.constData() + 6) ^ static_cast<unsigned>(entry.info.flag);
    return header.endsWith(name) && (differentFlags & EncryptionFlags) == 0 &&
           SizesAgree(header.constData(), extra, entry.info);
}

// Unpacks the bytes of one entry. The zip layer could do so too, but it stops at the size that the header
// tells, so that a stream that goes on would pass unseen.
class Unpacker {
public:
    Unpacker(const ArchiveEntry& entry, const ArchiveSink& sink) : m_entry(entry), m_sink(sink) {
        m_stored = entry.info.compression_method == 0;
        m_ready = m_stored || inflateInit2(&m_stream, -MAX_WBITS) == Z_OK;
    }
    ~Unpacker() {
        if (!m_stored && m_ready)
            inflateEnd(&m_stream);
    }
    Unpacker(const Unpacker&) = delete;
    Unpacker& operator=(const Unpacker&) = delete;

    ArchiveResult Take(char* bytes, std::size_t count) {
        if (!m_ready)
            return ArchiveFailed(ArchiveCannotStore, Shown(), ENOMEM);
        return m_stored ? Pass(bytes, count) : Inflate(bytes, count);
    }

    ArchiveResult Finish() const {
        if (m_total != m_entry.info.uncompressed_size || (!m_stored && !m_ended))
            return ArchiveRefused(ArchiveWrongSize, Shown());
        if (m_checksum != m_entry.info.crc)
            return ArchiveRefused(ArchiveFileDamaged, Shown());
        return {};
    }

private:
    CString Shown() const { return ShownArchiveName(m_entry.path); }

    ArchiveResult Inflate(char* bytes, std::size_t count) {
        m_stream.next_in = reinterpret_cast<Bytef*>(bytes);
        m_stream.avail_in = static_cast<uInt>(count);
        while (!m_ended) {
            m_stream.next_out = m_block.data();
            m_stream.avail_out = static_cast<uInt>(m_block.size());
            const int answer = inflate(&m_stream, Z_NO_FLUSH);
            if (answer != Z_OK && answer != Z_STREAM_END && answer != Z_BUF_ERROR)
                return ArchiveRefused(ArchiveFileDamaged, Shown());
            m_ended = answer == Z_STREAM_END;
            if (ArchiveResult result = Pass(m_block.data(), m_block.size() - m_stream.avail_out); !result)
                return result;
            if (m_stream.avail_out != 0)
                break;
        }
        // Bytes behind the end of the stream belong to no file.
        return m_stream.avail_in == 0 ? ArchiveResult() : ArchiveRefused(ArchiveWrongSize, Shown());
    }

    ArchiveResult Pass(const void* bytes, std::size_t count) {
        m_total += count;
        if (m_total > m_entry.info.uncompressed_size)
            return ArchiveRefused(ArchiveWrongSize, Shown());
        m_checksum = crc32(m_checksum, static_cast<const Bytef*>(bytes), static_cast<uInt>(count));
        if (!m_sink(static_cast<const char*>(bytes), count))
            return ArchiveFailed(ArchiveCannotStore, Shown(), errno);
        return {};
    }

    const ArchiveEntry& m_entry;
    const ArchiveSink& m_sink;
    z_stream m_stream{};
    std::array<Bytef, ArchiveBlock> m_block;
    std::uint64_t m_total = 0;
    uLong m_checksum = 0;
    bool m_stored = false;
    bool m_ready = false;
    bool m_ended = false;
};

} // namespace

bool OpenPacked(unzFile zip) {
    constexpr int Raw = 1;
    int method = 0;
    return unzOpenCurrentFile2(zip, &method, nullptr, Raw) == UNZ_OK;
}

ArchiveResult CheckHeaders(unzFile zip, int file, const QByteArray& name, ArchiveEntry& entry) {
    if (!OpenPacked(zip) || !HeadersAgree(zip, file, name, entry))
        return ArchiveRefused(ArchiveContradiction, ShownArchiveName(name));
    return {};
}

ArchiveResult ReadEntry(unzFile zip, const ArchiveEntry& entry, const ArchiveSink& sink) {
    Unpacker unpacker(entry, sink);
    std::array<char, ArchiveBlock> block;
    for (;;) {
        const int count = unzReadCurrentFile(zip, block.data(), block.size());
        if (count < 0)
            return ArchiveUnreadable(ArchiveDamaged);
        if (count == 0)
            break;
        if (ArchiveResult result = unpacker.Take(block.data(), count); !result)
            return result;
    }
    if (unzCloseCurrentFile(zip) != UNZ_OK)
        return ArchiveUnreadable(ArchiveDamaged);
    return unpacker.Finish();
}
