// Long work on the pages of a report: it runs in a thread of its own, and where it takes longer than a moment
// a window shows how far it is and lets the user stop it.
#pragma once

#include "files/ReportPages.h"

class QWidget;

// Is called in another thread, with what it must ask after each page.
using ReportWork = std::function<FileResult(const ReportProgress& progress)>;

// Returns when the work has ended. The user can do nothing else until then, and the windows stay alive.
// `title` is the heading of the progress. What the user has stopped is a failure without a reason.
FileResult RunReportWork(const CString& title, const ReportWork& work, QWidget* parent);
