#include "engines/BitmapFile.h"

#include "engines/PathServices.h"
#include "platform/LanguageLibrary.h"

#include <QFileInfo>
#include <QPainter>
#include <QSaveFile>
#include <QSet>
#include <QUuid>
#include <QtEndian>
#include <algorithm>
#include <unistd.h>

namespace {

constexpr std::uint32_t HeaderSize = 40;
constexpr std::uint32_t FileHeaderSize = 14;
constexpr int LargestTable = 256;

// Pixels are copied as they lie in memory, in the order of the file format.
static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN);

void Append16(QByteArray& block, std::uint16_t value) {
    const std::uint16_t bytes = qToLittleEndian(value);
    block.append(reinterpret_cast<const char*>(&bytes), sizeof bytes);
}

void Append32(QByteArray& block, std::uint32_t value) {
    const std::uint32_t bytes = qToLittleEndian(value);
    block.append(reinterpret_cast<const char*>(&bytes), sizeof bytes);
}

// The form of the same depth whose rows lie in memory as in the file.
QImage ToFileForm(const QImage& bitmap) {
    switch (bitmap.depth()) {
    case 1: return bitmap.convertToFormat(QImage::Format_Mono);
    case 8: return bitmap.convertToFormat(QImage::Format_Indexed8);
    case 16: return bitmap.convertToFormat(QImage::Format_RGB555);
    case 24: return bitmap.convertToFormat(QImage::Format_BGR888);
    default: return bitmap.convertToFormat(QImage::Format_RGB32);
    }
}

void AppendHeader(QByteArray& block, const QImage& image, std::uint32_t bitsSize) {
    Append32(block, HeaderSize);
    Append32(block, static_cast<std::uint32_t>(image.width()));
    Append32(block, static_cast<std::uint32_t>(image.height()));
    Append16(block, 1); // planes
    Append16(block, static_cast<std::uint16_t>(image.depth()));
    Append32(block, 0); // compression
    Append32(block, bitsSize);
    block.append(16, '\0');
}

void AppendTable(QByteArray& block, int depth, const QList<QRgb>& colours) {
    const int entries = depth <= 8 ? 1 << depth : 0;
    for (int i = 0; i < entries; ++i)
        Append32(block, i < colours.size() ? colours[i] & RGB_MASK : 0);
}

// The colour with `bits` fewer bits to a channel; black and white stay.
QRgb Coarsen(QRgb colour, int bits) {
    const int full = 255 >> bits;
    const auto channel = [bits, full](int value) { return (value >> bits) * 255 / full; };
    return qRgb(channel(qRed(colour)), channel(qGreen(colour)), channel(qBlue(colour)));
}

bool FitsTable(const QImage& image) {
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
            if (colours.size() > LargestTable)
                return false;
        }
    return true;
}

// A drawing of few colours keeps them all. One with more loses the low bits of each colour, not its
// even areas, as dithering would.
QImage WithColourTable(const QImage& drawing) {
    QImage image = drawing;
    for (int bits = 1; !FitsTable(image); ++bits)
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, Coarsen(drawing.pixel(x, y), bits));
    return image.convertToFormat(QImage::Format_Indexed8, Qt::AvoidDither);
}

QByteArray FileHeader(const QByteArray& dib, int depth) {
    // The offset counts a table at every depth, also where there is none: 2^24 entries at 24 bits,
    // and one at 32, where the shift wraps. Files have always been written so.
    const std::uint32_t tableSize = 4 * (std::uint32_t{1} << (depth % 32));
    QByteArray header("BM");
    Append32(header, static_cast<std::uint32_t>(dib.size()) + FileHeaderSize);
    Append32(header, 0); // reserved
    Append32(header, HeaderSize + FileHeaderSize + tableSize);
    return header;
}

// The flush to disk is asked for by itself: the final rename would not report its failure.
bool WriteWholeFile(const CString& path, const QByteArray& content) {
    const QFileInfo target(path);
    if (target.exists() && !target.isFile())
        return false;
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() &&
           ::fsync(file.handle()) == 0 && file.commit();
}

} // namespace

QByteArray BuildDib(const QImage& bitmap, std::uint32_t compression, const QList<QRgb>* palette) {
    if (compression != 0 || bitmap.isNull())
        return {};
    const QImage image = ToFileForm(bitmap);
    const qsizetype rowBits = qsizetype{image.width()} * image.depth();
    const qsizetype usedSize = (rowBits + 7) / 8;
    const qsizetype rowSize = (rowBits + 31) / 32 * 4;
    QByteArray block;
    AppendHeader(block, image, static_cast<std::uint32_t>(rowSize * image.height()));
    AppendTable(block, image.depth(), palette ? *palette : image.colorTable());
    for (int y = image.height() - 1; y >= 0; --y) {
        block.append(reinterpret_cast<const char*>(image.constScanLine(y)), usedSize);
        block.append(rowSize - usedSize, '\0');
    }
    return block;
}

bool SaveBitmapToFile(const QImage& bitmap, CString& path) {
    const QByteArray dib = BuildDib(bitmap, 0, nullptr);
    if (dib.isNull())
        return false;
    if (path.isEmpty())
        path = GetTempFolder() + QUuid::createUuid().toString(QUuid::WithoutBraces) + ".bmp";
    const int depth = qFromLittleEndian<std::uint16_t>(dib.constData() + 14);
    return WriteWholeFile(path, FileHeader(dib, depth) + dib);
}

bool SaveBitmapResource(unsigned id, CString& path) {
    const QImage picture = LoadImageOf(ImageType::Bitmap, id);
    if (picture.isNull())
        return false;
    QImage drawing(picture.size(), QImage::Format_RGB32);
    drawing.fill(Qt::white);
    QPainter(&drawing).drawImage(0, 0, picture);
    return SaveBitmapToFile(WithColourTable(drawing), path);
}
