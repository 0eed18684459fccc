#include "editing/ExtRichEditCtrl.h"

#include "support/ShownWindow.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class FilteredField : public testing::Test {
protected:
    FilteredField() : m_field(*m_window.Add<CExtRichEditCtrl>()) { EXPECT_TRUE(m_window.Show()); }

    CString Typed(const CString& text) {
        m_field.clear();
        QTest::keyClicks(&m_field, text);
        return m_field.text();
    }

    ShownWindow m_window;
    CExtRichEditCtrl& m_field;
};

} // namespace

TEST_F(FilteredField, TakesEverythingWithAnEmptyExcludingFilter) {
    EXPECT_EQ(Typed("a1.-"), "a1.-");
    m_field.SetFilter("", true);
    EXPECT_EQ(Typed("x \\/:"), "x \\/:");
}

TEST_F(FilteredField, AnIncludingFilterSwallowsTheRest) {
    m_field.SetFilter("0123456789.", false);
    EXPECT_EQ(Typed("-1a2.5 mm"), "12.5");
}

TEST_F(FilteredField, AnExcludingFilterSwallowsWhatItNames) {
    m_field.SetFilter("/:", true);
    EXPECT_EQ(Typed("a/b:c"), "abc");
}

TEST_F(FilteredField, BackspaceAndOtherCommandsPass) {
    m_field.SetFilter("12", false);
    EXPECT_EQ(Typed("12"), "12");
    QTest::keyClick(&m_field, Qt::Key_Backspace);
    EXPECT_EQ(m_field.text(), "1");
    QTest::keyClick(&m_field, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(m_field.selectedText(), "1");
    QTest::keyClick(&m_field, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "1");
    QTest::keyClick(&m_field, Qt::Key_Delete);
    EXPECT_EQ(m_field.text(), "");
}

TEST_F(FilteredField, PasteDropsWhatTypingWouldRefuseAndCanBeUndone) {
    m_field.SetFilter("0123456789.,", false);
    QGuiApplication::clipboard()->setText("1.5 mm, 2");
    m_field.setText("0");
    QTest::keyClick(&m_field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_field.text(), "01.5,2");
    QTest::keyClick(&m_field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_field.text(), "0");
}

TEST_F(FilteredField, AReadOnlyFieldIsNotPastedInto) {
    m_field.setReadOnly(true);
    QGuiApplication::clipboard()->setText("1");
    QTest::keyClick(&m_field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_field.text(), "");
}

TEST_F(FilteredField, TheContextMenuPastesFiltered) {
    m_field.SetFilter("0123456789", false);
    QGuiApplication::clipboard()->setText("a1b2");
    QTimer::singleShot(0, [] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (QAction* action : menu->actions())
            if (action->text().contains("Paste")) {
                const QRect rect = menu->actionGeometry(action);
                QTest::mouseClick(menu, Qt::LeftButton, {}, rect.center());
            }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, m_field.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&m_field, &event);
    EXPECT_EQ(m_field.text(), "12");
}

TEST_F(FilteredField, ADropIsFiltered) {
    m_field.SetFilter("0123456789", false);
    QMimeData data;
    data.setText("7x8");
    QDragEnterEvent enter(QPoint(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&m_field, &enter);
    QDropEvent drop(QPointF(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&m_field, &drop);
    EXPECT_EQ(m_field.text(), "78");
}

TEST_F(FilteredField, WhatAProgramSetsIsNotFiltered) {
    m_field.SetFilter("0123456789", false);
    m_field.setText("No");
    EXPECT_EQ(m_field.text(), "No");
}

TEST_F(FilteredField, WhatIsLongerThanTheFieldIsSeenFromItsBeginning) {
    const CString values = CStringArray(50, "12.5").join(" , ");
    m_field.setFocus();
    m_field.setText(values);
    EXPECT_EQ(m_field.cursorPosition(), values.size()) << "the user goes on where he is";
    m_field.clearFocus();
    m_field.setText(values + ", 1");
    EXPECT_EQ(m_field.cursorPosition(), 0);
    m_field.setEnabled(false);
    m_field.setText(values);
    EXPECT_EQ(m_field.cursorPosition(), 0);
}
