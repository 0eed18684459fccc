#include "dialogs/MergeDlg.h"

#include "editing/TextTip.h"
#include "files/Merge.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLayout>
#include <QMimeData>
#include <QTreeWidget>
#include <QUrl>

namespace {

constexpr unsigned TemplateNumber = 1247;
constexpr unsigned HelpCommand = 15; // shows a topic
constexpr unsigned HelpTopic = 3001;
constexpr char Extension[] = "kvstd";

enum Control { OkButton = 1, CancelButton = 2, HelpButton = 1006, AddButton = 1008, FileList = 1136 };
enum OrderControl { RemoveButton = 1217, UpButton = 1218, DownButton = 1219 };
enum Column { NameColumn, PathColumn };

void SetEnabled(const ControlHost& host, int number, bool isEnabled) {
    if (auto* control = host.GetDlgItem<QWidget>(number))
        control->setEnabled(isEnabled);
}

} // namespace

CMergeDlg::CMergeDlg(const CString& runFolder, const CStringArray& nameFilters, QWidget* parent)
    : QDialog(parent), ControlHost(static_cast<QWidget&>(*this)), m_runFolder(runFolder),
      m_nameFilters(nameFilters) {
    if (!LoadTemplate(TemplateNumber))
        return;
    m_list = GetDlgItem<QTreeWidget>(FileList);
    if (!m_list)
        return;
    m_list->installEventFilter(this);
    setAcceptDrops(true);
    On(AddButton, ControlEvent::Clicked, &CMergeDlg::OnAdd);
    On(RemoveButton, ControlEvent::Clicked, &CMergeDlg::OnRemove);
    On(UpButton, ControlEvent::Clicked, &CMergeDlg::OnMoveUp);
    On(DownButton, ControlEvent::Clicked, &CMergeDlg::OnMoveDown);
    On(HelpButton, ControlEvent::Clicked, &CMergeDlg::OnHelp);
    On(OkButton, ControlEvent::Clicked, &CMergeDlg::OnOK);
    Connect(CancelButton, ControlEvent::Clicked, [this] { reject(); });
    EnableButtons();
}

int CMergeDlg::DoModal() {
    if (!m_list || exec() != Accepted)
        return Rejected;
    if (OpenDocumentFile)
        OpenDocumentFile(m_resultPath);
    return Accepted;
}

bool CMergeDlg::eventFilter(QObject* object, QEvent* event) {
    if (object == m_list && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
        OnRemove();
        return true;
    }
    return QDialog::eventFilter(object, event);
}

void CMergeDlg::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!m_list || m_isPlaced)
        return;
    m_isPlaced = true;
    layout()->activate();
    m_list->header()->resizeSection(NameColumn, m_list->viewport()->width() / 4 * 2);
}

void CMergeDlg::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void CMergeDlg::dropEvent(QDropEvent* event) {
    CStringArray paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    AddFiles(paths);
    event->acceptProposedAction();
}

void CMergeDlg::OnAdd() {
    QFileDialog dialog(this);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilters(m_nameFilters);
    dialog.setDefaultSuffix(Extension);
    if (dialog.exec() == Accepted)
        AddFiles(dialog.selectedFiles());
}

// What follows a name that is no standard's is not looked at.
void CMergeDlg::AddFiles(const CStringArray& paths) {
    for (const CString& path : paths) {
        if (!path.endsWith(QLatin1String(Extension), Qt::CaseInsensitive))
            break;
        if (IsListed(path))
            continue;
        const CString shown = QDir::toNativeSeparators(path);
        auto* item = new QTreeWidgetItem(m_list, {QFileInfo(path).fileName(), shown});
        item->setToolTip(PathColumn, PlainTip(shown));
        m_list->setCurrentItem(item); // makes it the only selected one
        m_list->scrollToItem(item);
    }
    EnableButtons();
}

bool CMergeDlg::IsListed(const CString& path) const {
    return ListedPaths().contains(QDir::toNativeSeparators(path), Qt::CaseInsensitive);
}

CStringArray CMergeDlg::ListedPaths() const {
    CStringArray paths;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row)
        paths.append(m_list->topLevelItem(row)->text(PathColumn));
    return paths;
}

void CMergeDlg::OnRemove() {
    for (int row = m_list->topLevelItemCount() - 1; row >= 0; --row)
        if (m_list->topLevelItem(row)->isSelected())
            delete m_list->takeTopLevelItem(row);
    SetEnabled(*this, AddButton, true);
    EnableButtons();
}

void CMergeDlg::OnMoveUp() {
    Move(-1, 2124, 2126);
}

void CMergeDlg::OnMoveDown() {
    Move(1, 2125, 2127);
}

// Exchanges the selected row with its neighbour. At the edge of the list there is none.
void CMergeDlg::Move(int step, unsigned severalText, unsigned noneText) {
    const QList<QTreeWidgetItem*> selected = m_list->selectedItems();
    if (selected.size() != 1) {
        ShowMessage(LoadString(selected.isEmpty() ? noneText : severalText));
        return;
    }
    QTreeWidgetItem& item = *selected.constFirst();
    QTreeWidgetItem* neighbour = m_list->topLevelItem(m_list->indexOfTopLevelItem(&item) + step);
    if (!neighbour)
        return;
    for (const int column : {NameColumn, PathColumn}) {
        const CString text = item.text(column);
        item.setText(column, neighbour->text(column));
        neighbour->setText(column, text);
    }
    item.setToolTip(PathColumn, PlainTip(item.text(PathColumn)));
    neighbour->setToolTip(PathColumn, PlainTip(neighbour->text(PathColumn)));
    m_list->setCurrentItem(neighbour);
    m_list->scrollToItem(neighbour);
}

void CMergeDlg::OnHelp() {
    if (ShowHelp)
        ShowHelp(HelpCommand, HelpTopic);
}

void CMergeDlg::OnOK() {
    const CStringArray paths = ListedPaths();
    if (paths.size() < 2) {
        ShowMessage(LoadString(2128));
        return;
    }
    if (MergeListedStandards(
            m_runFolder, paths, [this] { return AskTarget(); }, m_resultPath) == 1)
        accept();
}

CString CMergeDlg::AskTarget() {
    QFileDialog dialog(this);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(m_nameFilters);
    dialog.setDefaultSuffix(Extension);
    return dialog.exec() == Accepted ? dialog.selectedFiles().value(0) : CString();
}

void CMergeDlg::EnableButtons() {
    const int count = m_list->topLevelItemCount();
    SetEnabled(*this, RemoveButton, count >= 1);
    SetEnabled(*this, UpButton, count >= 2);
    SetEnabled(*this, DownButton, count >= 2);
    SetEnabled(*this, OkButton, count >= 1);
}
