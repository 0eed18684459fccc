// The report on paper: a page of the report, drawn on a printer or into a PDF file. A QGuiApplication must
// be there for the fonts.
#pragma once

#include "platform/FileResult.h"

#include <QByteArray>
#include <QPageLayout>
#include <functional>

class QPagedPaintDevice;

// Called after each page; false stops the work.
using ReportProgress = std::function<bool(int page, int pages)>;

// Draws the page with the device's paper and margins. At the foot of each sheet stand `footer`, the name of
// the standard, and the number of the sheet. Pictures are those in the folder "resources" of `baseFolder`.
FileResult DrawReportPages(const QByteArray& html, const CString& baseFolder, const CString& footer,
                           QPagedPaintDevice& device, const ReportProgress& progress = {});

// A4 with even margins.
QPageLayout StandardPaper();

// The same as a PDF file, which is written whole or not at all.
FileResult WriteReportPdf(const QByteArray& html, const CString& baseFolder, const CString& target,
                          const CString& footer, const ReportProgress& progress = {},
                          const QPageLayout& paper = StandardPaper());
