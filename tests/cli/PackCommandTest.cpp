// "pack" and "unpack".
#include "cli/CliRoom.h"

#include "support/FolderTree.h"

namespace {

class PackCommand : public CliRoom {
protected:
    FolderTree Tree(const char* name) const { return ReadTree(folder.Path(name).toStdString()); }
};

} // namespace

TEST_F(PackCommand, RoundTrip) {
    EXPECT_EQ(Run(CString("unpack %1 u").arg(Sheet)), "");
    EXPECT_EQ(Run("pack u again.kvstd"), "");
    Run("unpack again.kvstd v");
    QFile::rename("v/again.kvstd", "v/Sheet metal parts.kvstd");
    EXPECT_EQ(Tree("u"), Tree("v"));
    EXPECT_EQ(folder.Names(), (CStringArray{"again.kvstd", "samples", "tmp", "u", "v"}));
}

TEST_F(PackCommand, PlainXmlIsCopied) {
    Run("unpack 'samples/xml/Drawings 2019.kvstd' u/deep");
    EXPECT_EQ(folder.Get("u/deep/Drawings 2019.kvstd"), folder.Get("samples/xml/Drawings 2019.kvstd"));
}

TEST_F(PackCommand, TheCurrentFolder) {
    QDir().mkdir("u");
    PutStandard("u/a.kvstd", "");
    QDir::setCurrent("u");
    Run("pack . ../a.kvstd");
    Run("pack ./ ../b.kvstd");
    QDir::setCurrent("..");
    EXPECT_EQ(folder.Names("u"), CStringArray{"a.kvstd"});
    EXPECT_EQ(folder.Names(), (CStringArray{"a.kvstd", "b.kvstd", "samples", "tmp", "u"}));
    EXPECT_EQ(folder.Get("a.kvstd"), folder.Get("b.kvstd"));
}

TEST_F(PackCommand, FoldersThatCannotBePacked) {
    QDir().mkdir("u");
    folder.Put("out.kvstd", "old");
    Run("pack no out.kvstd", 3, "kvstd: no: this is not a folder\n");
    Run("pack out.kvstd out.kvstd", 3, "kvstd: out.kvstd: this is not a folder\n");
    Run("pack u out.kvstd", 3, "kvstd: u: the folder holds no .kvstd file\n");
    folder.Put("u/a.kvstd", "<Other/>");
    Run("pack u out.kvstd", 3, "kvstd: u: a.kvstd is not the XML of a standard\n");
    PutStandard("u/a.kvstd", "");
    Run("pack u u/out.kvstd", 3, "kvstd: u/out.kvstd: the archive cannot lie in the folder that is packed\n");
    PutStandard("u/b.KVSTD", "");
    Run("pack u out.kvstd", 3, "kvstd: u: the folder holds more than one .kvstd file\n");
    EXPECT_EQ(folder.Get("out.kvstd"), "old");
    EXPECT_EQ(folder.Names("u"), (CStringArray{"a.kvstd", "b.KVSTD"}));
}

TEST_F(PackCommand, AnArchiveIsNoXmlToPack) {
    QDir().mkdir("u");
    ASSERT_TRUE(QFile::copy("samples/Sheet metal parts.kvstd", "u/a.kvstd"));
    Run("pack u out.kvstd", 3, "kvstd: u: a.kvstd is not the XML of a standard\n");
    EXPECT_FALSE(QFileInfo::exists("out.kvstd"));
}

TEST_F(PackCommand, UnpackTouchesNoFileThatStands) {
    QDir().mkdir("u");
    folder.Put("u/mine.kvstd", "mine");
    Run(CString("unpack %1 u").arg(Sheet), 3, "kvstd: u: the folder is not empty\n");
    Run("unpack 'samples/xml/Drawings 2019.kvstd' u", 3, "kvstd: u: the folder is not empty\n");
    EXPECT_EQ(folder.Names("u"), CStringArray{"mine.kvstd"});
    EXPECT_EQ(folder.Get("u/mine.kvstd"), "mine");
    Run(CString("unpack %1 u/mine.kvstd").arg(Sheet), 3, "kvstd: u/mine.kvstd: the folder cannot be made\n");
}

TEST_F(PackCommand, UnpackIntoAnEmptyFolder) {
    QDir().mkdir("u");
    Run(CString("unpack %1 u").arg(Metric));
    EXPECT_EQ(folder.Names("u"), CStringArray{"Metric drawings to ISO.kvstd"});
}

TEST_F(PackCommand, ARefusedArchiveLeavesNoFolder) {
    folder.Put("text.kvstd", "hello");
    QDir().mkdir("kept");
    EXPECT_EQ(RunWords("unpack text.kvstd u/v/w").code, 3);
    EXPECT_EQ(RunWords("unpack text.kvstd kept/v").code, 3);
    EXPECT_EQ(folder.Names(), (CStringArray{"kept", "samples", "text.kvstd", "tmp"}));
}

TEST_F(PackCommand, AnArchiveWithoutAStandardIsAFinding) {
    const CString archive = RULEWARD_SOURCE_FOLDER "/tests/corpus/archives/good-empty-archive.zip";
    Run("unpack '" + archive + "' u", 1,
        ("kvstd: warning: " + archive + ": the archive holds no standard\n").toUtf8());
}
