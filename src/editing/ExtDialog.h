// The base of every pane: the form that stands for one check on the page of checks. It has a caption of its
// own drawing with buttons to collapse it, to ask for help and to take the check away, and it has no OK: each
// change in a control writes a whole new check into the standard at once.
#pragma once

#include "editing/EditingHost.h"
#include "platform/widgets/ControlHost.h"

#include <QWidget>
#include <map>
#include <memory>
#include <optional>

class CMyStatic;
class PaneCaption;
class PaneColumns;
class QComboBox;
class QLabel;
class QLineEdit;

// What a pane and the pop-up of the font checks share: corrections by the ID of their parameter. A control of
// a correction stands in the template at its place, as a CMyStatic.
class CACInfoManagerDlg : public ControlHost {
public:
    // `host` gives the standard in which earlier corrections are looked up.
    CACInfoManagerDlg(QWidget& window, EditingHost& host) : ControlHost(window), m_host(host) {}

    virtual void OnParameterChanged() {}
    virtual void CommitCheck() {}
    // Makes a value box and the label of its unit follow the document's units, and shows the unit. The value
    // box may be the control of a correction.
    virtual void AttachUnitLabel(int valueControl, int labelControl, unsigned long power,
                                 unsigned long dimension) = 0;

    const std::map<unsigned, CMyStatic*>& GetCorrectionControls() const { return CorrectionControls; }

    // For boxes with a number that must lie below a bound: under "<" what is not above zero becomes 1.
    void GuardLessThanBound(int operatorCombo, int valueControl);

protected:
    EditingHost& GetHost() const { return m_host; }

    // Makes the template's control of that number show the correction of a parameter. `mode` is an entry
    // style. A number without such a control is left out.
    void BindCorrectionControl(int templateControlID, unsigned parameterID, int mode, int extra);
    // All controls from a check, which they then show.
    void LoadCorrectionControls(const CCheck& check);
    // All controls after a change of the requirements in `scratch`, which holds no corrections yet.
    void RefreshCorrectionControls(CCheck& scratch);
    void RefreshCorrectionControl(CCheck& scratch, unsigned parameterID, CMyStatic& control);
    // What all controls show, into a check.
    void StoreCorrections(CCheck& check);

    std::map<unsigned, CMyStatic*> CorrectionControls; // the window owns them

private:
    EditingHost& m_host;
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
    void UpdateExpandState(); // of the button, after a change of `Expanded`
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

    // Numbers of controls that every pane has.
    enum : int {
        CaptionControl = 10000,
        CloseControl,
        HelpControl,
        ExpandControl,
        CriticalityControl = 1249
    };

protected:
    // What a subclass adds to the new window: its lists, filters and wiring. False stops the making.
    virtual bool OnInitDialog() { return true; }
    virtual unsigned HelpTopic() const { return 0; } // 0: none
    // The user chose another criticality, which stands in `Criticality` already.
    virtual void OnCriticalityChosen() { OnCriticalityChanged(); }

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    CExtDialog(EditingHost& host, unsigned templateID, unsigned iconID, unsigned captionStringID,
               QWidget& body);

    void FillCriticalityCombo();
    void WatchClicks(QWidget& window);
    void OnPress(const QMouseEvent& press, bool hasOwnMenu);
    void SelectByKeyboard();

    QWidget& m_body; // holds the template's controls, below the caption
    std::unique_ptr<PaneCaption> m_caption;
    std::unique_ptr<PaneColumns> m_columns; // null until the template is loaded
    QSize m_fullSize;                       // with the caption
    unsigned m_templateID;
    std::optional<quint64> m_lastPress; // the time of a press that is not released yet
};
