#include "dialogs/PlainCheckDlg.h"

#include <utility>

CPlainCheckDlg::CPlainCheckDlg(EditingHost& host, MQC_CheckType_e type, unsigned templateID, unsigned iconID,
                               unsigned captionStringID, unsigned helpTopic)
    : CExtDialog(host, templateID, iconID, captionStringID), m_type(type), m_helpTopic(helpTopic) {}

// The criticality is written at once; there is nothing else that could be pending.
void CPlainCheckDlg::OnCriticalityChosen() {
    auto check = std::make_unique<CCheck>(m_type, 0, 0, 0, 1);
    FillCheck(*check);
    GetHost().GetStandard().EditCheck(std::move(check));
}
