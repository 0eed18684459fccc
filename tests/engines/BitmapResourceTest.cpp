#include "engines/BitmapFile.h"
#include "platform/LanguageLibrary.h"

#include <QDir>
#include <QPainter>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

QImage OnWhite(unsigned id) {
    const QImage picture = LoadImageOf(ImageType::Bitmap, id);
    QImage drawing(picture.size(), QImage::Format_RGB32);
    drawing.fill(Qt::white);
    QPainter(&drawing).drawImage(0, 0, picture);
    return drawing;
}

// The largest difference in one colour of one pixel.
int Difference(const QImage& a, const QImage& b) {
    int largest = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y), other = b.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(one) - qRed(other)),
                                std::abs(qGreen(one) - qGreen(other)), std::abs(qBlue(one) - qBlue(other))});
        }
    return largest;
}

// The picture as another program would read it from the saved file.
QImage SavedAndRead(unsigned id) {
    QTemporaryDir folder;
    CString path = folder.filePath("a.bmp");
    EXPECT_TRUE(SaveBitmapResource(id, path)) << id;
    return QImage(path);
}

} // namespace

TEST(BitmapResource, EveryPictureReadsBackAsItWasDrawn) {
    const CStringArray names = QDir(":/English/images/bitmap").entryList();
    ASSERT_GT(names.size(), 100);
    for (const CString& name : names) {
        const unsigned id = name.section('.', 0, 0).toUInt();
        const QImage drawn = OnWhite(id);
        const QImage read = SavedAndRead(id);
        ASSERT_EQ(read.size(), drawn.size()) << id;
        EXPECT_EQ(read.depth(), 8) << id;
        // A picture of more than 256 colours loses the lowest bits of each.
        EXPECT_LE(Difference(drawn, read), 3) << id;
    }
}

TEST(BitmapResource, PictureOfFewColoursKeepsThemAll) {
    EXPECT_EQ(Difference(OnWhite(1088), SavedAndRead(1088)), 0);
}

TEST(BitmapResource, GroundIsWhite) {
    const QImage picture = LoadImageOf(ImageType::Bitmap, 1088);
    const QImage read = SavedAndRead(1088);
    bool anyClear = false;
    for (int y = 0; y < read.height(); ++y)
        for (int x = 0; x < read.width(); ++x)
            if (qAlpha(picture.pixel(x, y)) == 0) {
                anyClear = true;
                EXPECT_EQ(read.pixel(x, y), 0xFFFFFFFFU);
            }
    EXPECT_TRUE(anyClear);
}

TEST(BitmapResource, NumberWithoutAPictureWritesNothing) {
    QTemporaryDir folder;
    CString path = folder.filePath("a.bmp");
    EXPECT_FALSE(SaveBitmapResource(1, path));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    path.clear();
    EXPECT_FALSE(SaveBitmapResource(1, path));
    EXPECT_EQ(path, "");
}
