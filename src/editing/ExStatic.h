// A text that tells when the pointer is over it, and when it is clicked.
#pragma once

#include <QColor>
#include <QLabel>

class CExStatic : public QLabel {
    Q_OBJECT

public:
    explicit CExStatic(QWidget* parent = nullptr);

    // The colour of the text under the pointer, 0x00BBGGRR.
    void SetHoverColor(unsigned long color);
    bool IsHovered() const { return m_isHovered; }

Q_SIGNALS:
    void HoverChanged(bool isHovered);
    void Clicked();

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void SetHovered(bool isHovered);

    QColor m_hoverColor;
    QColor m_ownColor;
    bool m_isHovered = false;
    bool m_isPressed = false;
};
