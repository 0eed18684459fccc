#include "dialogs/ReportWindow.h"

#include "dialogs/ReportJob.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/TextNumbers.h"

#include <QBoxLayout>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStandardPaths>
#include <QToolButton>
#include <algorithm>

namespace {

constexpr int FirstHeight = 720;
constexpr int MostZoom = 12; // steps
constexpr int LeastZoom = -5;
constexpr qreal ZoomStep = 0.09; // one point of letters of eleven

} // namespace

CString Report::Stem() const {
    return QFileInfo(name).completeBaseName();
}

bool SaveReportPdf(const Report& report, const CString& target, const QPageLayout& paper, QWidget* parent) {
    const FileResult saved = RunReportWork(
        LoadString(ReportSaving).arg(QFileInfo(target).fileName()),
        [&](const ReportProgress& progress) {
            return WriteReportPdf(report.html, report.folder, target, report.Stem(), progress, paper);
        },
        parent);
    if (!saved && !saved.reason.isEmpty())
        ShowMessage(LoadString(ReportFileNotWritten).arg(QDir::toNativeSeparators(target), saved.reason));
    return saved.ok;
}

ReportWindow::ReportWindow(const Report& report, std::unique_ptr<LaidOutReport> page, QWidget* parent)
    : QDialog(parent, Qt::Window), m_report(report), m_page(new ReportView(std::move(page))) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(LoadString(ReportWindowTitle).arg(report.Stem()));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(12, 12, 12, 12);
    rows->setSpacing(10);
    rows->addWidget(m_page, 1);
    m_page->setAccessibleName(windowTitle());
    connect(m_page, &ReportView::ZoomTurned, this, &ReportWindow::Zoom);
    MakeButtons();
    AddShortcuts();
    resize(sizeHint().width(), FirstHeight);
    m_page->setFocus();
}

void ReportWindow::MakeButtons() {
    auto* buttons = new QHBoxLayout;
    qobject_cast<QBoxLayout*>(layout())->addLayout(buttons);
    m_state = new QLabel;
    m_state->setTextInteractionFlags(Qt::TextSelectableByMouse);
    for (const int step : {-1, 1}) {
        auto* zoom = new QToolButton;
        zoom->setText(step > 0 ? "+" : "\u2212");
        zoom->setToolTip(LoadString(step > 0 ? ReportLarger : ReportSmaller));
        zoom->setAccessibleName(zoom->toolTip());
        connect(zoom, &QToolButton::clicked, this, [this, step] { Zoom(step); });
        buttons->addWidget(zoom);
    }
    buttons->addWidget(m_state, 1);
    const auto add = [this, buttons](unsigned text, auto handler) {
        auto* button = new QPushButton(LoadString(text));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, handler);
        buttons->addWidget(button);
        return button;
    };
    add(ReportSavePdf, &ReportWindow::OnSave)->setDefault(true);
    add(ReportPrint, &ReportWindow::OnPrint);
    add(ReportClose, &ReportWindow::reject);
}

void ReportWindow::AddShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto handler) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, handler);
    };
    add(QKeySequence::Save, &ReportWindow::OnSave);
    add(QKeySequence::Print, &ReportWindow::OnPrint);
    add(QKeySequence(Qt::CTRL | Qt::Key_Plus), [this] { Zoom(1); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Equal), [this] { Zoom(1); }); // the same key without Shift
    add(QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { Zoom(-1); });
    add(QKeySequence(Qt::CTRL | Qt::Key_0), [this] { Zoom(-m_zoom); });
}

void ReportWindow::Zoom(int step) {
    m_zoom = std::clamp(m_zoom + step, LeastZoom, MostZoom);
    m_page->SetScale(1 + m_zoom * ZoomStep);
}

// Proposes a file beside the standard's own.
void ReportWindow::OnSave() {
    QFileDialog dialog(this);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(LoadString(ReportPdfFilter));
    dialog.setDefaultSuffix("pdf");
    const QFileInfo standard(m_report.name);
    dialog.setDirectory(standard.isAbsolute()
                            ? standard.path()
                            : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog.selectFile(m_report.Stem() + ".pdf");
    if (dialog.exec() != Accepted)
        return;
    const CString target = dialog.selectedFiles().value(0);
    m_state->clear();
    if (SaveReportPdf(m_report, target, Paper(), this))
        m_state->setText(LoadString(ReportSaved).arg(QDir::toNativeSeparators(target)));
}

void ReportWindow::OnPrint() {
    if (Print)
        Print(m_report, this);
}
