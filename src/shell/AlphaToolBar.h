// The toolbar at the right edge of the window, with the button that shows the checks of all groups. It takes
// what is left of its row and keeps its button at the far end, however wide the window is.
#pragma once

#include <QToolBar>

class QToolButton;

class CAlphaToolBar : public QToolBar {
    Q_OBJECT

public:
    // A button of text that stays down while its command's state is checked.
    CAlphaToolBar(QAction& action, const QString& title, QWidget* parent = nullptr);

    QToolButton& GetButton() const { return *m_button; }

private:
    QToolButton* m_button;
};
