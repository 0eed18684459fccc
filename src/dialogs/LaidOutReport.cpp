#include "dialogs/LaidOutReport.h"

#include "files/ReportDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPalette>

namespace {

constexpr int PaperWidth = 800;
constexpr int PaperMargin = 20; // around what is printed

} // namespace

LaidOutReport::LaidOutReport(const QByteArray& html, const CString& folder)
    : m_room(std::make_unique<QObject>()) {
    m_room->moveToThread(&m_thread);
    m_thread.start();
    Do([&] {
        m_document = std::make_unique<ReportDocument>(folder);
        m_document->setDocumentMargin(PaperMargin);
        m_document->setTextWidth(PaperWidth);
        m_document->ShowPage(html);
        m_size = m_document->size(); // lays out what is still to do
        m_text = m_document->toPlainText();
    });
}

LaidOutReport::~LaidOutReport() {
    Do([this] { m_document.reset(); });
    m_thread.quit();
    m_thread.wait();
}

// Waits for it to be done in the thread of the text.
template <class Work> void LaidOutReport::Do(Work work) const {
    QMetaObject::invokeMethod(m_room.get(), work, Qt::BlockingQueuedConnection);
}

QImage LaidOutReport::Draw(QPointF corner, QSize size, qreal scale) const {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    Do([&] {
        QPainter painter(&picture);
        painter.scale(scale, scale);
        painter.translate(-corner);
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, Qt::black); // the desktop's may be light
        context.clip = QRectF(corner, QSizeF(size) / scale);
        m_document->documentLayout()->draw(&painter, context);
    });
    return picture;
}
