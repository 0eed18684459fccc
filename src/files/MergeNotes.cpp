#include "files/MergeNotes.h"

#include "platform/LanguageLibrary.h"

namespace {

constexpr qsizetype LongestPath = 53;
constexpr qsizetype KeptAtEachEnd = 25;
constexpr unsigned ReportHeading = 2402;

} // namespace

CString MergeWarning::Words() const {
    const CString words = LoadString(text);
    return words.contains("%1") ? words.arg(insert) : words;
}

CString ShortenSourcePath(const CString& path) {
    if (path.size() <= LongestPath)
        return path;
    return path.left(KeptAtEachEnd) + "..." + path.right(KeptAtEachEnd);
}

void MergeNotes::Replaced(const CString& check, const CString& source) {
    // A line break in a name would make it look like two entries.
    const CString line =
        CString(check).replace('\n', ' ').replace('\r', ' ') + "  --  " + ShortenSourcePath(source);
    const auto known = m_lineOf.constFind(check);
    if (known != m_lineOf.constEnd()) {
        m_lines[*known] = line;
        return;
    }
    m_lineOf.insert(check, m_lines.size());
    m_lines.append(line);
}

CStringArray MergeNotes::Report() const {
    return m_lines.isEmpty() ? CStringArray() : CStringArray(LoadString(ReportHeading)) + m_lines;
}
