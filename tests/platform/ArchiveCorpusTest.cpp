// Every archive of the corpus is opened or refused as told here, within its bounds, and touches nothing
// but its own folder.
#include "platform/Archive.h"
#include "platform/TextNumbers.h"
#include "support/Confined.h"
#include "support/FolderTree.h"
#include "support/MemoryFolder.h"
#include "support/Messages.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <set>
#include <zlib.h>

namespace fs = std::filesystem;

namespace {

constexpr unsigned Opened = 0;

// By name; a star at the end stands for any further letters. The longest name that fits counts.
struct Expectation {
    const char* name;
    unsigned text;
};

constexpr Expectation Expectations[] = {
    {"good-*", Opened},
    {"name-dotdot*", ArchiveNameLeavesFolder},
    {"name-absolute*", ArchiveNameLeavesFolder},
    {"name-unc", ArchiveNameLeavesFolder},
    {"name-root", ArchiveNameLeavesFolder},
    {"name-drive*", ArchiveNameLeavesFolder},
    {"name-dot", ArchiveNameUnusable},
    {"name-dot-level", ArchiveNameUnusable},
    {"name-empty*", ArchiveNameUnusable},
    {"name-newline", ArchiveNameUnusable},
    {"name-escape", ArchiveNameUnusable},
    {"name-delete", ArchiveNameUnusable},
    {"name-c1-control", ArchiveNameUnusable},
    {"name-nul*", ArchiveNameUnusable},
    {"name-invalid-utf8", ArchiveNameNotUtf8},
    {"name-overlong-slash", ArchiveNameNotUtf8},
    {"name-surrogate", ArchiveNameNotUtf8},
    {"name-cut-utf8", ArchiveNameNotUtf8},
    {"name-257-bytes", ArchiveNameTooLong},
    {"name-65535-bytes", ArchiveNameTooLong},
    {"name-level-256-bytes", ArchiveCannotStore},
    {"name-twice*", ArchiveNameTwice},
    {"name-folder*", ArchiveNameTwice},
    {"clash-*", ArchiveFileAndFolder},
    {"link*", ArchiveHoldsLink},
    {"device", ArchiveHoldsSpecial},
    {"pipe", ArchiveHoldsSpecial},
    {"folder-without-slash", ArchiveFileAndFolder},
    {"folder-with-data", ArchiveWrongSize},
    {"encrypted*", ArchiveEncrypted},
    {"encrypted-local-only", ArchiveContradiction},
    {"method-*", ArchiveUnknownMethod},
    {"method-local-differs", ArchiveContradiction},
    {"size-*", ArchiveWrongSize},
    {"size-huge", ArchiveTooLarge},
    {"size-local-differs", ArchiveContradiction},
    {"size-packed-local-differs", ArchiveContradiction},
    {"size-streamed-local-lies", ArchiveContradiction},
    {"zip64-*", ArchiveWrongSize},
    {"zip64-local-*", ArchiveContradiction},
    {"zip64-count-huge", ArchiveTooManyNames},
    {"zip64-locator-*", ArchiveDamaged},
    {"zip64-offset-huge", ArchiveCannotOpen},
    {"zip64-offset-wraps", ArchiveDamaged},
    {"crc-wrong*", ArchiveFileDamaged},
    {"crc-local-differs", ArchiveContradiction},
    {"data-damaged", ArchiveFileDamaged},
    {"data-behind-stream", ArchiveWrongSize},
    {"data-unfinished-stream", ArchiveWrongSize},
    {"local-*", ArchiveContradiction},
    {"overlap-same-local-header", ArchiveContradiction},
    {"overlap-entry-inside-entry", ArchiveOverlap},
    {"overlap-quoted-bomb", ArchiveTooDense},
    {"overlap-quoted-small", ArchiveOverlap},
    {"overlap-entry-over-central", ArchiveFileDamaged},
    {"bomb-*", ArchiveTooDense},
    {"bomb-beyond-total*", ArchiveTooLarge},
    {"bomb-folders", ArchiveTooManyNames},
    {"count-*", ArchiveTooManyNames},
    {"count-4096", Opened},
    {"count-lies-more", ArchiveDamaged},
    {"count-lies-fewer", Opened},
    {"count-lies-zero", ArchiveDamaged},
    {"cut-*", ArchiveCannotOpen},
    {"cut-in-end", ArchiveDamaged},
    {"cut-last-byte", Opened},
    {"central-offset-*", ArchiveCannotOpen},
    {"central-size-zero", ArchiveDamaged},
    {"central-extra-runs-out", Opened},
    {"spanned", ArchiveCannotOpen},
    {"comment-holds-archive", Opened},
    {"comment-holds-end", ArchiveDamaged},
    {"comment-longer-than-told", ArchiveCannotOpen},
    {"not-an-archive", ArchiveCannotOpen},
    {"signature-only-many", ArchiveDamaged},
};

const Expectation* Find(const std::string& name) {
    const Expectation* best = nullptr;
    std::size_t longest = 0;
    for (const Expectation& expectation : Expectations) {
        std::string pattern = expectation.name;
        const bool any = pattern.ends_with('*');
        if (any)
            pattern.pop_back();
        if ((any ? name.starts_with(pattern) : name == pattern) && pattern.size() + !any > longest) {
            longest = pattern.size() + !any;
            best = &expectation;
        }
    }
    return best;
}

ArchiveStatus StatusOf(unsigned text) {
    switch (text) {
    case Opened: return ArchiveStatus::Done;
    case ArchiveCannotOpen:
    case ArchiveDamaged: return ArchiveStatus::Unreadable;
    case ArchiveCannotStore: return ArchiveStatus::Failed;
    default: return ArchiveStatus::Refused;
    }
}

// Reads a file of the corpus; zlib passes one that is not packed through as it is.
std::string ReadCorpusFile(const fs::path& path) {
    std::string bytes;
    gzFile file = gzopen(path.c_str(), "rb");
    std::string block(1 << 16, '\0');
    for (int count; (count = gzread(file, block.data(), block.size())) > 0;)
        bytes.append(block, 0, count);
    gzclose(file);
    return bytes;
}

std::string StemOf(const fs::path& path) {
    const std::string name = path.filename().native();
    return name.substr(0, name.find(".zip"));
}

std::vector<fs::path> CorpusFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(RULEWARD_SOURCE_FOLDER "/tests/corpus/archives"))
        files.push_back(entry.path());
    return files;
}

