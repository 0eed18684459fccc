// The look of the tool: its palette, faces and pictures, and the standard controls.
#include "platform/widgets/Look.h"

#include "platform/SettingsValue.h"
#include "platform/widgets/FontHelper.h"
#include "platform/widgets/RulewardStyle.h"
#include "support/Gui.h"
#include "widgets/Gallery.h"

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTest>
#include <cmath>
#include <gtest/gtest.h>

namespace {

class LookTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        plainFont = QApplication::font();
        Look::ApplyTo(*qApp);
    }
    static void TearDownTestSuite() {
        QApplication::setStyle(QStyleFactory::create("Fusion"));
        QApplication::setPalette(QApplication::style()->standardPalette());
        QApplication::setFont(plainFont);
    }

    void SetUp() override {
        gallery = MakeGallery();
        Gui::Show(*gallery);
    }

    QWidget& Control(const char* name) const { return *gallery->findChild<QWidget*>(name); }
    // The control as it looks, with a little of what is around it.
    QImage Look(const QWidget& control) const {
        return gallery
            ->grab(QRect(control.mapTo(gallery.get(), QPoint()), control.size()).adjusted(-3, -3, 3, 3))
            .toImage();
    }

    std::unique_ptr<QWidget> gallery;
    static inline QFont plainFont;
};

// How much lighter the lighter one of two colours is, as the eye sees it: from 1 to 21.
double Contrast(const QColor& one, const QColor& other) {
    const auto light = [](const QColor& color) {
        const auto part = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
    };
    const double a = light(one);
    const double b = light(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

void SetHostEnglish(int value) {
    CIntValue("Use English language", value)
        .Write({SettingsRoot::CurrentUser, R"(Software\Kortavo\Kortavo 2026\General)"});
}

const char* const Focusable[] = {"edit", "combo", "spin", "OK", "&Cancel", "Flat", "box0", "box2", "list"};

} // namespace

TEST_F(LookTest, Look_KeepsItsLightPaletteUnderADarkTheme) {
    QPalette dark(Qt::black);
    RulewardStyle style;
    style.polish(dark);
    EXPECT_EQ(dark.color(QPalette::Base).rgb(), Look::FieldGround);
    EXPECT_EQ(dark.color(QPalette::WindowText).rgb(), Look::Text);
    EXPECT_EQ(QApplication::palette().color(QPalette::Base).rgb(), Look::FieldGround);
}

TEST_F(LookTest, Look_TextsCanBeRead) {
    const QPalette palette = QApplication::palette();
    for (const auto& [text, ground] : {std::pair{QPalette::WindowText, QPalette::Window},
                                       {QPalette::Text, QPalette::Base},
                                       {QPalette::ButtonText, QPalette::Button},
                                       {QPalette::HighlightedText, QPalette::Highlight},
                                       {QPalette::ToolTipText, QPalette::ToolTipBase}}) {
        EXPECT_GE(Contrast(palette.color(QPalette::Active, text), palette.color(QPalette::Active, ground)),
                  7);
        EXPECT_GE(
            Contrast(palette.color(QPalette::Disabled, text), palette.color(QPalette::Disabled, ground)),
            text == QPalette::ToolTipText ? 7 : 3);
    }
    for (const QRgb ground : {Look::PageGround, Look::PaneGround, Look::SelectedPaneGround}) {
        EXPECT_GE(Contrast(QColor(Look::Text), QColor(ground)), 7);
        EXPECT_GE(Contrast(QColor(Look::FaintText), QColor(ground)), 4);
    }
}

TEST_F(LookTest, Look_FocusIsSeenOnEveryControl) {
    for (const char* name : Focusable) {
        QWidget& control = Control(name);
        gallery->setFocus();
        Gui::Settle();
        const QImage without = Look(control);
        Gui::Focus(control);
        EXPECT_TRUE(control.hasFocus()) << name;
        const QImage with = Look(control);
        int changed = 0;
        for (int y = 0; y < with.height(); ++y)
            for (int x = 0; x < with.width(); ++x)
                changed += with.pixel(x, y) != without.pixel(x, y);
        EXPECT_GE(changed, 40) << name; // more than the bar of an edit's cursor
    }
}

TEST_F(LookTest, Look_HoverIsSeen) {
    for (const char* name : {"edit", "combo", "spin", "OK", "&Cancel", "Flat", "box0", "box2"}) {
        QWidget& control = Control(name);
        QTest::mouseMove(gallery.get(), {1, 1});
        Gui::Settle();
        const QImage without = Look(control);
        QTest::mouseMove(&control);
        Gui::Settle();
        EXPECT_TRUE(Look(control) != without) << name;
    }
}

TEST_F(LookTest, Look_FieldsHaveTheHeightOfARow) {
    for (const char* name : {"edit", "combo", "spin"})
        EXPECT_EQ(Control(name).sizeHint().height(), Look::RowHeight) << name;
}

TEST_F(LookTest, Look_NoTextIsCut) {
    for (const QPushButton* button : gallery->findChildren<QPushButton*>())
        EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(button->text())) << "button";
    for (QComboBox* combo : gallery->findChildren<QComboBox*>()) {
        const int text = combo->fontMetrics().horizontalAdvance(combo->currentText());
        EXPECT_GE(combo->sizeHint().width() - 26, text) << combo->currentText().toStdString();
    }
}

