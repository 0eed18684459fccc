// The columns of a pane's rows: as wide as its template says where there is room, else narrower, so that a
// pane fits beside the catalogue in the smallest window of the tool.
#pragma once

#include <QList>
#include <QPointer>

class QGridLayout;
class QWidget;

class PaneColumns {
public:
    // Begins narrow. A pane whose template has no such columns is left as it is.
    explicit PaneColumns(QWidget& body);

    // Chooses the columns for a body so many pixels wide.
    void Fit(int width);

private:
    void Apply(bool isNarrow);

    QPointer<QGridLayout> m_rows; // null where there are no columns
    QList<int> m_widths;          // the template's
    int m_widened = 0;            // by how much they are wider than the narrow ones, in all
    int m_fullWidth = 0;          // of the whole layout with these; 0 until it is asked
    bool m_isNarrow = false;
};
