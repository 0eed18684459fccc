// What the fuzzer has found to be worth keeping is tried again in every test run.
#include "fuzz/ArchiveProperty.h"
#include "support/MemoryFolder.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

int Replay(const char* folder) {
    QTemporaryDir temporary(MemoryFolderTemplate());
    ArchiveRoom room(temporary.path().toStdString());
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".gz")
            continue;
        EXPECT_EQ(room.Try(ReadBytes(entry.path())), "") << entry.path();
        ++count;
    }
    return count;
}

} // namespace

TEST(ArchiveReplay, WhatTheFuzzerKeptHolds) {
    EXPECT_GT(Replay(RULEWARD_SOURCE_FOLDER "/fuzz/corpus/archive"), 100);
}

TEST(ArchiveReplay, WhatIsOpenedPacksAndUnpacksToTheSame) {
    EXPECT_GT(Replay(RULEWARD_SOURCE_FOLDER "/tests/corpus/archives"), 100);
}
