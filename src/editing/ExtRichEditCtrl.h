// A field of one line that takes only some characters. What a program sets is never filtered.
#pragma once

#include "editing/CharacterFilter.h"

#include <QLineEdit>

class CExtRichEditCtrl : public QLineEdit {
    Q_OBJECT

public:
    explicit CExtRichEditCtrl(QWidget* parent = nullptr);

    // Typed characters that are refused are swallowed; what is pasted or dropped loses them.
    void SetFilter(const CString& text, bool exclude);

    CharacterFilter Filter;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    class AdmittedText;

    void PasteAdmitted();

    bool m_isUserEdit = false; // a user's input is on its way, and not a program's
};
