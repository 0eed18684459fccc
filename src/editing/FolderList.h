// A list of folders in the user's order, shown by their paths.
#pragma once

#include "editing/FileList.h"

class FolderList : public FileList {
    Q_OBJECT

public:
    explicit FolderList(QWidget* parent = nullptr);

protected:
    // Only folders that exist, without a separator at the end.
    CStringArray PathsIn(const QMimeData& dragged) const override;
};
