// The files of a standard's report: its report form as XML, the stylesheet beside it, and the pictures.
#pragma once

#include "model/Standard.h"
#include "platform/FileResult.h"

// The report form with the two lines that name the stylesheet "Standard.xsl". Lists every picture.
CString BuildReportDocument(CStandard& standard);

// "<stem of the header's name>.xml".
CString ReportFileName(const CStandard& standard);

// Empties the folder's subfolder "resources" and writes a bitmap file into it for each picture of the
// report. Message 1917 where the subfolder cannot be made. A failure without a reason: the report has no
// pictures; a success with one: some bitmaps could not be written.
FileResult WriteReportImages(CStandard& standard, const CString& folder);

// The first entry of the folder's "resources" that no report has written, or an empty text: to be asked
// for before a report goes to a folder of the user's choice, where WriteReportImages would remove it.
CString FindForeignResource(const CString& folder);

struct ReportFiles {
    CString xmlPath;
    CString stylesheetPath;
    FileResult xml;
    FileResult images;
    FileResult stylesheet;

    // Whether the report can be shown; it can without its pictures.
    explicit operator bool() const { return xml.ok && stylesheet.ok; }
    CStringArray Reasons() const; // of failures and warnings
};

// Writes all three to a folder that exists; one failure does not keep the others from being written.
ReportFiles WriteReportFiles(CStandard& standard, const CString& folder);
