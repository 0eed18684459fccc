// The summary grid: read-only, its first column behaves like a link.
#pragma once

#include "editing/GridClass.h"

#include <QCursor>

class CAdminGridClass : public CGridClass {
public:
    explicit CAdminGridClass(QWidget* parent = nullptr);

    // A click on a row, or Enter or Space on it.
    std::function<void(int row)> RowChosen;

    CAdminControlManager Controls;
    int HoverRow = 0; // the row whose name is shown as a link, 0 for none

protected:
    const CGXStatic* FindControl(unsigned id) const override;
    QRect ContentRect(const QRect& rect, int row, int col) const override;
    void scrollContentsBy(int dx, int dy) override;
    bool EndsGroup(int row, int col) const override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    int OnHover(QPoint place, bool drag);
    void EndHover();

    QCursor m_hand;
};
