// What undo and redo do to the page of checks.
#include "editing/PageDialog.h"

void CPageDialog::ApplyHistoryStep(MQC_CheckType_e type, int action, bool isUndo) {
    switch (action) {
    case LifeEdited:
        if (CCheck* check = GetPane(type, false) ? LiveCheck(type) : nullptr) {
            LoadPane(*check);
            SelectCheck(type);
        }
        break;
    case LifeMoved:
        RebuildPositions();
        SelectCheck(type);
        RelayoutKeepScroll();
        break;
    case LifeInForce:
    case LifeDeleted:
        if (isUndo == (action == LifeInForce))
            RemoveCheck(type, false);
        else
            PutBack(type);
        break;
    default: break;
    }
    m_host.ArmUpdate();
}

// A check is in force again: its pane goes back to its old place between its neighbours.
void CPageDialog::PutBack(MQC_CheckType_e type) {
    CCheck* check = LiveCheck(type);
    CExtDialog* pane = check && !IsPlaced(type) ? GetPane(type, true) : nullptr;
    if (!pane)
        return;
    TypeToPos[type] = OpenStack();
    RebuildPositions();
    LoadPane(*check);
    ShowPane(*pane, pane->Position);
    SetCheckTypeActive(type, true);
    RelayoutKeepScroll();
    SelectCheck(type);
}
