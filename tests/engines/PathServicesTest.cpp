#include "engines/PathServices.h"
#include "support/Messages.h"

#include <QFileInfo>
#include <cerrno>
#include <cstring>
#include <gtest/gtest.h>

namespace {

// What CPathParts tells of a path.
struct Parts {
    const char* path;
    const char* drive;
    const char* folder;
    const char* name;
    const char* extension;
    const char* noSlash; // drive and folder without the last separator
};

constexpr Parts SplitPaths[] = {
    {"C:\\standards\\v2.1\\metric.drawings.kvstd", "C:", "\\standards\\v2.1\\", "metric.drawings", ".kvstd",
     "C:\\standards\\v2.1"},
    {"C:\\a\\b.c", "C:", "\\a\\", "b", ".c", "C:\\a"},
    // by the same rules with slashes
    {"/home/user/v2.1/metric", "", "/home/user/v2.1/", "metric", "", "/home/user/v2.1"},
    {"C:/a/b.c", "C:", "/a/", "b", ".c", "C:/a"},
    {"/a/b.c", "", "/a/", "b", ".c", "/a"},
    // any part may be missing
    {"", "", "", "", "", ""},
    {"name", "", "", "name", "", ""},
    {"C:name.x", "C:", "", "name", ".x", "C:"},
    {"C:\\a\\", "C:", "\\a\\", "", "", "C:\\a"},
    {"/a/.hidden", "", "/a/", "", ".hidden", "/a"},
    {"a.", "", "", "a", ".", ""},
    {":", "", "", ":", "", ""},
    // the root of a drive, and any folder of two characters, keeps its separator
    {"C:\\", "C:", "\\", "", "", "C:\\"},
    {"C:\\a.b", "C:", "\\", "a", ".b", "C:\\"},
    {"C:/a.b", "C:", "/", "a", ".b", "C:/"},
    {"/a", "", "/", "a", "", "/"},
    {"a/b", "", "a/", "b", "", "a/"},
};

struct ShownPath {
    const char* path;
    const char* shown;
};

constexpr ShownPath ShownPaths[] = {
    // a long path shows its ends
    {"C:\\a\\b\\c\\d\\e\\file.ext", "file.ext (C:\\a\\...\\e)"},
    {"C:\\a\\b\\c\\d\\file.ext", "file.ext (C:\\a\\...\\d)"},
    // three levels are not shortened
    {"C:\\a\\b\\c\\file.ext", "file.ext (C:\\a\\b\\c)"},
    {"C:\\a\\b\\file.ext", "file.ext (C:\\a\\b)"},
    {"C:\\file.ext", "file.ext (C:)"},
    // a bare name stays
    {"file.ext", "file.ext"},
    {"", ""},
    // the same form with slashes
    {"/home/user/a/b/file.ext", "file.ext (/home/.../b)"},
    {"/home/user/a/file.ext", "file.ext (/home/user/a)"},
    {"/file.ext", "file.ext ()"},
    // unusual paths keep their name
    {"\\\\server\\share\\x\\file.ext", "file.ext (\\\\...\\x)"},
    {"C:\\a\\b\\", " (C:\\a\\b)"},
    {"\\:name", "name (\\:)"},
    {"C:\\a/b\\c\\d\\e/f\\file", "file (C:\\a/b\\...\\e/f)"},
};

CString Shortened(CString path) {
    CPathParts parts;
    ShortenPathForDisplay(parts, path);
    return path;
}

} // namespace

TEST(PathParts, SplitIntoDriveFolderNameAndExtension) {
    for (const Parts& expected : SplitPaths) {
        SCOPED_TRACE(expected.path);
        const CPathParts parts(expected.path);
        EXPECT_EQ(parts.Path, expected.path);
        EXPECT_EQ(parts.Drive, expected.drive);
        EXPECT_EQ(parts.Folder, expected.folder);
        EXPECT_EQ(parts.Name, expected.name);
        EXPECT_EQ(parts.Extension, expected.extension);
    }
}

