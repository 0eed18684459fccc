#include "editing/ExtDialog.h"

#include "editing/ComboBoxExt.h"
#include "editing/CriticalityRows.h"
#include "editing/ExACRichEdit.h"
#include "editing/GroupBoxExt.h"
#include "editing/MyStatic.h"
#include "editing/PageDialog.h"
#include "editing/PaneCaption.h"
#include "editing/PaneColumns.h"
#include "editing/PaneControls.h"
#include "engines/UnitConvertor.h"
#include "engines/UnitText.h"
#include "platform/LanguageLibrary.h"
#include "platform/widgets/Look.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>

namespace {

constexpr unsigned CustomChecksText = 1964;
constexpr MQC_CheckType_e CustomChecks = 122; // each of its rows has a criticality of its own
constexpr unsigned HelpTopicCommand = 15;
constexpr int PositionUnit = 20; // pixels of height
// All panes are of one width, for the page keeps them at the width of the first that was made.
constexpr int LeastWidth = 740;

constexpr QRgb PlainFrame = FromColorRef(0xA19290);
constexpr QRgb SelectedFrame = FromColorRef(0xA14A4A);

constexpr std::uint32_t GroupLine = 0x5A6C72, GroupLight = 0xF0F0DC, GroupText = 0x7D2800;

} // namespace

CExtDialog::CExtDialog(EditingHost& host, unsigned templateID, unsigned iconID, unsigned captionStringID)
    : CExtDialog(host, templateID, iconID, captionStringID, *new QWidget) {}

CExtDialog::CExtDialog(EditingHost& host, unsigned templateID, unsigned iconID, unsigned captionStringID,
                       QWidget& body)
    : CACInfoManagerDlg(body, host), IconID(iconID), Caption(LoadString(captionStringID)), m_body(body),
      m_templateID(templateID) {
    m_body.setParent(this);
}

CExtDialog::~CExtDialog() = default;

bool CExtDialog::Create(QWidget* parent) {
    RegisterPaneControls();
    setParent(parent);
    setFont(Look::PageFont());
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(Caption);
    // Made before the template, the buttons come before its controls also for the Tab key.
    m_caption = std::make_unique<PaneCaption>(*this);
    for (const int number : {CloseControl, HelpControl, ExpandControl})
        AddControl(number, findChild<QWidget*>(QString::number(number), Qt::FindDirectChildrenOnly));
    if (!LoadTemplate(m_templateID))
        return false;
    FillCriticalityCombo();
    for (auto* group : m_body.findChildren<CGroupBoxExt*>()) {
        group->SetLineColor(GroupLine);
        group->SetLightColor(GroupLight);
        group->SetTextColor(GroupText);
    }
    On(CloseControl, ControlEvent::Clicked, &CExtDialog::ClosePane);
    On(HelpControl, ControlEvent::Clicked, &CExtDialog::ShowHelpTopic);
    On(ExpandControl, ControlEvent::Clicked, &CExtDialog::ToggleExpand);
    if (!OnInitDialog())
        return false;
    m_columns = std::make_unique<PaneColumns>(m_body);
    m_fullSize = (m_body.sizeHint() + QSize(2, Look::CaptionHeight + 1)).expandedTo({LeastWidth, 0});
    LogicalSize = m_fullSize.height() / PositionUnit + 1;
    resize(m_fullSize);
    WatchClicks(*this);
    return true;
}

void CExtDialog::FillCriticalityCombo() {
    auto* combo = GetDlgItem<QComboBox>(CriticalityControl);
    if (!combo)
        return;
    if (Caption.compare(LoadString(CustomChecksText), Qt::CaseInsensitive) != 0) {
        FillCriticalityRows(*combo);
        combo->setCurrentIndex(static_cast<int>(Criticality));
    }
    Connect(CriticalityControl, ControlEvent::SelChange, [this, combo] {
        Criticality = static_cast<unsigned>(combo->currentIndex());
        OnCriticalityChosen();
    });
}

void CExtDialog::AttachUnitLabel(int valueControl, int labelControl, unsigned long power,
                                 unsigned long dimension) {
    const auto* correction = GetDlgItem<CMyStatic>(valueControl);
    auto* value =
        correction ? static_cast<QLineEdit*>(correction->Edit()) : GetDlgItem<QLineEdit>(valueControl);
    auto* label = GetDlgItem<QLabel>(labelControl);
    GetHost().GetUnitSettings().push_back(std::make_unique<CUnitSettings>(value, label, power, dimension));
    const CStandard& standard = GetHost().GetStandard();
    const int unit = dimension == DimensionAngle ? standard.AngularUnit : standard.Unit;
    // A power shows from the first change of unit on.
    if (label)
        label->setText(UnitLabelText(0, dimension, static_cast<unsigned long>(unit)));
}

void CExtDialog::FillCheck(CCheck& check) {
    check.Criticality = Criticality;
}

void CExtDialog::FillCheckParameters(CCheck& check) {
    FillCheck(check);
}

void CExtDialog::LoadCheck(const CCheck& check) {
    if (check.Type == CustomChecks)
        return;
    Criticality = check.Criticality;
    if (auto* combo = GetDlgItem<QComboBox>(CriticalityControl))
        combo->setCurrentIndex(RowOfCriticality(Criticality));
}

int CExtDialog::GetDisplayHeight() const {
    if (DisplayState == ShownWhole)
        return m_fullSize.height();
    return DisplayState == Collapsed ? Look::CaptionHeight : 0;
}

int CExtDialog::GetTemplateWidth() const {
    return m_fullSize.width();
}

void CExtDialog::SetSelected(bool isSelected) {
    Selected = isSelected;
    if (!HasWindow())
        return;
    m_caption->UpdateText();
    update();
    if (isSelected && isVisible() && !isAncestorOf(QApplication::focusWidget()))
        setFocus(Qt::OtherFocusReason);
}

void CExtDialog::ToggleExpand() {
    Expanded = !Expanded;
    DisplayState = Expanded ? ShownWhole : Collapsed;
    GetHost().GetChecksPage().UpdateExpandButton(*this);
}

void CExtDialog::UpdateExpandState() {
    if (HasWindow())
        m_caption->UpdateExpandState();
}

void CExtDialog::ClosePane() {
    CPageDialog& page = GetHost().GetChecksPage();
    page.RemoveCheck(page.TypeAtPosition(Position), true);
    page.setFocus();
}

void CExtDialog::ShowHelpTopic() {
    if (HelpTopic() != 0)
        GetHost().ShowHelp(HelpTopicCommand, HelpTopic());
}

void CExtDialog::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(PaneCaption::GroundOf(*this)));
    m_caption->Paint(painter);
    painter.setPen(QColor(Selected ? SelectedFrame : PlainFrame));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

// The body keeps its height, so that collapsing neither squeezes its controls nor leaves them to the Tab key.
void CExtDialog::resizeEvent(QResizeEvent*) {
    if (!HasWindow())
        return;
    m_caption->Place();
    m_columns->Fit(width() - 2);
    m_body.setGeometry(1, Look::CaptionHeight, width() - 2, m_fullSize.height() - Look::CaptionHeight - 1);
    m_body.setVisible(height() > Look::CaptionHeight);
}
