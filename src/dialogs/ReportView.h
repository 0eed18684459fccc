// A report on a sheet of paper that scrolls and is shown larger or smaller.
#pragma once

#include "dialogs/LaidOutReport.h"

#include <QAbstractScrollArea>

class ReportView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit ReportView(std::unique_ptr<LaidOutReport> report, QWidget* parent = nullptr);

    const LaidOutReport& Report() const { return *m_report; }

    // 1 is the size at first. What is in the middle of the window stays there.
    void SetScale(qreal scale);
    qreal Scale() const { return m_scale; }

    // Room for the paper at its first size.
    QSize sizeHint() const override;

Q_SIGNALS:
    // The wheel was turned with the control key held: 1 for larger, -1 for smaller.
    void ZoomTurned(int step);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QSizeF PaperSize() const { return m_report->Size() * m_scale; }
    QPointF PaperCorner() const; // in the viewport
    void UpdateBars();

    std::unique_ptr<LaidOutReport> m_report;
    qreal m_scale = 1;
};
