#include "editing/CheckPropertySheet.h"

#include "editing/TabCtrlInPropertySheet.h"
#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "platform/widgets/Look.h"

#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <memory>
#include <utility>

CCheckPropertySheet::CCheckPropertySheet(QWidget* parent)
    : QWidget(parent), m_tabs(new CTabCtrlInPropertySheet(this)), m_pages(new QStackedWidget(this)) {
    setFont(Look::PageFont());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_tabs);
    column->addWidget(m_pages, 1);
    connect(m_tabs, &QTabBar::currentChanged, this, &CCheckPropertySheet::OnTabChanged);
    connect(new QShortcut(Qt::CTRL | Qt::Key_PageUp, this), &QShortcut::activated, this,
            [this] { Turn(-1); });
    connect(new QShortcut(Qt::CTRL | Qt::Key_PageDown, this), &QShortcut::activated, this,
            [this] { Turn(1); });
}

void CCheckPropertySheet::AddPage(std::function<QWidget*()> make, const CString& title,
                                  const QKeySequence& key, std::function<void()> onActive) {
    m_make.push_back(std::move(make));
    m_onActive.push_back(std::move(onActive));
    m_pages->addWidget(new QWidget); // holds the place
    const int tab = m_tabs->addTab(title);
    const CString tip = LoadString(PageTabTip);
    m_tabs->setTabToolTip(
        tab, CString(tip).replace("%1", title).replace("%2", key.toString(QKeySequence::NativeText)));
    connect(new QShortcut(key, this), &QShortcut::activated, this, [this, tab] {
        ActivatePage(tab);
        m_pages->currentWidget()->setFocus(Qt::ShortcutFocusReason);
    });
}

QWidget& CCheckPropertySheet::GetPage(int page) {
    if (const auto make = std::exchange(m_make[static_cast<size_t>(page)], nullptr)) {
        const std::unique_ptr<QWidget> place(m_pages->widget(page));
        QWidget* made = make();
        made->setAccessibleName(m_tabs->tabText(page));
        m_pages->insertWidget(page, made);
        m_pages->removeWidget(place.get());
    }
    return *m_pages->widget(page);
}

int CCheckPropertySheet::GetActivePage() const {
    return m_pages->currentIndex();
}

void CCheckPropertySheet::ActivatePage(int page) {
    if (m_tabs->currentIndex() == page)
        OnTabChanged(page);
    else
        m_tabs->setCurrentIndex(page);
}

void CCheckPropertySheet::OnTabChanged(int page) {
    if (page < 0 || page >= m_pages->count())
        return;
    GetPage(page);
    if (const auto& onActive = m_onActive[static_cast<size_t>(page)])
        onActive();
    m_pages->setCurrentIndex(page);
}

// From the last page on to the first, and back.
void CCheckPropertySheet::Turn(int pages) {
    const int count = m_pages->count();
    if (count == 0)
        return;
    ActivatePage((GetActivePage() + pages + count) % count);
    m_pages->currentWidget()->setFocus(Qt::ShortcutFocusReason);
}
