// The panes of the units of a document, and of the units that dimensions may have of their own.
#pragma once

#include "dialogs/LengthUnitGroup.h"
#include "dialogs/ValuePane.h"

#include <optional>

// What both have: a length and an angle.
class CUnitPane : public CValuePane {
    Q_OBJECT

public:
    void FillCheck(CCheck& check) override;
    void LoadCheck(const CCheck& check) override;
    void NormalizeZeroValues() override;

protected:
    using CValuePane::CValuePane;

    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    virtual void GuardBounds();

    void WatchPair(NumberPair& pair);
    void WatchGroup(LengthUnitGroup& group);
    bool HasAngleWithPlaces() const; // a unit that has decimal places is chosen

    std::optional<LengthUnitGroup> m_length;
    std::optional<NumberPair> m_anglePlaces;

private:
    void NameAngleCorrections();
    void StoreAngleCorrection(CCheck& check) const;
};

class CDocUnitDlg : public CUnitPane {
    Q_OBJECT

public:
    explicit CDocUnitDlg(EditingHost& host);

protected:
    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    void StoreControls(CCheck& check) const override;
    void ApplyEnableRules() override;
    void GuardBounds() override;

private:
    std::optional<BoxGroup> m_systems;
    std::optional<LengthUnitGroup> m_dual;
    std::optional<NumberPair> m_massPlaces;
};

class CDimUnitCheckDlg : public CUnitPane {
    Q_OBJECT

public:
    explicit CDimUnitCheckDlg(EditingHost& host);

protected:
    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    void StoreControls(CCheck& check) const override;
    void ApplyEnableRules() override;
};
