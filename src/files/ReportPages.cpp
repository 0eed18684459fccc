#include "files/ReportPages.h"

#include "files/PageBreaks.h"
#include "files/ReportDocument.h"
#include "platform/LanguageLibrary.h"
#include "platform/ReplaceFile.h"
#include "platform/TextNumbers.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPdfWriter>

namespace {

// Every device gets the same layout, and so the same page ends: it is made at this many dots per inch and
// scaled to the device. Many enough that letters stand evenly, few enough for a very long report.
constexpr int LayoutDpi = 300;
constexpr qreal MillimetresPerInch = 25.4;

constexpr qreal MarginMillimetres = 15;
constexpr qreal FooterMillimetres = 9; // with the space above it
constexpr int FooterPoints = 8;

constexpr qreal FromMillimetres(qreal millimetres) {
    return millimetres * LayoutDpi / MillimetresPerInch;
}

// Stands for the paper while the text is laid out.
QImage LayoutPaper() {
    QImage paper(1, 1, QImage::Format_RGB32);
    const int dotsPerMetre = qRound(LayoutDpi * 1000 / MillimetresPerInch);
    paper.setDotsPerMeterX(dotsPerMetre);
    paper.setDotsPerMeterY(dotsPerMetre);
    return paper;
}

class PagePainter {
public:
    PagePainter(const QTextDocument& document, QPainter& painter, QSizeF page, const CString& footer)
        : m_document(document), m_painter(painter), m_page(page), m_footer(footer), m_font("Arial") {
        m_font.setPixelSize(qRound(FooterPoints * LayoutDpi / 72.0));
    }

    void Draw(const PageSlice& slice, int number, int count) const {
        const qreal head = slice.HeadHeight();
        if (head > 0)
            DrawSlice(slice.headTop, slice.headBottom, 0);
        DrawSlice(slice.top, slice.bottom, head);
        DrawFooter(LoadString(ReportPageOf).arg(number).arg(count));
    }

private:
    void DrawSlice(qreal top, qreal bottom, qreal at) const {
        const QRectF slice(0, top, m_page.width(), bottom - top);
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, Qt::black); // the desktop's may be light
        context.clip = slice;
        m_painter.save();
        m_painter.translate(0, at - top);
        m_painter.setClipRect(slice);
        m_document.documentLayout()->draw(&m_painter, context);
        m_painter.restore();
    }

    void DrawFooter(const CString& number) const {
        const qreal height = FromMillimetres(FooterMillimetres) / 2;
        const QRectF line(0, m_page.height() - height, m_page.width(), height);
        const QFontMetricsF metrics(m_font);
        const qreal room = m_page.width() - metrics.horizontalAdvance(number) - FromMillimetres(5);
        m_painter.save();
        m_painter.setFont(m_font);
        m_painter.setPen(QPen(Qt::gray, FromMillimetres(0.2)));
        m_painter.drawLine(line.topLeft(), line.topRight());
        m_painter.setPen(Qt::darkGray);
        m_painter.drawText(line, Qt::AlignLeft | Qt::AlignBottom,
                           metrics.elidedText(m_footer, Qt::ElideMiddle, room));
        m_painter.drawText(line, Qt::AlignRight | Qt::AlignBottom, number);
        m_painter.restore();
    }

    const QTextDocument& m_document;
    QPainter& m_painter;
    QSizeF m_page;
    CString m_footer;
    QFont m_font;
};

} // namespace

FileResult DrawReportPages(const QByteArray& html, const CString& baseFolder, const CString& footer,
                           QPagedPaintDevice& device, const ReportProgress& progress) {
    QPainter painter;
    if (!painter.begin(&device))
        return FileFailure(ReportNotDrawn);
    const qreal scale = device.logicalDpiX() / qreal(LayoutDpi);
    const QSizeF page = QSizeF(device.width(), device.height()) / scale;
    const qreal textHeight = page.height() - FromMillimetres(FooterMillimetres);

    QImage paper = LayoutPaper();
    ReportDocument document(baseFolder);
    document.documentLayout()->setPaintDevice(&paper);
    document.setTextWidth(page.width());
    document.ShowPage(html);
    const std::vector<PageSlice> pages = BreakIntoPages(MeasureStretches(document), textHeight);

    painter.scale(scale, scale);
    const PagePainter pagePainter(document, painter, page, footer);
    const int count = static_cast<int>(pages.size());
    for (int i = 0; i < count; ++i) {
        if (i > 0 && !device.newPage())
            return FileFailure(ReportNotDrawn);
        pagePainter.Draw(pages[static_cast<size_t>(i)], i + 1, count);
        if (progress && !progress(i + 1, count))
            return FileFailure(ReportStopped);
    }
    return painter.end() ? FileResult() : FileFailure(ReportNotDrawn);
}

QPageLayout StandardPaper() {
    return QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                       {MarginMillimetres, MarginMillimetres, MarginMillimetres, MarginMillimetres},
                       QPageLayout::Millimeter);
}

FileResult WriteReportPdf(const QByteArray& html, const CString& baseFolder, const CString& target,
                          const CString& footer, const ReportProgress& progress, const QPageLayout& paper) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(LayoutDpi);
        writer.setPageLayout(paper);
        writer.setTitle(footer);
        const FileResult drawn = DrawReportPages(html, baseFolder, footer, writer, progress);
        if (!drawn)
            return drawn;
    }
    return ReplaceFile(target, buffer.data());
}
