#include "editing/FolderList.h"

#include "platform/LanguageLibrary.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr unsigned FoldersText = 2474;

} // namespace

FolderList::FolderList(QWidget* parent) : FileList(parent, {{LoadString(FoldersText), 1}}) {
    setHeaderHidden(true); // one column needs no title
}

CStringArray FolderList::PathsIn(const QMimeData& dragged) const {
    CStringArray folders;
    for (const CString& path : FileList::PathsIn(dragged))
        if (QFileInfo(path).isDir())
            folders.append(QDir::toNativeSeparators(QDir::cleanPath(path)));
    return folders;
}
