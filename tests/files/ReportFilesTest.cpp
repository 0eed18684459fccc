#include "files/Report.h"

#include "files/LanguageScope.h"
#include "files/XmlDocument.h"
#include "support/FilledStandard.h"
#include "support/Messages.h"
#include "support/TestFolder.h"

#include <QFileInfo>
#include <QImage>
#include <gtest/gtest.h>

namespace {

// Of the report's list, sorted.
CStringArray ListedPictures(const CString& xmlPath) {
    CXmlDocument document;
    const CXmlElement* root = document.Load(xmlPath, false);
    CStringArray names;
    const CXmlNodeList list = root->SelectNodes("ImageList/Image/FileName");
    for (int i = 0; i < list.GetCount(); ++i) {
        names.append(CString());
        list.GetAt(i)->GetText(names.back());
        names.back() += ".bmp";
    }
    names.sort();
    return names;
}

} // namespace

TEST(ReportFiles, ReportStylesheetAndPicturesAreWritten) {
    const TestFolder folder;
    CStandard standard;
    FillStandard(standard);
    const ReportFiles files = WriteReportFiles(standard, folder.Path());
    EXPECT_TRUE(files);
    EXPECT_TRUE(files.Reasons().isEmpty());
    EXPECT_EQ(files.xmlPath, folder.Path("Plate rules.xml"));
    EXPECT_EQ(folder.Names(), (CStringArray{"Plate rules.xml", "Standard.xsl", "resources"}));
    EXPECT_TRUE(
        folder.Get("Plate rules.xml")
            .startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?><?xml-stylesheet type=\"text/xsl\" "
                        "href=\"Standard.xsl\"?><Standard "));
}

TEST(ReportFiles, EveryListedPictureIsABitmapFile) {
    for (const char* language : {"English", "German"}) {
        const LanguageScope scope(language);
        const TestFolder folder;
        CStandard standard;
        FillStandard(standard);
        const ReportFiles files = WriteReportFiles(standard, folder.Path());
        CStringArray names = folder.Names("resources");
        names.sort();
        EXPECT_GT(names.size(), 25);
        EXPECT_EQ(names, ListedPictures(files.xmlPath));
        for (const CString& name : names) // as the address of a picture, "#" and "?" would end it
            EXPECT_FALSE(name.contains('#') || name.contains('?') || name.contains('%'))
                << name.toStdString();
        for (const CString& name : names)
            EXPECT_FALSE(QImage(folder.Path("resources/" + name), "bmp").isNull()) << name.toStdString();
    }
}

TEST(ReportFiles, SecondReportOfOneStandardHasItsPicturesAgain) {
    const TestFolder folder;
    CStandard standard;
    AddCheckWith(standard, 312, 1742, OpOneOf, {"2"});
    standard.BuildReportXml();
    for (int i = 0; i < 2; ++i) {
        WriteReportFiles(standard, folder.Path());
        EXPECT_EQ(folder.Names("resources").size(), 2);
    }
}

TEST(ReportFiles, NameIsTheStemOfTheHeadersName) {
    CStandard standard;
    const auto nameOf = [&standard](const char* name) {
        standard.Name = name;
        return ReportFileName(standard).toStdString();
    };
    EXPECT_EQ(nameOf("C:\\Rules\\Plate rules.kvstd"), "Plate rules.xml");
    EXPECT_EQ(nameOf("/home/anna/a.b.kvstd"), "a.b.xml");
    EXPECT_EQ(nameOf("Standard1"), "Standard1.xml");
}

TEST(ReportFiles, LaterReportOfTheSameStemOverwritesTheEarlier) {
    const TestFolder folder;
    CStandard first;
    first.Name = "/one/Rules.kvstd";
    CStandard second;
    second.Name = "/two/Rules.kvstd";
    WriteReportFiles(first, folder.Path());
    WriteReportFiles(second, folder.Path());
    EXPECT_EQ(folder.Names().size(), 3);
    EXPECT_TRUE(folder.Get("Rules.xml").contains("/two/Rules.kvstd"));
}

TEST(ReportFiles, StandardWithoutPicturesGetsAnEmptyFolder) {
    const TestFolder folder;
    CStandard standard;
    standard.Name = "Empty";
    const ReportFiles files = WriteReportFiles(standard, folder.Path());
    EXPECT_TRUE(files);
    EXPECT_FALSE(files.images.ok);
    EXPECT_TRUE(files.Reasons().isEmpty());
    EXPECT_TRUE(QFileInfo(folder.Path("resources")).isDir());
    EXPECT_TRUE(folder.Names("resources").isEmpty());
}

