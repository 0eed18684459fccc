#include "model/CheckWording.h"

#include "engines/PathServices.h"
#include "model/CheckTypes.h"
#include "model/Standard.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr MQC_CheckType_e DraftingStandard = 101;
constexpr MQC_CheckType_e CustomChecks = 122;
constexpr MQC_CheckType_e FileLocations = 127;

bool HasRows(MQC_CheckType_e type) {
    constexpr MQC_CheckType_e Types[] = {101, 102, 108, 109, 110, 111, 112, 113, 114, 115, 116,
                                         117, 119, 120, 123, 201, 202, 302, 312, 314, 402, 403,
                                         405, 407, 408, 409, 501, 503, 601, 603, 604, 607, 608};
    return FindContainerType(type) || std::binary_search(std::begin(Types), std::end(Types), type);
}

class Wording {
public:
    Wording(int lengthUnit, int angleUnit) : m_lengthUnit(lengthUnit), m_angleUnit(angleUnit) {}

    std::vector<CheckRow> rows;

    void AddParameterRow(const CParameterEntry& entry, unsigned criticality, int child) {
        ParameterRow row = WordParameter(entry, m_lengthUnit, m_angleUnit);
        if (row.form != ParameterRow::None)
            rows.push_back({std::move(row), criticality, child});
    }

    // The parameters without an ID only carry what others mean.
    void AddCheckRows(const CCheck& check, unsigned criticality, int child) {
        for (const CParameterEntry* entry : check.Parameters)
            if (entry->ID != 0)
                AddParameterRow(*entry, criticality, child);
    }

    void AddContainerRows(const CCheck& container) {
        for (int i = 0; i < container.Children.Count; ++i) {
            const CCheck& child = *container.Children[i];
            if (container.Type == FileLocations)
                AddFileLocationRow(child, container.Criticality, i);
            else
                AddCheckRows(child,
                             container.Type == CustomChecks ? child.Criticality : container.Criticality, i);
        }
        if (container.Type == FileLocations)
            AddParameterRow(*container.Parameters[0], container.Criticality, -1);
        else
            AddCheckRows(container, container.Criticality, -1);
    }

private:
    // One row for a kind of file and its folders.
    void AddFileLocationRow(const CCheck& child, unsigned criticality, int index) {
        const ParameterRow kind = WordParameter(*child.Parameters[0], m_lengthUnit, m_angleUnit);
        const ParameterRow folders = WordParameter(*child.Parameters[1], m_lengthUnit, m_angleUnit);
        ParameterRow row;
        row.form = ParameterRow::Text;
        row.parameter = kind.value;
        row.correction = kind.correction;
        const QStringList paths = folders.value.split(u',', Qt::SkipEmptyParts);
        for (CString path : paths) {
            CPathParts parts;
            ShortenPathForDisplay(parts, path);
            row.value += path;
        }
        rows.push_back({row, criticality, index});
    }

    int m_lengthUnit;
    int m_angleUnit;
};

constexpr unsigned DraftingChoices = 1578;

// A copy with the texts of its choices.
std::unique_ptr<CCheck> DisplayCopy(const CCheck& check) {
    auto copy = CStandard::CloneCheck(check);
    copy->ConvertChoicesToText();
    return copy;
}

void AdaptToPage(CCheck& copy, const CCheck& original) {
    CParameter<CString*>* texts = copy.GetStringParameter(DraftingChoices);
    const CParameter<long>* codes = original.GetLongParameter(DraftingChoices);
    if (!texts || !codes)
        return;
    if (texts->Values.Count == 0)
        texts->Operator = OpNone;
    texts->CorrectionKind = codes->CorrectionKind;
}

std::vector<CheckRow> Word(const CCheck& check, int lengthUnit, int angleUnit, bool isForPage) {
    Wording wording(lengthUnit, angleUnit);
    if (FindContainerType(check.Type)) {
        wording.AddContainerRows(check);
    } else if (check.Type == DraftingStandard) {
        const auto copy = DisplayCopy(check);
        if (isForPage)
            AdaptToPage(*copy, check);
        wording.AddCheckRows(*copy, check.Criticality, -1);
    } else if (HasRows(check.Type)) {
        wording.AddCheckRows(check, check.Criticality, -1);
    }
    return std::move(wording.rows);
}

} // namespace

std::vector<CheckRow> WordCheck(const CCheck& check, int lengthUnit, int angleUnit) {
    return Word(check, lengthUnit, angleUnit, false);
}

std::vector<CheckRow> WordCheckOfPage(const CCheck& check, int lengthUnit, int angleUnit) {
    return Word(check, lengthUnit, angleUnit, true);
}
