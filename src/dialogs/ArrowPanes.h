// The panes of the arrowhead checks. Arrowheads are chosen among eleven pictures; those of dimensions and
// annotations may be left to the document.
#pragma once

#include "dialogs/ParameterCheckDlg.h"
#include "editing/BoxGroup.h"
#include "editing/ComparisonPair.h"

#include <memory>
#include <span>
#include <vector>

// What a pane sets, by the numbers of its controls.
struct ArrowTable {
    struct Size { // a length in the unit of the document
        unsigned parameter;
        int comparison, value, unit;
        int correction, correctionUnit;
    };
    struct DocumentBox { // leaves something to the document
        unsigned parameter;
        int box;
        int correction;
    };
    struct Group { // the values that are allowed
        unsigned parameter;
        int parameterType;
        std::span<const int> boxes;
        int correction;
        int documentBox; // has no say while this one is ticked; 0: always has
    };

    unsigned templateID;
    unsigned iconID;
    unsigned captionStringID;
    unsigned helpTopic;
    std::span<const Size> sizes;
    std::span<const DocumentBox> documentBoxes;
    std::span<const Group> groups;
};

class CArrowPane : public CParameterCheckDlg {
    Q_OBJECT

public:
    // The table outlives the pane.
    CArrowPane(EditingHost& host, const ArrowTable& table);
    ~CArrowPane() override;

    void FillCheckParameters(CCheck& check) override;
    void LoadCheck(const CCheck& check) override;
    void CreateCorrectionControls() override;
    void NormalizeZeroValues() override;

protected:
    bool OnInitDialog() override;
    unsigned HelpTopic() const override { return m_table.helpTopic; }

private:
    void MakeSizes();
    void MakeGroups();
    void OnBoxClicked();
    void ApplyEnableRules();
    Qt::CheckState StateOf(int documentBox) const;

    const ArrowTable& m_table;
    std::vector<std::unique_ptr<ComparisonPair>> m_sizes; // each at the place of its row in the table
    std::vector<BoxGroup> m_groups;                       // likewise
};

class CDocArrowCheckDlg : public CArrowPane {
    Q_OBJECT

public:
    explicit CDocArrowCheckDlg(EditingHost& host);
};

class CDimArrowCheckDlg : public CArrowPane {
    Q_OBJECT

public:
    explicit CDimArrowCheckDlg(EditingHost& host);
};

class CAnntArrowCheckDlg : public CArrowPane {
    Q_OBJECT

public:
    explicit CAnntArrowCheckDlg(EditingHost& host);
};
