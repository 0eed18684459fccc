// The options page of a standard: its units, and which configuration the checker looks at.
#pragma once

#include "platform/Text.h"
#include "platform/widgets/ControlHost.h"

#include <QWidget>
#include <functional>

class EditingHost;

class CRulewardOptions : public QWidget, public ControlHost {
    Q_OBJECT

public:
    explicit CRulewardOptions(EditingHost& host, QWidget* parent = nullptr);

    // Each time the page comes to the front: shows the units of these names. A unit that is not offered
    // selects nothing and stays in force until another one is chosen; where a name is empty the row decides.
    void OnSetActive(const CString& lengthUnitName, const CString& angleUnitName);

    // The user has chosen another unit: its name and row stand in the fields below.
    std::function<void()> LengthUnitChosen;
    std::function<void()> AngleUnitChosen;

    int RunRWConfigOption = -1; // of the standard; 0 or 1 where the page offers it
    int LengthUnitIndex = -1;   // rows
    int AngleUnitIndex = -1;
    CString LengthUnitName;
    CString AngleUnitName;

    enum : int {
        DefaultConfiguration = 1238,
        DocumentConfiguration = 1239,
        LengthUnits = 1280,
        AngleUnits = 1341
    };

protected:
    void DoDataExchange(DataExchange& exchange) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void OnInitDialog();
    void StyleHeadings();
    void OnConfigurationChosen();
    void OnLengthUnitChosen();
    void OnAngleUnitChosen();
    void ShowConfiguration();

    EditingHost& m_host;
};
