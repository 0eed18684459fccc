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
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <algorithm>

namespace {

constexpr int PaperWidth = 800;
constexpr int PaperMargin = 20; // around what is printed
constexpr int Ground = 24;      // around the paper
constexpr int ScrollBarRoom = 24;
constexpr QSize FirstSize(PaperWidth + 2 * Ground + ScrollBarRoom + 24, 720);
constexpr int MostZoom = 12; // steps of one point
constexpr int LeastZoom = -5;

// A sheet of one width, whatever the window's: each other width would be a new layout of the whole report.
class PaperView : public QTextBrowser {
public:
    PaperView() {
        setViewportMargins(Ground, Ground / 2, Ground, Ground / 2);
        setLineWrapMode(FixedPixelWidth);
        setLineWrapColumnOrWidth(PaperWidth);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        setMaximumWidth(PaperWidth + 2 * Ground + ScrollBarRoom);
        setOpenLinks(false);
    }
};

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

ReportWindow::ReportWindow(const Report& report, QWidget* parent)
    : QDialog(parent, Qt::Window), m_report(report), m_document(report.folder) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(LoadString(ReportWindowTitle).arg(report.Stem()));
    resize(FirstSize);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(12, 12, 12, 12);
    rows->setSpacing(10);
    MakePage();
    MakeButtons();
    AddShortcuts();
    m_page->setFocus();
}

ReportWindow::~ReportWindow() {
    m_page->setDocument(nullptr); // it goes before the view does
}

// The page is filled when it is seen: what stands in it before is laid out several times on the way.
void ReportWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (m_isFilled)
        return;
    m_isFilled = true;
    QTimer::singleShot(0, this, [this] { m_document.ShowPage(m_report.html); });
}

void ReportWindow::MakePage() {
    m_page = new PaperView;
    m_page->setAccessibleName(windowTitle());
    m_document.setDocumentMargin(PaperMargin);
    m_page->setFont(m_document.defaultFont()); // what a zoom starts from
    m_page->setDocument(&m_document);
    auto* middle = new QHBoxLayout;
    middle->addWidget(m_page);
    qobject_cast<QBoxLayout*>(layout())->addLayout(middle, 1);
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
    const int zoom = std::clamp(m_zoom + step, LeastZoom, MostZoom);
    m_page->zoomIn(zoom - m_zoom);
    m_zoom = zoom;
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
