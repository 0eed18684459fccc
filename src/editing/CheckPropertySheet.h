// The sheet that fills a document's window: its pages one behind the other, and a tab for each.
#pragma once

#include "platform/Text.h"

#include <QKeySequence>
#include <QWidget>
#include <functional>
#include <vector>

class CTabCtrlInPropertySheet;
class QStackedWidget;

class CCheckPropertySheet : public QWidget {
    Q_OBJECT

public:
    explicit CCheckPropertySheet(QWidget* parent = nullptr);

    // Takes a page under a title and a key that brings it to the front. The page, which the sheet then owns,
    // is made when it is first asked for. `onActive` runs just before it is shown.
    void AddPage(std::function<QWidget*()> make, const CString& title, const QKeySequence& key,
                 std::function<void()> onActive);

    // Makes the page if it has not been seen yet.
    QWidget& GetPage(int page);

    // The page comes to the front, and its `onActive` runs even if it was there before.
    void ActivatePage(int page);
    int GetActivePage() const;
    CTabCtrlInPropertySheet& GetTabs() const { return *m_tabs; }

private:
    void OnTabChanged(int page);
    void Turn(int pages);

    CTabCtrlInPropertySheet* m_tabs;
    QStackedWidget* m_pages;
    std::vector<std::function<QWidget*()>> m_make; // empty where the page is made
    std::vector<std::function<void()>> m_onActive;
};
