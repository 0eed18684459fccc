// The page table: what edits each check of the catalogue on one page.
#pragma once

#include "editing/ExtDialog.h"
#include "model/Catalogue.h"

#include <memory>
#include <unordered_map>
#include <vector>

// One row: a pane and whether its check stands on the page.
class CPDCheckInfo {
public:
    // `dialog` may be null: a check without a pane.
    CPDCheckInfo(const PageCheckRow& row, std::unique_ptr<CExtDialog> dialog);
    virtual ~CPDCheckInfo();

    unsigned GetGroup() const { return Group; }
    unsigned GetPosition() const { return Position; }
    unsigned GetDialogTemplateID() const { return DialogTemplateID; }
    CExtDialog* GetDialog() const { return Dialog.get(); }
    MQC_CheckType_e GetCheckType() const { return CheckType; }
    unsigned GetCommandID() const { return CommandID; }
    bool IsActive() const { return Active != 0; }
    void SetActive(unsigned state) { Active = state; }

private:
    unsigned Group;
    unsigned Position;
    unsigned DialogTemplateID;
    unsigned Active = 0; // 1 while the standard holds such a check and its pane stands on the page
    std::unique_ptr<CExtDialog> Dialog;
    unsigned CommandID;
    MQC_CheckType_e CheckType; // for a check that may stand more than once, the container's
};

class PageTable {
public:
    void Add(const PageCheckRow& row, std::unique_ptr<CExtDialog> dialog);
    CPDCheckInfo* Find(MQC_CheckType_e type) const;                       // null where there is none
    CPDCheckInfo* FindByCommand(unsigned commandID) const;                // null where there is none
    const std::vector<MQC_CheckType_e>& Order() const { return m_order; } // as rows were added

private:
    std::unordered_map<MQC_CheckType_e, std::unique_ptr<CPDCheckInfo>> m_rows;
    std::vector<MQC_CheckType_e> m_order;
};
