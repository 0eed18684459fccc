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
    m_fullWidth = m_rows->sizeHint().width();
    Apply(true);
}

void PaneColumns::Fit(int width) {
    if (m_rows && m_isNarrow != (width < m_fullWidth))
        Apply(!m_isNarrow);
}

void PaneColumns::Apply(bool isNarrow) {
    m_isNarrow = isNarrow;
    for (int column = 0; column < m_widths.size(); ++column)
        m_rows->setColumnMinimumWidth(column, isNarrow ? std::min(m_widths[column], NarrowWidths[column])
                                                       : m_widths[column]);
}
