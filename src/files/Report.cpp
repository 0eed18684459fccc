#include "files/Report.h"

#include "engines/BitmapFile.h"
#include "engines/PathServices.h"
#include "files/Stylesheet.h"
#include "files/XmlDocument.h"
#include "platform/Folders.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/TextNumbers.h"

#include <QDir>
#include <QFileInfo>
#include <cstdint>

namespace {

constexpr char StylesheetName[] = "Standard.xsl";
constexpr unsigned FolderNotMadeText = 1917;

CString ResourcesFolder(const CString& folder) {
    return folder + "/resources";
}

FileResult SaveDocument(const CString& text, const CString& path) {
    CXmlDocument document;
    if (!document.LoadXmlText(text))
        return {false, document.GetLoadError()};
    try {
        document.Save(path);
    } catch (const CXmlError& error) {
        return {false, QString::fromUtf8(error.what())};
    }
    return {};
}

// A new, empty folder. A link in its place goes, and what it leads to stays; a file in its place stays.
bool MakeEmptyFolder(const CString& path) {
    const QFileInfo old(path);
    if (old.isSymLink() || old.isDir())
        DeleteFolderTree(path);
    return QDir().mkdir(path);
}

// A label is a text of the language library: it must not lead out of the folder.
bool IsFileName(const CString& label) {
    return !label.contains(u'/') && !label.contains(u'\\') && !label.contains(QChar::Null);
}

bool WriteImage(const CXmlElement& image, const CString& folder, CString& label) {
    long id = 0;
    const auto name = image.SelectSingleNode("FileName");
    const auto number = image.SelectSingleNode("ResourceID");
    if (!name || !number)
        return false;
    name->GetText(label);
    number->GetLong(id);
    CString path = folder + "/" + label + ".bmp";
    return IsFileName(label) && SaveBitmapResource(static_cast<std::uint16_t>(id), path);
}

} // namespace

CString BuildReportDocument(CStandard& standard) {
    // What an earlier build listed would be missing from this one, and so would its picture.
    standard.ReportImages.Clear();
    return "<?xml version=\"1.0\"?><?xml-stylesheet type=\"text/xsl\" href=\"Standard.xsl\"?>" +
           standard.BuildReportXml();
}

CString ReportFileName(const CStandard& standard) {
    return CPathParts(standard.Name).Name + ".xml";
}

FileResult WriteReportImages(CStandard& standard, const CString& folder) {
    const CString path = ResourcesFolder(folder);
    if (!MakeEmptyFolder(path)) {
        const CString text = LoadString(FolderNotMadeText) + QDir::toNativeSeparators(path);
        ShowMessage(text);
        return {false, text};
    }
    CXmlDocument document;
    const CXmlElement* root = document.LoadXmlText(BuildReportDocument(standard));
    if (!root)
        return {false, document.GetLoadError()};
    const auto list = root->SelectSingleNode("ImageList");
    const CXmlNodeList images = list ? list->SelectNodes("Image") : CXmlNodeList();
    if (images.GetCount() == 0)
        return {false, {}};
    CStringArray missing;
    for (int i = 0; i < images.GetCount(); ++i) {
        CString label;
        if (!WriteImage(*images.GetAt(i), path, label))
            missing.append(label);
    }
    if (missing.isEmpty())
        return {};
    return {true, LoadString(ReportPicturesMissing).arg(missing.join(", "))};
}

CString FindForeignResource(const CString& folder) {
    const QFileInfo resources(ResourcesFolder(folder));
    if (resources.isSymLink() || !resources.isDir())
        return {};
    const QFileInfoList entries =
        QDir(resources.filePath())
            .entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries)
        if (entry.isSymLink() || !entry.isFile() || entry.suffix() != "bmp")
            return entry.filePath();
    return {};
}

CStringArray ReportFiles::Reasons() const {
    CStringArray reasons;
    for (const FileResult* result : {&xml, &images, &stylesheet})
        if (!result->reason.isEmpty())
            reasons.append(result->reason);
    return reasons;
}

ReportFiles WriteReportFiles(CStandard& standard, const CString& folder) {
    ReportFiles files;
    files.xmlPath = folder + "/" + ReportFileName(standard);
    files.stylesheetPath = folder + "/" + StylesheetName;
    files.xml = SaveDocument(BuildReportDocument(standard), files.xmlPath);
    files.images = WriteReportImages(standard, folder);
    files.stylesheet = WriteStylesheet(folder, StylesheetName);
    return files;
}
