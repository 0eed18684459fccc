#include "dialogs/KeepingCheckDlg.h"

#include <utility>

CKeepingCheckDlg::CKeepingCheckDlg(EditingHost& host, unsigned templateID, unsigned iconID,
                                   unsigned captionStringID, unsigned helpTopic)
    : CExtDialog(host, templateID, iconID, captionStringID), m_helpTopic(helpTopic) {}

CKeepingCheckDlg::~CKeepingCheckDlg() = default;

void CKeepingCheckDlg::CommitCheck() {
    CCheck* live = nullptr;
    GetHost().GetStandard().FindLiveByType(CheckType, live);
    // Without a change there is nothing to write, and nothing that would have to be undone.
    if (!live || live->Criticality == Criticality)
        return;
    auto check = CStandard::CloneCheck(*live);
    check->Criticality = Criticality;
    GetHost().GetStandard().EditCheck(std::move(check));
}

// A new check, such as one that is pasted, takes all that the pane was loaded with.
void CKeepingCheckDlg::FillCheck(CCheck& check) {
    if (m_loaded && m_loaded->Type == check.Type) {
        const unsigned sequence = check.Sequence;
        m_loaded->ApplyTo(check);
        check.Sequence = sequence;
    }
    CExtDialog::FillCheck(check);
}

void CKeepingCheckDlg::LoadCheck(const CCheck& check) {
    m_loaded = CStandard::CloneCheck(check);
    CExtDialog::LoadCheck(check);
    // The base leaves the custom checks alone; what stands in the pane is written all the same.
    Criticality = check.Criticality;
}
