#include "shell/TabToolbar.h"

#include "platform/LanguageLibrary.h"
#include "platform/widgets/Look.h"
#include "shell/AdminModuleApp.h"
#include "shell/AlphaImages.h"
#include "shell/CatalogueButton.h"
#include "shell/CommandTable.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int LeastTextWidth = 230;
constexpr int AroundText = 10;
constexpr int BarMargin = 6;
constexpr int TabImageSize = 16;

int WidestText(const CAdminModuleApp::Catalogue& catalogue, const QFontMetrics& metrics) {
    int widest = LeastTextWidth;
    for (const auto& [type, info] : catalogue) {
        const CString text = LoadString(info->GetTabTextID());
        widest = std::max(widest, CatalogueButton::TextAt + metrics.horizontalAdvance(text) + Look::Margin);
    }
    return widest;
}

} // namespace

CTabToolbar::CTabToolbar(CAdminModuleApp& app, QWidget* parent)
    : QWidget(parent), m_app(app), m_buttonWidth(WidestText(app.GetCatalogue(), fontMetrics()) + AroundText),
      m_tabs(new CTabCtrlEx(this)), m_heading(new QLabel(this)), m_area(new QScrollArea(this)) {
    setObjectName("CatalogueBar");
    setAccessibleName(WithoutMnemonic(LoadString(2109)));
    MakeTabs();
    m_heading->setObjectName("GroupHeading");
    m_heading->setContentsMargins(BarMargin + 6, 8, BarMargin, 6);
    QFont bold = font();
    bold.setBold(true);
    m_heading->setFont(bold);
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, QColor(Look::Heading));
    m_heading->setPalette(colors);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->viewport()->setAutoFillBackground(false);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 6, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_tabs);
    column->addWidget(m_heading);
    column->addWidget(m_area, 1);
    setFixedWidth(m_buttonWidth + 2 * BarMargin);
    LoadGroup(0);
    connect(m_tabs, &QTabBar::currentChanged, this, &CTabToolbar::OnTabChanged);
}

void CTabToolbar::MakeTabs() {
    m_tabs->setObjectName("CatalogueTabs");
    m_tabs->setIconSize({TabImageSize, TabImageSize});
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);
    m_tabs->setUsesScrollButtons(false);
    m_tabs->setFocusPolicy(Qt::StrongFocus);
    m_tabs->setAccessibleName(WithoutMnemonic(LoadString(2109)));
    for (const CheckGroup& group : CheckGroups()) {
        const int tab = m_tabs->addTab(Look::SmallIconOf(group.tabIcon), {});
        const CString name = LoadString(group.tabTooltipText);
        m_tabs->setTabToolTip(tab, name);
        m_tabs->setAccessibleTabName(tab, name);
    }
}

void CTabToolbar::FocusGroup(unsigned group) {
    if (group < CheckGroups().size())
        m_tabs->setCurrentIndex(static_cast<int>(group));
}

void CTabToolbar::ReleaseButtons(unsigned firstCommand, unsigned lastCommand) {
    for (const auto& [type, info] : m_app.GetCatalogue()) {
        const unsigned command = info->GetCommandID();
        if (command >= firstCommand && command <= lastCommand)
            m_app.GetRouter().ActionOf(command)->setChecked(false);
    }
}

void CTabToolbar::LoadGroup(unsigned group) {
    const CheckGroup& shown = CheckGroups()[group];
    m_heading->setText(LoadString(shown.tabTooltipText));
    auto* list = new QWidget;
    auto* column = new QVBoxLayout(list);
    column->setContentsMargins(BarMargin, 0, BarMargin, BarMargin);
    column->setSpacing(0);
    m_buttons.clear();
    const CAlphaImageList images(shown.toolbarBitmap);
    for (const auto& [type, info] : m_app.GetCatalogue()) {
        if (!shown.Holds(type))
            continue;
        auto* button = new CatalogueButton(*m_app.GetRouter().ActionOf(info->GetCommandID()),
                                           LoadString(info->GetTabTextID()),
                                           images.GetIcon(static_cast<int>(info->GetPosition())), list);
        button->installEventFilter(this);
        column->addWidget(button);
        m_buttons.push_back(button);
    }
    column->addStretch();
    m_area->setWidget(list); // the old list goes with its buttons
    list->setAutoFillBackground(false);
    m_app.GetRouter().Arm();
}

void CTabToolbar::OnTabChanged() {
    LoadGroup(GetCurrentGroup());
    DocumentView* view = m_app.GetActiveView();
    if (view && !m_app.IsShowingAll())
        view->OnShownGroupsChanged();
}

bool CTabToolbar::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyPress)
        return MoveFocus(object, static_cast<QKeyEvent*>(event)->key());
    return QWidget::eventFilter(object, event);
}

// Up and Down go through the buttons, so that the keyboard reaches the last of them without many Tabs.
bool CTabToolbar::MoveFocus(QObject* from, int key) {
    const auto at = std::find(m_buttons.begin(), m_buttons.end(), from);
    if (at == m_buttons.end())
        return false;
    CatalogueButton* to = nullptr;
    switch (key) {
    case Qt::Key_Up: to = at == m_buttons.begin() ? nullptr : *(at - 1); break;
    case Qt::Key_Down: to = at + 1 == m_buttons.end() ? nullptr : *(at + 1); break;
    case Qt::Key_Home: to = m_buttons.front(); break;
    case Qt::Key_End: to = m_buttons.back(); break;
    default: return false;
    }
    if (to) {
        to->setFocus(Qt::OtherFocusReason);
        m_area->ensureWidgetVisible(to, 0, 0);
    }
    return true;
}

void CTabToolbar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(Look::PageGround));
    painter.setPen(QColor(Look::PaletteColors[1]));
    painter.drawLine(0, m_tabs->geometry().bottom() + 1, width(), m_tabs->geometry().bottom() + 1);
    painter.setPen(QColor(Look::FaintLine));
    painter.drawLine(width() - 1, 0, width() - 1, height());
}
