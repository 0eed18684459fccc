#include "dialogs/RWDontAskMeAgainMsgBoxDlg.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLayout>

namespace {

constexpr unsigned TemplateNumber = 1429;

enum Control : int { OkButton = 1, UnwantedBox = 1316, Message = 1317 };

} // namespace

CRWDontAskMeAgainMsgBoxDlg::CRWDontAskMeAgainMsgBoxDlg(const CString& text, bool showsBox, QWidget* parent)
    : QDialog(parent), ControlHost(static_cast<QWidget&>(*this)) {
    if (!LoadTemplate(TemplateNumber))
        return;
    if (auto* message = GetDlgItem<QLabel>(Message)) {
        message->setTextFormat(Qt::PlainText); // a file's name must not be taken for markup
        message->setText(text);
    }
    if (auto* box = GetDlgItem(UnwantedBox))
        box->setVisible(showsBox);
    On(OkButton, ControlEvent::Clicked, &CRWDontAskMeAgainMsgBoxDlg::OnOK);
    if (auto* ok = GetDlgItem(OkButton))
        ok->setFocus();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

bool CRWDontAskMeAgainMsgBoxDlg::DoModal() {
    return exec() == Accepted && m_isUnwanted;
}

void CRWDontAskMeAgainMsgBoxDlg::OnOK() {
    const auto* box = GetDlgItem<QAbstractButton>(UnwantedBox);
    m_isUnwanted = box && box->isChecked();
    accept();
}
