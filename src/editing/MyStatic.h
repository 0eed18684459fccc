// The correction value of one parameter: a field, or a list of texts or pictures to choose from.
#pragma once

#include "editing/CorrectionChoices.h"

#include <QWidget>

class CComboBoxExt;
class CExACRichEdit;

class CMyStatic : public QWidget {
    Q_OBJECT

public:
    explicit CMyStatic(QWidget* parent = nullptr);

    // `mode` is an entry style, `extra` belongs to the pane that binds the control. Clears the choices.
    void SetMode(int mode, int extra);
    int Mode() const { return m_mode; }
    int Extra() const { return m_extra; }

    // Takes new choices, of which it keeps the user's own where they still fit, and shows the outcome.
    void SetChoices(const CorrectionChoices& record);

    // Shows the record as it stands, with a default where it has no value.
    void RefreshDisplay();

    // Rewrites the value and the choices in another unit. `power` and the rest as in CUnitSettings.
    void ConvertUnit(unsigned long power, unsigned long dimension, unsigned long oldUnit,
                     unsigned long newUnit);

    // What the control is called for those who do not see it.
    void SetName(const CString& name);

    // As high as the field and as the list, so that a pane does not grow when one takes the place of the
    // other.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    CExACRichEdit* Edit() const { return m_edit; }
    CComboBoxExt* List() const { return m_list; }

    CorrectionChoices Choices;

Q_SIGNALS:
    // The value is to be written into the check.
    void Committed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool UsesList() const;
    bool IsFixed() const;
    void ShowField(const CString& text);
    void FillList();
    void SetFieldGround(unsigned color);
    void OnFieldEdited();
    void OnFieldLeft(Qt::FocusReason reason);
    void RefuseText();
    void OnChosen(int index);

    int m_mode = TextEntry;
    int m_extra = -1;
    bool m_isShowing = false; // the display is being set, and not edited
    CStringArray m_rows;      // what the list is filled with
    CExACRichEdit* m_edit;
    CComboBoxExt* m_list;
};
