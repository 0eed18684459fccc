// The summary page: a read-only grid of what a standard asks for, built anew on every showing.
#pragma once

#include "editing/AdminGridClass.h"
#include "editing/SummaryRows.h"
#include "editing/SummarySource.h"

#include <QWidget>

class CPageSheet : public QWidget {
public:
    explicit CPageSheet(QWidget* parent = nullptr);
    ~CPageSheet() override;

    // Fills the grid. A click on a row is told to `source`, which must outlive the page or its next showing.
    void OnSetActive(SummarySource& source);

    CAdminGridClass* Grid; // child 1005
    int LastRow = 0;       // 0 when the grid holds only its header
    QHash<CString, MQC_CheckType_e> NameToType;
    unsigned BackColor = CGridClass::PageColor;
    QFont Font;

private:
    void SetUpHeader();
    void SetColumnWidths();
    void SetRowHeights();
    void FillRow(int row, const SummaryRow& from);
    void FillCell(int row, int col, const SummaryCell& from);
    void Cover(const SummaryRows& summary);
    void OnRowChosen(int row);
    void Measure(const std::vector<SummaryRow>& rows);

    SummarySource* m_source = nullptr;
    std::vector<RowExtent> m_extents; // of the rows shown, for their heights at another width
};
