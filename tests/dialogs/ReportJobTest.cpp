#include "dialogs/ReportJob.h"

#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "support/Gui.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

// Work of so many pages, each of which takes a moment.
ReportWork Pages(int count, int msForOne) {
    return [=](const ReportProgress& progress) {
        for (int page = 1; page <= count; ++page) {
            QThread::msleep(static_cast<unsigned long>(msForOne));
            if (!progress(page, count))
                return FileFailure(ReportStopped);
        }
        return FileResult();
    };
}

} // namespace

TEST(ReportJob, Print_QuickWorkShowsNoWindow) {
    const Gui::Answer answer([](QWidget&) { FAIL() << "A window was shown."; }, 1000);
    EXPECT_TRUE(RunReportWork("Saving", Pages(2, 1), nullptr));
    EXPECT_FALSE(answer.WasAnswered());
}

TEST(ReportJob, Print_LongWorkShowsItsProgressAndEndsByItself) {
    CString title, state;
    const Gui::Answer answer([&](QWidget& window) {
        title = window.windowTitle();
        state = window.findChild<QLabel*>()->text();
    });
    EXPECT_TRUE(RunReportWork("Saving", Pages(30, 30), nullptr));
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_EQ(title, "Saving");
    EXPECT_TRUE(state.startsWith("Page ") && state.endsWith(" of 30")) << state.toStdString();
}

TEST(ReportJob, Print_LongWorkIsStopped) {
    for (const bool byKey : {true, false}) {
        CString state;
        const Gui::Answer answer([&](QWidget& window) {
            if (byKey)
                Gui::Key(window, Qt::Key_Escape);
            else
                Gui::PressButton(window, LoadString(ReportStop));
            state = window.findChild<QLabel*>()->text();
            EXPECT_FALSE(window.findChild<QPushButton*>()->isEnabled());
        });
        QElapsedTimer time;
        time.start();
        const FileResult result = RunReportWork("Saving", Pages(200, 50), nullptr);
        EXPECT_LT(time.elapsed(), 5000);
        EXPECT_TRUE(answer.WasAnswered());
        EXPECT_FALSE(result);
        EXPECT_EQ(result.reason, "");
        EXPECT_EQ(state, LoadString(ReportStopping));
    }
}

TEST(ReportJob, Print_FailureKeepsItsReason) {
    const FileResult result = RunReportWork(
        "Saving", [](const ReportProgress&) { return FileFailure(FileNotWritten); }, nullptr);
    EXPECT_FALSE(result);
    EXPECT_NE(result.reason, "");
}

TEST(ReportJob, Print_WindowsStayAliveWhileItWorks) {
    QElapsedTimer sinceTick;
    qint64 longest = 0;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, [&] { longest = std::max(longest, sinceTick.restart()); });
    sinceTick.start();
    tick.start(5);
    RunReportWork("Saving", Pages(5, 200), nullptr);
    EXPECT_GT(longest, 0);
    EXPECT_LT(longest, 500); // the machine of the tests may be busy; a blocked thread would take a second
}
