// The panes of the checks whose values are chosen among pictures.
#pragma once

#include "dialogs/ValuePane.h"
#include "editing/BoxGroup.h"

#include <vector>

// The boxes of one parameter, in the order in which their values are written.
struct PictureRow {
    unsigned parameter;
    int kind; // the value list that has the pictures
    std::span<const ValueBox> boxes;
};

class CPicturePane : public CValuePane {
    Q_OBJECT

protected:
    // The tables outlive the pane.
    CPicturePane(EditingHost& host, const PaneNumbers& numbers, std::span<const CorrectionRow> corrections,
                 std::span<const PictureRow> rows)
        : CValuePane(host, numbers, corrections), m_rows(rows) {}

    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    void StoreControls(CCheck& check) const override;

private:
    std::span<const PictureRow> m_rows;
    std::vector<BoxGroup> m_groups;
};

class CDimTextAlignmentDlg : public CPicturePane {
    Q_OBJECT

public:
    explicit CDimTextAlignmentDlg(EditingHost& host);
};

class CVirtualSharpCheckDlg : public CPicturePane {
    Q_OBJECT

public:
    explicit CVirtualSharpCheckDlg(EditingHost& host);
};

class CDrawingDocDisplayModeDlg : public CPicturePane {
    Q_OBJECT

public:
    explicit CDrawingDocDisplayModeDlg(EditingHost& host);

    void OnCriticalityChanged() override {}

protected:
    void OnCriticalityChosen() override { CommitCheck(); }
};
