// The page's table of panes and how it lays them out.
#include "editing/PageDialog.h"

#include "editing/PageHint.h"
#include "platform/widgets/Look.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

namespace {

// How much narrower than a pane's template the window may be before the pane keeps its width.
constexpr int NarrowingAllowed = 20;
// A scroll bar that comes or goes changes the room for the other one: at most both come.
constexpr int LayoutRounds = 3;

} // namespace

CPageDialog::CPageDialog(EditingHost& host, QWidget* parent)
    : QAbstractScrollArea(parent), m_host(host), Scroller(*this), m_firstTabStop(new QWidget(viewport())) {
    m_firstTabStop->setFocusPolicy(Qt::TabFocus);
    m_firstTabStop->hide();
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setFont(Look::PageFont());
    Scroller.SetPageSize(viewport()->size());
    BuildTable();
}

CPageDialog::~CPageDialog() = default;

void CPageDialog::BuildTable() {
    for (const PageCheckRow& row : PageChecks())
        Infos.Add(row, m_host.MakePane(row));
    Relayout();
}

CExtDialog* CPageDialog::GetPane(MQC_CheckType_e type, bool create) {
    const CPDCheckInfo* info = Infos.Find(type);
    CExtDialog* pane = info ? info->GetDialog() : nullptr;
    if (!pane)
        return nullptr;
    pane->CheckType = type;
    if (create && !pane->HasWindow()) {
        if (!pane->Create(viewport()))
            return nullptr;
        JoinTabOrder(*pane);
    }
    if (PaneWidth == 0 && pane->HasWindow())
        PaneWidth = pane->GetTemplateWidth();
    return pane;
}

void CPageDialog::LoadPane(const CCheck& check) {
    if (CExtDialog* pane = GetPane(check.Type, true))
        pane->LoadCheck(check);
}

void CPageDialog::FillFromPane(CCheck& check) {
    if (CExtDialog* pane = GetPane(check.Type, true))
        pane->FillCheck(check);
}

void CPageDialog::RefreshAll() {
    for (const MQC_CheckType_e type : Infos.Order())
        if (CExtDialog* pane = GetPane(type, false); pane && pane->HasWindow())
            pane->OnParameterChanged();
}

CCheck* CPageDialog::GetCurrentCheck() const {
    CCheck* check = nullptr;
    m_host.GetStandard().FindBySequence(CurrentSequence, check);
    return check;
}

std::vector<CCheck*> CPageDialog::ChecksInCatalogueOrder() const {
    std::vector<CCheck*> checks;
    for (const MQC_CheckType_e type : Infos.Order())
        if (CCheck* check = IsPlaced(type) ? LiveCheck(type) : nullptr)
            checks.push_back(check);
    return checks;
}

void CPageDialog::SetCheckTypeActive(MQC_CheckType_e type, bool isActive) {
    CPDCheckInfo* info = Infos.Find(type);
    if (!info)
        return;
    info->SetActive(isActive ? 1 : 0);
    m_host.CheckActiveChanged(*info);
}

// Whether the pane belongs to another group than the one in front in the catalogue bar.
bool CPageDialog::IsCheckOutsideTab(const CExtDialog& pane) const {
    const unsigned group = m_host.CurrentGroup();
    return group < CheckGroups().size() && !CheckGroups()[group].Holds(pane.CheckType);
}

int CPageDialog::ShownHeight(const CExtDialog& pane) const {
    return m_host.IsShowingAll() || !IsCheckOutsideTab(pane) ? pane.GetDisplayHeight() : 0;
}

void CPageDialog::Relayout() {
    if (m_isLayingOut || m_isTakingUp)
        return;
    const QScopedValueRollback layingOut(m_isLayingOut, true);
    for (int round = 0; round < LayoutRounds; ++round) {
        LayOut();
        if (viewport()->size() == Scroller.PageSize)
            break;
        Scroller.SetPageSize(viewport()->size());
    }
    viewport()->update();
}

