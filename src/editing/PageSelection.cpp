// What is selected on the page of checks.
#include "editing/PageDialog.h"

#include <algorithm>

MQC_CheckType_e CPageDialog::TypeAtPosition(int position) const {
    MQC_CheckType_e type = 0;
    int nearest = -1;
    for (const auto& [candidate, begin] : TypeToPos)
        if (begin <= position && begin > nearest) {
            nearest = begin;
            type = candidate;
        }
    return type;
}

void CPageDialog::ClearSelection() {
    for (const int position : Selection)
        if (CExtDialog* pane = PaneAt(position))
            pane->SetSelected(false);
    Selection.clear();
    SelectedPos = -1;
}

void CPageDialog::SelectPane(int position) {
    CExtDialog* pane = PaneAt(position);
    if (!pane || position == SelectedPos)
        return;
    ClearSelection();
    SelectedPos = position;
    Selection = {position};
    CurrentSequence = static_cast<unsigned>(PosToSequence[position]);
    pane->SetSelected(true);
    FocusGroup(pane->CheckType);
    m_host.ArmUpdate();
}

void CPageDialog::SelectCheck(MQC_CheckType_e type) {
    const auto entry = TypeToPos.find(type);
    if (entry == TypeToPos.end())
        return;
    SelectPane(entry->second);
    RevealPane(*GetPane(type, false));
}

void CPageDialog::ToggleSelection(int position) {
    CExtDialog* pane = PaneAt(position);
    if (!pane)
        return;
    if (std::ranges::find(Selection, position) == Selection.end()) {
        Selection.push_back(position);
        SelectedPos = position;
        CurrentSequence = static_cast<unsigned>(PosToSequence[position]);
        pane->SetSelected(true);
        FocusGroup(pane->CheckType);
    } else if (Selection.size() > 1) {
        std::erase(Selection, position);
        pane->SetSelected(false);
    }
    m_host.ArmUpdate();
}

void CPageDialog::FocusGroup(MQC_CheckType_e type) {
    m_host.FocusGroup(GroupOfCheckType(type));
}

void CPageDialog::CommitPending() {
    if (CExtDialog* pane = PaneAt(SelectedPos))
        pane->OnCriticalityChanged();
}
