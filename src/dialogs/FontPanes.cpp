#include "dialogs/FontPanes.h"

#include <algorithm>

namespace {

constexpr DocumentFontCheck DocumentFonts[] = {
    {109, 1149, 1908, 1006, 1242}, {110, 1157, 1916, 1014, 1515}, {111, 1150, 1909, 1007, 1516},
    {119, 1253, 2185, 1015, 1517}, {112, 1151, 1910, 1008, 1525}, {120, 1254, 2189, 1016, 1526},
    {113, 1152, 1911, 1009, 1527}, {114, 1153, 1912, 1010, 1528}, {115, 1154, 1913, 1011, 1529},
    {116, 1155, 1914, 1012, 1530}, {117, 1156, 1915, 1013, 1531}};

const DocumentFontCheck& NumbersOf(MQC_CheckType_e type) {
    const auto found = std::ranges::find(DocumentFonts, type, &DocumentFontCheck::type);
    return found == std::end(DocumentFonts) ? DocumentFonts[0] : *found;
}

} // namespace

std::span<const DocumentFontCheck> DocumentFontChecks() {
    return DocumentFonts;
}

CFontPane::CFontPane(EditingHost& host, unsigned templateID, unsigned iconID, unsigned captionStringID,
                     unsigned helpTopic)
    : CParameterCheckDlg(host, templateID, iconID, captionStringID), m_helpTopic(helpTopic) {}

CFontPane::~CFontPane() = default;

bool CFontPane::OnInitDialog() {
    if (!FontControls::AreIn(*this))
        return false;
    m_controls = std::make_unique<FontControls>(*this);
    connect(m_controls.get(), &FontControls::Changed, this, &CFontPane::OnParameterChanged);
    CreateCorrectionControls();
    return true;
}

void CFontPane::CreateCorrectionControls() {
    for (const FontCorrection& correction : m_controls->Corrections())
        BindCorrectionControl(correction.control, correction.parameter, correction.mode, -1);
}

void CFontPane::FillCheckParameters(CCheck& check) {
    CParameterCheckDlg::FillCheckParameters(check);
    m_controls->Store(check);
}

void CFontPane::LoadCheck(const CCheck& check) {
    LoadCorrectionControls(check);
    m_controls->Load(check);
    CParameterCheckDlg::LoadCheck(check);
}

CDocFontCheckDlg::CDocFontCheckDlg(EditingHost& host, MQC_CheckType_e type)
    : CDocFontCheckDlg(host, type, NumbersOf(type)) {}

CDocFontCheckDlg::CDocFontCheckDlg(EditingHost& host, MQC_CheckType_e type, const DocumentFontCheck& numbers)
    : CFontPane(host, 1080, numbers.iconID, numbers.captionStringID, numbers.helpTopic) {
    CheckType = type;
}
