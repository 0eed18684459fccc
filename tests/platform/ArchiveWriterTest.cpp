#include "platform/Archive.h"
#include "platform/TextNumbers.h"
#include "support/ChildProcess.h"
#include "support/Confined.h"
#include "support/FolderTree.h"
#include "support/MemoryFolder.h"

#include <QProcess>
#include <QTemporaryDir>
#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class ArchiveWriter : public ::testing::Test {
protected:
    fs::path Folder() const { return m_room.path().toStdString(); }
    fs::path In() const { return Folder() / "in"; }
    CString Text(const fs::path& path) const { return CString::fromStdString((Folder() / path).native()); }
    ArchiveResult Write() const {
        fs::create_directory(In());
        return WriteArchive(Text("out.zip"), Text("in"));
    }
    bool ComesBackTheSame() const {
        fs::remove_all(Folder() / "back");
        fs::create_directory(Folder() / "back");
        return ExtractArchive(Text("out.zip"), Text("back")) &&
               FilesOf(ReadTree(Folder() / "back")) == FilesOf(ReadTree(In()));
    }
    // Nothing but the folder that was to be packed: neither the archive nor a part of it.
    bool NothingIsLeft() const {
        return std::distance(fs::directory_iterator(Folder()), fs::directory_iterator()) == 1;
    }

private:
    QTemporaryDir m_room{MemoryFolderTemplate()};
};

struct ProgramRun {
    int exitCode;
    CString output;
};

ProgramRun RunProgram(const CString& program, const CStringArray& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8");
    environment.insert("PYTHONUTF8", "1");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(30000))
        return {-1, "did not run: " + program};
    return {process.exitCode(), QString::fromUtf8(process.readAll())};
}

std::string Noise(std::size_t size) {
    std::mt19937 random(7);
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

constexpr const char* PythonFacts = R"(
import sys, zipfile
archive = zipfile.ZipFile(sys.argv[1])
print(archive.testzip())
for info in archive.infolist():
    print(info.filename, info.flag_bits, info.compress_type, info.date_time, oct(info.external_attr >> 16))
)";

} // namespace

TEST_F(ArchiveWriter, OtherToolsAcceptWhatIsWritten) {
    WriteBytes(In() / "Schweißteile.kvstd", "<Standard/>");
    WriteBytes(In() / "図面/枠.slddrt", Noise(100000));
    WriteBytes(In() / "a b/.hidden", "");
    ASSERT_TRUE(Write());
    const ProgramRun test = RunProgram("unzip", {"-t", Text("out.zip")});
    EXPECT_EQ(test.exitCode, 0) << test.output.toStdString();
    const ProgramRun unpack = RunProgram("unzip", {"-q", Text("out.zip"), "-d", Text("unzipped")});
    EXPECT_EQ(unpack.exitCode, 0) << unpack.output.toStdString();
    EXPECT_EQ(ReadTree(Folder() / "unzipped"), ReadTree(In()));
    const ProgramRun python = RunProgram("python3", {"-c", PythonFacts, Text("out.zip")});
    EXPECT_EQ(python.output.toStdString(), "None\n"
                                           "Schweißteile.kvstd 2048 8 (1980, 1, 1, 0, 0, 0) 0o100644\n"
                                           "a b/.hidden 2048 8 (1980, 1, 1, 0, 0, 0) 0o100644\n"
                                           "図面/枠.slddrt 2048 8 (1980, 1, 1, 0, 0, 0) 0o100644\n");
    EXPECT_TRUE(ComesBackTheSame());
}

TEST_F(ArchiveWriter, TheSameFilesGiveTheSameBytes) {
    for (const char* name : {"b.txt", "a/2.txt", "a/1.txt", "B.text", "ä.txt"})
        WriteBytes(In() / name, name);
    ASSERT_TRUE(Write());
    const std::string first = ReadBytes(Folder() / "out.zip");
    fs::remove_all(In());
    for (const char* name : {"ä.txt", "a/1.txt", "b.txt", "B.text", "a/2.txt"})
        WriteBytes(In() / name, name);
    ASSERT_TRUE(Write());
    EXPECT_EQ(ReadBytes(Folder() / "out.zip"), first);
}

TEST_F(ArchiveWriter, ALargeFileComesBackTheSame) {
    WriteBytes(In() / "large.bin", Noise(9'000'001));
    WriteBytes(In() / "block.bin", Noise(ArchiveBlock));
    ASSERT_TRUE(Write());
    EXPECT_TRUE(ComesBackTheSame());
}

TEST_F(ArchiveWriter, FoldersWithoutFilesAreNotStored) {
    fs::create_directories(In() / "empty/deeper");
    WriteBytes(In() / "full/a.txt", "a");
    ASSERT_TRUE(Write());
    fs::create_directory(Folder() / "back");
    ASSERT_TRUE(ExtractArchive(Text("out.zip"), Text("back")));
    EXPECT_EQ(ReadTree(Folder() / "back").size(), 2u);
}

TEST_F(ArchiveWriter, AnEmptyFolderGivesAnArchiveWithoutEntries) {
    ASSERT_TRUE(Write());
    EXPECT_EQ(RunProgram("python3", {"-c", PythonFacts, Text("out.zip")}).output, "None\n");
    EXPECT_TRUE(ComesBackTheSame());
}

