#include "platform/ArchiveEntry.h"
#include "platform/ArchiveFolder.h"
#include "platform/ArchiveNames.h"
#include "platform/ArchivePlan.h"
#include "platform/TextNumbers.h"

#include <QFile>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <minizip/unzip.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct CloseZip {
    void operator()(void* zip) const { unzClose(zip); }
};
using Zip = std::unique_ptr<void, CloseZip>;

// The archive's file; none where it is missing or is something that could block or never end.
Descriptor OpenSource(const CString& source, std::uint64_t& size) {
    Descriptor file(::open(QFile::encodeName(source).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat facts {};
    if (!file || ::fstat(file.Get(), &facts) != 0 || !S_ISREG(facts.st_mode))
        return Descriptor();
    size = static_cast<std::uint64_t>(facts.st_size);
    return file;
}

// Gives the zip layer the file that is open already, so that both see the same one.
voidpf ZCALLBACK OpenStream(voidpf file, const void*, int) {
    Descriptor copy(::fcntl(*static_cast<int*>(file), F_DUPFD_CLOEXEC, 0));
    std::FILE* const stream = copy ? ::fdopen(copy.Get(), "rb") : nullptr;
    if (stream)
        copy.Release();
    return stream;
}

Zip OpenZip(int& file) {
    zlib_filefunc64_def functions;
    fill_fopen64_filefunc(&functions);
    functions.zopen64_file = OpenStream;
    functions.opaque = &file;
    return Zip(unzOpen2_64("", &functions));
}

// An archive without entries is its end record alone, which the zip layer does not open.
bool IsEmptyArchive(int file, std::uint64_t size) {
    constexpr std::array<char, 12> EmptyEnd{'P', 'K', 5, 6};
    std::array<char, 22> record;
    return size >= record.size() && ::pread(file, record.data(), record.size(), 0) == std::ssize(record) &&
           std::equal(EmptyEnd.begin(), EmptyEnd.end(), record.begin()) &&
           size == record.size() + qFromLittleEndian<std::uint16_t>(record.data() + 20);
}

bool WriteAll(int file, const char* bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t written = ::write(file, bytes, count);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
    return true;
}

ArchiveResult ExtractEntry(unzFile zip, const ArchiveEntry& entry, ArchiveFolder& folder) {
    if (entry.folder)
        return folder.MakeFolder(entry.path);
    if (unzGoToFilePos64(zip, &entry.position) != UNZ_OK || !OpenPacked(zip))
        return ArchiveUnreadable(ArchiveDamaged);
    Descriptor file;
    if (ArchiveResult result = folder.MakeFile(entry.path, file); !result)
        return result;
    const auto sink = [&file](const char* bytes, std::size_t count) {
        return WriteAll(file.Get(), bytes, count);
    };
    if (ArchiveResult result = ReadEntry(zip, entry, sink); !result)
        return result;
    if (!file.Close())
        return ArchiveFailed(ArchiveCannotStore, ShownArchiveName(entry.path), errno);
    return {};
}

} // namespace

ArchiveResult ExtractArchive(const CString& source, const CString& folder) {
    std::uint64_t size = 0;
    const Descriptor file = OpenSource(source, size);
    if (!file)
        return ArchiveUnreadable(ArchiveCannotOpen);
    if (IsEmptyArchive(file.Get(), size))
        return {};
    int number = file.Get();
    const Zip zip = OpenZip(number);
    if (!zip)
        return ArchiveUnreadable(ArchiveCannotOpen);
    ArchivePlan plan(zip.get(), number, size);
    if (ArchiveResult result = plan.Make(); !result)
        return result;
    ArchiveFolder target;
    if (ArchiveResult result = target.Open(folder); !result)
        return result;
    for (const ArchiveEntry& entry : plan.Entries())
        if (ArchiveResult result = ExtractEntry(zip.get(), entry, target); !result)
            return result;
    target.Keep();
    return {};
}
