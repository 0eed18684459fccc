// The base of panes whose controls stand for parameters one by one.
#pragma once

#include "dialogs/ParameterCheckDlg.h"
#include "editing/CorrectionChoices.h"

#include <span>

struct PaneNumbers {
    unsigned templateID;
    unsigned iconID;
    unsigned captionStringID;
    unsigned helpTopic;
};

// Where the correction of a parameter stands in the template.
struct CorrectionRow {
    int control;
    unsigned parameter;
    int mode = NumberEntry;
    int extra = -1;
};

class CValuePane : public CParameterCheckDlg {
    Q_OBJECT

public:
    // `corrections` outlives the pane.
    CValuePane(EditingHost& host, const PaneNumbers& numbers, std::span<const CorrectionRow> corrections);

    void FillCheckParameters(CCheck& check) override;
    void LoadCheck(const CCheck& check) override;
    void CreateCorrectionControls() override;

protected:
    bool OnInitDialog() override;
    unsigned HelpTopic() const override { return m_helpTopic; }

    virtual void PrepareControls() = 0; // fills and watches them
    virtual void LoadControls(const CCheck& check) = 0;
    virtual void StoreControls(CCheck& check) const = 0;
    virtual void ApplyEnableRules() {}

    // A click or another choice in the control changes the check, and perhaps what is enabled.
    void Watch(int number);
    void SetName(int number, unsigned text);
    void Enable(int number, bool isEnabled);
    bool IsChecked(int number) const;

    // The user changed a control. Nothing happens while a check is shown.
    void OnChosen(); // what is enabled may depend on it
    void OnValue();

private:
    unsigned m_helpTopic;
    std::span<const CorrectionRow> m_corrections;
    bool m_isLoading = false;
};
