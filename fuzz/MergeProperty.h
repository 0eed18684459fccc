// What holds for any files at all that are merged.
#pragma once

#include "files/Merge.h"
#include "files/Packing.h"
#include "files/StandardFile.h"
#include "fuzz/StandardProperty.h"
#include "platform/Folders.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

// The folder in which the files of one process are merged, with things around the run folder that must stay
// as they are.
class MergePropertyRoom {
public:
    explicit MergePropertyRoom(const std::filesystem::path& folder)
        : m_folder(folder), m_standards(folder / "standards") {
        WriteBytes(m_folder / "around/keep.txt", "keep");
        WriteBytes(m_folder / "around/101/keep.txt", "keep");
        std::filesystem::create_directories(m_folder / "around/run");
        std::filesystem::create_directories(m_folder / "standards");
    }

    // What does not hold, or an empty text. The input is two to four documents with a zero byte between
    // them; one that begins with the byte 1 is packed, with side files.
    std::string Try(std::string_view input) const {
        const MessageScope silent([](const CString&, MessageButtons) { return MessageAnswer::No; });
        CStringArray files = PutFiles(input);
        const size_t listed = static_cast<size_t>(files.size());
        const FolderTree before = TreeAround();
        CStringArray rejected;
        CStringArray report;
        MergeOutcome outcome;
        const int done = MergeStandardFiles(Text("around/run"), files, rejected, report, outcome);
        std::string problem;
        if (TreeAround() != before)
            problem = "something outside the folder of the merge has changed";
        else if (static_cast<size_t>(files.size() + rejected.size()) != listed ||
                 rejected.size() != outcome.rejectedReasons.size())
            problem = "a file is neither taken nor rejected";
        else if (done == 1)
            problem = ProblemOfResult(outcome.fileName, files.size() > 1);
        else if (!files.isEmpty() && outcome.failure.isEmpty())
            problem = "a merge fails without a reason";
        if (problem.empty() && files.size() > 1)
            problem = ProblemOfListed(files, before);
        return problem;
    }

private:
    CString Text(const std::string& name) const { return CString::fromStdString((m_folder / name).native()); }

    FolderTree TreeAround() const {
        FolderTree tree = ReadTree(m_folder / "around");
        std::erase_if(tree, [](const auto& item) { return item.first.starts_with("run/Merge"); });
        return tree;
    }

    CStringArray PutFiles(std::string_view input) const {
        CStringArray files;
        for (int i = 0; i < 4 && (i < 2 || !input.empty()); ++i) {
            const size_t end = i < 3 ? input.find('\0') : input.npos;
            PutFile(input.substr(0, end), "around/" + std::to_string(i) + ".kvstd");
            files.append(Text("around/" + std::to_string(i) + ".kvstd"));
            input = end == input.npos ? std::string_view() : input.substr(end + 1);
        }
        return files;
    }

    void PutFile(std::string_view document, const std::string& name) const {
        const bool packed = document.starts_with('\1');
        if (packed)
            document.remove_prefix(1);
        if (!packed)
            return WriteBytes(m_folder / name, std::string(document));
        WriteBytes(m_folder / "pack/inside.kvstd", std::string(document));
        for (const char* type : {"101", "203", "7"})
            WriteBytes(m_folder / "pack" / type / "side.txt", name);
        PackFolder(Text(name), Text("pack"));
    }

    // `merged`: the result holds the checks of more than one file.
    std::string ProblemOfResult(const CString& fileName, bool merged) const {
        const CString path = Text("around/run/Merge/") + fileName;
        if (merged && !HoldsOnlyResultAndTypes())
            return "the result holds something that no type names";
        if (!IsStandardFile(path, false))
            return "the result is no standard";
        CStandard standard;
        if (!standard.LoadFromFile(path))
            return "the result does not open";
        return m_standards.WritesTheSameAgain(standard) ? ""
                                                        : "a second write of the result gives other bytes";
    }

    bool HoldsOnlyResultAndTypes() const {
        for (const auto& entry : std::filesystem::directory_iterator(m_folder / "around/run/Merge")) {
            const std::string name = entry.path().filename().native();
            if (name != "Merged.kvstd" && name.find_first_not_of("0123456789") != name.npos)
                return false;
        }
        return true;
    }

    std::string ProblemOfListed(const CStringArray& files, FolderTree before) const {
        CString path;
        const int done = MergeListedStandards(
            Text("around/run"), files, [this] { return Text("around/result.kvstd"); }, path);
        FolderTree after = TreeAround();
        const std::filesystem::path result = m_folder / "around/result.kvstd";
        const bool written = after.erase("result.kvstd") == 1;
        std::filesystem::remove(result);
        if (after != before)
            return "the merge of the dialog has changed something else than its result";
        return written == (done == 1) ? "" : "the result of the dialog's merge does not fit its answer";
    }

    std::filesystem::path m_folder;
    StandardRoom m_standards;
};
