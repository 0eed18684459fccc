// A box of choices, with or without pictures, that stays as it is under a wheel meant for the page.
#pragma once

#include "platform/Text.h"

#include <QComboBox>

class CComboBoxExt : public QComboBox {
    Q_OBJECT

public:
    explicit CComboBoxExt(QWidget* parent = nullptr);

    // Appends a row. A picture is drawn from the bitmap of that number; 0 is none.
    void AddRow(const CString& text, unsigned bitmap = 0);

    void showPopup() override;

    // The popup grows to its longest row, up to this share of the screen.
    static constexpr double WidestPopup = 0.6;

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void ShowTooltip();
    int PopupWidth() const;
};
