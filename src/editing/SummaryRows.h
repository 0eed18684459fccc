// What the summary page lists of a standard: one row for each parameter in force, and one for a check
// without any.
#pragma once

#include "model/CheckWording.h"

#include <QHash>
#include <array>
#include <functional>
#include <vector>

struct SummaryCell {
    enum Form { Text, Picture, Color };

    Form form = Text;
    CString text;        // of a picture or colour what a screen reader says
    unsigned number = 0; // of a picture its bitmap, of a colour 0x00BBGGRR
};

struct SummaryRow {
    CString name; // of the check
    CString parameter;
    SummaryCell value;
    SummaryCell correction;
    CString criticality;
    unsigned icon = 0;
    bool showsCodes = false; // a row of pictures or colours has a height of its own
};

// Rows count from 1.
struct SummaryRange {
    int first;
    int rows;
};

class SummaryRows {
public:
    // Units are those of the standard.
    SummaryRows(int lengthUnit, int angleUnit) : m_lengthUnit(lengthUnit), m_angleUnit(angleUnit) {}

    void AddCheck(const CCheck& check);

    std::vector<SummaryRow> Rows;
    std::vector<SummaryRange> Checks;        // the rows of each check
    std::vector<SummaryRange> Criticalities; // the rows over which one criticality stands
    // Of two checks with the same name the later one is kept.
    QHash<CString, MQC_CheckType_e> NameToType;

private:
    void AddRow(const CCheck& check, const CheckRow& row);
    void AddEmptyRow(const CCheck& check);
    void MarkChildren(const std::vector<CheckRow>& rows, int first);

    int m_lengthUnit;
    int m_angleUnit;
};

// Heights of rows in twips.
constexpr int HeaderRowHeight = 300;
constexpr int PlainRowHeight = 350;

// The height that a text asks of its row: one line, or as many as it has when it is wrapped at the width of
// the correction column, in twips. That column counts for every text, in whichever column it stands.
int RowHeightFor(int textPixels, int correctionWidth, int dpi);

using MeasureText = std::function<int(const CString& text)>; // in pixels

// What the height of a row depends on, besides the width of that column.
struct RowExtent {
    std::array<int, 4> textPixels{}; // name, parameter, value, correction
    bool showsCodes = false;
};

RowExtent MeasureRow(const SummaryRow& row, const MeasureText& measure);

// The greatest of the heights that the four texts ask for.
int RowHeightFor(const RowExtent& row, int correctionWidth, int dpi);
