// The catalogue bar at the left: a tab for each group of checks, and under it a button for each check of the
// group in front. A button stays down while its check stands on the page.
#pragma once

#include "platform/Text.h"

#include <QTabBar>
#include <QWidget>
#include <functional>
#include <vector>

class CAdminModuleApp;
class CatalogueButton;
class QLabel;
class QScrollArea;

// The tabs of the groups: images only, all of one size.
class CTabCtrlEx : public QTabBar {
    Q_OBJECT

public:
    using QTabBar::QTabBar;

protected:
    QSize tabSizeHint(int) const override { return {34, 28}; }
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
};

class CTabToolbar : public QWidget {
    Q_OBJECT

public:
    // Shows the first group.
    explicit CTabToolbar(CAdminModuleApp& app, QWidget* parent = nullptr);

    unsigned GetCurrentGroup() const { return static_cast<unsigned>(m_tabs->currentIndex()); }
    // Brings a group to the front, as a click on its tab does. An unknown one changes nothing.
    void FocusGroup(unsigned group);
    // Releases the buttons of a range of commands, until the next update of their states.
    void ReleaseButtons(unsigned firstCommand, unsigned lastCommand);

    // Of buttons, in pixels: the widest text of all groups, at least 230, and 10 more.
    int GetButtonWidth() const { return m_buttonWidth; }
    QTabBar& GetTabs() const { return *m_tabs; }
    const std::vector<CatalogueButton*>& GetButtons() const { return m_buttons; } // of the group in front

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void MakeTabs();
    void LoadGroup(unsigned group);
    void OnTabChanged();
    bool MoveFocus(QObject* from, int key);

    CAdminModuleApp& m_app;
    int m_buttonWidth;
    CTabCtrlEx* m_tabs;
    QLabel* m_heading;
    QScrollArea* m_area;
    std::vector<CatalogueButton*> m_buttons;
};
