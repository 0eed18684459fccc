// The pane of the drafting standards that a document may follow.
#pragma once

#include "dialogs/ParameterCheckDlg.h"

#include <array>

class CStandardCheckDlg : public CParameterCheckDlg {
    Q_OBJECT

public:
    explicit CStandardCheckDlg(EditingHost& host);

    void FillCheck(CCheck& check) override;
    void FillCheckParameters(CCheck& check) override;
    void LoadCheck(const CCheck& check) override;
    void CreateCorrectionControls() override;

    static constexpr int BoxCount = 8; // the last is a standard with a name of its own

protected:
    bool OnInitDialog() override;
    unsigned HelpTopic() const override { return 1001; }
    void DoDataExchange(DataExchange& exchange) override;

private:
    void OnEntryChanged();
    void UpdateCustomEntry();
    bool IsCustomTicked() const { return m_boxes[BoxCount - 1] != 0; }

    std::array<int, BoxCount> m_boxes{}; // in the order of their values, from 1
    CString m_customName;
};
