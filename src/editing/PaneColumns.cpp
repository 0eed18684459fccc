#include "editing/PaneColumns.h"

#include <QGridLayout>
#include <QWidget>
#include <algorithm>

namespace {

// Label, operator, value, unit, gap, correction, unit, and what is left.
constexpr int NarrowWidths[] = {150, 96, 160, 30, 8, 150, 30, 0};

} // namespace

PaneColumns::PaneColumns(QWidget& body) : m_rows(qobject_cast<QGridLayout*>(body.layout())) {
    if (!m_rows || m_rows->columnCount() != static_cast<int>(std::size(NarrowWidths)))
        m_rows = nullptr;
    if (!m_rows)
        return;
    for (int column = 0; column < m_rows->columnCount(); ++column)
        m_widths.append(m_rows->columnMinimumWidth(column));
    Apply(true);
}

void PaneColumns::Fit(int width) {
    // What a column has beyond its least width may make this a little too much, which does no harm.
    if (m_rows && m_fullWidth == 0)
        m_fullWidth = m_rows->sizeHint().width() + m_widened;
    if (m_rows && m_isNarrow != (width < m_fullWidth))
        Apply(!m_isNarrow);
}

void PaneColumns::Apply(bool isNarrow) {
    m_isNarrow = isNarrow;
    m_widened = 0;
    for (int column = 0; column < m_widths.size(); ++column) {
        const int narrow = std::min(m_widths[column], NarrowWidths[column]);
        m_rows->setColumnMinimumWidth(column, isNarrow ? narrow : m_widths[column]);
        m_widened += m_widths[column] - narrow;
    }
}
