#include "editing/FileList.h"

#include "platform/LanguageLibrary.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

namespace {

constexpr int NameColumn = 0, PathColumn = 1;

CStringArray LocalFiles(const QMimeData& data) {
    CStringArray paths;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

// A path of either kind of separator: one that was stored on another system is shown as it is.
CString TitleOf(const CString& path) {
    return path.mid(1 + qMax(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\')));
}

} // namespace

FileList::FileList(QWidget* parent) : MultiColumnList(parent) {
    SetColumns({{LoadString(130), 2}, {LoadString(131), 3}});
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DropOnly);
    setDropIndicatorShown(false);
}

CStringArray FileList::Paths() const {
    CStringArray paths;
    for (int row = 0; row < topLevelItemCount(); ++row)
        paths.append(topLevelItem(row)->text(PathColumn));
    return paths;
}

void FileList::AddPath(const CString& path) {
    QTreeWidgetItem* item = AddRow({{{TitleOf(path)}, {path}}});
    item->setToolTip(NameColumn, path);
    item->setToolTip(PathColumn, path);
}

void FileList::SetPaths(const CStringArray& paths) {
    clear();
    for (const CString& path : paths)
        AddPath(path);
}

bool FileList::Holds(const CString& path) const {
    return Paths().contains(path, Qt::CaseInsensitive);
}

int FileList::AddPaths(const CStringArray& paths) {
    int added = 0;
    for (const CString& path : paths) {
        if (Accepts && !Accepts(path))
            break;
        if (Holds(path))
            continue;
        AddPath(path);
        ++added;
    }
    if (added > 0) {
        SelectOnly(topLevelItemCount() - 1);
        Q_EMIT FilesChanged();
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
    for (auto row = rows.crbegin(); row != rows.crend(); ++row)
        delete takeTopLevelItem(*row);
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
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier)
        RemoveSelected();
    else
        MultiColumnList::keyPressEvent(event);
}

void FileList::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Mouse) {
        QTreeWidgetItem* item = itemAt(viewport()->mapFromGlobal(event->globalPos()));
        if (item && !item->isSelected())
            setCurrentItem(item);
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(LoadString(2139), this, &FileList::AddWanted);
    menu->addAction(LoadString(2140), this, &FileList::RemoveSelected)
        ->setEnabled(!selectedItems().isEmpty());
    menu->popup(event->globalPos());
}

void FileList::dragEnterEvent(QDragEnterEvent* event) {
    event->setAccepted(!LocalFiles(*event->mimeData()).isEmpty());
}

void FileList::dragMoveEvent(QDragMoveEvent* event) {
    event->setAccepted(!LocalFiles(*event->mimeData()).isEmpty());
}

void FileList::dropEvent(QDropEvent* event) {
    // The files stay where they are, whatever the file manager proposes.
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(AddPaths(LocalFiles(*event->mimeData())) > 0);
}
