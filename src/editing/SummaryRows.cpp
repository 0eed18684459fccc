#include "editing/SummaryRows.h"

#include "engines/EnumEngine.h"
#include "platform/LanguageLibrary.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr MQC_CheckType_e CustomChecks = 122;
constexpr unsigned ValuesText = 1940; // stands behind a count
constexpr int LineHeight = 215;
constexpr double MostLines = 100'000; // a row must stay within what a view can hold

CString ColorName(unsigned long color) {
    return CString("#%1%2%3")
        .arg(color & 0xFF, 2, 16, QChar(u'0'))
        .arg(color >> 8 & 0xFF, 2, 16, QChar(u'0'))
        .arg(color >> 16 & 0xFF, 2, 16, QChar(u'0'));
}

SummaryCell CellOfCode(const ParameterRow& row, unsigned long code) {
    if (row.form == ParameterRow::Colors)
        return {SummaryCell::Color, ColorName(code), static_cast<unsigned>(code & 0xFFFFFF)};
    const CEnumEngine engine;
    SummaryCell cell{SummaryCell::Picture, {}, 0};
    engine.GetDisplayString(static_cast<int>(row.parameterType), code, cell.text);
    unsigned long bitmap = 0;
    engine.GetItemID(static_cast<int>(row.parameterType), code, bitmap);
    cell.number = static_cast<unsigned>(bitmap);
    return cell;
}

// Only a single picture or colour is shown; of several the count.
SummaryCell CellOfCodes(const ParameterRow& row) {
    if (row.codes.size() == 1)
        return CellOfCode(row, row.codes[0]);
    if (row.codes.empty())
        return {};
    return {SummaryCell::Text, CString::number(row.codes.size()) + " " + LoadString(ValuesText), 0};
}

SummaryRow BaseRow(const CCheck& check, unsigned criticality) {
    SummaryRow row;
    row.name = check.Name;
    unsigned long icon = 0;
    GetCriticalityIcon(criticality, row.criticality, icon);
    row.icon = static_cast<unsigned>(icon);
    return row;
}

} // namespace

void SummaryRows::AddRow(const CCheck& check, const CheckRow& worded) {
    const ParameterRow& parameter = worded.parameter;
    SummaryRow row = BaseRow(check, worded.criticality);
    row.parameter = parameter.parameter;
    row.showsCodes = parameter.form != ParameterRow::Text;
    if (row.showsCodes) {
        row.value = CellOfCodes(parameter);
        row.correction.text = NothingToSay;
        if (parameter.hasCorrectionCode)
            row.correction = CellOfCode(parameter, parameter.correctionCode);
    } else {
        row.value.text = parameter.value;
        row.correction.text = parameter.correction;
    }
    Rows.push_back(std::move(row));
}

void SummaryRows::AddEmptyRow(const CCheck& check) {
    SummaryRow row = BaseRow(check, check.Criticality);
    row.parameter = row.value.text = row.correction.text = NothingToSay;
    Rows.push_back(std::move(row));
}

// One range for the rows of each entry. What the container says itself stands by itself.
void SummaryRows::MarkChildren(const std::vector<CheckRow>& rows, int first) {
    for (size_t i = 0; i < rows.size(); ++i) {
        const bool goesOn = i > 0 && rows[i].child >= 0 && rows[i].child == rows[i - 1].child;
        if (goesOn)
            ++Criticalities.back().rows;
        else
            Criticalities.push_back({first + static_cast<int>(i), 1});
    }
}

void SummaryRows::AddCheck(const CCheck& check) {
    NameToType[check.Name] = check.Type;
    const int first = static_cast<int>(Rows.size()) + 1;
    const std::vector<CheckRow> worded = WordCheckOfPage(check, m_lengthUnit, m_angleUnit);
    for (const CheckRow& row : worded)
        AddRow(check, row);
    if (worded.empty())
        AddEmptyRow(check);
    const int rows = static_cast<int>(Rows.size()) + 1 - first;
    Checks.push_back({first, rows});
    if (check.Type == CustomChecks && !worded.empty())
        MarkChildren(worded, first);
    else
        Criticalities.push_back({first, rows});
}

int RowHeightFor(int textPixels, int correctionWidth, int dpi) {
    const float width = static_cast<float>(correctionWidth * dpi / 1440.0);
    if (width <= 0)
        return PlainRowHeight;
    const float lines = static_cast<float>(textPixels) / width;
    if (lines < 1.0f)
        return PlainRowHeight;
    return static_cast<int>(std::min(std::ceil(static_cast<double>(lines)), MostLines) * LineHeight);
}

RowExtent MeasureRow(const SummaryRow& row, const MeasureText& measure) {
    return {
        {measure(row.name), measure(row.parameter), measure(row.value.text), measure(row.correction.text)},
        row.showsCodes};
}

int RowHeightFor(const RowExtent& row, int correctionWidth, int dpi) {
    if (row.showsCodes)
        return PlainRowHeight;
    int height = 0;
    for (const int pixels : row.textPixels)
        height = std::max(height, RowHeightFor(pixels, correctionWidth, dpi));
    return height;
}
