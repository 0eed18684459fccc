#include "platform/widgets/NameFilters.h"

CStringArray NameFiltersOf(const CString& text) {
    CStringArray filters;
    const CStringArray parts = text.split('|', Qt::SkipEmptyParts);
    for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
        // The name tells its patterns already, and the dialog would show them a second time.
        const CString name = parts[at].section(" (", 0, 0);
        filters.append(name + " (" + CString(parts[at + 1]).replace(';', ' ') + ")");
    }
    return filters;
}
