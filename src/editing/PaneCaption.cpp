#include "editing/PaneCaption.h"

#include "editing/ExStatic.h"
#include "editing/ExtDialog.h"
#include "editing/HoverButton.h"
#include "platform/LanguageLibrary.h"
#include "platform/widgets/Look.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <cstdint>

namespace {

constexpr int ButtonSize = 16;
constexpr int EdgeGap = 5;   // between the close button and the edge
constexpr int HelpGap = 1;   // between the help and the close button
constexpr int ExpandGap = 2; // between the expand and the help button
constexpr int TextStart = 5 + ButtonSize;
constexpr QRect Icon(2, 2, 16, 16);
constexpr QRect IconStatic(5, 3, 16, 16); // where a click acts as one on the caption
constexpr std::uint32_t HoverText = 0x951313;

// The bitmaps of the expand button.
constexpr unsigned ShownCollapsed = 1413, ShownExpanded = 1415;

// The caption fades from edge to edge, in two halves.
struct Fade {
    QRgb left, middle, right;
};

constexpr Fade Plain{qRgb(0x91, 0x9a, 0xb9), qRgb(0xa5, 0xac, 0xc2), qRgb(0xb9, 0xbf, 0xcb)};
constexpr Fade SelectedFade{qRgb(0x66, 0x73, 0x9d), qRgb(0x7a, 0x86, 0xac), qRgb(0x91, 0x9c, 0xbe)};
// Under the pointer the caption is light, so that the hover colour of its text reads well on it.
constexpr Fade PlainHovered{qRgb(0xb4, 0xbb, 0xd0), qRgb(0xc3, 0xc9, 0xd9), qRgb(0xcd, 0xd2, 0xdb)};
constexpr Fade SelectedHovered{qRgb(0xa4, 0xaf, 0xcf), qRgb(0xb4, 0xbd, 0xd8), qRgb(0xc0, 0xc8, 0xde)};

const Fade& FadeOf(bool isSelected, bool isHovered) {
    if (isHovered)
        return isSelected ? SelectedHovered : PlainHovered;
    return isSelected ? SelectedFade : Plain;
}

// Line pictures are drawn for a light ground.
void PaintIconPlate(QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xf4, 0xf6, 0xfa));
    painter.drawRoundedRect(QRectF(Icon).adjusted(-1, -1, 1, 1), 3, 3);
    painter.restore();
}

} // namespace

PaneCaption::PaneCaption(CExtDialog& pane)
    : m_pane(pane), m_close(MakeButton(CExtDialog::CloseControl, 1411, "Close")),
      m_help(MakeButton(CExtDialog::HelpControl, 1412, "Help")),
      m_expand(MakeButton(CExtDialog::ExpandControl, ShownCollapsed, LoadString(1760))),
      m_text(new CExStatic(&pane)) {
    QWidget::setTabOrder(m_expand, m_help);
    QWidget::setTabOrder(m_help, m_close);
    m_text->setObjectName(QString::number(CExtDialog::CaptionControl));
    m_text->setText("  " + pane.Caption);
    m_text->setToolTip(pane.Caption);
    m_text->setAccessibleName(pane.Caption);
    m_text->SetHoverColor(HoverText);
    QFont font = pane.font();
    font.setBold(true);
    m_text->setFont(font);
    QObject::connect(m_text, &CExStatic::Clicked, &pane, &CExtDialog::ToggleExpand);
    QObject::connect(m_text, &CExStatic::HoverChanged, &pane, [this](bool isHovered) {
        m_isHovered = isHovered;
        UpdateText();
        m_pane.update(Area());
    });
    UpdateText();
}

CHoverButton* PaneCaption::MakeButton(int number, unsigned bitmap, const CString& tooltip) {
    auto* button = new CHoverButton(&m_pane);
    button->setObjectName(QString::number(number));
    button->SetBitmap(bitmap);
    button->SetTooltip(tooltip);
    button->setAccessibleDescription(m_pane.Caption);
    return button;
}

QRect PaneCaption::Area() const {
    return {0, 0, m_pane.width(), Look::CaptionHeight};
}

void PaneCaption::Place() {
    const bool isShown = m_pane.height() >= Look::CaptionHeight;
    const int top = (Look::CaptionHeight - ButtonSize) / 2;
    int left = m_pane.width() - EdgeGap;
    const auto place = [&](CHoverButton* button, int gap) {
        left -= ButtonSize + gap;
        button->setGeometry(left, top, ButtonSize, ButtonSize);
        button->setVisible(isShown);
    };
    place(m_close, 0);
    place(m_help, HelpGap);
    place(m_expand, ExpandGap);
    m_text->setGeometry(TextStart, 0, std::max(0, left - 2 - TextStart), Look::CaptionHeight);
    m_text->setVisible(isShown);
}

// White reads well on the dark caption of the selected pane only.
void PaneCaption::UpdateText() {
    if (m_isHovered)
        return;
    QPalette colors = m_text->palette();
    colors.setColor(m_text->foregroundRole(), m_pane.Selected ? QColor(Qt::white) : QColor(Look::Text));
    m_text->setPalette(colors);
}

void PaneCaption::UpdateExpandState() {
    m_expand->SetBitmap(m_pane.Expanded ? ShownExpanded : ShownCollapsed);
    m_expand->SetTooltip(LoadString(m_pane.Expanded ? 1760 : 1761));
}

bool PaneCaption::IsOnIcon(QPoint place) const {
    return IconStatic.contains(place);
}

void PaneCaption::Paint(QPainter& painter) const {
    const Fade& fade = FadeOf(m_pane.Selected, m_isHovered);
    QLinearGradient gradient(0, 0, m_pane.width(), 0);
    gradient.setColorAt(0, fade.left);
    gradient.setColorAt(0.5, fade.middle);
    gradient.setColorAt(1, fade.right);
    painter.fillRect(Area(), gradient);
    if (m_pane.Selected)
        PaintIconPlate(painter);
    painter.drawPixmap(Icon, Look::IconPixmapOf(m_pane.IconID, m_pane));
}

QRgb PaneCaption::GroundOf(const CExtDialog& pane) {
    return pane.Selected ? Look::SelectedPaneGround : Look::PaneGround;
}
