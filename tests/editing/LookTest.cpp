#include "editing/Look.h"

#include "support/ShownWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <gtest/gtest.h>

namespace {

QColor Middle(QWidget& widget) {
    return QColor(widget.grab().toImage().pixel(widget.width() / 2, widget.height() / 2));
}

template <class T> T* Styled(ShownWindow& window, ControlStyle& style) {
    T* control = window.Add<T>();
    control->setStyle(&style);
    control->setPalette(Look::ControlPalette());
    return control;
}

} // namespace

TEST(Look, ColoursAreGivenWithBlueFirst) {
    EXPECT_EQ(Look::FromBgr(0x9696FF), qRgb(0xFF, 0x96, 0x96));
    EXPECT_EQ(Look::FromBgr(0x7D2800), qRgb(0x00, 0x28, 0x7D));
}

TEST(Look, FieldsHaveTheGroundOfTheirPalette) {
    ControlStyle style;
    ShownWindow window;
    auto* field = Styled<QLineEdit>(window, style);
    auto* box = Styled<QComboBox>(window, style);
    ASSERT_TRUE(window.Show());
    EXPECT_EQ(Middle(*field), QColor(Look::Field));
    for (QWidget* control : {static_cast<QWidget*>(field), static_cast<QWidget*>(box)}) {
        QPalette palette = control->palette();
        palette.setColor(QPalette::Base, QColor(Look::CorrectionField));
        control->setPalette(palette);
        EXPECT_EQ(Middle(*control), QColor(Look::CorrectionField));
        control->setEnabled(false);
        EXPECT_EQ(Middle(*control), QColor(Look::DisabledField));
    }
}

TEST(Look, FieldsOfOneRowAreOfOneHeight) {
    ControlStyle style;
    ShownWindow window;
    const int height = Styled<QLineEdit>(window, style)->sizeHint().height();
    EXPECT_EQ(Styled<QComboBox>(window, style)->sizeHint().height(), height);
    EXPECT_EQ(Styled<QSpinBox>(window, style)->sizeHint().height(), height);
}

TEST(Look, TheFocusIsSeenOnEveryControl) {
    ControlStyle style;
    ShownWindow window;
    auto* tick = Styled<QCheckBox>(window, style);
    tick->setText("ISO");
    const QList<QWidget*> controls = {Styled<QLineEdit>(window, style), Styled<QComboBox>(window, style),
                                      Styled<QSpinBox>(window, style), tick};
    ASSERT_TRUE(window.Show());
    for (QWidget* control : controls) {
        (control == tick ? controls.first() : tick)->setFocus(Qt::TabFocusReason);
        const QImage without = control->grab().toImage();
        control->setFocus(Qt::TabFocusReason);
        EXPECT_NE(control->grab().toImage(), without) << control->metaObject()->className();
    }
}

TEST(Look, TheLightPaletteStandsOnADarkDesktop) {
    const QPalette own = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::black));
    const QPalette palette = Look::ControlPalette();
    QApplication::setPalette(own);
    for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::Button, QPalette::AlternateBase,
                              QPalette::Highlight, QPalette::Light, QPalette::Midlight, QPalette::Mid})
        EXPECT_GT(palette.color(ground).lightness(), 150) << ground;
    EXPECT_LT(palette.color(QPalette::Text).lightness(), 100);
}
