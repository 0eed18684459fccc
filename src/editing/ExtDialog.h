// The base of every pane: the form that stands for one check on the page of checks. It has a caption of its
// own drawing with buttons to collapse it, to ask for help and to take the check away, and it has no OK: each
// change in a control writes a whole new check into the standard at once.
#pragma once

#include "editing/EditingHost.h"
#include "platform/widgets/ControlHost.h"

#include <QWidget>
#include <map>

class CHoverButton;
class CMyStatic;
class QComboBox;

// What a pane and the pop-up of the font checks share: corrections by the ID of their parameter.
class CACInfoManagerDlg : public ControlHost {
public:
    using ControlHost::ControlHost;

    virtual void OnParameterChanged() {}
    virtual void CommitCheck() {}
    // Makes a value box and the label of its unit follow the document's units, and shows the unit.
    virtual void AttachUnitLabel(int valueControl, int labelControl, unsigned long power,
                                 unsigned long dimension) = 0;

protected:
    std::map<unsigned, CMyStatic*> CorrectionControls; // the window owns them
};

class CExtDialog : public QWidget, public CACInfoManagerDlg {
    Q_OBJECT

public:
    // States of a pane on the page.
    enum : int { Hidden = 0, Collapsed = 1, ShownWhole = 2 };

    CExtDialog(EditingHost& host, unsigned templateID, unsigned iconID, unsigned captionStringID);
    ~CExtDialog() override;

    // Makes the window: the template's controls, caption and buttons. False where the template is missing.
    bool Create(QWidget* parent);
    bool HasWindow() const { return LogicalSize >= 0; }

    // The protocol between page and pane.
    void AttachUnitLabel(int valueControl, int labelControl, unsigned long power,
                         unsigned long dimension) override;
    virtual void FillCheck(CCheck& check);           // all that the controls show, corrections too
    virtual void FillCheckParameters(CCheck& check); // operators and values only
    virtual void LoadCheck(const CCheck& check);
    virtual void OnTreeItemChanged() {}
    virtual void OnCriticalityChanged() {}
    virtual void CreateCorrectionControls() {}
    virtual void NormalizeZeroValues() {}

    int GetDisplayHeight() const; // pixels, by DisplayState
    int GetTemplateWidth() const; // pixels
    void SetSelected(bool isSelected);
    void ToggleExpand();
    void ClosePane();
    void ShowHelpTopic(); // the help of this pane

    // Fields that page and pane share.
    MQC_CheckType_e CheckType = -1; // set whenever the page hands the pane out
    unsigned Criticality = 1;       // the row of the combo box
    int DisplayState = Hidden;
    bool Selected = false;
    unsigned IconID;
    CString Caption;
    int LogicalSize = -1; // size in positions, -1 until the window is made
    int Position = 0;     // the key in the page's maps
    int Top = 0;          // pixels, in the stack
    bool Expanded = true;

protected:
    // What a subclass adds to the new window: its lists, filters and wiring. False stops the making.
    virtual bool OnInitDialog() { return true; }
    virtual unsigned HelpTopic() const { return 0; } // 0: none

    EditingHost& GetHost() const { return m_host; }

private:
    EditingHost& m_host;
    unsigned m_templateID;
    unsigned m_captionStringID;
};
