// The panes of the status bar: messages at the left, then the count of checks and the keys that lock.
#pragma once

#include "platform/Text.h"
#include "shell/KeyStates.h"

#include <QStatusBar>
#include <array>

class QLabel;

class CStatusPanes : public QStatusBar {
    Q_OBJECT

public:
    explicit CStatusPanes(QWidget* parent = nullptr);

    void SetLiveCheckCount(int count); // the pane takes the width of its text
    void ShowKeyStates(const KeyStates& states);

    QLabel& GetMessagePane() const { return *m_message; }
    QLabel& GetCountPane() const { return *m_count; }

private:
    QLabel* AddPane(unsigned number);

    QLabel* m_message;
    QLabel* m_count;
    std::array<QLabel*, 3> m_keys;
    int m_shownCount = -1;
};
