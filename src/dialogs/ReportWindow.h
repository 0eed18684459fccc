// Shows a standard's report: where there is no printer, in its stead.
#pragma once

#include "dialogs/ReportView.h"
#include "files/ReportPages.h"

#include <QDialog>
#include <functional>

class QLabel;

// What is shown, saved and printed.
struct Report {
    QByteArray html;
    CString folder; // with the folder of the pictures
    CString name;   // of the standard: a path or a title

    CString Stem() const;
};

// Saves the report as a PDF file, while its progress is shown. A failure is told to the user; false then.
bool SaveReportPdf(const Report& report, const CString& target, const QPageLayout& paper, QWidget* parent);

class ReportWindow : public QDialog {
    Q_OBJECT

public:
    // `page` is that of the report.
    ReportWindow(const Report& report, std::unique_ptr<LaidOutReport> page, QWidget* parent = nullptr);

    // Prints the report; the window that is given is the one to ask questions over.
    std::function<void(const Report& report, QWidget* window)> Print;
    // The paper of a PDF file; asked when one is saved.
    std::function<QPageLayout()> Paper = StandardPaper;

private:
    void MakeButtons();
    void AddShortcuts();
    void OnSave();
    void OnPrint();
    void Zoom(int step);

    Report m_report;
    ReportView* m_page; // the window owns both
    QLabel* m_state = nullptr;
    int m_zoom = 0; // in steps
};
