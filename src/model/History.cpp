// Undo and redo of a standard.
#include "model/Standard.h"

int CStandard::PushHistory(std::unique_ptr<CCheck> snapshot) {
    CCheck* check = CheckOfSnapshot(*snapshot);
    DiscardStepsAhead();
    History.Add(snapshot.release());
    m_stepChecks.push_back(check);
    if (History.Count > MostSteps) {
        delete History[0];
        History.RemoveAt(0);
        m_stepChecks.erase(m_stepChecks.begin());
        ++m_droppedSteps;
    }
    RedoAvailable = 0;
    HistoryIndex = History.Count - 1;
    return HistoryIndex;
}

// A new step discards everything that could have been redone.
void CStandard::DiscardStepsAhead() {
    const int first = HistoryIndex + 1;
    if (first < History.Count && StepsDiscarded)
        StepsDiscarded(first);
    for (int last = History.Count - 1; last >= first; --last) {
        delete History[last];
        History.RemoveAt(last);
        m_stepChecks.pop_back();
    }
}

bool CStandard::CanRedo() {
    if (History.Count == 0)
        RedoAvailable = 0;
    return RedoAvailable != 0;
}

MQC_CheckType_e CStandard::StepHistory(bool isUndo, int& outStep) {
    const int index = isUndo ? HistoryIndex : HistoryIndex + 1;
    if (index < 0 || index >= History.Count)
        return 0;
    HistoryIndex = index;
    outStep = static_cast<int>(History[index]->LifeStatus);
    const MQC_CheckType_e type = History[index]->Type;
    if (!TakeStep(index, isUndo))
        return type;
    if (isUndo) {
        RedoAvailable = 1;
        --HistoryIndex;
    } else if (HistoryIndex == History.Count - 1) {
        RedoAvailable = 0;
    }
    return type;
}

// False where the check of the step is gone, which ends the step as it stands.
bool CStandard::TakeStep(int index, bool isUndo) {
    CCheck& snapshot = *History[index];
    const unsigned step = snapshot.LifeStatus;
    if (step == LifeMoved) {
        snapshot.Sequence = MoveCheck(snapshot.Sequence, snapshot.Type);
        return true;
    }
    CCheck* check = CheckOfStep(index);
    if (step == LifeEdited)
        return check && SwapWithSnapshot(check->Sequence, &History[index]);
    const bool marksDeleted = isUndo == (step == LifeInForce);
    if (check && marksDeleted) {
        check->LifeStatus = LifeDeleted;
    } else if (check) {
        check->Sequence = snapshot.Sequence;
        check->LifeStatus = LifeInForce;
    }
    return check || marksDeleted;
}

// A merged file may hold several checks of one type, and a check that was brought back has another number
// than before: only the check itself is sure.
CCheck* CStandard::CheckOfStep(int index) const {
    CCheck* check = m_stepChecks[static_cast<size_t>(index)];
    return check ? check : CheckOfSnapshot(*History[index]);
}

// Of several checks of one type the number decides where it can.
CCheck* CStandard::CheckOfSnapshot(const CCheck& snapshot) const {
    CCheck* check = nullptr;
    FindBySequence(snapshot.Sequence, check);
    if (check && check->Type == snapshot.Type)
        return check;
    check = nullptr;
    FindAnyByType(snapshot.Type, check);
    return check;
}

bool CStandard::SwapWithSnapshot(unsigned sequence, CCheck** snapshotSlot) {
    CCheck& snapshot = **snapshotSlot;
    CCheck* check = nullptr;
    FindBySequence(sequence, check);
    if (!check)
        return false;
    snapshot.Sequence = check->Sequence;
    const auto before = CloneCheck(*check);
    CopyOver(*check, snapshot);
    CopyOver(snapshot, *before);
    check->LifeStatus = LifeEdited;
    snapshot.LifeStatus = LifeEdited;
    return true;
}

unsigned CStandard::MoveCheck(unsigned newSequence, MQC_CheckType_e type) {
    CCheck* moved = nullptr;
    FindLiveByType(type, moved);
    if (!moved)
        return newSequence;
    const unsigned old = moved->Sequence;
    // The walk goes outward from `old`, so that each look-up finds a check that is not yet renumbered.
    const auto renumber = [this](unsigned from, unsigned to) {
        CCheck* check = nullptr;
        FindBySequence(from, check);
        if (check)
            check->Sequence = to;
    };
    if (old >= newSequence)
        for (unsigned n = old - 1; n >= newSequence && n > 0; --n)
            renumber(n, n + 1);
    else
        for (unsigned n = old + 1; n <= newSequence; ++n)
            renumber(n, n - 1);
    moved->Sequence = newSequence;
    return old;
}
