// A report's page as a laid-out text that can be drawn. The text lives in a thread of its own from its making
// to its end: to lay out thousands of rows takes seconds, and its fonts are those of the thread that did it.
#pragma once

#include "platform/Text.h"

#include <QByteArray>
#include <QImage>
#include <QSizeF>
#include <QThread>
#include <memory>

class ReportDocument;

class LaidOutReport {
public:
    // Returns when the text is laid out. `folder` holds the folder of the pictures. Made in any thread.
    LaidOutReport(const QByteArray& html, const CString& folder);
    ~LaidOutReport();
    LaidOutReport(const LaidOutReport&) = delete;
    LaidOutReport& operator=(const LaidOutReport&) = delete;

    QSizeF Size() const { return m_size; } // in pixels, at scale 1
    const CString& Text() const { return m_text; }

    // The part that begins at `corner`, on white, `scale` times as large. `size` is that of the picture.
    QImage Draw(QPointF corner, QSize size, qreal scale) const;

private:
    template <class Work> void Do(Work work) const;

    QThread m_thread;
    std::unique_ptr<QObject> m_room; // of the thread
    std::unique_ptr<ReportDocument> m_document;
    QSizeF m_size;
    CString m_text;
};
