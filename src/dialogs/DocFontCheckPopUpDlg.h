// The dialog that adds font checks of a document: it asks once for what several of them have in common.
#pragma once

#include "dialogs/FontControls.h"
#include "editing/ExtDialog.h"

#include <QDialog>
#include <memory>

class QAbstractButton;

class CDocFontCheckPopUpDlg : public QDialog, public CACInfoManagerDlg {
    Q_OBJECT

public:
    // `type` is the check that is asked for; its box is ticked.
    CDocFontCheckPopUpDlg(EditingHost& host, MQC_CheckType_e type, QWidget* parent = nullptr);
    ~CDocFontCheckPopUpDlg() override;

    // Shows the dialog until it is closed; nothing happens where its template is missing.
    void DoModal();

    void OnParameterChanged() override;
    // Shows the unit of the standard, which cannot change while the dialog stands.
    void AttachUnitLabel(int valueControl, int labelControl, unsigned long power,
                         unsigned long dimension) override;
    // All that the controls show.
    virtual void FillFontCheck(CCheck& check);

    MQC_CheckType_e CheckType;
    unsigned Criticality = 1;

private:
    bool OnInitDialog();
    void ShowHiddenControls();
    void DisableHeldTypes();
    void LoadFromStandard();
    void OnApply();
    void OnOK();
    void UpdateApplyButton();
    void FillFontCheckParameters(CCheck& check);
    QAbstractButton* Box(int number) const;
    bool IsToAdd(int box) const;

    std::unique_ptr<FontControls> m_controls; // null where the template is missing
};
