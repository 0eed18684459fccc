// Texts and lines of panes that no user can change.
#pragma once

#include <QFrame>
#include <QLabel>

// The heading of a column, with a line under it.
class CHeading : public QLabel {
    Q_OBJECT

public:
    explicit CHeading(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

// A unit, or a quiet remark.
class CHint : public QLabel {
    Q_OBJECT

public:
    explicit CHint(QWidget* parent = nullptr);
};

// What separates the sections of a pane.
class CFaintLine : public QFrame {
    Q_OBJECT

public:
    explicit CFaintLine(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
