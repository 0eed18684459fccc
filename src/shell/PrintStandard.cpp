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

// The report's page; empty, after a message, where it cannot be made. Missing pictures leave empty spots.
Report MakeReport(CStandard& standard) {
    Report report{{}, TemporaryFolder(), standard.Name};
    const ReportFiles files = WriteReportFiles(standard, report.folder);
    if (!TellFailure(files.xmlPath, files.xml) || !TellFailure(files.stylesheetPath, files.stylesheet))
        return report;
    const ReportPage page = RenderReportHtml(files.xmlPath, files.stylesheetPath);
    if (!page.result)
        ShowMessage(QDir::toNativeSeparators(files.xmlPath) + "\n\n" + page.result.reason);
    report.html = page.html;
    return report;
}

void ShowReport(const Report& report, QWidget* parent) {
    auto* window = new ReportWindow(report, parent);
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
    const Report report = MakeReport(standard);
    if (report.html.isEmpty())
        return;
    if (CurrentAdapter()->HasPrinter())
        PrintReport(report, mode, parent);
    else
        ShowReport(report, parent);
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
