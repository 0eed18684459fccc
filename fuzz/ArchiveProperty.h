// What holds for any bytes at all that are unpacked as an archive.
#pragma once

#include "platform/Archive.h"
#include "support/FolderTree.h"

#include <filesystem>
#include <minizip/zip.h>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>

// Writes an archive with one file for each line of `names`; what is wrong with them is left as it is.
inline void ArchiveOfNames(const std::string& names, const std::filesystem::path& file) {
    const zipFile zip = zipOpen64(file.c_str(), APPEND_STATUS_CREATE);
    std::istringstream lines(names);
    for (std::string name; std::getline(lines, name);) {
        const zip_fileinfo facts{};
        zipOpenNewFileInZip64(zip, name.c_str(), &facts, nullptr, 0, nullptr, 0, nullptr, 0, 0, 0);
        zipWriteInFileInZip(zip, name.data(), static_cast<unsigned>(name.size()));
        zipCloseFileInZip(zip);
    }
    zipClose(zip, nullptr);
}

// The folder in which the archives of one process are tried, with things around the target that must stay
// as they are.
class ArchiveRoom {
public:
    explicit ArchiveRoom(const std::filesystem::path& folder) : m_folder(folder) {
        WriteBytes(m_folder / "around/keep.txt", "keep");
        WriteBytes(m_folder / "around/outside.txt", "not to be overwritten");
        std::filesystem::create_directories(Target());
        WriteBytes(Target() / "stood/here.txt", "before");
        std::tie(m_stood, m_around) = Look();
    }

    // What does not hold, or an empty text. Bytes without the mark of an archive's end are taken for a list
    // of names, so that chance gets past the checksums and the two headers that must agree.
    std::string Try(const std::string& bytes) {
        if (bytes.find("PK\5\6") == std::string::npos)
            ArchiveOfNames(bytes, m_folder / "in.zip");
        else
            WriteBytes(m_folder / "in.zip", bytes);
        const ArchiveResult result = ExtractArchive(Text("in.zip"), Text("around/target"));
        const auto [tree, around] = Look();
        std::string problem;
        if (around != m_around)
            problem = "something outside the folder has changed";
        else if (!result)
            problem = ProblemOfRefused(result, tree);
        else
            problem = ProblemOfOpened(tree);
        Restore(tree);
        return problem;
    }

private:
    std::filesystem::path Target() const { return m_folder / "around/target"; }
    CString Text(const char* name) const { return CString::fromStdString((m_folder / name).native()); }

    // What stands in the target, and what around it.
    std::pair<FolderTree, FolderTree> Look() const {
        const std::string inside = "target/";
        FolderTree target;
        FolderTree around;
        for (const auto& [path, what] : ReadTree(m_folder / "around")) {
            if (path.starts_with(inside))
                target[path.substr(inside.size())] = what;
            else
                around[path] = what;
        }
        return {target, around};
    }

    std::string ProblemOfRefused(const ArchiveResult& result, const FolderTree& tree) const {
        if (tree != m_stood)
            return "a refused archive has left something behind";
        if (result.text == 0 || result.code >= 0)
            return "an archive is refused without a reason";
        return {};
    }

    std::string ProblemOfOpened(const FolderTree& tree) const {
        for (const auto& [path, what] : m_stood)
            if (const auto now = tree.find(path); now == tree.end() || now->second != what)
                return "what stood in the folder has changed";
        const std::filesystem::path fresh = m_folder / "fresh";
        const std::filesystem::path again = m_folder / "again";
        std::filesystem::create_directory(fresh);
        std::filesystem::create_directory(again);
        const std::string problem = ProblemOfRewriting(fresh, again);
        std::filesystem::remove_all(fresh);
        std::filesystem::remove_all(again);
        return problem;
    }

    // What was unpacked can be packed, comes out the same again, and gives the same bytes again.
    std::string ProblemOfRewriting(const std::filesystem::path& fresh,
                                   const std::filesystem::path& again) const {
        if (!ExtractArchive(Text("in.zip"), Text("fresh")))
            return "an archive is opened once and refused once";
        if (!WriteArchive(Text("first.zip"), Text("fresh")))
            return "what was unpacked cannot be packed";
        if (!ExtractArchive(Text("first.zip"), Text("again")))
            return "what was packed cannot be unpacked";
        if (FilesOf(ReadTree(again)) != FilesOf(ReadTree(fresh)))
            return "packing and unpacking has changed something";
        if (!WriteArchive(Text("second.zip"), Text("again")) ||
            ReadBytes(m_folder / "first.zip") != ReadBytes(m_folder / "second.zip"))
            return "the same files do not give the same archive";
        return {};
    }

    void Restore(const FolderTree& tree) {
        if (tree == m_stood)
            return;
        std::filesystem::remove_all(Target());
        WriteBytes(Target() / "stood/here.txt", "before");
    }

    std::filesystem::path m_folder;
    FolderTree m_stood;
    FolderTree m_around;
};
