#include "platform/Archive.h"
#include "platform/ArchiveNames.h"
#include "platform/TextNumbers.h"
#include "support/ChildProcess.h"
#include "support/Confined.h"
#include "support/FolderTree.h"
#include "support/MemoryFolder.h"

#include <QTemporaryDir>
#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class ArchiveReader : public ::testing::Test {
protected:
    fs::path Folder() const { return m_room.path().toStdString(); }
    ArchiveResult Extract(const fs::path& source) const {
        fs::create_directory(Folder() / "out");
        return ExtractArchive(CString::fromStdString(source.native()), m_room.filePath("out"));
    }
    FolderTree Out() const { return ReadTree(Folder() / "out"); }
    static fs::path Corpus(const char* name) {
        return fs::path(RULEWARD_SOURCE_FOLDER "/tests/corpus/archives") / name;
    }

private:
    QTemporaryDir m_room{MemoryFolderTemplate()};
};

} // namespace

TEST_F(ArchiveReader, WhatCannotBeOpenedGivesTheToldCode) {
    WriteBytes(Folder() / "text.kvstd", "<Standard/>");
    ::mkfifo((Folder() / "pipe").c_str(), 0600);
    fs::create_directory(Folder() / "folder");
    for (const char* name : {"missing.zip", "text.kvstd", "pipe", "folder"}) {
        const ArchiveResult result = Extract(Folder() / name);
        EXPECT_EQ(result.status, ArchiveStatus::Unreadable) << name;
        EXPECT_EQ(result.code, -104) << name;
        EXPECT_EQ(result.Words(), "The archive cannot be opened.");
    }
}

TEST_F(ArchiveReader, AReasonNamesTheEntry) {
    const ArchiveResult result = Extract(Corpus("crc-wrong.zip"));
    EXPECT_EQ(result.status, ArchiveStatus::Refused);
    EXPECT_EQ(result.Words(), "The archive holds a damaged file: Steel.kvstd");
}

TEST_F(ArchiveReader, AHostileNameCannotDisturbAMessage) {
    EXPECT_EQ(ShownArchiveName(QByteArray("a\n\x1b[2Jb")), QString::fromUtf8("a\uFFFD\uFFFD[2Jb"));
    EXPECT_EQ(ShownArchiveName(QByteArray(300, 'a')).size(), 81);
    ArchiveResult result = ArchiveRefused(ArchiveHoldsLink, "%1%2");
    EXPECT_EQ(result.Words(), "The archive holds a link: %1%2");
}

TEST_F(ArchiveReader, EveryLevelIsMadeByEitherSeparator) {
    EXPECT_TRUE(Extract(Corpus("good-backslash-levels.zip")));
    EXPECT_EQ(Out().at("101/deep"), "folder");
    EXPECT_TRUE(Out().at("101/deep/a.txt").starts_with("file <Standard"));
    EXPECT_TRUE(Extract(Corpus("good-umlauts.zip")));
    EXPECT_TRUE(Out().contains("Schweißteile.kvstd"));
    EXPECT_EQ(Out().at("図面/枠.txt"), "file x");
}

TEST_F(ArchiveReader, AnExecutableOrSetUserIdBitIsNotTakenOver) {
    EXPECT_TRUE(Extract(Corpus("good-set-user-id.zip")));
    struct stat facts {};
    ASSERT_EQ(::stat((Folder() / "out/a.txt").c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & (S_ISUID | 0111), 0u);
}

TEST_F(ArchiveReader, AFileThatStandsThereIsNeitherOverwrittenNorRemoved) {
    WriteBytes(Folder() / "out/101/frame.slddrt", "mine");
    const FolderTree before = Out();
    const ArchiveResult result = Extract(Corpus("good-plain.zip"));
    EXPECT_EQ(result.status, ArchiveStatus::Refused);
    EXPECT_EQ(result.text, ArchiveFileStands);
    EXPECT_EQ(Out(), before);
}

TEST_F(ArchiveReader, AFolderThatStandsThereIsUsedAndStays) {
    WriteBytes(Folder() / "out/101/mine.txt", "mine");
    EXPECT_TRUE(Extract(Corpus("good-plain.zip")));
    EXPECT_EQ(Out().size(), 4u);
    EXPECT_EQ(Out().at("101/mine.txt"), "file mine");
}

TEST_F(ArchiveReader, NoLinkInTheFolderIsFollowed) {
    WriteBytes(Folder() / "elsewhere/keep.txt", "keep");
    fs::create_directory(Folder() / "out");
    fs::create_directory_symlink(Folder() / "elsewhere", Folder() / "out/101");
    EXPECT_EQ(Extract(Corpus("good-plain.zip")).text, ArchiveFolderBlocked);
    fs::remove(Folder() / "out/101");
    fs::create_symlink(Folder() / "elsewhere/new.txt", Folder() / "out/Steel.kvstd");
    EXPECT_EQ(Extract(Corpus("good-plain.zip")).text, ArchiveFileStands);
    EXPECT_EQ(Out().size(), 1u);
    EXPECT_EQ(ReadTree(Folder() / "elsewhere").size(), 1u);
}

TEST_F(ArchiveReader, AFileWhereAFolderIsNeededIsRefused) {
    WriteBytes(Folder() / "out/101", "a file");
    EXPECT_EQ(Extract(Corpus("good-plain.zip")).text, ArchiveFolderBlocked);
    EXPECT_EQ(Out().size(), 1u);
}

TEST_F(ArchiveReader, AMissingFolderIsAFailure) {
    const ArchiveResult result = ExtractArchive(CString::fromStdString(Corpus("good-plain.zip").native()),
                                                CString::fromStdString(Folder() / "none"));
    EXPECT_EQ(result.status, ArchiveStatus::Failed);
    EXPECT_EQ(result.text, ArchiveCannotStore);
}

TEST_F(ArchiveReader, AFullDiskLeavesNothingBehind) {
    const fs::path folder = Folder() / "packed";
    WriteBytes(folder / "a/small.txt", "small");
    WriteBytes(folder / "b/large.txt", std::string(40000, 'x'));
    const CString archive = CString::fromStdString(Folder() / "whole.zip");
    ASSERT_TRUE(WriteArchive(archive, CString::fromStdString(folder)));
    const ConfinedRun run = RunConfined([&] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{30000, 30000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const ArchiveResult result = Extract(Folder() / "whole.zip");
        return std::to_string(static_cast<int>(result.status)) + " " + result.Words().toStdString();
    });
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.answer, "3 A file cannot be written: b/large.txt: " + qt_error_string(EFBIG).toStdString());
    EXPECT_TRUE(Out().empty());
}

TEST_F(ArchiveReader, AFullSmallDiskLeavesNothingBehind) {
    WriteBytes(Folder() / "packed/a/small.txt", "small");
    WriteBytes(Folder() / "packed/b/large.txt", std::string(200000, 'x'));
    const CString archive = CString::fromStdString(Folder() / "whole.zip");
    ASSERT_TRUE(WriteArchive(archive, CString::fromStdString(Folder() / "packed")));
    fs::create_directory(Folder() / "disk");
    const CString answer = RunInChild([&]() -> CString {
        const CString disk = CString::fromStdString(Folder() / "disk");
        MakeSmallDisk(disk, 65536);
        const ArchiveResult result = ExtractArchive(archive, disk);
        return fs::is_empty(Folder() / "disk") ? CString::number(result.text) : "something is left";
    });
    EXPECT_EQ(answer, CString::number(ArchiveCannotStore));
}
