#include "dialogs/KeepingCheckDlg.h"

#include <utility>

namespace {

// The custom checks have one each; their pane shows none for all and must not write one.
bool HasOwnCriticality(const CCheck& check) {
    constexpr MQC_CheckType_e CustomChecks = 122;
    return check.Type != CustomChecks;
}

} // namespace

CKeepingCheckDlg::CKeepingCheckDlg(EditingHost& host, unsigned templateID, unsigned iconID,
                                   unsigned captionStringID, unsigned helpTopic)
    : CExtDialog(host, templateID, iconID, captionStringID), m_helpTopic(helpTopic) {}

CKeepingCheckDlg::~CKeepingCheckDlg() = default;

void CKeepingCheckDlg::CommitCheck() {
    CCheck* live = nullptr;
    GetHost().GetStandard().FindLiveByType(CheckType, live);
    // Without a change there is nothing to write, and nothing that would have to be undone.
    if (!live || live->Criticality == Criticality || !HasOwnCriticality(*live))
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
    if (m_loaded && !HasOwnCriticality(check))
        check.Criticality = m_loaded->Criticality;
}

void CKeepingCheckDlg::LoadCheck(const CCheck& check) {
    m_loaded = CStandard::CloneCheck(check);
    CExtDialog::LoadCheck(check);
}
