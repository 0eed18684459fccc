// The panes of the font checks. They edit the same parameters in the same controls; those of dimensions and
// annotations may leave the font to the document.
#pragma once

#include "dialogs/FontControls.h"
#include "dialogs/ParameterCheckDlg.h"

#include <memory>
#include <span>

// What differs between the font checks of a document.
struct DocumentFontCheck {
    MQC_CheckType_e type;
    unsigned iconID;
    unsigned captionStringID;
    unsigned helpTopic;
    int box; // its number in the dialog that adds several of them
};

// In the order of their boxes.
std::span<const DocumentFontCheck> DocumentFontChecks();

class CFontPane : public CParameterCheckDlg {
    Q_OBJECT

public:
    CFontPane(EditingHost& host, unsigned templateID, unsigned iconID, unsigned captionStringID,
              unsigned helpTopic);
    ~CFontPane() override;

    void FillCheckParameters(CCheck& check) override;
    void LoadCheck(const CCheck& check) override;
    void CreateCorrectionControls() override;

protected:
    bool OnInitDialog() override;
    unsigned HelpTopic() const override { return m_helpTopic; }

private:
    unsigned m_helpTopic;
    std::unique_ptr<FontControls> m_controls;
};

class CDocFontCheckDlg : public CFontPane {
    Q_OBJECT

public:
    // A type that is none of the document's fonts looks as the first of them.
    CDocFontCheckDlg(EditingHost& host, MQC_CheckType_e type);

private:
    CDocFontCheckDlg(EditingHost& host, MQC_CheckType_e type, const DocumentFontCheck& numbers);
};

class CDimFontDlg : public CFontPane {
    Q_OBJECT

public:
    explicit CDimFontDlg(EditingHost& host) : CFontPane(host, 130, 1161, 1699, 1203) {}
};

class CAnntFontDlg : public CFontPane {
    Q_OBJECT

public:
    explicit CAnntFontDlg(EditingHost& host) : CFontPane(host, 1542, 1159, 1715, 1102) {}
};
