// A box of one or several numbers with commas between them, which is watched while the user types. Its tip
// tells them all.
#pragma once

#include "model/Parameter.h"
#include "platform/Text.h"

#include <QObject>
#include <QPointer>

class CExtRichEditCtrl;

class ValueField : public QObject {
    Q_OBJECT

public:
    // The field belongs to its window; null does nothing. `op` is the operator whose values are typed; they
    // are checked as lengths of the document.
    ValueField(CExtRichEditCtrl* field, unsigned op, const CString& name);

    CString Text() const;
    // Shows a text and tells nobody.
    void SetText(const CString& text);
    // Shows numbers and tells nobody: to ten decimals, with commas between them.
    void Load(const CGrowArray<double>& values);
    // Adds each number of the text; what does not read as one is left out.
    void Store(CGrowArray<double>& values) const;
    void SetEnabled(bool isEnabled);

Q_SIGNALS:
    void Changed(); // by the user; the field reads as it was repaired

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OnEdited();

    QPointer<CExtRichEditCtrl> m_field;
    unsigned m_operator;
    bool m_isChecking = false; // a message stands, and the text is about to be repaired
};
