#include "editing/RulewardOptions.h"

#include "editing/EditingHost.h"
#include "platform/LanguageLibrary.h"
#include "platform/widgets/Look.h"

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QRadioButton>

namespace {

constexpr unsigned Template = 1325;
// Feet with inches are not offered: no combination of a number and one label could show them.
constexpr unsigned LengthUnitTexts[] = {1621, 1622, 1623, 1624, 1625, 1626, 1627, 1628, 1629, 1630};
constexpr unsigned AngleUnitTexts[] = {1633, 1636};
constexpr unsigned LengthUnitLabel = 1664, AngleUnitLabel = 1674;
constexpr int Headings[] = {1000, 1004};
constexpr int Explanations[] = {1001, 1005};
constexpr int WidestExplanation = 640;

void SetTextColor(QWidget& label, QRgb color) {
    QPalette colors = label.palette();
    colors.setColor(QPalette::WindowText, QColor(color));
    label.setPalette(colors);
}

void Select(QComboBox* combo, const CString& name, int index) {
    if (combo)
        combo->setCurrentIndex(
            name.isEmpty() ? index : combo->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

} // namespace

CRulewardOptions::CRulewardOptions(EditingHost& host, QWidget* parent)
    : QWidget(parent), ControlHost(static_cast<QWidget&>(*this)), m_host(host) {
    setFont(Look::PageFont());
    if (LoadTemplate(Template))
        OnInitDialog();
}

void CRulewardOptions::OnInitDialog() {
    StyleHeadings();
    RunRWConfigOption = m_host.GetStandard().RunRWConfigOption;
    if (auto* lengths = GetDlgItem<QComboBox>(LengthUnits)) {
        for (const unsigned text : LengthUnitTexts)
            lengths->addItem(LoadString(text));
        lengths->setAccessibleName(LoadString(LengthUnitLabel));
        setFocusProxy(lengths);
    }
    if (auto* angles = GetDlgItem<QComboBox>(AngleUnits)) {
        for (const unsigned text : AngleUnitTexts)
            angles->addItem(LoadString(text));
        angles->setAccessibleName(LoadString(AngleUnitLabel));
    }
    OnSetActive(LengthUnitName, AngleUnitName);
    On(DefaultConfiguration, ControlEvent::Clicked, &CRulewardOptions::OnConfigurationChosen);
    On(DocumentConfiguration, ControlEvent::Clicked, &CRulewardOptions::OnConfigurationChosen);
    On(LengthUnits, ControlEvent::SelChange, &CRulewardOptions::OnLengthUnitChosen);
    On(AngleUnits, ControlEvent::SelChange, &CRulewardOptions::OnAngleUnitChosen);
}

void CRulewardOptions::StyleHeadings() {
    for (const int number : Headings) {
        if (auto* heading = GetDlgItem<QLabel>(number)) {
            QFont font = heading->font();
            font.setBold(true);
            heading->setFont(font);
            SetTextColor(*heading, Look::Heading);
        }
    }
    for (const int number : Explanations) {
        if (auto* explanation = GetDlgItem<QLabel>(number)) {
            explanation->setMaximumWidth(WidestExplanation);
            SetTextColor(*explanation, Look::FaintText);
        }
    }
    for (auto* line : findChildren<QFrame*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!line->objectName().endsWith("Line"))
            continue;
        line->setFixedHeight(1);
        line->setAutoFillBackground(true);
        QPalette colors = line->palette();
        colors.setColor(QPalette::Window, QColor(Look::Line));
        line->setPalette(colors);
    }
}

void CRulewardOptions::DoDataExchange(DataExchange& exchange) {
    exchange.Radio({DefaultConfiguration, DocumentConfiguration}, RunRWConfigOption);
    exchange.ComboIndex(LengthUnits, LengthUnitIndex);
    exchange.ComboIndex(AngleUnits, AngleUnitIndex);
}

void CRulewardOptions::OnSetActive(const CString& lengthUnitName, const CString& angleUnitName) {
    LengthUnitName = lengthUnitName;
    AngleUnitName = angleUnitName;
    Select(GetDlgItem<QComboBox>(LengthUnits), LengthUnitName, LengthUnitIndex);
    Select(GetDlgItem<QComboBox>(AngleUnits), AngleUnitName, AngleUnitIndex);
    ShowConfiguration();
}

// A choice that the page does not offer shows as none, and is kept.
void CRulewardOptions::ShowConfiguration() {
    RunRWConfigOption = m_host.GetStandard().RunRWConfigOption;
    int place = 0;
    for (const int number : {DefaultConfiguration, DocumentConfiguration}) {
        if (auto* button = GetDlgItem<QRadioButton>(number)) {
            button->setAutoExclusive(false);
            button->setChecked(place == RunRWConfigOption);
            button->setAutoExclusive(true);
        }
        ++place;
    }
}

void CRulewardOptions::OnConfigurationChosen() {
    UpdateData(true);
    m_host.GetStandard().RunRWConfigOption = RunRWConfigOption;
}

void CRulewardOptions::OnLengthUnitChosen() {
    const CString before = LengthUnitName;
    UpdateData(true);
    LengthUnitName = GetDlgItem<QComboBox>(LengthUnits)->currentText();
    if (LengthUnitName != before && LengthUnitChosen)
        LengthUnitChosen();
}

void CRulewardOptions::OnAngleUnitChosen() {
    const CString before = AngleUnitName;
    UpdateData(true);
    AngleUnitName = GetDlgItem<QComboBox>(AngleUnits)->currentText();
    if (AngleUnitName != before && AngleUnitChosen)
        AngleUnitChosen();
}

void CRulewardOptions::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), QColor(Look::PaneGround));
}
