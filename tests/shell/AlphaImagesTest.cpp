#include "shell/AlphaImages.h"

#include <gtest/gtest.h>

namespace {

QImage OnePixel(QRgb color) {
    QImage image(1, 1, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

} // namespace

TEST(AlphaImages, AHotImageIsDarker) {
    EXPECT_EQ(HotImage(OnePixel(qRgb(255, 128, 0))).pixel(0, 0), qRgb(255, 97, 0));
    EXPECT_EQ(HotImage(OnePixel(qRgb(192, 64, 1))).pixel(0, 0), qRgb(171, 36, 0));
}

TEST(AlphaImages, ADisabledImageIsGreyByTheRootOfItsBrightness) {
    EXPECT_EQ(DisabledImage(OnePixel(qRgb(255, 255, 255))).pixel(0, 0), qRgb(255, 255, 255));
    EXPECT_EQ(DisabledImage(OnePixel(qRgb(0, 0, 0))).pixel(0, 0), qRgb(0, 0, 0));
    // 0.299 * 255 = 76.245; 255 * sqrt(0.299) = 139.4
    EXPECT_EQ(DisabledImage(OnePixel(qRgb(255, 0, 0))).pixel(0, 0), qRgb(139, 139, 139));
    EXPECT_EQ(DisabledImage(OnePixel(qRgb(0, 255, 0))).pixel(0, 0), qRgb(195, 195, 195));
    EXPECT_EQ(DisabledImage(OnePixel(qRgb(0, 0, 255))).pixel(0, 0), qRgb(86, 86, 86));
}

TEST(AlphaImages, TransparencyStays) {
    EXPECT_EQ(qAlpha(HotImage(OnePixel(qRgba(10, 20, 30, 40))).pixel(0, 0)), 40);
    EXPECT_EQ(qAlpha(DisabledImage(OnePixel(qRgba(10, 20, 30, 0))).pixel(0, 0)), 0);
}

TEST(AlphaImages, FewColoursChangeNothing) {
    QImage many(4, 1, QImage::Format_ARGB32);
    const QRgb colors[] = {qRgb(255, 128, 0), qRgb(192, 64, 1), qRgb(0, 255, 0), qRgb(10, 20, 30)};
    for (int x = 0; x < 4; ++x)
        many.setPixel(x, 0, colors[x]);
    QImage few(4, 1, QImage::Format_Indexed8);
    few.setColorTable(QList<QRgb>(std::begin(colors), std::end(colors)));
    for (int x = 0; x < 4; ++x)
        few.setPixel(x, 0, static_cast<uint>(x));
    EXPECT_EQ(HotImage(few), HotImage(many));
    EXPECT_EQ(DisabledImage(few), DisabledImage(many));
    EXPECT_EQ(HotImage(few).depth(), 32);
    EXPECT_EQ(DisabledImage(few).depth(), 32);
}

TEST(AlphaImages, AStripIsCutIntoItsImages) {
    const CAlphaImageList images(1089);
    EXPECT_EQ(images.GetCount(), 10);
    EXPECT_FALSE(images.GetIcon(9).isNull());
    EXPECT_TRUE(images.GetIcon(10).isNull());
    EXPECT_TRUE(images.GetIcon(-1).isNull());
    EXPECT_EQ(CAlphaImageList(1).GetCount(), 0);
}

TEST(AlphaImages, EachStateAndScaleHasAnImageOfItsOwn) {
    const QIcon icon = CAlphaImageList(1089).GetIcon(1);
    const QImage normal = icon.pixmap(QSize(16, 16), 1.0, QIcon::Normal).toImage();
    EXPECT_EQ(normal.size(), QSize(16, 16));
    EXPECT_NE(icon.pixmap(QSize(16, 16), 1.0, QIcon::Disabled).toImage(), normal);
    EXPECT_NE(icon.pixmap(QSize(16, 16), 1.0, QIcon::Active).toImage(), normal);
    EXPECT_EQ(icon.pixmap(QSize(16, 16), 2.0, QIcon::Normal).toImage().size(), QSize(32, 32));
}
