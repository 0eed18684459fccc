#include "editing/FormatCondition.h"

#include <QApplication>
#include <QFontInfo>
#include <QPalette>
#include <QScreen>
#include <QWidget>

namespace {

unsigned long ToBgr(const QColor& color) {
    return static_cast<unsigned long>(color.red()) | static_cast<unsigned long>(color.green()) << 8 |
           static_cast<unsigned long>(color.blue()) << 16;
}

int DesktopDotsPerInch() {
    constexpr int Usual = 96;
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? qRound(screen->logicalDotsPerInchY()) : Usual;
}

} // namespace

CFormatCondition::CFormatCondition(const QWidget* window)
    : FontHandle(window ? window->font() : QApplication::font()), FontName(FontHandle.family()),
      FontHeight(QFontInfo(FontHandle).pixelSize()),
      DotsPerInch(window ? window->logicalDpiY() : DesktopDotsPerInch()),
      IsBold(FontHandle.weight() != QFont::Normal), IsItalic(FontHandle.italic()),
      IsUnderlined(FontHandle.underline()), IsStruckOut(FontHandle.strikeOut()),
      BackgroundColor(ToBgr(QApplication::palette().color(QPalette::Base))),
      TextColor(ToBgr(QApplication::palette().color(QPalette::Text))) {}
