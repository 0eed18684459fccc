// The tabs of a standard's sheet, on a dark band.
#pragma once

#include <QTabBar>

class CTabCtrlInPropertySheet : public QTabBar {
    Q_OBJECT

public:
    explicit CTabCtrlInPropertySheet(QWidget* parent = nullptr);

protected:
    QSize tabSizeHint(int index) const override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QRect PlateOf(int index) const;
    void PaintTab(QPainter& painter, int index) const;
    void SetHovered(int index);

    int m_hovered = -1;
};
