#include "shell/AdminModView.h"

#include "dialogs/PaneFactory.h"
#include "editing/CheckPropertySheet.h"
#include "editing/PageDialog.h"
#include "editing/PageSheet.h"
#include "editing/RulewardOptions.h"
#include "engines/ActiveUnit.h"
#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "shell/AdminModuleApp.h"
#include "shell/AdminModuleDoc.h"
#include "shell/MainFrame.h"
#include "shell/TabToolbar.h"

#include <QVBoxLayout>
#include <utility>

namespace {

// The engines ask for the unit in front as long as there is a view.
int liveViews = 0;

void TellActiveUnit(const CAdminModuleApp& app) {
    SetActiveLengthUnitProvider([&app] {
        const CAdminModuleDoc* document = app.GetActiveDocument();
        return document ? document->GetStandard().Unit : NoActiveUnit;
    });
}

QWidget* MakeSummary() {
    auto* summary = new CPageSheet;
    summary->setFocusProxy(summary->Grid);
    return summary;
}

} // namespace

CAdminModView::CAdminModView(CAdminModuleApp& app, CAdminModuleDoc& document, QWidget* parent,
                             PrintFunction print)
    : QWidget(parent), m_app(app), m_document(document), m_print(std::move(print)),
      m_sheet(new CCheckPropertySheet(this)), m_checks(new CPageDialog(*this)) {
    if (liveViews++ == 0)
        TellActiveUnit(app);
    m_sheet->AddPage([this] { return m_checks; }, LoadString(PageChecksTab), Qt::Key_F5,
                     [this] { m_checks->TakeUpLoadedChecks(); });
    m_sheet->AddPage(MakeSummary, LoadString(PageSummaryTab), Qt::Key_F6,
                     [this] { GetSummaryPage().OnSetActive(*this); });
    m_sheet->AddPage([this] { return MakeOptions(); }, LoadString(PageOptionsTab), Qt::Key_F7,
                     [this] {
                         CommitPending();
                         m_options->OnSetActive(LengthUnitText, AngleUnitText);
                     });
    m_sheet->GetPage(ChecksPage);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_sheet);
}

CAdminModView::~CAdminModView() {
    delete m_sheet; // pages and panes ask the view to their end
    if (--liveViews == 0)
        SetActiveLengthUnitProvider({});
}

void CAdminModView::OnInitialUpdate() {
    const CString& path = m_document.GetUserPath();
    GetStandard().SetHeader(path.isEmpty() ? m_document.GetTitle() : path, m_app.GetLanguageName());
    TakeUnitsOfStandard();
    m_shownGroup = CurrentGroup();
    ActivatePage(ChecksPage);
    m_checks->setFocus();
}

CRulewardOptions* CAdminModView::MakeOptions() {
    m_options = new CRulewardOptions(*this);
    m_options->LengthUnitChosen = [this] { OnLengthUnitChanged(); };
    m_options->AngleUnitChosen = [this] { OnAngleUnitChanged(); };
    m_options->OnSetActive(LengthUnitText, AngleUnitText);
    return m_options;
}

CRulewardOptions& CAdminModView::GetOptionsPage() const {
    return dynamic_cast<CRulewardOptions&>(m_sheet->GetPage(OptionsPage));
}

CPageSheet& CAdminModView::GetSummaryPage() const {
    return dynamic_cast<CPageSheet&>(m_sheet->GetPage(SummaryPage));
}

void CAdminModView::CommitPending() {
    m_checks->CommitPending();
}

void CAdminModView::OnShownGroupsChanged() {
    m_shownGroup = CurrentGroup();
    if (!m_checks->GetTypePositions().empty())
        m_checks->RelayoutKeepScroll();
}

CStandard& CAdminModView::GetStandard() {
    return m_document.GetStandard();
}

CSettingsKey* CAdminModView::GetSettings() {
    return m_app.GetSettings();
}

UnitSettingsList& CAdminModView::GetUnitSettings() {
    return m_document.GetUnitSettings();
}

bool CAdminModView::TakeLoadedFlag() {
    return m_document.TakeLoadedFlag();
}

std::unique_ptr<CExtDialog> CAdminModView::MakePane(const PageCheckRow& row) {
    return ::MakePane(*this, row);
}

void CAdminModView::ActivatePage(SheetPage page) {
    m_sheet->ActivatePage(page);
    ArmUpdate();
}

bool CAdminModView::IsChecksPageActive() const {
    return m_sheet->GetActivePage() == ChecksPage;
}

unsigned CAdminModView::CurrentGroup() const {
    const CMainFrame* frame = m_app.GetMainFrame();
    return frame ? frame->GetTabToolbar().GetCurrentGroup() : 0;
}

void CAdminModView::FocusGroup(unsigned group) {
    CMainFrame* frame = m_app.GetMainFrame();
    if (!frame)
        return;
    frame->GetTabToolbar().FocusGroup(group);
    // The bar tells only the view in front.
    if (m_shownGroup != CurrentGroup())
        OnShownGroupsChanged();
}

bool CAdminModView::IsShowingAll() const {
    return m_app.IsShowingAll();
}

// Menu item and button show the state of the command, which follows the page's table.
void CAdminModView::CheckActiveChanged(const CPDCheckInfo&) {
    ArmUpdate();
}

void CAdminModView::ShowHelp(unsigned command, unsigned topic) {
    m_app.ShowHelp(command, topic);
}

void CAdminModView::ShowContextMenu(const QPoint& globalPosition) {
    if (CMainFrame* frame = m_app.GetMainFrame())
        frame->ShowEditMenu(globalPosition);
}

void CAdminModView::ArmUpdate() {
    m_app.GetRouter().Arm();
}

std::vector<const CCheck*> CAdminModView::ChecksInCatalogueOrder() {
    const std::vector<CCheck*> checks = m_checks->ChecksInCatalogueOrder();
    return {checks.begin(), checks.end()};
}

int CAdminModView::LengthUnit() const {
    return m_document.GetStandard().Unit;
}

int CAdminModView::AngleUnit() const {
    return m_document.GetStandard().AngularUnit;
}

void CAdminModView::ShowCheck(MQC_CheckType_e type) {
    ActivatePage(ChecksPage);
    m_checks->ShowCheck(type);
    m_checks->setFocus();
}
