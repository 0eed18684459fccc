#include "files/Packing.h"

#include "files/XmlDocument.h"
#include "platform/Archive.h"
#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "support/Messages.h"
#include "support/TestFolder.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace {

const QByteArray Plain = "<Standard Unit=\"0\"><Check Type=\"101\"/></Standard>";

class Packing : public ::testing::Test {
protected:
    Packing() {
        for (const char* name : {"out", "in", "in/101"})
            QDir(folder.Path()).mkdir(name);
    }
    int Unpack(const CString& name) {
        outName = "before";
        return UnpackStandard(folder.Path(name), folder.Path("out"), &outName, &reason);
    }
    int Pack(const CString& name) { return PackFolder(folder.Path(name), folder.Path("in"), &reason); }

    TestFolder folder;
    CString outName;
    CString reason;
    Messages messages;
};

} // namespace

TEST_F(Packing, PlainXmlIsCopiedUnderItsName) {
    folder.Put("Plate rules.kvstd", Plain);
    EXPECT_EQ(Unpack("Plate rules.kvstd"), 1);
    EXPECT_EQ(folder.Get("out/Plate rules.kvstd"), Plain);
    EXPECT_EQ(outName, "Plate rules.kvstd");
    EXPECT_EQ(reason, "");
}

TEST_F(Packing, PlainXmlOverwritesWhatStandsThere) {
    folder.Put("a.kvstd", Plain);
    folder.Put("out/a.kvstd", "old");
    EXPECT_EQ(Unpack("a.kvstd"), 1);
    EXPECT_EQ(folder.Get("out/a.kvstd"), Plain);
}

TEST_F(Packing, PlainXmlIntoItsOwnFolderStaysWhole) {
    folder.Put("out/a.kvstd", Plain);
    Unpack("out/a.kvstd");
    EXPECT_EQ(folder.Get("out/a.kvstd"), Plain);
    EXPECT_EQ(folder.Names("out"), CStringArray("a.kvstd"));
}

TEST_F(Packing, AnArchiveComesOutWithItsSideFiles) {
    folder.Put("in/a.kvstd", Plain);
    folder.Put("in/101/template.dwt", "side");
    EXPECT_EQ(Pack("a.kvstd"), 1);
    EXPECT_EQ(Unpack("a.kvstd"), 1);
    EXPECT_EQ(folder.Get("out/a.kvstd"), Plain);
    EXPECT_EQ(folder.Get("out/101/template.dwt"), "side");
    EXPECT_EQ(outName, "a.kvstd");
    EXPECT_EQ(folder.Names(), (CStringArray{"a.kvstd", "in", "out"}));
}

TEST_F(Packing, TheXmlTakesTheNameOfItsArchive) {
    folder.Put("in/101/Old Name.KVSTD", Plain);
    EXPECT_EQ(Pack("New.kvstd"), 1);
    EXPECT_EQ(Unpack("New.kvstd"), 1);
    EXPECT_EQ(folder.Get("out/New.kvstd"), Plain);
    EXPECT_EQ(outName, "New.kvstd");
}

TEST_F(Packing, ANameThatIsTakenIsNotOverwritten) {
    QDir(folder.Path()).mkdir("in/b.kvstd");
    folder.Put("in/a.kvstd", Plain);
    folder.Put("in/b.kvstd/keep.txt", "side");
    EXPECT_EQ(Pack("b.kvstd"), 1);
    EXPECT_EQ(Unpack("b.kvstd"), 1);
    EXPECT_EQ(outName, "a.kvstd");
    EXPECT_EQ(folder.Get("out/b.kvstd/keep.txt"), "side");
}

TEST_F(Packing, AnArchiveWithoutAStandardIsUnpackedAllTheSame) {
    folder.Put("in/readme.txt", "text");
    EXPECT_EQ(Pack("a.kvstd"), 1);
    EXPECT_EQ(Unpack("a.kvstd"), 1);
    EXPECT_EQ(outName, "before");
    EXPECT_EQ(folder.Get("out/readme.txt"), "text");
}

TEST_F(Packing, WhatIsNeitherXmlNorArchiveFailsWithAReason) {
    folder.Put("other.kvstd", "<Other/>");
    folder.Put("broken.kvstd", "<Standard><Check>");
    folder.Put("half.kvstd", "PK\3\4 and no more");
    EXPECT_EQ(Unpack("other.kvstd"), 0);
    EXPECT_EQ(reason, LoadString(PackingNoStandard));
    EXPECT_EQ(Unpack("broken.kvstd"), 0);
    CXmlDocument document;
    document.Load(folder.Path("broken.kvstd"), false);
    EXPECT_EQ(reason, document.GetLoadError());
    EXPECT_EQ(Unpack("half.kvstd"), 0);
    EXPECT_EQ(reason, LoadString(ArchiveCannotOpen));
    EXPECT_EQ(Unpack("missing.kvstd"), 0);
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_EQ(Unpack("in"), 0);
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_EQ(outName, "before");
    EXPECT_EQ(folder.Names("out"), CStringArray());
    EXPECT_EQ(messages.texts, CStringArray());
}

