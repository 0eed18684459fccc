#include "shell/PrintStandard.h"

#include "platform/Folders.h"
#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "support/FilledStandard.h"
#include "support/Gui.h"
#include "support/Language.h"
#include "support/Messages.h"
#include "support/TestFolder.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPageSetupDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

// A printer that prints into a file.
class FilePrinter : public PrintAdapter {
public:
    bool HasPrinter() const override { return hasPrinter; }
    bool AskForPrinter(QPrinter&, QWidget*) const override {
        ++asked;
        return isAccepted;
    }

    bool hasPrinter = true;
    bool isAccepted = true;
    mutable int asked = 0;
};

class PrintStandardTest : public testing::Test {
protected:
    PrintStandardTest() : scope(adapter) {
        qputenv("TMPDIR", folder.Path("tmp").toUtf8());
        QDir(folder.Path()).mkdir("tmp");
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.Path("printed.pdf"));
        standard.Name = "/rules/Plates.kvstd";
    }
    ~PrintStandardTest() override {
        if (QWidget* window = Shown())
            delete window;
        qputenv("TMPDIR", tmp);
    }

    static ReportWindow* Shown() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* window = qobject_cast<ReportWindow*>(widget))
                return window;
        return nullptr;
    }
    // The report window, which comes where there is no printer.
    ReportWindow* Show() {
        adapter.hasPrinter = false;
        PrintStandard(standard, PrintMode::WithDialog, nullptr);
        ReportWindow* window = Shown();
        if (window)
            Gui::Show(*window);
        return window;
    }
    bool IsPrinted() const { return folder.Get("printed.pdf").startsWith("%PDF"); }

    const QByteArray tmp = qgetenv("TMPDIR");
    TestFolder folder;
    CStandard standard;
    FilePrinter adapter;
    PrintAdapterScope scope;
    QPrinter& printer = PrinterOfTool();
    Messages messages;
};

} // namespace

TEST_F(PrintStandardTest, Print_AtOnceAsksNothing) {
    FillStandard(standard);
    PrintStandard(standard, PrintMode::AtOnce, nullptr);
    EXPECT_TRUE(IsPrinted());
    EXPECT_EQ(adapter.asked, 0);
    EXPECT_EQ(Shown(), nullptr);
    EXPECT_EQ(messages.texts, CStringArray());
}

TEST_F(PrintStandardTest, Print_WithTheDialogAsksFirst) {
    PrintStandard(standard, PrintMode::WithDialog, nullptr);
    EXPECT_EQ(adapter.asked, 1);
    EXPECT_TRUE(IsPrinted());
}

TEST_F(PrintStandardTest, Print_CancelPrintsNothing) {
    adapter.isAccepted = false;
    PrintStandard(standard, PrintMode::WithDialog, nullptr);
    EXPECT_EQ(adapter.asked, 1);
    EXPECT_FALSE(IsPrinted());
    EXPECT_EQ(messages.texts, CStringArray());
}

TEST_F(PrintStandardTest, Print_AFailureNamesPrinterAndReason) {
    printer.setOutputFileName(folder.Path("missing/printed.pdf"));
    PrintStandard(standard, PrintMode::AtOnce, nullptr);
    ASSERT_EQ(messages.texts.size(), 1);
    EXPECT_TRUE(messages.texts[0].contains(LoadString(ReportNotDrawn)));
}

TEST_F(PrintStandardTest, Print_WithoutPrinterTheReportIsShown) {
    FillStandard(standard);
    standard.Name = "/rules/Plates.kvstd";
    ReportWindow* window = Show();
    ASSERT_TRUE(window);
    EXPECT_EQ(window->windowTitle(), "Report: Plates");
    EXPECT_FALSE(window->isModal());
    const CString text = window->findChild<ReportView*>()->Report().Text();
    EXPECT_TRUE(text.contains(LoadString(1945)));
    EXPECT_TRUE(text.contains(LoadString(2395)));
    EXPECT_EQ(folder.Names("tmp"), (CStringArray{"Plates.xml", "Standard.xsl", "resources"}));
    EXPECT_FALSE(IsPrinted());
}

TEST_F(PrintStandardTest, Print_AStandardWithoutPicturesHasAnEmptyFolderOfThem) {
    PrintStandard(standard, PrintMode::AtOnce, nullptr);
    EXPECT_EQ(folder.Names("tmp"), (CStringArray{"Plates.xml", "Standard.xsl", "resources"}));
    EXPECT_EQ(folder.Names("tmp/resources"), CStringArray());
}

TEST_F(PrintStandardTest, Print_StandardsOfOneStemShareAFile) {
    PrintStandard(standard, PrintMode::AtOnce, nullptr);
    CStandard other;
    FillStandard(other);
    other.Name = "/elsewhere/Plates.kvstd";
    PrintStandard(other, PrintMode::AtOnce, nullptr);
    EXPECT_EQ(folder.Names("tmp").filter(".xml"), CStringArray{"Plates.xml"});
    EXPECT_TRUE(folder.Get("tmp/Plates.xml").contains("/elsewhere/"));
}

TEST_F(PrintStandardTest, Print_AFolderThatCannotBeMadeIsToldAndTheReportPrinted) {
    folder.Put("tmp/resources", "a file in the way");
    PrintStandard(standard, PrintMode::AtOnce, nullptr);
    EXPECT_TRUE(IsPrinted());
    ASSERT_EQ(messages.texts.size(), 1);
    EXPECT_TRUE(messages.texts[0].startsWith(LoadString(1917)));
    EXPECT_TRUE(messages.texts[0].contains("resources"));
}

