#include "platform/ArchiveNames.h"
#include "platform/Descriptor.h"
#include "platform/TextNumbers.h"

#include <QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <minizip/zip.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

// The files that go into an archive, as bytes relative to the folder, in the order in which they go in.
using FileList = std::vector<QByteArray>;

ArchiveResult AddFile(const QByteArray& path, ArchiveNames& names, FileList& files) {
    ArchiveName name;
    if (ArchiveResult result = ReadArchiveName(path, name); !result)
        return result;
    if (path.contains('\\')) // a name here, but two levels in an archive
        return ArchiveRefused(ArchiveNameUnusable, ShownArchiveName(path));
    if (ArchiveResult result = names.Add(name); !result)
        return result;
    files.push_back(path);
    return {};
}

ArchiveResult ListFiles(const fs::path& folder, FileList& files) {
    ArchiveNames names;
    std::error_code error;
    const std::size_t skip = (folder / "").native().size();
    for (fs::recursive_directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        const fs::file_type type = at->symlink_status(error).type();
        if (error)
            break;
        if (type != fs::file_type::regular)
            continue;
        const QByteArray path = QByteArray::fromStdString(at->path().native().substr(skip));
        if (ArchiveResult result = AddFile(path, names, files); !result)
            return result;
    }
    if (error) {
        const CString shown = QFile::decodeName(QByteArray::fromStdString(folder.native()));
        return ArchiveFailed(ArchiveCannotReadFile, shown, error.value());
    }
    std::sort(files.begin(), files.end());
    return {};
}

// A new file beside the target. It is removed again unless it has taken the target's place.
class NewFile {
public:
    explicit NewFile(const QByteArray& target) : m_target(target) {
        constexpr int Attempts = 100; // a killed run may have left its file behind
        for (int i = 0; i < Attempts && m_path.isEmpty(); ++i) {
            const QByteArray path =
                target + '.' + QByteArray::number(::getpid()) + '-' + QByteArray::number(i) + ".tmp";
            if (Descriptor(::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)))
                m_path = path;
            else if (errno != EEXIST)
                break;
        }
    }
    ~NewFile() {
        if (!m_path.isEmpty())
            ::unlink(m_path.constData());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    const QByteArray& Path() const { return m_path; } // empty, with errno, where none could be made

    std::uint64_t Size() const {
        struct stat facts {};
        return ::stat(m_path.constData(), &facts) == 0 ? static_cast<std::uint64_t>(facts.st_size) : 0;
    }

    bool Keep() {
        if (::rename(m_path.constData(), m_target.constData()) != 0)
            return false;
        m_path.clear();
        return true;
    }

private:
    QByteArray m_target;
    QByteArray m_path;
};

// Writes one archive file from its first byte to its last.
class Packing {
public:
    Packing(const fs::path& folder, int level) : m_folder(folder), m_level(level) {}
    ~Packing() {
        if (m_zip)
            zipClose(m_zip, nullptr);
    }
    Packing(const Packing&) = delete;
    Packing& operator=(const Packing&) = delete;

    ArchiveResult Write(const QByteArray& path, const FileList& files) {
        errno = 0;
        m_zip = zipOpen64(path.constData(), APPEND_STATUS_CREATE);
        if (!m_zip)
            return CannotWrite();
        for (const QByteArray& file : files)
            if (ArchiveResult result = Add(file); !result)
                return result;
        return zipClose(std::exchange(m_zip, nullptr), nullptr) == ZIP_OK ? ArchiveResult() : CannotWrite();
    }

    std::uint64_t Total() const { return m_total; } // bytes of the files that were packed

private:
    static ArchiveResult CannotWrite() { return ArchiveFailed(ArchiveCannotWrite, {}, errno ? errno : EIO); }

    ArchiveResult Add(const QByteArray& path) {
        const fs::path full = m_folder / path.toStdString();
        const Descriptor file(::open(full.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (!file)
            return ArchiveFailed(ArchiveCannotReadFile, ShownArchiveName(path), errno);
        if (!OpenEntry(path))
            return CannotWrite();
        if (ArchiveResult result = Copy(path, file.Get()); !result)
            return result;
        return zipCloseFileInZip(m_zip) == ZIP_OK ? ArchiveResult() : CannotWrite();
    }

    bool OpenEntry(const QByteArray& path) {
        constexpr uLong MadeOnUnix = 3 << 8 | 45; // names are garbled by some tools when made elsewhere
        constexpr uLong Utf8Names = 2048;
        constexpr int MemoryLevel = 8;
        constexpr int Zip64 = 1;
        zip_fileinfo facts{};
        facts.dosDate = 1 << 21 | 1 << 16; // none: the first of January 1980 is the first valid day
        facts.external_fa = static_cast<uLong>(S_IFREG | 0644) << 16;
        return zipOpenNewFileInZip4_64(m_zip, path.constData(), &facts, nullptr, 0, nullptr, 0, nullptr,
                                       Z_DEFLATED, m_level, 0, -MAX_WBITS, MemoryLevel, Z_DEFAULT_STRATEGY,
                                       nullptr, 0, MadeOnUnix, Utf8Names, Zip64) == ZIP_OK;
    }

    ArchiveResult Copy(const QByteArray& path, int file) {
        std::array<char, ArchiveBlock> block;
        for (;;) {
            const ssize_t count = ::read(file, block.data(), block.size());
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0)
                return ArchiveFailed(ArchiveCannotReadFile, ShownArchiveName(path), errno);
            if (count == 0)
                return {};
            m_total += static_cast<std::uint64_t>(count);
            if (m_total > ArchiveLimits::TotalBytes)
                return ArchiveRefused(ArchiveTooLarge, CString::number(ArchiveLimits::TotalBytes >> 20));
            if (zipWriteInFileInZip(m_zip, block.data(), static_cast<unsigned>(count)) != ZIP_OK)
                return CannotWrite();
        }
    }

    const fs::path& m_folder;
    int m_level;
    zipFile m_zip = nullptr;
    std::uint64_t m_total = 0;
};

bool IsTooDense(std::uint64_t unpacked, std::uint64_t packed) {
    return unpacked > ArchiveLimits::RatioFrom && unpacked / ArchiveLimits::Ratio > packed;
}

} // namespace

ArchiveResult WriteArchive(const CString& target, const CString& folder) {
    const fs::path source = QFile::encodeName(folder).toStdString();
    FileList files;
    if (ArchiveResult result = ListFiles(source, files); !result)
        return result;
    NewFile archive(QFile::encodeName(target));
    if (archive.Path().isEmpty())
        return ArchiveFailed(ArchiveCannotWrite, {}, errno);
    // Files that hardly say anything are packed looser in a second go: the reader would take them for a trap.
    for (const int level : {Z_DEFAULT_COMPRESSION, Z_NO_COMPRESSION}) {
        Packing packing(source, level);
        if (ArchiveResult result = packing.Write(archive.Path(), files); !result)
            return result;
        if (!IsTooDense(packing.Total(), archive.Size()))
            break;
    }
    return archive.Keep() ? ArchiveResult() : ArchiveFailed(ArchiveCannotWrite, {}, errno);
}
