// Rows of text in aligned columns. A long cell shifts its own row only: it does not widen the column.
#pragma once

#include "platform/Text.h"

#include <vector>

class TextTable {
public:
    explicit TextTable(int indent = 0) : m_indent(indent) {}

    void Add(const CStringArray& cells) { m_rows.push_back(cells); }
    void AddBlank() { m_rows.emplace_back(); }
    // Every line ends in a line break and in no blank; the last cell of a row is never padded.
    CString Text() const;

private:
    int m_indent;
    std::vector<CStringArray> m_rows;
};
