// The report as a page: the report XML seen through its stylesheet.
#pragma once

#include "platform/FileResult.h"

#include <QByteArray>

struct ReportPage {
    QByteArray html; // empty after a failure
    FileResult result;
};

// Neither file can make it read or write anything else, on disk or in the network. Pictures are named
// relative to the folder of the XML file. From one thread at a time: the libraries share their settings.
ReportPage RenderReportHtml(const CString& xmlPath, const CString& stylesheetPath);

// Writes the page as a file, whole or not at all. To show its pictures it must lie beside the XML file.
FileResult WriteReportHtml(const QByteArray& html, const CString& target);
