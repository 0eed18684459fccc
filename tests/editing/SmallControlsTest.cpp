#include "editing/ExACStatic.h"
#include "editing/ExStatic.h"
#include "editing/FormatCondition.h"
#include "editing/GroupBoxExt.h"
#include "editing/HoverButton.h"
#include "editing/PictureCtrl.h"
#include "editing/StaticBitmapCtrl.h"
#include "support/ShownWindow.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QImage Drawn(QWidget& widget) {
    return widget.grab().toImage();
}

bool HasColor(const QImage& image, QRgb color) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if ((image.pixel(x, y) & 0xFFFFFF) == (color & 0xFFFFFF))
                return true;
    return false;
}

} // namespace

TEST(HoverButton, HasThePicturesOfItsStrip) {
    ShownWindow window;
    auto* other = window.Add<QLineEdit>();
    auto* button = window.Add<CHoverButton>();
    EXPECT_FALSE(button->SetBitmap(4711));
    EXPECT_TRUE(button->SetBitmap(1411));
    EXPECT_EQ(button->sizeHint(), QSize(16, 16));
    ASSERT_TRUE(window.Show());
    other->setFocus();
    const QImage rest = Drawn(*button);
    QTest::mouseMove(button);
    QCoreApplication::processEvents();
    const QImage hovered = Drawn(*button);
    QTest::mousePress(button, Qt::LeftButton);
    const QImage pressed = Drawn(*button);
    QTest::mouseRelease(button, Qt::LeftButton);
    EXPECT_NE(rest, hovered);
    EXPECT_NE(hovered, pressed);
    EXPECT_NE(rest, pressed);
}

TEST(HoverButton, IsPressedByMouseAndKeys) {
    ShownWindow window;
    auto* button = window.Add<CHoverButton>();
    button->SetBitmap(1413);
    ASSERT_TRUE(window.Show());
    QSignalSpy clicks(button, &QAbstractButton::clicked);
    QTest::mouseClick(button, Qt::LeftButton);
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(clicks.size(), 3);
    const QImage focused = Drawn(*button);
    button->clearFocus();
    EXPECT_NE(focused, Drawn(*button));
}

TEST(HoverButton, ItsTooltipIsItsName) {
    CHoverButton button;
    button.SetTooltip("Collapse");
    EXPECT_EQ(button.toolTip(), "Collapse");
    EXPECT_EQ(button.accessibleName(), "Collapse");
}

TEST(ExStatic, TellsOfThePointerAndTakesTheHoverColour) {
    ShownWindow window;
    auto* label = window.Add<CExStatic>();
    window.Add<QLineEdit>();
    label->setText("<b>Caption</b>");
    label->SetHoverColor(0x951313);
    const QColor own = label->palette().color(QPalette::WindowText);
    ASSERT_TRUE(window.Show());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(label, &leave); // wherever the pointer stood before
    QSignalSpy hovers(label, &CExStatic::HoverChanged);
    QTest::mouseMove(&window.Window(), {399, 299});
    QTest::mouseMove(label, {5, 5});
    QCoreApplication::processEvents();
    EXPECT_TRUE(label->IsHovered());
    EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(0x13, 0x13, 0x95));
    QApplication::sendEvent(label, &leave);
    EXPECT_EQ(label->palette().color(QPalette::WindowText), own);
    EXPECT_EQ(hovers.size(), 2);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST(ExStatic, AClickIsAPressAndAReleaseOverIt) {
    ShownWindow window;
    auto* label = window.Add<CExStatic>();
    label->setText("Caption");
    ASSERT_TRUE(window.Show());
    QSignalSpy clicks(label, &CExStatic::Clicked);
    QTest::mouseClick(label, Qt::LeftButton);
    EXPECT_EQ(clicks.size(), 1);
    QTest::mousePress(label, Qt::LeftButton);
    QTest::mouseRelease(label, Qt::LeftButton, {}, {-5, -5});
    QTest::mouseClick(label, Qt::RightButton);
    EXPECT_EQ(clicks.size(), 1);
}

