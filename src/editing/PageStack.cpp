// How panes come to the page of checks and go from it.
#include "editing/PageDialog.h"

#include <algorithm>
#include <set>
#include <stdexcept>

namespace {

constexpr int EmptyStack = -1;

} // namespace

CCheck* CPageDialog::LiveCheck(MQC_CheckType_e type) const {
    CCheck* check = nullptr;
    m_host.GetStandard().FindLiveByType(type, check);
    return check;
}

int CPageDialog::OpenStack() {
    if (NextPos == EmptyStack)
        NextPos = 0;
    return NextPos;
}

void CPageDialog::AddCheck(MQC_CheckType_e type, const CCheck* source) {
    CExtDialog* pane = IsPlaced(type) ? nullptr : GetPane(type, true);
    if (!pane)
        return;
    const int position = OpenStack();
    TypeToPos[type] = position;
    pane->Position = position;
    ShowPane(*pane, position);

    auto check = CStandard::MakeCheck(type);
    if (source)
        pane->LoadCheck(*source);
    pane->FillCheck(*check);
    const auto wanted = CStandard::CloneCheck(*check);
    SetCheckTypeActive(type, true);
    CStandard& standard = m_host.GetStandard();
    unsigned sequence = 0;
    standard.AddCheck(check, sequence);
    // Still here means that a deleted check came back, with the settings that it had.
    if (check && source)
        standard.EditCheckCopy(*wanted);
    else if (check)
        pane->LoadCheck(*check);

    PosToSequence[position] = static_cast<int>(sequence);
    SelectPane(position);
    NextPos += pane->LogicalSize;
    // The selection may have brought another group to the front.
    RevealPane(*pane);
}

bool CPageDialog::InsertCheck(CCheck& check) {
    // Of several checks of one type, as a merged file may hold, the pane edits the first.
    if (IsPlaced(check.Type))
        return true;
    CExtDialog* pane = GetPane(check.Type, true);
    if (!pane)
        return false;
    const int position = OpenStack();
    LoadPane(check);
    if (check.LifeStatus == LifeDeleted)
        return true;
    PosToSequence[position] = static_cast<int>(check.Sequence);
    TypeToPos[check.Type] = position;
    SetCheckTypeActive(check.Type, true);
    pane->Position = position;
    ShowPane(*pane, position);
    NextPos += pane->LogicalSize;
    return true;
}

void CPageDialog::TakeUpLoadedChecks() {
    if (!m_host.TakeLoadedFlag())
        return;
    CheckList checks;
    m_host.GetStandard().GetAllChecks(checks);
    m_isTakingUp = true;
    for (CCheck* check : checks)
        InsertCheck(*check);
    m_isTakingUp = false;
    Relayout();
    if (NextPos > 0)
        SelectPane(0);
    Scroller.ScrollTo(0);
}

void CPageDialog::RemoveCheck(MQC_CheckType_e type, bool deleteCheck) {
    const auto entry = TypeToPos.find(type);
    if (entry == TypeToPos.end())
        return;
    const int position = entry->second;
    const int sequence = PosToSequence[position];
    std::erase(Selection, position);
    if (position == SelectedPos)
        SelectedPos = -1;
    if (sequence < 1)
        return;
    CExtDialog& pane = *GetPane(type, false);
    pane.SetSelected(false);
    pane.DisplayState = CExtDialog::Hidden;
    Relayout();
    SetCheckTypeActive(type, false);
    if (position == 0 && NextPos == pane.LogicalSize)
        NextPos = EmptyStack;
    else
        NextPos -= pane.LogicalSize;
    TypeToPos.erase(type);
    PosToSequence.erase(position);
    if (deleteCheck)
        m_host.GetStandard().DeleteCheck(static_cast<unsigned>(sequence));
    CloseGap(position, pane.LogicalSize);
    m_host.ArmUpdate();
}

// Moves every pane behind the gap forward by its size.
void CPageDialog::CloseGap(int position, int size) {
    while (position < NextPos) {
        MovePosition(position + size, position);
        position += PaneAt(position)->LogicalSize;
    }
}

void CPageDialog::MovePosition(int from, int to) {
    const auto type =
        std::ranges::find_if(TypeToPos, [from](const auto& entry) { return entry.second == from; });
    auto sequence = PosToSequence.extract(from);
    if (type == TypeToPos.end() || sequence.empty())
        throw std::out_of_range("No pane stands at position " + std::to_string(from) + ".");
    sequence.key() = to;
    PosToSequence.insert(std::move(sequence));
    type->second = to;
    GetPane(type->first, false)->Position = to;
    std::ranges::replace(Selection, from, to);
    if (SelectedPos == from)
        SelectedPos = to;
}

CExtDialog* CPageDialog::PaneAt(int position) const {
    const auto entry =
        std::ranges::find_if(TypeToPos, [position](const auto& each) { return each.second == position; });
    return entry == TypeToPos.end() ? nullptr : Infos.Find(entry->first)->GetDialog();
}

CheckList CPageDialog::PlacedChecks() const {
    CheckList live;
    m_host.GetStandard().GetLiveChecks(live);
    CheckList placed;
    std::set<MQC_CheckType_e> seen;
    for (CCheck* check : live)
        if (IsPlaced(check->Type) && seen.insert(check->Type).second)
            placed.push_back(check);
    return placed;
}

// Gives every pane on the page its position anew, in the order of the standard. What is selected stays so.
void CPageDialog::RebuildPositions() {
    const CheckList checks = PlacedChecks();
    std::map<int, int> moved;
    const std::map<MQC_CheckType_e, int> before = std::move(TypeToPos);
    TypeToPos.clear();
    PosToSequence.clear();
    NextPos = 0;
    for (const CCheck* check : checks) {
        CExtDialog& pane = *GetPane(check->Type, false);
        moved[before.at(check->Type)] = NextPos;
        TypeToPos[check->Type] = NextPos;
        PosToSequence[NextPos] = static_cast<int>(check->Sequence);
        pane.Position = NextPos;
        NextPos += pane.LogicalSize;
    }
    for (int& position : Selection)
        position = moved[position];
    if (SelectedPos >= 0)
        SelectedPos = moved[SelectedPos];
}
