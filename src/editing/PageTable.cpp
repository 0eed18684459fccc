#include "editing/PageTable.h"

#include <utility>

CPDCheckInfo::CPDCheckInfo(const PageCheckRow& row, std::unique_ptr<CExtDialog> dialog)
    : Group(row.group), Position(row.position), DialogTemplateID(row.dialogTemplateID),
      Dialog(std::move(dialog)), CommandID(row.commandID), CheckType(row.type) {}

CPDCheckInfo::~CPDCheckInfo() = default;

void PageTable::Add(const PageCheckRow& row, std::unique_ptr<CExtDialog> dialog) {
    m_rows[row.type] = std::make_unique<CPDCheckInfo>(row, std::move(dialog));
    m_order.push_back(row.type);
}

CPDCheckInfo* PageTable::Find(MQC_CheckType_e type) const {
    const auto row = m_rows.find(type);
    return row == m_rows.end() ? nullptr : row->second.get();
}

CPDCheckInfo* PageTable::FindByCommand(unsigned commandID) const {
    for (const auto& [type, row] : m_rows)
        if (row->GetCommandID() == commandID)
            return row.get();
    return nullptr;
}
