// Where in a standard's history its last save stands. The index of a step moves down when the oldest step is
// dropped, and a step can be discarded: the saved place follows its step, and is nowhere when that is gone.
#pragma once

#include "model/Standard.h"

class SavedPlace {
public:
    void Note(const CStandard& standard) { m_step = standard.GetHistoryIndex() + standard.GetDroppedSteps(); }
    // To be told before the steps from `firstIndex` on are gone.
    void ForgetFrom(int firstIndex, const CStandard& standard) {
        if (m_step != Nowhere && m_step - standard.GetDroppedSteps() >= firstIndex)
            m_step = Nowhere;
    }
    bool IsAt(const CStandard& standard) const {
        return m_step != Nowhere && m_step == standard.GetHistoryIndex() + standard.GetDroppedSteps();
    }

private:
    static constexpr int Nowhere = -2; // no step and no start has this number

    int m_step = -1; // counted with the steps that were dropped; -1 is the start of the history
};
