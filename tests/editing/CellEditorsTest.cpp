#include "editing/CellComboBox.h"
#include "editing/CellEdit.h"

#include "support/ShownWindow.h"

#include <QKeyEvent>
#include <gtest/gtest.h>
#include <utility>

namespace {

// Stands for the grid: it counts the keys that reach it.
class KeyCounter : public QWidget {
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() != Qt::Key_Control)
            ++keys;
        event->accept();
    }
};

class CellEditorKeys : public testing::Test {
protected:
    CellEditorKeys() : m_edit("0123456789", false, &m_grid), m_combo(&m_grid) {
        m_combo.addItems({"alpha", "beta", "cube", "vast"});
        m_combo.move(0, 40);
        m_edit.setText("42");
        m_grid.show();
        m_grid.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_grid));
    }

    // How many keys came through to the grid.
    int Reaching(QWidget& editor, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        editor.setFocus();
        m_grid.keys = 0;
        QTest::keyClick(&editor, key, modifiers);
        return m_grid.keys;
    }

    KeyCounter m_grid;
    CCellEdit m_edit;
    CCellComboBox m_combo;
};

constexpr Qt::Key CaretKeys[] = {Qt::Key_End,   Qt::Key_Home, Qt::Key_Left,
                                 Qt::Key_Right, Qt::Key_Up,   Qt::Key_Down};
constexpr Qt::Key Letters[] = {Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Z};

} // namespace

TEST_F(CellEditorKeys, CaretKeysStayInTheEditors) {
    for (const Qt::Key key : CaretKeys) {
        EXPECT_EQ(Reaching(m_edit, key), 0) << key;
        EXPECT_EQ(Reaching(m_combo, key), 0) << key;
    }
    EXPECT_EQ(Reaching(m_edit, Qt::Key_PageDown), 1);
    EXPECT_EQ(Reaching(m_edit, Qt::Key_F2), 1);
}

TEST_F(CellEditorKeys, CaretKeysMoveTheCaret) {
    m_edit.setCursorPosition(0);
    Reaching(m_edit, Qt::Key_Right);
    EXPECT_EQ(m_edit.cursorPosition(), 1);
    Reaching(m_edit, Qt::Key_End);
    EXPECT_EQ(m_edit.cursorPosition(), 2);
    Reaching(m_edit, Qt::Key_Home);
    EXPECT_EQ(m_edit.cursorPosition(), 0);
}

TEST_F(CellEditorKeys, ClipboardKeysStayInTheTextEditor) {
    for (const Qt::Key key : Letters)
        EXPECT_EQ(Reaching(m_edit, key, Qt::ControlModifier), 0) << key;
}

TEST_F(CellEditorKeys, TheTextEditorClaimsItsKeysFromTheMenus) {
    for (const Qt::Key key : Letters) {
        QKeyEvent claim(QEvent::ShortcutOverride, key, Qt::ControlModifier);
        claim.ignore();
        QApplication::sendEvent(&m_edit, &claim);
        EXPECT_TRUE(claim.isAccepted()) << key;
        QKeyEvent left(QEvent::ShortcutOverride, key, Qt::ControlModifier);
        left.ignore();
        QApplication::sendEvent(&m_combo, &left);
        EXPECT_FALSE(left.isAccepted()) << key;
    }
}

TEST_F(CellEditorKeys, LettersAreTypedWhereTheFilterTakesThem) {
    EXPECT_EQ(Reaching(m_edit, Qt::Key_A), 0);
    EXPECT_EQ(m_edit.text(), "42");
    m_edit.SetFilter("0", true);
    m_edit.selectAll();
    EXPECT_EQ(Reaching(m_edit, Qt::Key_A), 0);
    EXPECT_EQ(m_edit.text(), "a");
    QTest::keyClick(&m_edit, Qt::Key_0);
    EXPECT_EQ(m_edit.text(), "a");
}

TEST_F(CellEditorKeys, LettersSearchTheChoices) {
    EXPECT_EQ(Reaching(m_combo, Qt::Key_V), 0);
    EXPECT_EQ(m_combo.currentText(), "vast");
}

TEST_F(CellEditorKeys, CommandsOverTheChoicesGoToTheGrid) {
    for (const Qt::Key key : Letters)
        EXPECT_EQ(Reaching(m_combo, key, Qt::ControlModifier), 1) << key;
    EXPECT_EQ(m_combo.currentText(), "alpha");
}