TEST(ExACStatic, ACutTextIsToldInFull) {
    CExACStatic label;
    label.setText("Angular tolerance of the second dimension");
    label.resize(600, 20);
    label.grab();
    EXPECT_EQ(label.toolTip(), "");
    label.resize(60, 20);
    label.grab();
    EXPECT_EQ(label.toolTip(), label.text());
}

TEST(GroupBoxExt, TakesItsThreeColours) {
    CGroupBoxExt box;
    box.setTitle("Tolerances");
    box.resize(300, 80);
    box.SetTextColor(0x7D2800);
    box.SetLightColor(0xF0F0DC);
    box.SetLineColor(0x5A6C72);
    const QImage image = Drawn(box);
    EXPECT_TRUE(HasColor(image, qRgb(0xDC, 0xF0, 0xF0)));
    EXPECT_TRUE(HasColor(image, qRgb(0x00, 0x28, 0x7D)));
    box.SetTextColor(0x0000FF);
    EXPECT_FALSE(HasColor(Drawn(box), qRgb(0x00, 0x28, 0x7D)));
}

TEST(StaticBitmapCtrl, HasTheSizeAndTheNameOfItsPicture) {
    CStaticBitmapCtrl picture;
    EXPECT_TRUE(picture.sizeHint().isEmpty());
    picture.SetPicture(ImageType::Icon, 1424, "Medium");
    EXPECT_EQ(picture.sizeHint(), QSize(16, 16));
    EXPECT_EQ(picture.accessibleName(), "Medium");
    const QImage drawn = Drawn(picture);
    picture.SetPicture(ImageType::Icon, 4711, {});
    EXPECT_TRUE(picture.sizeHint().isEmpty());
    EXPECT_FALSE(drawn.isNull());
}

TEST(PictureCtrl, FitsThePictureIntoItsFrame) {
    CPictureCtrl picture;
    picture.resize(100, 60);
    QImage red(400, 100, QImage::Format_RGB32);
    red.fill(Qt::red);
    picture.SetPicture(red);
    const QImage drawn = Drawn(picture);
    EXPECT_EQ(QColor(drawn.pixel(50, 30)), QColor(Qt::red));
    EXPECT_NE(QColor(drawn.pixel(50, 10)), QColor(Qt::red));
    EXPECT_NE(QColor(drawn.pixel(1, 30)), QColor(Qt::red));
}

TEST(PictureCtrl, AFileThatIsNoPictureShowsNothing) {
    const QTemporaryDir folder;
    const CString path = folder.filePath("preview.bmp");
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::blue);
    ASSERT_TRUE(image.save(path));
    CPictureCtrl picture;
    EXPECT_TRUE(picture.SetPictureFile(path));
    EXPECT_TRUE(picture.HasPicture());
    EXPECT_FALSE(picture.SetPictureFile(folder.filePath("missing.bmp")));
    EXPECT_FALSE(picture.HasPicture());
}

TEST(FormatCondition, TakesTheFontOfTheWindow) {
    QWidget window;
    QFont font("DejaVu Sans");
    font.setPixelSize(17);
    font.setWeight(QFont::Light);
    font.setItalic(true);
    font.setStrikeOut(true);
    window.setFont(font);
    const CFormatCondition format(&window);
    EXPECT_EQ(format.FontName, "DejaVu Sans");
    EXPECT_EQ(format.FontHeight, 17);
    EXPECT_TRUE(format.IsBold); // every weight but the normal one
    EXPECT_TRUE(format.IsItalic);
    EXPECT_FALSE(format.IsUnderlined);
    EXPECT_TRUE(format.IsStruckOut);
    EXPECT_EQ(format.DotsPerInch, window.logicalDpiY());
}

TEST(FormatCondition, WithoutAWindowItIsTheDesktop) {
    const CFormatCondition format;
    EXPECT_EQ(format.FontName, QApplication::font().family());
    EXPECT_FALSE(format.IsBold);
    EXPECT_GT(format.FontHeight, 0);
    EXPECT_EQ(format.BackgroundColor, 0xFFFFFFu);
    EXPECT_EQ(format.Text, "");
}