TEST_F(ArchiveWriter, LinksAndSpecialFilesAreLeftOut) {
    WriteBytes(Folder() / "elsewhere/secret.txt", "secret");
    WriteBytes(In() / "a.txt", "a");
    fs::create_symlink(Folder() / "elsewhere/secret.txt", In() / "link.txt");
    fs::create_directory_symlink(Folder() / "elsewhere", In() / "link");
    ::mkfifo((In() / "pipe").c_str(), 0600);
    ASSERT_TRUE(Write());
    fs::create_directory(Folder() / "back");
    ASSERT_TRUE(ExtractArchive(Text("out.zip"), Text("back")));
    EXPECT_EQ(ReadTree(Folder() / "back"), (FolderTree{{"a.txt", "file a"}}));
}

TEST_F(ArchiveWriter, FilesThatHardlySayAnythingCanStillBeUnpacked) {
    WriteBytes(In() / "blank.txt", std::string(3'000'000, ' '));
    ASSERT_TRUE(Write());
    EXPECT_TRUE(ComesBackTheSame());
    EXPECT_TRUE(RunProgram("python3", {"-c", PythonFacts, Text("out.zip")}).output.contains(" 2048 8 "));
}

TEST_F(ArchiveWriter, WhatTheReaderWouldRefuseIsNotWritten) {
    const std::pair<const char*, unsigned> names[] = {{"a\\b.txt", ArchiveNameUnusable},
                                                      {"a\nb.txt", ArchiveNameUnusable},
                                                      {"C:a.txt", ArchiveNameLeavesFolder},
                                                      {"a\xff.txt", ArchiveNameNotUtf8},
                                                      {"..\\a.txt", ArchiveNameLeavesFolder}};
    for (const auto& [name, text] : names) {
        fs::remove_all(In());
        WriteBytes(In() / name, "x");
        const ArchiveResult result = Write();
        EXPECT_EQ(result.status, ArchiveStatus::Refused) << name;
        EXPECT_EQ(result.text, text) << name;
        EXPECT_TRUE(NothingIsLeft()) << name;
    }
    fs::remove_all(In());
    WriteBytes(In() / "a.txt", "1");
    WriteBytes(In() / "A.txt", "2");
    EXPECT_EQ(Write().text, ArchiveNameTwice);
    fs::remove_all(In());
    WriteBytes(In() / std::string(150, 'a') / std::string(150, 'b'), "1");
    EXPECT_EQ(Write().text, ArchiveNameTooLong);
}

TEST_F(ArchiveWriter, TheLimitsOfTheReaderHoldForTheWriter) {
    for (int i = 0; i < ArchiveLimits::Names; ++i)
        WriteBytes(In() / std::to_string(i), "");
    EXPECT_TRUE(Write());
    EXPECT_TRUE(ComesBackTheSame());
    WriteBytes(In() / "one more", "");
    EXPECT_EQ(Write().text, ArchiveTooManyNames);
    fs::remove_all(In());
    WriteBytes(In() / "large", "");
    fs::resize_file(In() / "large", ArchiveLimits::TotalBytes + 1);
    EXPECT_EQ(Write().text, ArchiveTooLarge);
}

TEST_F(ArchiveWriter, AFailureLeavesTheOldArchiveAsItWas) {
    WriteBytes(Folder() / "out.zip", "the old one");
    WriteBytes(In() / "a\\b", "x");
    EXPECT_FALSE(Write());
    fs::remove_all(In());
    EXPECT_EQ(WriteArchive(Text("out.zip"), Text("none")).text, ArchiveCannotReadFile);
    EXPECT_EQ(ReadBytes(Folder() / "out.zip"), "the old one");
    EXPECT_TRUE(NothingIsLeft()); // but the old archive
}

TEST_F(ArchiveWriter, AFullDiskLeavesNothingBehind) {
    WriteBytes(In() / "a.bin", Noise(20000));
    WriteBytes(In() / "b.bin", Noise(20000));
    ASSERT_TRUE(Write());
    const rlim_t whole = fs::file_size(Folder() / "out.zip");
    fs::remove(Folder() / "out.zip");
    const std::string reason = "3 The archive cannot be written: " + qt_error_string(EFBIG).toStdString();
    for (rlim_t room = 0; room < whole; room += room < 300 || room + 300 > whole ? 47 : 3000) {
        const ConfinedRun run = RunConfined([&] {
            ::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{room, room};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            const ArchiveResult result = Write();
            return std::to_string(static_cast<int>(result.status)) + " " + result.Words().toStdString();
        });
        ASSERT_TRUE(run.ended) << room;
        ASSERT_EQ(run.answer, reason) << room;
        ASSERT_TRUE(NothingIsLeft()) << room;
    }
}

TEST_F(ArchiveWriter, AFullSmallDiskIsTold) {
    WriteBytes(In() / "a.bin", Noise(200000));
    fs::create_directory(Folder() / "disk");
    const CString answer = RunInChild([&]() -> CString {
        MakeSmallDisk(Text("disk"), 65536);
        const ArchiveResult result = WriteArchive(Text("disk/out.zip"), Text("in"));
        if (result || !fs::is_empty(Folder() / "disk"))
            return "written, or something left";
        return CString::number(result.text);
    });
    EXPECT_EQ(answer, CString::number(ArchiveCannotWrite));
}

TEST_F(ArchiveWriter, AFolderThatCannotBeWrittenIsAFailure) {
    WriteBytes(In() / "a.txt", "a");
    EXPECT_EQ(WriteArchive(Text("none/out.zip"), Text("in")).text, ArchiveCannotWrite);
    EXPECT_TRUE(NothingIsLeft());
}
