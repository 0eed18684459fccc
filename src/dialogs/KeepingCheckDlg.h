// The pane of a check whose values are edited elsewhere: it sets the criticality and keeps all else, whatever
// a file brought.
#pragma once

#include "editing/ExtDialog.h"

class CKeepingCheckDlg : public CExtDialog {
    Q_OBJECT

public:
    CKeepingCheckDlg(EditingHost& host, unsigned templateID, unsigned iconID, unsigned captionStringID,
                     unsigned helpTopic);
    ~CKeepingCheckDlg() override;

    void CommitCheck() override;
    void OnCriticalityChanged() override { CommitCheck(); }
    void FillCheck(CCheck& check) override;
    void LoadCheck(const CCheck& check) override;

protected:
    unsigned HelpTopic() const override { return m_helpTopic; }

private:
    unsigned m_helpTopic;
    std::unique_ptr<CCheck> m_loaded; // what the pane was last loaded with, for a new check; may be null
};
