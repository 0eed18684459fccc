#include "engines/BitmapFile.h"
#include "platform/LanguageLibrary.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QTemporaryDir>
#include <QtEndian>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

std::uint32_t At32(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<std::uint32_t>(bytes.constData() + at);
}

std::uint16_t At16(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<std::uint16_t>(bytes.constData() + at);
}

QByteArray ContentOf(const CString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Two by two: red and green above blue and white.
QImage FourColours(QImage::Format format) {
    QImage image(2, 2, QImage::Format_RGB32);
    image.setPixel(0, 0, 0xFFFF0000);
    image.setPixel(1, 0, 0xFF00FF00);
    image.setPixel(0, 1, 0xFF0000FF);
    image.setPixel(1, 1, 0xFFFFFFFF);
    return image.convertToFormat(format);
}

std::uint32_t PixelOffset(QImage::Format format) {
    QTemporaryDir folder;
    CString path = folder.filePath("a.bmp");
    EXPECT_TRUE(SaveBitmapToFile(FourColours(format), path));
    return At32(ContentOf(path), 10);
}

// Makes writing fail once a file has grown to so many bytes, as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before = {};
    void (*m_signal)(int);
};

} // namespace

TEST(BuildDib, HeaderTellsSizeAndDepth) {
    const QByteArray dib = BuildDib(QImage(5, 3, QImage::Format_RGB888), 0, nullptr);
    ASSERT_EQ(dib.size(), 40 + 16 * 3);
    EXPECT_EQ(At32(dib, 0), 40U);
    EXPECT_EQ(At32(dib, 4), 5U);
    EXPECT_EQ(At32(dib, 8), 3U);
    EXPECT_EQ(At16(dib, 12), 1U);
    EXPECT_EQ(At16(dib, 14), 24U);
    EXPECT_EQ(At32(dib, 16), 0U);
    EXPECT_EQ(At32(dib, 20), 48U);
    EXPECT_EQ(dib.mid(24, 16), QByteArray(16, '\0'));
}

TEST(BuildDib, RowsStandBottomUpAndArePadded) {
    const QByteArray dib = BuildDib(FourColours(QImage::Format_RGB888), 0, nullptr);
    EXPECT_EQ(dib.mid(40).toHex(' '), "ff 00 00 ff ff ff 00 00 00 00 ff 00 ff 00 00 00");
}

TEST(BuildDib, ColourTableHasAnEntryForEveryNumber) {
    const QByteArray dib = BuildDib(FourColours(QImage::Format_Indexed8), 0, nullptr);
    EXPECT_EQ(dib.size(), 40 + 4 * 256 + 2 * 4);
    QImage line(9, 1, QImage::Format_Mono);
    line.setColorTable({0xFF102030, 0xFF405060});
    line.fill(1);
    const QByteArray mono = BuildDib(line, 0, nullptr);
    ASSERT_EQ(mono.size(), 40 + 4 * 2 + 4);
    EXPECT_EQ(mono.mid(40, 8).toHex(' '), "30 20 10 00 60 50 40 00");
}

TEST(BuildDib, DeepBitmapsHaveNoTable) {
    EXPECT_EQ(BuildDib(FourColours(QImage::Format_RGB16), 0, nullptr).size(), 40 + 4 * 2);
    EXPECT_EQ(BuildDib(FourColours(QImage::Format_ARGB32), 0, nullptr).size(), 40 + 8 * 2);
    EXPECT_EQ(BuildDib(FourColours(QImage::Format_RGBA64), 0, nullptr).size(), 40 + 8 * 2);
}

TEST(BuildDib, PaletteTakesThePlaceOfTheTable) {
    const QList<QRgb> palette = {0xFF010203};
    const QByteArray dib = BuildDib(FourColours(QImage::Format_Indexed8), 0, &palette);
    EXPECT_EQ(dib.mid(40, 8).toHex(' '), "03 02 01 00 00 00 00 00");
    EXPECT_EQ(dib.size(), 40 + 4 * 256 + 2 * 4);
}

