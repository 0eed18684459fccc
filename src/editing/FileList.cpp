#include "editing/FileList.h"

#include "editing/TextTip.h"
#include "platform/LanguageLibrary.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QSet>
#include <QSignalBlocker>
#include <QUrl>
#include <algorithm>

namespace {

constexpr int RemoveCommand = 32915;

// A path of either kind of separator: one that was stored on another system is shown as it is.
CString TitleOf(const CString& path) {
    return path.mid(1 + qMax(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\')));
}

} // namespace

FileList::FileList(QWidget* parent) : FileList(parent, {{LoadString(130), 2}, {LoadString(131), 1}}) {}

FileList::FileList(QWidget* parent, const std::vector<CMCColumn>& columns) : MultiColumnList(parent) {
    SetColumns(columns);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DropOnly);
    setDropIndicatorShown(false);
    setContextMenuPolicy(Qt::CustomContextMenu); // by which a pane sees that the list has its own menu
    connect(this, &QWidget::customContextMenuRequested, this, &FileList::ShowMenu);
}

CStringArray FileList::Paths() const {
    CStringArray paths;
    for (int row = 0; row < topLevelItemCount(); ++row)
        paths.append(topLevelItem(row)->text(columnCount() - 1));
    return paths;
}

void FileList::AddPath(const CString& path) {
    CMCRow row;
    if (columnCount() > 1)
        row.Cells.push_back({TitleOf(path)});
    row.Cells.push_back({path});
    QTreeWidgetItem* item = AddRow(row);
    for (int column = 0; column < columnCount(); ++column)
        item->setToolTip(column, PlainTip(path));
}

void FileList::SetPaths(const CStringArray& paths) {
    clear();
    for (const CString& path : paths)
        AddPath(path);
}

int FileList::AddPaths(const CStringArray& paths) {
    QSet<CString> held;
    for (const CString& path : Paths())
        held.insert(path.toCaseFolded());
    int added = 0, passedOver = 0;
    for (const CString& path : paths) {
        if (Accepts && !Accepts(path))
            break;
        if (held.contains(path.toCaseFolded())) {
            ++passedOver;
            continue;
        }
        held.insert(path.toCaseFolded());
        AddPath(path);
        ++added;
    }
    if (added > 0) {
        SelectOnly(topLevelItemCount() - 1);
        Q_EMIT FilesChanged();
    } else if (passedOver > 0) {
        Q_EMIT AllHeld();
    }
    return added;
}

QList<int> FileList::SelectedRows() const {
    QList<int> rows;
    for (QTreeWidgetItem* item : selectedItems())
        rows.append(indexOfTopLevelItem(item));
    std::sort(rows.begin(), rows.end());
    return rows;
}

void FileList::SelectOnly(int row) {
    clearSelection();
    if (QTreeWidgetItem* item = topLevelItem(row)) {
        setCurrentItem(item);
        scrollToItem(item);
    }
}

void FileList::RemoveSelected() {
    const QList<int> rows = SelectedRows();
    if (rows.isEmpty())
        return;
    {
        const QSignalBlocker quiet(this); // a thousand changes of the selection are one for everybody else
        for (auto row = rows.crbegin(); row != rows.crend(); ++row)
            delete takeTopLevelItem(*row);
    }
    SelectOnly(qMin(rows.first(), topLevelItemCount() - 1));
    Q_EMIT FilesChanged();
}

void FileList::MoveSelected(int step) {
    const QList<int> rows = SelectedRows();
    if (rows.isEmpty() || rows.first() + step < 0 || rows.last() + step >= topLevelItemCount())
        return;
    QList<int> inOrder = rows;
    if (step > 0)
        std::reverse(inOrder.begin(), inOrder.end());
    for (const int row : inOrder)
        insertTopLevelItem(row + step, takeTopLevelItem(row));
    SelectOnly(rows.first() + step);
    for (const int row : rows)
        topLevelItem(row + step)->setSelected(true);
    Q_EMIT FilesChanged();
}

void FileList::keyPressEvent(QKeyEvent* event) {
    // Delete stands on the number pad as well.
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
    if (event->key() == Qt::Key_Delete && held == Qt::NoModifier)
        RemoveSelected();
    else
        MultiColumnList::keyPressEvent(event);
}

// The press of the mouse has selected what lies under it.
void FileList::ShowMenu(const QPoint& place) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(LoadString(2139), this, &FileList::AddWanted);
    QAction* remove = menu->addAction(LoadString(2140), this, &FileList::RemoveSelected);
    remove->setObjectName(QString::number(RemoveCommand));
    remove->setEnabled(!selectedItems().isEmpty());
    menu->popup(viewport()->mapToGlobal(place));
}

CStringArray FileList::PathsIn(const QMimeData& dragged) const {
    CStringArray paths;
    for (const QUrl& url : dragged.urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

void FileList::dragEnterEvent(QDragEnterEvent* event) {
    m_takesDrag = !PathsIn(*event->mimeData()).isEmpty();
    event->setAccepted(m_takesDrag);
}

void FileList::dragMoveEvent(QDragMoveEvent* event) {
    event->setAccepted(m_takesDrag);
}

void FileList::dropEvent(QDropEvent* event) {
    // The files stay where they are, whatever the file manager proposes.
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(AddPaths(PathsIn(*event->mimeData())) > 0);
}
