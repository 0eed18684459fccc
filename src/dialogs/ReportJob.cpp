#include "dialogs/ReportJob.h"

#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"

#include <QDialog>
#include <QEventLoop>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <memory>

namespace {

constexpr int PatienceMs = 400; // before the window shows itself
constexpr int LookEveryMs = 50;
constexpr int WindowWidth = 380;

// What the two threads tell each other.
struct Shared {
    std::atomic<int> page = 0;
    std::atomic<int> pages = 0;
    std::atomic<bool> isStopped = false;
};

class ProgressWindow : public QDialog {
public:
    ProgressWindow(const CString& title, Shared& shared, QWidget* parent)
        : QDialog(parent), m_shared(shared), m_state(new QLabel), m_bar(new QProgressBar),
          m_stop(new QPushButton(LoadString(ReportStop))) {
        setWindowTitle(title);
        auto* grid = new QGridLayout(this);
        grid->setContentsMargins(16, 16, 16, 12);
        grid->setVerticalSpacing(8);
        grid->addWidget(m_state, 0, 0, 1, 2);
        grid->addWidget(m_bar, 1, 0, 1, 2);
        grid->addWidget(m_stop, 2, 1);
        grid->setColumnStretch(0, 1);
        m_bar->setAccessibleName(title);
        m_bar->setTextVisible(false);
        setMinimumWidth(WindowWidth);
        connect(m_stop, &QPushButton::clicked, this, &ProgressWindow::reject);
        connect(&m_look, &QTimer::timeout, this, &ProgressWindow::Look);
        m_look.start(LookEveryMs);
        Look();
    }

    // It goes when the work has ended, not before.
    void reject() override {
        m_shared.isStopped = true;
        m_stop->setEnabled(false);
        Look();
    }

private:
    void Look() {
        const int pages = m_shared.pages;
        m_bar->setRange(0, pages);
        m_bar->setValue(m_shared.page);
        if (m_shared.isStopped)
            m_state->setText(LoadString(ReportStopping));
        else if (pages == 0)
            m_state->setText(LoadString(ReportLayingOut));
        else
            m_state->setText(LoadString(ReportPageOf).arg(m_shared.page).arg(pages));
    }

    Shared& m_shared;
    QLabel* m_state; // the window owns all three
    QProgressBar* m_bar;
    QPushButton* m_stop;
    QTimer m_look;
};

} // namespace

FileResult RunReportWork(const CString& title, const ReportWork& work, QWidget* parent) {
    Shared shared;
    FileResult result;
    const ReportProgress progress = [&shared](int page, int pages) {
        shared.pages = pages;
        shared.page = page;
        return !shared.isStopped;
    };
    const std::unique_ptr<QThread> thread(QThread::create([&] { result = work(progress); }));
    QEventLoop patience;
    QObject::connect(thread.get(), &QThread::finished, &patience, &QEventLoop::quit);
    QTimer::singleShot(PatienceMs, &patience, &QEventLoop::quit);
    thread->start();
    // A second click on the same button would begin a second time.
    patience.exec(QEventLoop::ExcludeUserInputEvents);
    if (!thread->isFinished()) {
        ProgressWindow window(title, shared, parent);
        QObject::connect(thread.get(), &QThread::finished, &window, &QDialog::accept);
        if (!thread->isFinished())
            window.exec();
    }
    thread->wait();
    if (!result && shared.isStopped)
        result.reason.clear();
    return result;
}
