// A message that may be switched off by a box.
#pragma once

#include "platform/widgets/ControlHost.h"

#include <QDialog>

class CRWDontAskMeAgainMsgBoxDlg : public QDialog, public ControlHost {
    Q_OBJECT

public:
    // `showsBox`: whether the user may switch the message off.
    CRWDontAskMeAgainMsgBoxDlg(const CString& text, bool showsBox, QWidget* parent = nullptr);

    // Shows the message. After OK, whether the user does not want to see it again; else false.
    bool DoModal();

private:
    void OnOK();

    bool m_isUnwanted = false;
};
