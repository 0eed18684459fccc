// Panes of checks that are on or off: nothing can be set but how much a failing document matters.
#pragma once

#include "editing/ExtDialog.h"

class CPlainCheckDlg : public CExtDialog {
    Q_OBJECT

public:
    // `helpTopic` 0 is a pane without help.
    CPlainCheckDlg(EditingHost& host, MQC_CheckType_e type, unsigned templateID, unsigned iconID,
                   unsigned captionStringID, unsigned helpTopic);

protected:
    unsigned HelpTopic() const override { return m_helpTopic; }
    void OnCriticalityChosen() override;

private:
    MQC_CheckType_e m_type;
    unsigned m_helpTopic;
};
