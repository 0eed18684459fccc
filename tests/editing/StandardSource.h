// A standard as the summary page sees it, without the editing page.
#pragma once

#include "editing/SummarySource.h"
#include "model/Catalogue.h"
#include "model/Standard.h"

#include <functional>

class StandardSource : public SummarySource {
public:
    std::vector<const CCheck*> ChecksInCatalogueOrder() override {
        std::vector<const CCheck*> checks;
        for (const PageCheckRow& row : PageChecks()) {
            CCheck* check = nullptr;
            standard.FindLiveByType(row.type, check);
            if (check)
                checks.push_back(check);
        }
        return checks;
    }
    void CommitPending() override {
        if (pending)
            pending();
    }
    int LengthUnit() const override { return standard.Unit; }
    int AngleUnit() const override { return standard.AngularUnit; }
    void ShowCheck(MQC_CheckType_e type) override { shown.push_back(type); }

    CCheck& Add(MQC_CheckType_e type) {
        auto check = CStandard::MakeCheck(type);
        CCheck& added = *check;
        unsigned sequence = 0;
        standard.InsertCheck(std::move(check), sequence);
        return added;
    }

    CStandard standard;
    std::function<void()> pending;
    std::vector<MQC_CheckType_e> shown;
};
