// A small button of three pictures: at rest, pressed, and under the pointer.
#pragma once

#include "platform/Text.h"

#include <QAbstractButton>

class CHoverButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit CHoverButton(QWidget* parent = nullptr);

    // A bitmap of the language library that holds the three pictures side by side. False where there is none.
    bool SetBitmap(unsigned id);
    unsigned Bitmap() const { return m_bitmap; }

    // Also what the button is called for those who do not see it.
    void SetTooltip(const CString& text);

    QSize sizeHint() const override { return m_size; }
    QSize minimumSizeHint() const override { return m_size; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int Part() const;

    unsigned m_bitmap = 0;
    QSize m_size{16, 16}; // of one picture
    bool m_isHovered = false;
};
