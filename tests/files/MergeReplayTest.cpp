// The inputs that fuzzing found worth keeping.
#include "fuzz/MergeProperty.h"
#include "fuzz/ScratchFolder.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::filesystem::path> FilesOf(const char* name) {
    std::vector<std::filesystem::path> files;
    const std::filesystem::path folder = std::filesystem::path(RULEWARD_SOURCE_FOLDER) / "fuzz/corpus" / name;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

template <class Room> void Replay(const char* corpus) {
    const ScratchFolder folder;
    const Room room(folder.Path());
    const auto files = FilesOf(corpus);
    ASSERT_GE(files.size(), 40u);
    for (const auto& file : files)
        EXPECT_EQ(room.Try(ReadBytes(file)), "") << file;
}

} // namespace

TEST(MergeReplay, MergeCorpus) {
    Replay<MergePropertyRoom>("merge");
}

TEST(MergeReplay, StandardCorpus) {
    Replay<StandardRoom>("standard");
}
