#include "shell/PrintStandard.h"

#include "dialogs/ReportJob.h"
#include "files/Report.h"
#include "files/ReportHtml.h"
#include "platform/Folders.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/TextNumbers.h"

#include <QApplication>
#include <QDir>
#include <QPageSetupDialog>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace {

const PrintAdapter*& CurrentAdapter() {
    static const PrintAdapter desktop;
    static const PrintAdapter* adapter = &desktop;
    return adapter;
}

// Goes with the application, since a printer may not outlive it.
class PrinterHolder : public QObject {
public:
    PrinterHolder() : QObject(qApp), printer(QPrinter::HighResolution) {
        printer.setPageLayout(StandardPaper());
    }

    QPrinter printer;
};

bool TellFailure(const CString& path, const FileResult& result) {
    if (!result)
        ShowMessage(LoadString(ReportFileNotWritten).arg(QDir::toNativeSeparators(path), result.reason));
    return result.ok;
}

// A report in the making.
struct Draft {
    Report report;
    ReportFiles files;
    ReportPage page;
    std::unique_ptr<LaidOutReport> shown; // where it is to be
};

// Writes the files and the page that is made of them, which takes a while for a large standard.
FileResult Make(CStandard& standard, bool isShown, Draft& draft, const ReportProgress& progress) {
    draft.files = WriteReportFiles(standard, draft.report.folder);
    if (!draft.files.xml || !draft.files.stylesheet)
        return {};
    draft.page = RenderReportHtml(draft.files.xmlPath, draft.files.stylesheetPath);
    if (draft.page.result && isShown && progress(0, 0))
        draft.shown = std::make_unique<LaidOutReport>(draft.page.html, draft.report.folder);
    return progress(0, 0) ? FileResult() : FileFailure(ReportStopped);
}

// The report's page; empty, after a message, where it cannot be made, or where the user has stopped it.
// Missing pictures leave empty spots.
Draft MakeReport(CStandard& standard, bool isShown, QWidget* parent) {
    Draft draft;
    draft.report = {{}, TemporaryFolder(), standard.Name};
    const ReportWork work = [&](const ReportProgress& progress) {
        return Make(standard, isShown, draft, progress);
    };
    if (!RunReportWork(LoadString(ReportWindowTitle).arg(draft.report.Stem()), work, parent))
        return draft;
    const ReportFiles& files = draft.files;
    if (!TellFailure(files.xmlPath, files.xml) || !TellFailure(files.stylesheetPath, files.stylesheet))
        return draft;
    if (!draft.page.result)
        ShowMessage(QDir::toNativeSeparators(files.xmlPath) + "\n\n" + draft.page.result.reason);
    draft.report.html = draft.page.html;
    return draft;
}

void ShowReport(Draft& draft, QWidget* parent) {
    auto* window = new ReportWindow(draft.report, std::move(draft.shown), parent);
    window->Print = [](const Report& shown, QWidget* over) {
        if (CurrentAdapter()->HasPrinter())
            PrintReport(shown, PrintMode::WithDialog, over);
        else
            ShowMessage(LoadString(ReportNoPrinter));
    };
    window->Paper = [] { return PrinterOfTool().pageLayout(); };
    window->show();
}

} // namespace

bool CPrintUtility::HasPrinter() {
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

bool PrintAdapter::HasPrinter() const {
    return CPrintUtility::HasPrinter();
}

bool PrintAdapter::AskForPrinter(QPrinter& printer, QWidget* parent) const {
    return QPrintDialog(&printer, parent).exec() == QDialog::Accepted;
}

PrintAdapterScope::PrintAdapterScope(const PrintAdapter& adapter) : m_previous(CurrentAdapter()) {
    CurrentAdapter() = &adapter;
}

PrintAdapterScope::~PrintAdapterScope() {
    CurrentAdapter() = m_previous;
}

QPrinter& PrinterOfTool() {
    static QPointer<PrinterHolder> holder;
    if (!holder)
        holder = new PrinterHolder;
    return holder->printer;
}

void PrintStandard(CStandard& standard, PrintMode mode, QWidget* parent) {
    const bool hasPrinter = CurrentAdapter()->HasPrinter();
    Draft draft = MakeReport(standard, !hasPrinter, parent);
    if (draft.report.html.isEmpty())
        return;
    if (hasPrinter)
        PrintReport(draft.report, mode, parent);
    else
        ShowReport(draft, parent);
}

void PrintReport(const Report& report, PrintMode mode, QWidget* parent) {
    QPrinter& printer = PrinterOfTool();
    if (mode == PrintMode::WithDialog && !CurrentAdapter()->AskForPrinter(printer, parent))
        return;
    printer.setDocName(report.Stem());
    const CString printerName = printer.printerName();
    const FileResult printed = RunReportWork(
        LoadString(ReportPrinting).arg(printerName),
        [&](const ReportProgress& progress) {
            return DrawReportPages(report.html, report.folder, report.Stem(), printer, progress);
        },
        parent);
    if (!printed && !printed.reason.isEmpty())
        ShowMessage(LoadString(ReportNotPrinted).arg(printerName, printed.reason));
}

void SetUpPrinter(QWidget* parent) {
    QPageSetupDialog(&PrinterOfTool(), parent).exec();
}