TEST(PathParts, JoinedAgain) {
    for (const Parts& expected : SplitPaths) {
        SCOPED_TRACE(expected.path);
        const CPathParts parts(expected.path);
        CString out;
        parts.GetExtension(out);
        EXPECT_EQ(out, expected.extension);
        parts.GetFileName(out);
        EXPECT_EQ(out, CString(expected.name) + expected.extension);
        parts.GetFolderPath(out);
        EXPECT_EQ(out, CString(expected.drive) + expected.folder);
        parts.GetFolderNoSlash(out);
        EXPECT_EQ(out, expected.noSlash);
    }
}

TEST(Paths, SlashesTurnIntoBackslashesFromThreeCharactersOn) {
    EXPECT_EQ(ToBackslashes("a/b/c"), "a\\b\\c");
    EXPECT_EQ(ToBackslashes("a/b"), "a\\b");
    EXPECT_EQ(ToBackslashes("a/"), "a/");
    EXPECT_EQ(ToBackslashes(""), "");
}

TEST(Paths, TemporaryFolderFollowsTheEnvironmentAndEndsInASeparator) {
    const QByteArray before = qgetenv("TMPDIR");
    EXPECT_EQ(GetTempFolder(), QString::fromUtf8(before) + "/");
    qputenv("TMPDIR", "/some/place/");
    EXPECT_EQ(GetTempFolder(), "/some/place/");
    qputenv("TMPDIR", "/");
    EXPECT_EQ(GetTempFolder(), "/");
    qunsetenv("TMPDIR");
    EXPECT_TRUE(GetTempFolder().endsWith('/'));
    EXPECT_TRUE(QFileInfo(GetTempFolder()).isDir());
    qputenv("TMPDIR", before);
}

TEST(Paths, NoPathHasALongerForm) {
    CString path = "C:\\PROGRA~1";
    EXPECT_FALSE(ToLongPath(path));
    EXPECT_EQ(path, "C:\\PROGRA~1");
}

TEST(ShortenPath, ShowsTheNameAndTheEndsOfItsFolder) {
    for (const ShownPath& expected : ShownPaths)
        EXPECT_EQ(Shortened(expected.path), expected.shown) << expected.path;
}

TEST(ShortenPath, BareNameLeavesThePartsAsTheyWere) {
    CPathParts parts("kept");
    CString path = "file.ext";
    ShortenPathForDisplay(parts, path);
    EXPECT_EQ(path, "file.ext");
    EXPECT_EQ(parts.Path, "kept");
}

TEST(ShortenPath, SplitPathIsHandedOut) {
    CPathParts parts;
    CString path = "C:\\a\\file.ext";
    ShortenPathForDisplay(parts, path);
    EXPECT_EQ(parts.Path, "C:\\a\\file.ext");
    EXPECT_EQ(parts.Folder, "\\a\\");
}

TEST(DocumentKind, GoesByTheExtensionWithoutRegardToCase) {
    for (const char* part : {"A.KVPRT", "a.prt", "C:\\x\\a.KvPrtT"})
        EXPECT_EQ(GetDocumentKind(part), 1) << part;
    for (const char* assembly : {"a.kvasm", "A.ASM", "/x/a.kvasmt"})
        EXPECT_EQ(GetDocumentKind(assembly), 2) << assembly;
    for (const char* drawing : {"a.kvdrw", "a.b.drw", "A.KVDRWT"})
        EXPECT_EQ(GetDocumentKind(drawing), 3) << drawing;
    for (const char* other : {"a.step", "", "prt", "a.prt.bak", "a.prt/b"})
        EXPECT_EQ(GetDocumentKind(other), 0) << other;
}

TEST(DocumentKind, DrawingExchangeAndDraftingFilesAreKnown) {
    EXPECT_TRUE(IsDwgFile("a.dwg"));
    EXPECT_TRUE(IsDwgFile("A.DWG"));
    EXPECT_FALSE(IsDwgFile("a.dwgx"));
    EXPECT_TRUE(IsDraftingStandardFile("C:\\a.kvdstd"));
    EXPECT_FALSE(IsDraftingStandardFile("a.kvstd"));
}

TEST(SystemMessage, ShowsThePlatformsText) {
    Messages messages;
    EXPECT_EQ(ShowSystemMessage(0), 0);
    EXPECT_TRUE(messages.texts.isEmpty());
    EXPECT_EQ(ShowSystemMessage(ENOENT), 1);
    EXPECT_EQ(messages.texts, CStringArray{QString::fromLocal8Bit(std::strerror(ENOENT))});
}
