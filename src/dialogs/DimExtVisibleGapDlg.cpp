#include "dialogs/DimExtVisibleGapDlg.h"

#include "editing/ExtRichEditCtrl.h"
#include "editing/ParameterControls.h"
#include "engines/UnitConvertor.h"
#include "platform/LanguageLibrary.h"

namespace {

constexpr int DocumentBox = 1288;

struct GapRow {
    unsigned parameter;
    int field, unit;
    int correction, correctionUnit;
};

constexpr GapRow Gaps[] = {{2293, 1285, 1286, 1297, 1289}, {2294, 1083, 1287, 1298, 1290}};
constexpr CorrectionRow Corrections[] = {{1304, 1690}, {1297, 2293}, {1298, 2294}};

} // namespace

CDrawingDocDimExtVisibleGapDlg::CDrawingDocDimExtVisibleGapDlg(EditingHost& host)
    : CValuePane(host, {1574, 1407, 1759, 1308}, Corrections) {
    CheckType = 314;
}

void CDrawingDocDimExtVisibleGapDlg::PrepareControls() {
    Watch(DocumentBox);
    for (const GapRow& row : Gaps) {
        auto field = std::make_unique<ValueField>(GetDlgItem<CExtRichEditCtrl>(row.field), OpOneOf,
                                                  LoadString(row.parameter));
        connect(field.get(), &ValueField::Changed, this, &CDrawingDocDimExtVisibleGapDlg::OnValue);
        m_gaps.push_back(std::move(field));
        AttachUnitLabel(row.field, row.unit, 0, DimensionLength);
        AttachUnitLabel(row.correction, row.correctionUnit, 0, DimensionLength);
    }
}

void CDrawingDocDimExtVisibleGapDlg::ApplyEnableRules() {
    for (const auto& gap : m_gaps)
        gap->SetEnabled(!IsChecked(DocumentBox));
}

void CDrawingDocDimExtVisibleGapDlg::LoadControls(const CCheck& check) {
    LoadDocumentBox(*this, DocumentBox, check);
    for (size_t i = 0; i < m_gaps.size(); ++i)
        if (const auto* parameter = check.GetDoubleParameter(Gaps[i].parameter))
            m_gaps[i]->Load(parameter->Values);
}

void CDrawingDocDimExtVisibleGapDlg::StoreControls(CCheck& check) const {
    if (StoreDocumentBox(*this, DocumentBox, check))
        return;
    for (size_t i = 0; i < m_gaps.size(); ++i) {
        auto* parameter = check.GetDoubleParameter(Gaps[i].parameter);
        if (!parameter)
            continue;
        m_gaps[i]->Store(Emptied(*parameter).Values);
        parameter->Operator = OpEqual;
    }
}