TEST(ReportFiles, OldPicturesGo) {
    const TestFolder folder;
    QDir().mkpath(folder.Path("resources/deep/er"));
    folder.Put("resources/Old.bmp", "old");
    folder.Put("resources/deep/er/old.txt", "old");
    CStandard standard;
    EXPECT_TRUE(WriteReportFiles(standard, folder.Path()));
    EXPECT_TRUE(folder.Names("resources").isEmpty());
}

TEST(ReportFiles, LinksInTheOldFolderAreNotFollowed) {
    const TestFolder folder;
    QDir().mkpath(folder.Path("mine"));
    QDir().mkpath(folder.Path("resources"));
    folder.Put("mine/precious.txt", "precious");
    QFile::link(folder.Path("mine"), folder.Path("resources/link"));
    CStandard standard;
    WriteReportFiles(standard, folder.Path());
    EXPECT_EQ(folder.Get("mine/precious.txt"), "precious");
    EXPECT_TRUE(folder.Names("resources").isEmpty());
}

TEST(ReportFiles, LinkInPlaceOfTheFolderIsReplaced) {
    const TestFolder folder;
    QDir().mkpath(folder.Path("mine"));
    folder.Put("mine/precious.txt", "precious");
    QFile::link(folder.Path("mine"), folder.Path("resources"));
    CStandard standard;
    AddCheckWith(standard, 312, 1742, OpOneOf, {"2"});
    EXPECT_TRUE(WriteReportFiles(standard, folder.Path()).images.ok);
    EXPECT_EQ(folder.Names("mine"), CStringArray{"precious.txt"});
    EXPECT_FALSE(QFileInfo(folder.Path("resources")).isSymLink());
}

TEST(ReportFiles, FolderThatCannotBeMadeIsToldAndTheRestGoesOn) {
    const TestFolder folder;
    folder.Put("resources", "a file of the user's");
    CStandard standard;
    standard.Name = "Rules";
    Messages messages;
    const ReportFiles files = WriteReportFiles(standard, folder.Path());
    EXPECT_EQ(messages.texts, CStringArray{LoadString(1917) + folder.Path("resources")});
    EXPECT_FALSE(files.images.ok);
    EXPECT_EQ(files.Reasons(), messages.texts);
    EXPECT_TRUE(files);
    EXPECT_EQ(folder.Names(), (CStringArray{"Rules.xml", "Standard.xsl", "resources"}));
    EXPECT_EQ(folder.Get("resources"), "a file of the user's");
}

TEST(ReportFiles, PictureThatIsMissingDoesNotKeepTheOthers) {
    const TestFolder folder;
    CStandard standard;
    AddCheckWith(standard, 312, 1742, OpOneOf, {"77", "2"}); // 77 has no picture
    const FileResult result = WriteReportImages(standard, folder.Path());
    EXPECT_TRUE(result.ok);
    EXPECT_FALSE(result.reason.isEmpty());
    EXPECT_EQ(folder.Names("resources").size(), 2);
}

TEST(ReportFiles, MissingFolderIsTold) {
    const TestFolder folder;
    CStandard standard;
    Messages messages;
    const ReportFiles files = WriteReportFiles(standard, folder.Path("missing"));
    EXPECT_FALSE(files);
    EXPECT_FALSE(files.xml.ok);
    EXPECT_FALSE(files.stylesheet.ok);
    EXPECT_EQ(files.Reasons().size(), 3);
}

TEST(ReportFiles, ForeignContentOfTheFolderIsFound) {
    const TestFolder folder;
    EXPECT_EQ(FindForeignResource(folder.Path()), "");
    CStandard standard;
    AddCheckWith(standard, 312, 1742, OpOneOf, {"2"});
    WriteReportFiles(standard, folder.Path());
    EXPECT_EQ(FindForeignResource(folder.Path()), "");
    folder.Put("resources/notes.txt", "");
    EXPECT_EQ(FindForeignResource(folder.Path()), folder.Path("resources/notes.txt"));
    QFile::remove(folder.Path("resources/notes.txt"));
    QDir().mkpath(folder.Path("resources/x.bmp"));
    EXPECT_EQ(FindForeignResource(folder.Path()), folder.Path("resources/x.bmp"));
}