std::string Describe(const ArchiveResult& result) {
    const std::string facts = std::to_string(static_cast<int>(result.status)) + " " +
                              std::to_string(result.text) + " " + std::to_string(result.code);
    return facts + "\n" + result.Words().toStdString();
}

// Unpacks in a child process, in a folder with things around it, and looks at what was told and done.
void TryCorpusFile(const fs::path& path) {
    const Expectation* expected = Find(StemOf(path));
    ASSERT_TRUE(expected) << "what is expected of it?";
    QTemporaryDir room(MemoryFolderTemplate());
    const fs::path folder = room.path().toStdString();
    WriteBytes(folder / "in.zip", ReadCorpusFile(path));
    WriteBytes(folder / "outside.txt", "outside");
    WriteBytes(folder / "around/outside.txt", "around");
    WriteBytes(folder / "around/target/stood/here.txt", "before");
    const FolderTree before = ReadTree(folder);
    const ConfinedRun run = RunConfined([&] {
        Messages messages;
        const ArchiveResult result = ExtractArchive(room.filePath("in.zip"), room.filePath("around/target"));
        return Describe(result) + (messages.texts.empty() ? "" : "\nand a message");
    });
    ASSERT_TRUE(run.ended) << "it took too long, too much memory, or crashed";
    EXPECT_LT(run.seconds, ConfinedSeconds);
    if (MemoryCounts()) {
        EXPECT_LT(run.peakKiB, ConfinedKiB);
    }

    ArchiveResult result{StatusOf(expected->text), 0, expected->text, {}};
    result.code = result ? 0 : expected->text == ArchiveCannotOpen ? -104 : -103;
    if (result.status == ArchiveStatus::Failed)
        result.code = -1;
    const std::string facts = Describe(result).substr(0, Describe(result).find('\n') + 1);
    EXPECT_TRUE(run.answer.starts_with(facts)) << run.answer << "\ninstead of " << facts;
    const std::string words = run.answer.substr(run.answer.find('\n') + 1);
    EXPECT_EQ(words.empty(), expected->text == Opened);
    EXPECT_EQ(words.find_first_of("\n\x1b"), std::string::npos) << words;
    EXPECT_EQ(words.find("%1"), std::string::npos) << words;

    FolderTree after = ReadTree(folder);
    if (expected->text == Opened)
        std::erase_if(after, [&](const auto& item) {
            return item.first.starts_with("around/target/") && !before.contains(item.first);
        });
    EXPECT_EQ(after, before);
}

} // namespace

TEST(ArchiveCorpus, EveryArchiveIsOpenedOrRefusedAsToldAndStaysInItsFolder) {
    for (const fs::path& path : CorpusFiles()) {
        SCOPED_TRACE(path.filename().native());
        TryCorpusFile(path);
    }
}

TEST(ArchiveCorpus, HoldsEveryArchiveThatSomethingIsExpectedOf) {
    std::set<const Expectation*> used;
    for (const fs::path& path : CorpusFiles())
        used.insert(Find(StemOf(path)));
    for (const Expectation& expectation : Expectations)
        EXPECT_TRUE(used.contains(&expectation)) << expectation.name;
    EXPECT_GE(CorpusFiles().size(), 140u);
}
