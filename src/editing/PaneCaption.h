// The caption of a pane: its ground, its picture and text, and the buttons to collapse the pane, to ask for
// help and to take its check away.
#pragma once

#include "platform/Text.h"

#include <QColor>
#include <QRect>

class CExStatic;
class CExtDialog;
class CHoverButton;
class QPainter;

class PaneCaption {
public:
    explicit PaneCaption(CExtDialog& pane); // the pane owns buttons and text

    void Place(); // at the pane's width; hidden where the pane has no height
    void Paint(QPainter& painter) const;
    void UpdateText();
    void UpdateExpandState();
    bool IsOnIcon(QPoint place) const; // a point of the pane

    // The ground of the pane, by whether it is selected.
    static QRgb GroundOf(const CExtDialog& pane);

private:
    CHoverButton* MakeButton(int number, unsigned bitmap, const CString& tooltip);
    QRect Area() const;

    CExtDialog& m_pane;
    CHoverButton* m_close;
    CHoverButton* m_help;
    CHoverButton* m_expand;
    CExStatic* m_text;
    bool m_isHovered = false;
};