TEST_F(LookTest, Look_FaceFollowsTheUsersLanguageAndTheHost) {
    SetHostEnglish(0);
    EXPECT_EQ(fontHelperImpl_c(QLocale::German).GetFace(), "Segoe UI");
    EXPECT_EQ(fontHelperImpl_c(QLocale::Japanese).GetFace(), "Tahoma");
    SetHostEnglish(1);
    EXPECT_EQ(fontHelperImpl_c(QLocale::Japanese).GetFace(), "Segoe UI");
    EXPECT_EQ(fontHelperImpl_c(QLocale::German).GetFace(), "Segoe UI");
    SetHostEnglish(0);
}

TEST_F(LookTest, Look_FaceIsReadOnce) {
    const CString face = fontHelper_c().GetFace();
    SetHostEnglish(face == "Tahoma" ? 1 : 0);
    EXPECT_EQ(fontHelper_c().GetFace(), face);
}

TEST_F(LookTest, Look_FontsAreOfAnInstalledFace) {
    EXPECT_EQ(Look::PageFont().pointSize(), 8);
    EXPECT_EQ(Look::WindowFont().pointSize(), 9);
    EXPECT_EQ(Look::PageFont().family(), Look::WindowFont().family());
    EXPECT_FALSE(QFontInfo(Look::PageFont()).fixedPitch());
}

TEST_F(LookTest, Look_PicturesAreDrawnAtTheSizeAskedFor) {
    const QIcon icon = Look::IconOf(1144);
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        const QPixmap picture = icon.pixmap(QSize(16, 16), ratio);
        EXPECT_EQ(picture.size(), (QSizeF(16, 16) * ratio).toSize());
        EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(16, 16));
    }
    // Drawn anew from its shapes: twice the size is not the small one stretched.
    const QImage small = icon.pixmap(QSize(16, 16), 1).toImage();
    EXPECT_NE(icon.pixmap(QSize(32, 32), 1).toImage(), small.scaled(32, 32));
    EXPECT_EQ(Look::BitmapOf(1144, *gallery).deviceIndependentSize(), QSizeF(16, 16));
    EXPECT_FALSE(Look::IconPixmapOf(1144, *gallery).isNull());
}

TEST_F(LookTest, Look_PictureOfADisabledCommandIsFaint) {
    const QSize size(16, 16);
    const QImage normal = Look::IconOf(1144).pixmap(size, 1, QIcon::Normal).toImage();
    const QImage faint = Look::IconOf(1144).pixmap(size, 1, QIcon::Disabled).toImage();
    EXPECT_NE(normal, faint);
    EXPECT_EQ(Look::IconOf(1144, 1146).pixmap(size, 1, QIcon::Disabled).toImage(),
              Look::IconOf(1146).pixmap(size, 1, QIcon::Normal).toImage());
}

TEST_F(LookTest, Look_UnknownPicturesAreEmpty) {
    EXPECT_TRUE(Look::IconOf(4711).isNull());
    EXPECT_TRUE(Look::BitmapOf(4711, *gallery).isNull());
    EXPECT_TRUE(Look::IconPixmapOf(4711, *gallery).isNull());
}

TEST_F(LookTest, Look_MenusShowPicturesMarksAndShortcuts) {
    auto* menu = gallery->findChild<QMenu*>("file");
    menu->popup({20, 20});
    menu->setActiveAction(menu->actions().constFirst());
    const QImage picture = Picture(*menu, "menu");
    EXPECT_GT(menu->width(), menu->fontMetrics().horizontalAdvance("Open... Ctrl+O") + 30);
    EXPECT_EQ(picture.pixelColor(picture.rect().bottomLeft() + QPoint(4, -4)).rgb(),
              Look::SelectedPaneGround);
    menu->close();
}

// To be looked at: the gallery with the keyboard on one control after the other.
TEST_F(LookTest, Look_GalleryIsDrawnInEveryState) {
    int number = 0;
    for (const char* name : Focusable) {
        Gui::Focus(Control(name));
        QTest::mouseMove(&Control(name));
        Gui::Settle();
        EXPECT_FALSE(Picture(*gallery, QString("gallery%1").arg(++number)).isNull());
    }
}
