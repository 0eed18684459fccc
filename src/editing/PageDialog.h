// The page of checks: a stack of panes, one for each check of the standard, in the order of the catalogue.
//
// Positions are logical, not pixels: the running sum of the panes' logical sizes in the order of adding. They
// serve only as keys by which a pane is found; where a pane stands on the page follows the catalogue.
#pragma once

#include "editing/EditingHost.h"
#include "editing/PageScroller.h"
#include "editing/PageTable.h"

#include <QAbstractScrollArea>
#include <map>
#include <vector>

class CPageDialog : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit CPageDialog(EditingHost& host, QWidget* parent = nullptr);
    ~CPageDialog() override;

    // The pane of a type, with its window where `create` is set; null for a type without a row or where the
    // window cannot be made.
    CExtDialog* GetPane(MQC_CheckType_e type, bool create);

    void AddCheck(MQC_CheckType_e type, const CCheck* source); // a new check, filled by its pane
    bool InsertCheck(CCheck& check);                           // one that stands in the standard already
    void RemoveCheck(MQC_CheckType_e type, bool deleteCheck);
    void RefreshAll();
    void ApplyHistoryStep(MQC_CheckType_e type, int action, bool isUndo);
    void SetCheckTypeActive(MQC_CheckType_e type, bool isActive);
    void TakeUpLoadedChecks(); // of a standard that was just read; else nothing

    void SelectPane(int position);
    void ToggleSelection(int position);
    void SelectCheck(MQC_CheckType_e type); // where its pane stands on the page, and brings that into view
    void FocusGroup(MQC_CheckType_e type);
    MQC_CheckType_e TypeAtPosition(int position) const; // 0 where there is none
    int GetSelectedPosition() const { return SelectedPos; }
    const std::vector<int>& GetSelection() const { return Selection; }
    const std::map<MQC_CheckType_e, int>& GetTypePositions() const { return TypeToPos; }
    const std::map<int, int>& GetPositionSequences() const { return PosToSequence; }
    int GetNextPosition() const { return NextPos; }
    const PageTable& GetTable() const { return Infos; }

    void Relayout();
    void RelayoutKeepScroll();
    void ShowPane(CExtDialog& pane, int position);
    void UpdateExpandButton(CExtDialog& pane);
    void ShowCheck(MQC_CheckType_e type); // brings its group and its pane, opened, into view
    void LoadPane(const CCheck& check);
    void FillFromPane(CCheck& check);
    CCheck* GetCurrentCheck() const;
    void CommitPending(); // what the selected pane has not written yet
    // The standard's checks that stand on the page, in the order of the catalogue.
    std::vector<CCheck*> ChecksInCatalogueOrder() const;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void BuildTable();

    // The stack.
    int OpenStack(); // the next free position
    void CloseGap(int position, int size);
    void MovePosition(int from, int to);
    bool IsPlaced(MQC_CheckType_e type) const { return TypeToPos.count(type) > 0; }
    CheckList PlacedChecks() const; // in the standard's order
    void RebuildPositions();
    CExtDialog* PaneAt(int position) const; // null where none begins there
    CCheck* LiveCheck(MQC_CheckType_e type) const;

    // The layout.
    bool IsCheckOutsideTab(const CExtDialog& pane) const;
    int ShownHeight(const CExtDialog& pane) const;
    void LayOut();
    void PlacePane(CExtDialog& pane, int width, int height);
    void RevealPane(const CExtDialog& pane);

    // The keyboard.
    void JoinTabOrder(CExtDialog& pane);
    void RevealControl(const QWidget& control);

    void ClearSelection();
    void PutBack(MQC_CheckType_e type);

    EditingHost& m_host;
    CPageScroller Scroller;
    int SelectedPos = -1;             // of the pane with the keyboard, -1 for none
    int NextPos = 0;                  // -1 while the stack is empty after a removal
    std::map<int, int> PosToSequence; // to the number of the check within the standard
    std::map<MQC_CheckType_e, int> TypeToPos;
    std::vector<int> Selection; // positions; several only after a selection with Ctrl
    PageTable Infos;
    unsigned CurrentSequence = 1;
    int PaneWidth = 0;       // pixels, of the first pane that was made
    QWidget* m_firstTabStop; // unseen; stands before all panes in the order of Tab
    bool m_isLayingOut = false;
    bool m_isTakingUp = false; // the layout waits until all checks of a standard are there
};
