#include "support/Gui.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>
#include <QtTest>
#include <gtest/gtest.h>
#include <utility>

namespace Gui {

namespace {

constexpr int LookEveryMs = 10;

// Windows that wait for an answer, so that each answer takes a window of its own.
QWidget* NewestModal() {
    QWidget* window = QApplication::activeModalWidget();
    return window && window->isVisible() ? window : nullptr;
}

class LeftBehind : public ::testing::EmptyTestEventListener {
    void OnTestEnd(const ::testing::TestInfo& test) override {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (const QWidget* widget : QApplication::topLevelWidgets()) {
            // Qt keeps one window of its own for tips and one for menus.
            if (widget->windowType() == Qt::ToolTip || widget->windowType() == Qt::Desktop)
                continue;
            ADD_FAILURE() << test.name() << " left a widget behind: " << widget->metaObject()->className()
                          << " " << widget->objectName().toStdString();
        }
    }
};

// What the screenless platform says of each window is no news.
QtMessageHandler previousHandler = nullptr;

void WithoutNoise(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith("This plugin does not support") && previousHandler)
        previousHandler(type, context, text);
}

CString WithoutMnemonic(CString text) {
    return text.remove('&');
}

} // namespace

Setup::Setup() {
    previousHandler = qInstallMessageHandler(WithoutNoise);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setFont(QFont("DejaVu Sans", 9));
    qApp->installEventFilter(this);
    ::testing::UnitTest::GetInstance()->listeners().Append(new LeftBehind);
}

bool Setup::eventFilter(QObject* object, QEvent* event) {
    auto* window = qobject_cast<QWidget*>(object);
    if (window && event->type() == QEvent::Hide && window->isWindow()) {
        const QPointer<QWidget> parent = window->parentWidget() ? window->parentWidget()->window() : nullptr;
        QTimer::singleShot(0, qApp, [parent] {
            if (QWidget* modal = QApplication::activeModalWidget())
                modal->activateWindow();
            else if (parent && parent->isVisible())
                parent->activateWindow();
        });
    }
    return false;
}

void Show(QWidget& window) {
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window, 5000))
        qWarning("A window did not become active.");
    Settle();
}

void Settle() {
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

void ClickAt(QWidget& target, QPoint place, Qt::KeyboardModifiers modifiers, Qt::MouseButton button) {
    QTest::mouseClick(&target, button, modifiers, place);
    Settle();
}

void Click(QWidget& target, Qt::KeyboardModifiers modifiers) {
    // The middle of a wide box or radio button lies beside its mark and text.
    const bool isWide = qobject_cast<QAbstractButton*>(&target) && target.width() > 60;
    ClickAt(target, isWide ? QPoint(10, target.height() / 2) : target.rect().center(), modifiers);
}

void Key(QWidget& target, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&target, key, modifiers);
    Settle();
}

void Type(QWidget& target, const CString& text) {
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, &target, Qt::Key(0), QString(character), Qt::NoModifier);
    Settle();
}

void Wheel(QWidget& target, int angle) {
    const QPointF place = target.rect().center();
    QWheelEvent event(place, target.mapToGlobal(place), {}, QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&target, &event);
    Settle();
}

void Focus(QWidget& target) {
    target.setFocus(Qt::TabFocusReason);
    Settle();
}

CString TipAt(QWidget& target, QPoint place) {
    // Qt takes an older tip away only after a while.
    QToolTip::showText({}, "?");
    QHelpEvent rest(QEvent::ToolTip, place, target.mapToGlobal(place));
    QApplication::sendEvent(&target, &rest);
    Settle();
    const CString text = QToolTip::text();
    return text == "?" ? CString() : text;
}

CStringArray RowsOf(const QComboBox& combo) {
    CStringArray rows;
    for (int i = 0; i < combo.count(); ++i)
        rows.append(combo.itemText(i));
    return rows;
}

void ChooseRow(QWidget& combo, int row) {
    auto& box = dynamic_cast<QComboBox&>(combo);
    Focus(box);
    const int steps = row - box.currentIndex();
    for (int step = 0; step < std::abs(steps); ++step)
        QTest::keyClick(&box, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
    Settle();
}

Answer::Answer(std::function<void(QWidget&)> answer, int limitMs)
    : m_answer(std::move(answer)), m_left(limitMs / LookEveryMs) {
    QTimer::singleShot(LookEveryMs, this, [this] { Look(); });
}

void Answer::Look() {
    QWidget* window = NewestModal();
    // A window that an earlier answer is still busy with is not answered twice.
    if (window && !window->property("answered").toBool()) {
        window->setProperty("answered", true);
        m_answered = true;
        m_answer(*window);
    } else if (--m_left > 0) {
        QTimer::singleShot(LookEveryMs, this, [this] { Look(); });
    } else if (window) {
        window->close(); // else the test would hang for good
    }
}

void PressButton(QWidget& window, const CString& text) {
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (WithoutMnemonic(button->text()) == WithoutMnemonic(text) && button->isVisible()) {
            button->click();
            return;
        }
    }
    qWarning("No button \"%s\".", text.toUtf8().constData());
    window.close();
}

void ChooseFile(QWidget& dialog, const CString& path) {
    auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    if (!name) {
        qWarning("No file dialog.");
        dialog.close();
        return;
    }
    // Typing clears the selection in the list, which would win; a text that is set does not.
    for (const QAbstractItemView* view : dialog.findChildren<QAbstractItemView*>())
        if (view->selectionModel())
            view->selectionModel()->clearSelection();
    name->setText(path);
    // Not by Return: until the dialog has read the folder its list of proposals takes the key.
    dynamic_cast<QDialog&>(dialog).accept();
}

QWidget* FindNumber(QWidget& parent, int number) {
    for (QWidget* child : parent.findChildren<QWidget*>(QString::number(number)))
        if (child->isVisible())
            return child;
    return nullptr;
}

} // namespace Gui
