// Printing of a standard: its report is written to the folder of temporary files, and what is printed is
// that report seen through its stylesheet.
#pragma once

#include "dialogs/ReportWindow.h"
#include "model/Standard.h"

class QPrinter;
class QWidget;

// Whether there is a printer at all.
class CPrintUtility {
public:
    static bool HasPrinter();
};

// The desktop's printing, as far as it needs printers or asks the user. Tests put one of their own in force.
class PrintAdapter {
public:
    virtual ~PrintAdapter() = default;
    virtual bool HasPrinter() const;
    // Lets the user choose printer, pages and copies; false where he gives up.
    virtual bool AskForPrinter(QPrinter& printer, QWidget* parent) const;
};

// Puts an adapter in force for its own life.
class PrintAdapterScope {
public:
    explicit PrintAdapterScope(const PrintAdapter& adapter);
    ~PrintAdapterScope();
    PrintAdapterScope(const PrintAdapterScope&) = delete;
    PrintAdapterScope& operator=(const PrintAdapterScope&) = delete;

private:
    const PrintAdapter* m_previous;
};

// The printer with its paper, as the user has set it up, for the whole run. It belongs to the application.
QPrinter& PrinterOfTool();

// Whether the user chooses the printer first.
enum class PrintMode { WithDialog = 1, AtOnce = 2 };

// Prints, or shows the report where there is no printer. Every failure is told to the user. The report
// window belongs to `parent`, or to itself where that is null.
void PrintStandard(CStandard& standard, PrintMode mode, QWidget* parent);

// Prints a report that is made already, while its progress is shown.
void PrintReport(const Report& report, PrintMode mode, QWidget* parent);

// Lets the user choose paper and margins.
void SetUpPrinter(QWidget* parent);
