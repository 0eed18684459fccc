#include "cli/TextTable.h"

#include "cli/Console.h"

#include <algorithm>

namespace {

constexpr qsizetype Gap = 2;
constexpr qsizetype WidestCell = 40; // that the column is laid out for

CString Padded(const CString& cell, qsizetype width) {
    return cell.leftJustified(std::max(width, cell.size()) + Gap, u' ');
}

} // namespace

CString TextTable::Text() const {
    std::vector<qsizetype> widths;
    for (const CStringArray& row : m_rows)
        for (qsizetype i = 0; i + 1 < row.size(); ++i) {
            if (static_cast<size_t>(i) == widths.size())
                widths.push_back(0);
            if (row[i].size() <= WidestCell)
                widths[static_cast<size_t>(i)] = std::max(widths[static_cast<size_t>(i)], row[i].size());
        }
    CString text;
    for (const CStringArray& row : m_rows) {
        CString line(m_indent, u' ');
        for (qsizetype i = 0; i < row.size(); ++i)
            line += i + 1 < row.size() ? Padded(OneLine(row[i]), widths[static_cast<size_t>(i)])
                                       : OneLine(row[i]);
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + "\n";
    }
    return text;
}