TEST_F(Packing, TheCopyOfAnUnreadableArchiveDoesNotStay) {
    folder.Put("no extension", "PK");
    EXPECT_EQ(Unpack("no extension"), 0);
    folder.Put("a.b.kvstd", "PK");
    folder.Put("out/a.b1.kvstd", "mine");
    EXPECT_EQ(Unpack("a.b.kvstd"), 0);
    EXPECT_EQ(folder.Get("out/a.b1.kvstd"), "mine");
    EXPECT_EQ(folder.Names("out"), CStringArray("a.b1.kvstd"));
}

TEST_F(Packing, AnArchiveThatIsNotTrustedLeavesNothing) {
    folder.Put("in/a.kvstd", Plain);
    EXPECT_EQ(Pack("a.kvstd"), 1);
    QByteArray bytes = folder.Get("a.kvstd");
    bytes.replace("a.kvstd", "../evil");
    folder.Put("a.kvstd", bytes);
    EXPECT_EQ(Unpack("a.kvstd"), 0);
    EXPECT_EQ(reason, LoadString(ArchiveNameLeavesFolder).arg("../evil"));
    EXPECT_EQ(folder.Names("out"), CStringArray());
    EXPECT_FALSE(QFile::exists(folder.Path("evil")));
}

TEST_F(Packing, ThePackedFileIsAnArchiveThatOtherToolsAccept) {
    folder.Put("in/a.kvstd", Plain);
    folder.Put(CString::fromUtf8("in/101/Größe.txt"), "side");
    EXPECT_EQ(Pack("a.kvstd"), 1);
    QProcess unzip;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8"); // it can show no other names than those of its locale
    unzip.setProcessEnvironment(environment);
    unzip.start("unzip", {"-t", folder.Path("a.kvstd")});
    ASSERT_TRUE(unzip.waitForFinished());
    EXPECT_EQ(unzip.exitCode(), 0) << unzip.readAll().toStdString();
}

TEST_F(Packing, AFailedPackLeavesTheTargetAndNothingElse) {
    folder.Put("a.kvstd", "the old one");
    EXPECT_EQ(PackFolder(folder.Path("a.kvstd"), folder.Path("nowhere"), &reason), 0);
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_EQ(folder.Get("a.kvstd"), "the old one");
    folder.Put("in/b.kvstd", Plain);
    EXPECT_EQ(PackFolder(folder.Path("out"), folder.Path("in"), &reason), 0); // a folder is in the way
    EXPECT_EQ(reason, LoadString(FileNotOrdinary));
    EXPECT_EQ(folder.Names(), (CStringArray{"a.kvstd", "in", "out"}));
}

TEST_F(Packing, NoFileBesideTheFolderIsTakenForTheArchive) {
    folder.Put("in/a.kvstd", Plain);
    folder.Put("in.zip", "the user's own");
    folder.Put("in.1.zip", "another one");
    EXPECT_EQ(PackFolder(folder.Path("a.kvstd"), folder.Path("in") + "/", &reason), 1);
    EXPECT_EQ(folder.Get("in.zip"), "the user's own");
    EXPECT_EQ(folder.Names(), (CStringArray{"a.kvstd", "in", "in.1.zip", "in.zip", "out"}));
}

TEST_F(Packing, TheTargetMayHaveTheNameOfTheArchive) {
    folder.Put("in/a.kvstd", Plain);
    EXPECT_EQ(Pack("in.zip"), 1);
    EXPECT_EQ(folder.Names(), (CStringArray{"in", "in.zip", "out"}));
    EXPECT_EQ(Pack("in.zip"), 1);
    EXPECT_EQ(Unpack("in.zip"), 1);
    EXPECT_EQ(outName, "in.zip");
}

TEST_F(Packing, TheLockOnTheTargetMovesToTheNewFile) {
    folder.Put("in/a.kvstd", Plain);
    folder.Put("a.kvstd", "old");
    FileLock lock;
    ASSERT_EQ(lock.Take(folder.Path("a.kvstd")), LockOutcome::Taken);
    EXPECT_EQ(PackFolder(folder.Path("a.kvstd"), folder.Path("in"), &reason, &lock), 1);
    EXPECT_TRUE(lock.IsHeld());
    FileLock other;
    ASSERT_EQ(other.Take(folder.Path("a.kvstd")), LockOutcome::InUse);
    EXPECT_EQ(PackFolder(folder.Path("a.kvstd"), folder.Path("in"), &reason), 0);
    EXPECT_EQ(reason, LoadString(FileInUse));
}
