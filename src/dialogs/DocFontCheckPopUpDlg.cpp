#include "dialogs/DocFontCheckPopUpDlg.h"

#include "dialogs/FontPanes.h"
#include "editing/CriticalityRows.h"
#include "editing/MyStatic.h"
#include "editing/PageDialog.h"
#include "editing/PaneControls.h"
#include "engines/UnitText.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <algorithm>

namespace {

enum Control : int { OkButton = 1, CancelButton = 2, ApplyButton = 1240, HelpButton = 1244 };

constexpr unsigned TemplateNumber = 1080; // that of the pane, which leaves some controls hidden
constexpr unsigned TitleText = 2240;
constexpr unsigned HelpStart = 0;
constexpr const char* HiddenParts[] = {"checks", "checkBoxes", "buttons"};

} // namespace

CDocFontCheckPopUpDlg::CDocFontCheckPopUpDlg(EditingHost& host, MQC_CheckType_e type, QWidget* parent)
    : QDialog(parent), CACInfoManagerDlg(static_cast<QWidget&>(*this), host), CheckType(type) {
    RegisterPaneControls();
    if (!LoadTemplate(TemplateNumber) || !FontControls::AreIn(*this) || !OnInitDialog())
        m_controls.reset();
}

CDocFontCheckPopUpDlg::~CDocFontCheckPopUpDlg() = default;

QAbstractButton* CDocFontCheckPopUpDlg::Box(int number) const {
    return GetDlgItem<QAbstractButton>(number);
}

bool CDocFontCheckPopUpDlg::OnInitDialog() {
    for (const DocumentFontCheck& check : DocumentFontChecks())
        if (!Box(check.box))
            return false;
    setWindowTitle(LoadString(TitleText));
    ShowHiddenControls();
    m_controls = std::make_unique<FontControls>(*this);
    connect(m_controls.get(), &FontControls::Changed, this, &CDocFontCheckPopUpDlg::OnParameterChanged);
    for (const DocumentFontCheck& check : DocumentFontChecks()) {
        Box(check.box)->setChecked(check.type == CheckType);
        On(check.box, ControlEvent::Clicked, &CDocFontCheckPopUpDlg::UpdateApplyButton);
    }
    On(OkButton, ControlEvent::Clicked, &CDocFontCheckPopUpDlg::OnOK);
    On(ApplyButton, ControlEvent::Clicked, &CDocFontCheckPopUpDlg::OnApply);
    Connect(CancelButton, ControlEvent::Clicked, [this] { reject(); });
    Connect(HelpButton, ControlEvent::Clicked, [this] { GetHost().ShowHelp(HelpStart, 0); });
    DisableHeldTypes();
    if (auto* combo = GetDlgItem<QComboBox>(CExtDialog::CriticalityControl)) {
        FillCriticalityRows(*combo);
        combo->setCurrentIndex(RowOfCriticality(Criticality));
        Connect(CExtDialog::CriticalityControl, ControlEvent::SelChange,
                [this, combo] { Criticality = static_cast<unsigned>(combo->currentIndex()); });
    }
    for (const FontCorrection& correction : m_controls->Corrections())
        BindCorrectionControl(correction.control, correction.parameter, correction.mode, -1);
    LoadFromStandard();
    UpdateApplyButton();
    return true;
}

void CDocFontCheckPopUpDlg::ShowHiddenControls() {
    for (const char* part : HiddenParts)
        if (auto* widget = findChild<QWidget*>(part))
            widget->show();
}

void CDocFontCheckPopUpDlg::DisableHeldTypes() {
    for (const DocumentFontCheck& check : DocumentFontChecks()) {
        CCheck* live = nullptr;
        GetHost().GetStandard().FindLiveByType(check.type, live);
        if (!live)
            continue;
        Box(check.box)->setChecked(true);
        Box(check.box)->setEnabled(false);
    }
}

// A check that was deleted offers what it had required.
void CDocFontCheckPopUpDlg::LoadFromStandard() {
    CCheck* earlier = nullptr;
    GetHost().GetStandard().FindAnyByType(CheckType, earlier);
    if (!earlier)
        return;
    LoadCorrectionControls(*earlier);
    m_controls->Load(*earlier);
    Criticality = earlier->Criticality;
    if (auto* combo = GetDlgItem<QComboBox>(CExtDialog::CriticalityControl))
        combo->setCurrentIndex(RowOfCriticality(Criticality));
}

void CDocFontCheckPopUpDlg::DoModal() {
    if (m_controls)
        exec();
}

void CDocFontCheckPopUpDlg::AttachUnitLabel(int, int labelControl, unsigned long power,
                                            unsigned long dimension) {
    const auto unit = static_cast<unsigned long>(GetHost().GetStandard().Unit);
    if (auto* label = GetDlgItem<QLabel>(labelControl))
        label->setText(UnitLabelText(power, dimension, unit));
}

void CDocFontCheckPopUpDlg::FillFontCheckParameters(CCheck& check) {
    check.Criticality = Criticality;
    m_controls->Store(check);
}

void CDocFontCheckPopUpDlg::FillFontCheck(CCheck& check) {
    FillFontCheckParameters(check);
    StoreCorrections(check);
}

void CDocFontCheckPopUpDlg::OnParameterChanged() {
    CCheck scratch(CheckType, 0, 0, 0, 1);
    FillFontCheckParameters(scratch);
    RefreshCorrectionControls(scratch);
    CommitCheck();
}

bool CDocFontCheckPopUpDlg::IsToAdd(int box) const {
    return Box(box)->isEnabled() && Box(box)->isChecked();
}

void CDocFontCheckPopUpDlg::UpdateApplyButton() {
    if (auto* apply = GetDlgItem<QWidget>(ApplyButton))
        apply->setEnabled(std::ranges::any_of(
            DocumentFontChecks(), [this](const DocumentFontCheck& check) { return IsToAdd(check.box); }));
}

// The page takes a copy for each box.
void CDocFontCheckPopUpDlg::OnApply() {
    CCheck common(DocumentFontChecks().front().type, 0, 0, 0, 1);
    FillFontCheck(common);
    CPageDialog& page = GetHost().GetChecksPage();
    bool hasAdded = false;
    for (const DocumentFontCheck& check : DocumentFontChecks()) {
        if (!IsToAdd(check.box))
            continue;
        common.Type = check.type;
        page.AddCheck(check.type, &common);
        Box(check.box)->setEnabled(false);
        Box(check.box)->setChecked(false);
        hasAdded = true;
    }
    if (hasAdded)
        page.RelayoutKeepScroll();
    UpdateApplyButton();
}

void CDocFontCheckPopUpDlg::OnOK() {
    OnApply();
    accept();
}
