// How far the page of checks is scrolled. Pixels throughout; width and x go to the side, height and y down.
#pragma once

#include <QPoint>
#include <QSize>

class QAbstractScrollArea;
class QWheelEvent;

class CPageScroller {
public:
    explicit CPageScroller(QAbstractScrollArea& window) : Window(&window) {}

    // What there is to see. A position beyond the new end moves back to it.
    void SetDisplaySize(QSize size);
    // What is seen at once. The thumbs keep their proportion; where all is seen the position is 0.
    void SetPageSize(QSize size);
    // Each position stays between 0 and the end.
    void ScrollTo(int y);
    void Turn(const QWheelEvent& event);
    bool HasVerticalRange() const { return DisplaySize.height() > PageSize.height(); }

    static constexpr int Line = 10;

    QAbstractScrollArea* Window; // not owned; its scroll bars show what stands here
    QSize PageSize;
    QSize DisplaySize;
    QPoint ScrollPos;

private:
    void ShowInBars(QPoint position);
};

// How far a turn of the wheel by `delta` (120 is one notch) scrolls, where a notch is worth `lines` lines, or
// a whole page of so many pixels where `lines` is -1. Negative towards the start.
int WheelDistance(int delta, int lines, int page);
