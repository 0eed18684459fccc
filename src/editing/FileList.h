// A list of files in the user's order: their names and their paths.
#pragma once

#include "editing/MultiColumnList.h"

#include <functional>

class QMimeData;

class FileList : public MultiColumnList {
    Q_OBJECT

public:
    explicit FileList(QWidget* parent = nullptr);

    // Whether a path may stand in the list; without it every path may.
    std::function<bool(const CString& path)> Accepts;

    CStringArray Paths() const;

    // Replaces all rows. Nobody is told: this is what a program does on loading.
    void SetPaths(const CStringArray& paths);

    // Adds paths behind the others and selects the last of them alone. A path that stands in the list,
    // without regard to case, is passed over; the first that is not accepted ends the walk. The number added.
    // Where paths were given and all of them stood in the list, AllHeld tells so.
    int AddPaths(const CStringArray& paths);

    // Removes what is selected. The row that then stands in the place of the first one is selected, or the
    // last.
    void RemoveSelected();

    // Rows change places with their neighbour; the selection moves along. Nothing happens at the ends.
    void MoveSelected(int step);

    QList<int> SelectedRows() const; // in ascending order

Q_SIGNALS:
    void FilesChanged();
    void AllHeld();   // nothing was added, since the list has it all
    void AddWanted(); // from the context menu

protected:
    // The last column shows the paths; one before it, their names.
    FileList(QWidget* parent, const std::vector<CMCColumn>& columns);

    // What of a drop belongs into the list.
    virtual CStringArray PathsIn(const QMimeData& dragged) const;

    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void AddPath(const CString& path);
    void SelectOnly(int row);
    void ShowMenu(const QPoint& place); // in the viewport

    bool m_takesDrag = false; // what hovers over the list belongs into it
};
