// A group of controls under a quiet heading, with a line that runs on from it.
#pragma once

#include <QColor>
#include <QGroupBox>

class CGroupBoxExt : public QGroupBox {
    Q_OBJECT

public:
    explicit CGroupBoxExt(QWidget* parent = nullptr);

    // Colours are 0x00BBGGRR.
    void SetLineColor(unsigned long color);
    void SetLightColor(unsigned long color);
    void SetTextColor(unsigned long color);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_line;  // the line
    QColor m_light; // the line's lower edge
    QColor m_text;
};
