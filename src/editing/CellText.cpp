#include "editing/CellText.h"

#include "platform/LanguageLibrary.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPixmapCache>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int Margin = 6;
constexpr int LeastMargin = 1;
constexpr int LeastLetterArea = 16; // in pixels: no letter that can be read is smaller
constexpr int TightestPercent = 78; // of the usual width of letters

// One way to set a text in a cell.
struct Setting {
    QFont font;
    QTextOption::WrapMode wrap = QTextOption::NoWrap;
    int lead = Margin; // on the side from which the text starts, so that texts of a column stand in line
    int trail = Margin;
    bool isCut = false;

    int Width(QSize room) const { return std::max(1, room.width() - lead - trail); }
};

// Lays out as many lines as the height holds, at least one. True when the whole text stands in them and
// every line keeps to the width.
bool LayOut(QTextLayout& layout, const Setting& setting, QSize room) {
    QTextOption option;
    option.setWrapMode(setting.wrap);
    layout.setTextOption(option);
    const qreal width = setting.Width(room);
    qreal y = 0;
    bool fits = true;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, y});
        y += line.height();
        fits = fits && line.naturalTextWidth() <= width && y <= room.height();
        if (y > room.height())
            break; // a very long text costs no more than what is seen
    }
    layout.endLayout();
    return fits;
}

bool Fits(const CString& text, const Setting& setting, QSize room) {
    QTextLayout layout(text, setting.font);
    return LayOut(layout, setting, room);
}

// From the best looking to the tightest. A hardly narrower letter is better than a text out of line with
// the others of its column.
struct Tightness {
    int lead;
    int trail;
    int percent; // of the usual width of letters
};
constexpr Tightness Tightnesses[] = {{Margin, Margin, 100},
                                     {Margin, LeastMargin, 100},
                                     {Margin, LeastMargin, 92},
                                     {LeastMargin, LeastMargin, 100}};

Setting With(const CellTextLook& look, QTextOption::WrapMode wrap, const Tightness& tightness) {
    Setting setting{look.font, wrap, tightness.lead, tightness.trail};
    if (tightness.percent != 100)
        setting.font.setStretch(tightness.percent);
    return setting;
}

bool IsOneLine(const CString& text, const Setting& setting, QSize room) {
    return QFontMetrics(setting.font).horizontalAdvance(text) <= setting.Width(room);
}

// More letters than that have no room in any setting, and need not be laid out to know it.
int MostLetters(QSize room) {
    return std::max(256, room.width() * room.height() / LeastLetterArea);
}

// For a text that has room for one line only, and too little.
Setting Squeezed(const CString& text, const CellTextLook& look, QSize room) {
    const int width = QFontMetrics(look.font).horizontalAdvance(text.left(MostLetters(room)));
    const int percent = 100 * (room.width() - 2 * LeastMargin) / width;
    if (percent >= TightestPercent)
        return With(look, QTextOption::NoWrap, {LeastMargin, LeastMargin, percent});
    const auto wrap = look.wrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap;
    Setting setting = With(look, wrap, {LeastMargin, LeastMargin, 100});
    setting.isCut = true;
    return setting;
}

Setting Choose(const CString& text, const CellTextLook& look, QSize room) {
    if (text.size() > MostLetters(room))
        return Squeezed(text, look, room);
    for (const Tightness& tightness : Tightnesses)
        if (const Setting setting = With(look, QTextOption::NoWrap, tightness);
            IsOneLine(text, setting, room))
            return setting;
    if (look.wrap)
        for (const auto wrap :
             {QTextOption::WordWrap, QTextOption::WrapAtWordBoundaryOrAnywhere, QTextOption::WrapAnywhere})
            for (const Tightness& tightness : Tightnesses)
                if (const Setting setting = With(look, wrap, tightness); Fits(text, setting, room))
                    return setting;
    return Squeezed(text, look, room);
}

// The text of as many lines as there is room for, the last one with an ellipsis.
CString Shortened(const CString& whole, const Setting& setting, QSize room) {
    const CString text = whole.left(MostLetters(room));
    const QFontMetrics metrics(setting.font);
    const int width = setting.Width(room);
    QTextLayout layout(text, setting.font);
    LayOut(layout, setting, room);
    int lines = layout.lineCount();
    while (lines > 1 && layout.lineAt(lines - 1).y() + layout.lineAt(lines - 1).height() > room.height())
        --lines;
    if (lines == 0)
        return text;
    const int start = layout.lineAt(lines - 1).textStart();
    return text.left(start) + metrics.elidedText(text.mid(start), Qt::ElideRight, width);
}

qreal Offset(qreal free, bool isCentred, bool isAtEnd) {
    return isCentred ? free / 2 : isAtEnd ? free : 0;
}

} // namespace

bool IsCellTextCut(const QRect& cell, const CString& text, const CellTextLook& look) {
    return Choose(text, look, cell.size()).isCut;
}

void DrawCellText(QPainter& painter, const QRect& cell, const CString& text, const CellTextLook& look) {
    if (text.isEmpty() || cell.width() < 1 || cell.height() < 1)
        return;
    const Setting setting = Choose(text, look, cell.size());
    QTextLayout layout(setting.isCut ? Shortened(text, setting, cell.size()) : text, setting.font);
    LayOut(layout, setting, cell.size());
    const qreal width = setting.Width(cell.size());
    const int left = look.alignment & Qt::AlignRight ? setting.trail : setting.lead;
    const qreal free = cell.height() - layout.boundingRect().height();
    const qreal y = cell.y() + std::floor(Offset(std::max(free, 0.0), look.alignment & Qt::AlignVCenter,
                                                 look.alignment & Qt::AlignBottom));
    painter.save();
    painter.setClipRect(cell, Qt::IntersectClip);
    painter.setPen(look.color);
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const qreal x = Offset(std::max(width - line.naturalTextWidth(), 0.0),
                               look.alignment & Qt::AlignHCenter, look.alignment & Qt::AlignRight);
        line.draw(&painter, {cell.x() + left + std::floor(x), y});
    }
    painter.restore();
}

void DrawCellPicture(QPainter& painter, const QRect& cell, unsigned bitmap, Qt::Alignment alignment) {
    const qreal ratio = painter.device()->devicePixelRatioF();
    const CString key = CString("cell/%1/%2/%3").arg(bitmap).arg(cell.height()).arg(ratio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        const QSize own = LoadImageOf(ImageType::Bitmap, bitmap).size();
        if (own.isEmpty())
            return;
        const qreal scale = std::min(1.0, qreal(cell.height() - 4) / own.height());
        picture = QPixmap::fromImage(LoadImageOf(ImageType::Bitmap, bitmap, scale * ratio));
        picture.setDevicePixelRatio(ratio);
        QPixmapCache::insert(key, picture);
    }
    if (picture.isNull())
        return;
    const QSizeF size = picture.deviceIndependentSize();
    const qreal room = std::max(0.0, cell.width() - size.width());
    const qreal margin = std::min<qreal>(Margin, room / 2);
    const qreal x = cell.x() + margin +
                    Offset(room - 2 * margin, alignment & Qt::AlignHCenter, alignment & Qt::AlignRight);
    painter.save();
    painter.setClipRect(cell, Qt::IntersectClip);
    painter.drawPixmap(QPointF(std::floor(x), cell.y() + std::floor((cell.height() - size.height()) / 2)),
                       picture);
    painter.restore();
}
