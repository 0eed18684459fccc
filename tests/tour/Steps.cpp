#include "tour/Steps.h"

#include <QDir>
#include <cstdio>

void TourSteps::Shoot(const QImage& picture, const CString& name, const CString& says) {
    const CString file = CString("%1-%2.png").arg(++m_count, 2, 10, QChar('0')).arg(name);
    Expect(!picture.isNull() && picture.save(QDir(m_out).filePath(file)),
           "the picture " + file + " is written");
    Tell(file, says);
}

void TourSteps::Tell(const CString& file, const CString& says) {
    constexpr qsizetype LongestName = 24;
    const CString path = QDir(m_out).filePath(file).leftJustified(m_out.size() + 1 + LongestName);
    std::printf("  %s %s\n", path.toUtf8().constData(), says.toUtf8().constData());
    std::fflush(stdout);
}

void TourSteps::Expect(bool holds, const CString& what) {
    if (holds)
        return;
    ++m_failures;
    std::printf("  NOT SO: %s\n", what.toUtf8().constData());
    std::fflush(stdout);
}