void CPageDialog::LayOut() {
    int width = viewport()->width();
    if (PaneWidth > width + NarrowingAllowed)
        width = PaneWidth;
    int y = 0;
    int lastWidth = 0;
    std::vector<CExtDialog*> panes;
    for (const MQC_CheckType_e type : Infos.Order()) {
        CExtDialog* pane = GetPane(type, false);
        if (!pane || !pane->HasWindow())
            continue;
        pane->Top = y;
        y += ShownHeight(*pane);
        lastWidth = pane->GetTemplateWidth();
        panes.push_back(pane);
    }
    const int barSize = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    Scroller.SetDisplaySize({barSize + lastWidth, barSize + y});
    for (CExtDialog* pane : panes)
        PlacePane(*pane, width - 1, ShownHeight(*pane));
}

void CPageDialog::PlacePane(CExtDialog& pane, int width, int height) {
    if (height > 0) {
        pane.setGeometry(-Scroller.ScrollPos.x(), pane.Top - Scroller.ScrollPos.y(), width, height);
        pane.show();
        return;
    }
    // Else the keyboard would go on to whatever control comes next, and its pane would be selected.
    if (const QWidget* focus = QApplication::focusWidget(); focus && pane.isAncestorOf(focus))
        setFocus();
    pane.hide();
}

void CPageDialog::RelayoutKeepScroll() {
    const int y = Scroller.ScrollPos.y();
    Relayout();
    Scroller.ScrollTo(Scroller.HasVerticalRange() ? y : 0);
}

void CPageDialog::ShowPane(CExtDialog& pane, int) {
    // The pane may have been collapsed when its check was last taken away.
    pane.Expanded = true;
    pane.UpdateExpandState();
    pane.DisplayState = CExtDialog::ShownWhole;
    Relayout();
    if (Scroller.HasVerticalRange() && !m_isTakingUp)
        Scroller.ScrollTo(pane.Top);
}

void CPageDialog::ShowCheck(MQC_CheckType_e type) {
    FocusGroup(type);
    CExtDialog* pane = IsPlaced(type) ? GetPane(type, false) : nullptr;
    if (!pane)
        return;
    if (!pane->Expanded) {
        pane->Expanded = true;
        pane->DisplayState = CExtDialog::ShownWhole;
        UpdateExpandButton(*pane);
    }
    ShowPane(*pane, 0);
}

void CPageDialog::UpdateExpandButton(CExtDialog& pane) {
    pane.UpdateExpandState();
    RelayoutKeepScroll();
}

// Scrolls no further than needed.
void CPageDialog::RevealPane(const CExtDialog& pane) {
    const int top = Scroller.ScrollPos.y();
    const int page = Scroller.PageSize.height();
    if (pane.Top < top || pane.Top + std::min(pane.height(), page) > top + page)
        Scroller.ScrollTo(pane.Top);
}

void CPageDialog::resizeEvent(QResizeEvent*) {
    if (m_isLayingOut)
        return;
    Scroller.SetPageSize(viewport()->size());
    Relayout();
}

void CPageDialog::scrollContentsBy(int dx, int dy) {
    Scroller.ScrollPos = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
    viewport()->scroll(dx, dy);
}

void CPageDialog::wheelEvent(QWheelEvent* event) {
    Scroller.Turn(*event);
    event->accept(); // at its end too: nothing behind the page scrolls instead
}

void CPageDialog::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), QColor(Look::PageGround));
    const bool isAnyShown = std::ranges::any_of(
        TypeToPos, [this](const auto& entry) { return !PaneAt(entry.second)->isHidden(); });
    if (!isAnyShown)
        PaintPageHint(painter, viewport()->rect(),
                      TypeToPos.empty() ? PageHint::NoChecks : PageHint::NoneOfThisGroup);
}

void CPageDialog::contextMenuEvent(QContextMenuEvent* event) {
    m_host.ShowContextMenu(event->globalPos());
    event->accept();
}
