// What the summary page asks of the document and its editing page.
#pragma once

#include "model/Check.h"

#include <vector>

class SummarySource {
public:
    virtual ~SummarySource() = default;

    // The checks that stand on the editing page, in the order of the catalogue. They belong to the standard.
    virtual std::vector<const CCheck*> ChecksInCatalogueOrder() = 0;
    // Writes the pending edit of the selected pane into the standard.
    virtual void CommitPending() = 0;
    virtual int LengthUnit() const = 0;
    virtual int AngleUnit() const = 0;
    // Brings the pane of a check to the front, opened.
    virtual void ShowCheck(MQC_CheckType_e type) = 0;
};
