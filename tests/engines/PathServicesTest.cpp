#include "engines/PathServices.h"
#include "support/Messages.h"

#include <QFileInfo>
#include <cerrno>
#include <cstring>
#include <gtest/gtest.h>

namespace {

CString FileName(const CString& path) {
    CString out;
    CPathParts(path).GetFileName(out);
    return out;
}

CString FolderPath(const CString& path) {
    CString out;
    CPathParts(path).GetFolderPath(out);
    return out;
}

CString FolderNoSlash(const CString& path) {
    CString out;
    CPathParts(path).GetFolderNoSlash(out);
    return out;
}

CString Shortened(CString path) {
    CPathParts parts;
    ShortenPathForDisplay(parts, path);
    return path;
}

} // namespace

TEST(PathParts, SplitIntoDriveFolderNameAndExtension) {
    const CPathParts parts("C:\\standards\\v2.1\\metric.drawings.kvstd");
    EXPECT_EQ(parts.Path, "C:\\standards\\v2.1\\metric.drawings.kvstd");
    EXPECT_EQ(parts.Drive, "C:");
    EXPECT_EQ(parts.Folder, "\\standards\\v2.1\\");
    EXPECT_EQ(parts.Name, "metric.drawings");
    EXPECT_EQ(parts.Extension, ".kvstd");
    CString extension;
    parts.GetExtension(extension);
    EXPECT_EQ(extension, ".kvstd");
}

TEST(PathParts, SlashPathsSplitByTheSameRules) {
    const CPathParts parts("/home/user/v2.1/metric");
    EXPECT_EQ(parts.Drive, "");
    EXPECT_EQ(parts.Folder, "/home/user/v2.1/");
    EXPECT_EQ(parts.Name, "metric");
    EXPECT_EQ(parts.Extension, "");
    EXPECT_EQ(CPathParts("C:/a/b.c").Drive, "C:");
    EXPECT_EQ(CPathParts("C:/a/b.c").Folder, "/a/");
}

TEST(PathParts, EmptyPathLeavesAllPartsEmpty) {
    const CPathParts parts("");
    EXPECT_EQ(parts.Path + parts.Drive + parts.Folder + parts.Name + parts.Extension, "");
    EXPECT_EQ(FolderNoSlash(""), "");
}

TEST(PathParts, PartsMayBeMissing) {
    EXPECT_EQ(FileName("C:name.x"), "name.x");
    EXPECT_EQ(FolderPath("C:name.x"), "C:");
    EXPECT_EQ(CPathParts("C:\\a\\").Name, "");
    EXPECT_EQ(CPathParts("/a/.hidden").Name, "");
    EXPECT_EQ(CPathParts("/a/.hidden").Extension, ".hidden");
    EXPECT_EQ(CPathParts("a.").Extension, ".");
    EXPECT_EQ(CPathParts(":").Name, ":");
}

TEST(PathParts, FolderIsGivenWithAndWithoutItsLastSeparator) {
    EXPECT_EQ(FolderPath("C:\\a\\b.c"), "C:\\a\\");
    EXPECT_EQ(FolderNoSlash("C:\\a\\b.c"), "C:\\a");
    EXPECT_EQ(FolderNoSlash("/a/b.c"), "/a");
    EXPECT_EQ(FolderNoSlash("name"), "");
}

TEST(PathParts, RootOfADriveKeepsItsSeparator) {
    EXPECT_EQ(FolderNoSlash("C:\\"), "C:\\");
    EXPECT_EQ(FolderNoSlash("C:\\a.b"), "C:\\");
    EXPECT_EQ(FolderNoSlash("C:/a.b"), "C:/");
}

TEST(PathParts, FolderOfTwoCharactersKeepsItsSeparator) {
    EXPECT_EQ(FolderNoSlash("/a"), "/");
    EXPECT_EQ(FolderNoSlash("a/b"), "a/");
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

TEST(ShortenPath, LongPathShowsItsEnds) {
    EXPECT_EQ(Shortened("C:\\a\\b\\c\\d\\e\\file.ext"), "file.ext (C:\\a\\...\\e)");
    EXPECT_EQ(Shortened("C:\\a\\b\\c\\d\\file.ext"), "file.ext (C:\\a\\...\\d)");
}

TEST(ShortenPath, ThreeLevelsAreNotShortened) {
    EXPECT_EQ(Shortened("C:\\a\\b\\c\\file.ext"), "file.ext (C:\\a\\b\\c)");
    EXPECT_EQ(Shortened("C:\\a\\b\\file.ext"), "file.ext (C:\\a\\b)");
    EXPECT_EQ(Shortened("C:\\file.ext"), "file.ext (C:)");
}

TEST(ShortenPath, BareNameStays) {
    CPathParts parts("kept");
    CString path = "file.ext";
    ShortenPathForDisplay(parts, path);
    EXPECT_EQ(path, "file.ext");
    EXPECT_EQ(parts.Path, "kept");
    EXPECT_EQ(Shortened(""), "");
}

TEST(ShortenPath, SlashPathsTakeTheSameForm) {
    EXPECT_EQ(Shortened("/home/user/a/b/file.ext"), "file.ext (/home/.../b)");
    EXPECT_EQ(Shortened("/home/user/a/file.ext"), "file.ext (/home/user/a)");
    EXPECT_EQ(Shortened("/file.ext"), "file.ext ()");
}

TEST(ShortenPath, UnusualPathsKeepTheirName) {
    EXPECT_EQ(Shortened("\\\\server\\share\\x\\file.ext"), "file.ext (\\\\...\\x)");
    EXPECT_EQ(Shortened("C:\\a\\b\\"), " (C:\\a\\b)");
    EXPECT_EQ(Shortened("\\:name"), "name (\\:)");
    EXPECT_EQ(Shortened("C:\\a/b\\c\\d\\e/f\\file"), "file (C:\\a/b\\...\\e/f)");
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