TEST_F(PrintStandardTest, Print_AReportThatCannotBeWrittenIsToldByName) {
    QDir(folder.Path("tmp")).mkdir("Plates.xml"); // a folder in the way of the file
    PrintStandard(standard, PrintMode::AtOnce, nullptr);
    EXPECT_FALSE(IsPrinted());
    ASSERT_EQ(messages.texts.size(), 1);
    EXPECT_TRUE(messages.texts[0].contains(folder.Path("tmp/Plates.xml")));
}

TEST_F(PrintStandardTest, Print_ReportIsSavedAsPdf) {
    FillStandard(standard);
    ReportWindow* window = Show();
    ASSERT_TRUE(window);
    // A slow machine may show the progress; the first window is the file dialog in any case.
    Gui::Answer answer([this](QWidget& box) { Gui::ChooseFile(box, folder.Path("report")); });
    Gui::Key(*window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_TRUE(folder.Get("report.pdf").startsWith("%PDF"));
    EXPECT_EQ(messages.texts, CStringArray());
    bool isTold = false;
    for (const QLabel* label : window->findChildren<QLabel*>())
        isTold = isTold || label->text().contains(folder.Path("report.pdf"));
    EXPECT_TRUE(isTold);
}

TEST_F(PrintStandardTest, Print_PdfHasThePaperOfThePageSetup) {
    ReportWindow* window = Show();
    ASSERT_TRUE(window);
    const QPageLayout before = printer.pageLayout();
    printer.setPageOrientation(QPageLayout::Landscape);
    Gui::Answer answer([this](QWidget& box) { Gui::ChooseFile(box, folder.Path("report")); });
    Gui::Key(*window, Qt::Key_S, Qt::ControlModifier);
    printer.setPageLayout(before);
    const QRegularExpression sheet("/MediaBox \\[0 0 (\\d+)[.\\d]* (\\d+)");
    const auto found = sheet.match(QString::fromLatin1(folder.Get("report.pdf")));
    ASSERT_TRUE(found.hasMatch());
    EXPECT_GT(found.captured(1).toInt(), found.captured(2).toInt());
}

TEST_F(PrintStandardTest, Print_PdfThatCannotBeWrittenIsToldWithItsReason) {
    folder.Put("stays.txt", "old");
    QDir(folder.Path()).mkdir("dir.pdf");
    Report report{"<p>text</p>", folder.Path("tmp"), standard.Name};
    EXPECT_FALSE(SaveReportPdf(report, folder.Path("missing/report.pdf"), StandardPaper(), nullptr));
    EXPECT_FALSE(SaveReportPdf(report, folder.Path("dir.pdf"), StandardPaper(), nullptr));
    ASSERT_EQ(messages.texts.size(), 2);
    EXPECT_TRUE(messages.texts[0].contains(folder.Path("missing/report.pdf")));
    EXPECT_TRUE(messages.texts[1].contains(folder.Path("dir.pdf")));
    EXPECT_EQ(folder.Names(), (CStringArray{"dir.pdf", "stays.txt", "tmp"}));
}

TEST_F(PrintStandardTest, Print_ReportWindowPrintsWhereAPrinterHasCome) {
    ReportWindow* window = Show();
    ASSERT_TRUE(window);
    Gui::Key(*window, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(messages.texts, CStringArray{LoadString(ReportNoPrinter)});
    adapter.hasPrinter = true;
    Gui::Key(*window, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(adapter.asked, 1);
    EXPECT_TRUE(IsPrinted());
}

TEST_F(PrintStandardTest, Print_ReportWindowIsZoomedAndClosedByKeys) {
    ReportWindow* window = Show();
    ASSERT_TRUE(window);
    const auto* page = window->findChild<ReportView*>();
    const auto hundredths = [page] { return qRound(page->Scale() * 100); };
    EXPECT_EQ(hundredths(), 100);
    Gui::Key(*window, Qt::Key_Plus, Qt::ControlModifier);
    Gui::Key(*window, Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(hundredths(), 118);
    Gui::Key(*window, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(hundredths(), 109);
    Gui::Key(*window, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(hundredths(), 100);
    for (int step = 0; step < 40; ++step)
        Gui::Key(*window, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_GE(hundredths(), 55);
    Gui::Key(*window, Qt::Key_Escape);
    EXPECT_EQ(Shown(), nullptr);
}

TEST_F(PrintStandardTest, Print_NoTextOfTheReportWindowIsCut) {
    for (const char* language : {"English", "German"}) {
        const Language in(language);
        ReportWindow* window = Show();
        ASSERT_TRUE(window);
        for (const QPushButton* button : window->findChildren<QPushButton*>())
            EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
        delete window;
    }
}

TEST_F(PrintStandardTest, Print_PaperIsKeptForTheRun) {
    const QPageLayout before = printer.pageLayout();
    EXPECT_EQ(printer.pageLayout().margins(QPageLayout::Millimeter), QMarginsF(15, 15, 15, 15));
    Gui::Answer answer([](QWidget& box) {
        EXPECT_TRUE(qobject_cast<QPageSetupDialog*>(&box));
        dynamic_cast<QPageSetupDialog&>(box).printer()->setPageSize(QPageSize(QPageSize::A3));
        Gui::Key(box, Qt::Key_Escape);
    });
    SetUpPrinter(nullptr);
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_EQ(PrinterOfTool().pageLayout().pageSize().id(), QPageSize::A3);
    printer.setPageLayout(before);
}