TEST(BuildDib, BitFieldsAndOtherCompressionsAreRefused) {
    for (const std::uint32_t compression : {1U, 2U, 3U, 4U})
        EXPECT_TRUE(BuildDib(FourColours(QImage::Format_RGB32), compression, nullptr).isNull());
    EXPECT_TRUE(BuildDib(QImage(), 0, nullptr).isNull());
}

TEST(SaveBitmap, PixelOffsetCountsATableAtEveryDepth) {
    EXPECT_EQ(PixelOffset(QImage::Format_Mono), 54U + 4 * 2);
    EXPECT_EQ(PixelOffset(QImage::Format_Indexed8), 54U + 4 * 256);
    EXPECT_EQ(PixelOffset(QImage::Format_RGB555), 54U + 4 * 65536);
    EXPECT_EQ(PixelOffset(QImage::Format_RGB888), 67108918U);
    EXPECT_EQ(PixelOffset(QImage::Format_RGB32), 54U + 4);
}

TEST(SaveBitmap, FileHeaderTellsTheSize) {
    QTemporaryDir folder;
    CString path = folder.filePath("a.bmp");
    ASSERT_TRUE(SaveBitmapToFile(FourColours(QImage::Format_RGB888), path));
    const QByteArray file = ContentOf(path);
    EXPECT_EQ(file.size(), 14 + 40 + 16);
    EXPECT_EQ(file.left(2), "BM");
    EXPECT_EQ(At32(file, 2), 70U);
    EXPECT_EQ(At32(file, 6), 0U);
}

TEST(SaveBitmap, FileWithATableReadsBackPixelByPixel) {
    QTemporaryDir folder;
    CString path = folder.filePath("a.bmp");
    for (const QImage::Format format : {QImage::Format_Indexed8, QImage::Format_Mono}) {
        const QImage bitmap = FourColours(format);
        ASSERT_TRUE(SaveBitmapToFile(bitmap, path));
        EXPECT_EQ(QImage(path).convertToFormat(QImage::Format_RGB32),
                  bitmap.convertToFormat(QImage::Format_RGB32));
    }
}

TEST(SaveBitmap, EmptyPathTakesANewNameInTheTemporaryFolder) {
    CString first, second;
    ASSERT_TRUE(SaveBitmapToFile(FourColours(QImage::Format_Indexed8), first));
    ASSERT_TRUE(SaveBitmapToFile(FourColours(QImage::Format_Indexed8), second));
    EXPECT_NE(first, second);
    EXPECT_TRUE(first.endsWith(".bmp"));
    EXPECT_EQ(QFileInfo(first).path(), QDir::tempPath());
    EXPECT_FALSE(QImage(first).isNull());
}

TEST(SaveBitmap, NullBitmapWritesNothing) {
    QTemporaryDir folder;
    CString path = folder.filePath("a.bmp");
    EXPECT_FALSE(SaveBitmapToFile(QImage(), path));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(SaveBitmap, FailedWritingLeavesNoHalfFile) {
    QTemporaryDir folder;
    CString path = folder.filePath("a.bmp");
    const FileSizeLimit limit(500);
    EXPECT_FALSE(SaveBitmapToFile(FourColours(QImage::Format_Indexed8), path));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(SaveBitmap, FailedWritingKeepsTheOldFile) {
    QTemporaryDir folder;
    CString path = folder.filePath("a.bmp");
    ASSERT_TRUE(SaveBitmapToFile(FourColours(QImage::Format_Mono), path));
    const QByteArray before = ContentOf(path);
    {
        const FileSizeLimit limit(500);
        EXPECT_FALSE(SaveBitmapToFile(FourColours(QImage::Format_Indexed8), path));
    }
    EXPECT_EQ(ContentOf(path), before);
    EXPECT_EQ(QDir(folder.path()).count(), 3U); // with the two dot entries
}

TEST(SaveBitmap, FolderOrMissingFolderInTheWayIsAFailure) {
    QTemporaryDir folder;
    CString path = folder.path();
    EXPECT_FALSE(SaveBitmapToFile(FourColours(QImage::Format_Indexed8), path));
    path = folder.filePath("none/a.bmp");
    EXPECT_FALSE(SaveBitmapToFile(FourColours(QImage::Format_Indexed8), path));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}
