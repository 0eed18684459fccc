#include "shell/CatalogueButton.h"

#include "platform/widgets/Look.h"

#include <QAction>
#include <QEvent>
#include <QPainter>

namespace {

constexpr int IconSize = 16;
constexpr int IconAt = 12;

} // namespace

CatalogueButton::CatalogueButton(QAction& action, const CString& buttonText, const QIcon& buttonIcon,
                                 QWidget* parent)
    : QAbstractButton(parent), m_action(action) {
    setText("   " + buttonText); // the blanks keep the text off the image
    setIcon(buttonIcon);
    setObjectName(action.objectName());
    setAccessibleName(buttonText);
    setToolTip(buttonText);
    setStatusTip(buttonText);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setFixedHeight(Height);
    connect(this, &QAbstractButton::clicked, &action, [&action] { action.trigger(); });
    connect(&action, &QAction::changed, this, &CatalogueButton::Follow);
    Follow();
}

QSize CatalogueButton::sizeHint() const {
    return {TextAt + fontMetrics().horizontalAdvance(text().trimmed()) + Look::Margin, Height};
}

void CatalogueButton::Follow() {
    setEnabled(m_action.isEnabled());
    setChecked(m_action.isChecked());
}

bool CatalogueButton::event(QEvent* event) {
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    return QAbstractButton::event(event);
}

void CatalogueButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const bool isHot = isEnabled() && underMouse();
    if (isChecked() || isDown()) {
        painter.setPen(QColor(Look::PaletteColors[isDown() ? 0 : 1]));
        painter.setBrush(QColor(Look::PaletteColors[isDown() ? 3 : 2]));
        painter.drawRoundedRect(frame, 3, 3);
    } else if (isHot) {
        painter.setPen(QColor(Look::FaintLine));
        painter.setBrush(QColor(Look::Hover));
        painter.drawRoundedRect(frame, 3, 3);
    }
    if (hasFocus()) {
        painter.setPen(QPen(QColor(Look::Focus), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
    const QRect iconPlace(IconAt, (height() - IconSize) / 2, IconSize, IconSize);
    icon().paint(&painter, iconPlace, Qt::AlignCenter,
                 !isEnabled() ? QIcon::Disabled
                 : isHot      ? QIcon::Active
                              : QIcon::Normal);
    const QRect textPlace = rect().adjusted(TextAt + 4, 0, -Look::Margin, 0);
    painter.setPen(QColor(isEnabled() ? Look::Text : Look::FaintText));
    painter.drawText(textPlace, Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text().trimmed(), Qt::ElideRight, textPlace.width()));
}
