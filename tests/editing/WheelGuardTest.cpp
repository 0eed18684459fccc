#include "editing/WheelGuard.h"

#include "editing/ComboBoxExt.h"
#include "support/ShownWindow.h"

#include <QAbstractItemView>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QWheelEvent>
#include <QWindow>
#include <gtest/gtest.h>

namespace {

// A long page with a plain box of choices, the tool's own one, a spin box and a field.
class WheelOverPage : public testing::Test {
protected:
    WheelOverPage() {
        qApp->installEventFilter(&m_guard);
        auto* page = new QWidget;
        auto* layout = new QVBoxLayout(page);
        layout->addWidget(&m_plain);
        layout->addWidget(&m_own);
        layout->addWidget(&m_spin);
        layout->addSpacing(2000);
        m_plain.addItems({"a", "b", "c"});
        m_own.addItems({"a", "b", "c"});
        m_plain.setCurrentIndex(1);
        m_own.setCurrentIndex(1);
        m_spin.setValue(5);
        m_area.setWidget(page);
        m_area.resize(300, 200);
        m_area.show();
        m_area.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_area));
        m_area.setFocus();
    }
    ~WheelOverPage() override {
        for (QWidget* box :
             {static_cast<QWidget*>(&m_plain), static_cast<QWidget*>(&m_own), static_cast<QWidget*>(&m_spin)})
            box->setParent(nullptr);
    }

    // Turns the wheel down over a control; how far the page scrolled.
    int Wheel(const QWidget& control) {
        m_area.verticalScrollBar()->setValue(0);
        const QPoint point = control.mapTo(&m_area, control.rect().center());
        QWheelEvent wheel(point, m_area.mapToGlobal(point), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&wheel); // as from the window system, so that it goes on to parents
        qApp->notify(m_area.windowHandle(), &wheel);
        QCoreApplication::processEvents();
        return m_area.verticalScrollBar()->value();
    }

    WheelGuard m_guard; // before the boxes, which it makes ready
    QScrollArea m_area;
    QComboBox m_plain;
    CComboBoxExt m_own;
    QSpinBox m_spin;
};

} // namespace

TEST_F(WheelOverPage, ABoxWithoutTheFocusScrollsThePage) {
    for (const QWidget* box :
         {static_cast<QWidget*>(&m_plain), static_cast<QWidget*>(&m_own), static_cast<QWidget*>(&m_spin)})
        EXPECT_GT(Wheel(*box), 0);
    EXPECT_EQ(m_plain.currentIndex(), 1);
    EXPECT_EQ(m_own.currentIndex(), 1);
    EXPECT_EQ(m_spin.value(), 5);
}

TEST_F(WheelOverPage, ABoxWithTheFocusTurns) {
    for (QWidget* box :
         {static_cast<QWidget*>(&m_plain), static_cast<QWidget*>(&m_own), static_cast<QWidget*>(&m_spin)}) {
        box->setFocus();
        EXPECT_EQ(Wheel(*box), 0);
    }
    EXPECT_EQ(m_plain.currentIndex(), 2);
    EXPECT_EQ(m_own.currentIndex(), 2);
    EXPECT_EQ(m_spin.value(), 4);
}

TEST(ComboBoxExt, ThePopupIsAsWideAsItsLongestRow) {
    ShownWindow window;
    auto* box = window.Add<CComboBoxExt>();
    box->AddRow("short");
    box->AddRow("a row whose text is a good deal longer than the box that it is in");
    ASSERT_TRUE(window.Show());
    box->setFixedWidth(80);
    box->showPopup();
    const int text = box->fontMetrics().horizontalAdvance(box->itemText(1));
    EXPECT_GT(box->view()->width(), text);
    EXPECT_EQ(box->itemData(1, Qt::ToolTipRole).toString(), box->itemText(1));
    box->hidePopup();
    EXPECT_EQ(box->toolTip(), "short");
}
