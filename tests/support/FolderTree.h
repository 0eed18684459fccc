// What stands in a folder, for comparing: every path below it with what it is and holds.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

using FolderTree = std::map<std::string, std::string>;

inline std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

inline FolderTree ReadTree(const std::filesystem::path& folder) {
    namespace fs = std::filesystem;
    FolderTree tree;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string path = entry.path().lexically_relative(folder).native();
        if (entry.is_symlink())
            tree[path] = "link " + fs::read_symlink(entry.path()).native();
        else if (entry.is_regular_file())
            tree[path] = "file " + ReadBytes(entry.path());
        else
            tree[path] = entry.is_directory() ? "folder" : "special";
    }
    return tree;
}

// Only the files of a tree: folders without files are not packed.
inline FolderTree FilesOf(const FolderTree& tree) {
    FolderTree files;
    for (const auto& [path, what] : tree)
        if (what.starts_with("file "))
            files[path] = what;
    return files;
}
