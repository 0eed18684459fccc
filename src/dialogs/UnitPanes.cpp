#include "dialogs/UnitPanes.h"

#include "dialogs/UnitRows.h"
#include "editing/ChoiceList.h"
#include "editing/MyStatic.h"
#include "platform/LanguageLibrary.h"

#include <iterator>

namespace {

enum Control : int {
    Angles = 1104,
    AnglePlaces = 1106,
    AnglePlacesField = 1107,
    MassLengths = 1118,
    MassPlaces,
    MassPlacesField,
    Masses = 1122,
    Volumes,
    Forces,
    CustomBox = 1130,
    DocumentBox = 1133
};
enum Parameter : unsigned {
    UnitSystem = 1663,
    AngleUnit = 1674,
    AngleDecimals,
    MassLengthUnit,
    MassUnit,
    VolumeUnit,
    ForceUnit,
    MassDecimals
};

// In the order in which they are written.
constexpr ValueBox UnitSystems[] = {{1127, 1}, {CustomBox, 4}, {1129, 3}, {1126, 2}, {1128, 5}};
constexpr LengthUnitNumbers Length = {1109, 1110, 1111, 1029, 1117, 1113, 1114, 1116, 1664};
constexpr LengthUnitNumbers DualLength = {1096, 1098, 1099, 1132, 1097, 1101, 1102, 1105, 1669};
constexpr int RowsWithPlaces[] = {0, 3}; // degrees and radians

struct UnitList {
    int list;
    unsigned parameter;
    std::span<const CodedRow> rows;
};

constexpr UnitList MassLists[] = {{MassLengths, MassLengthUnit, UnitRows::Lengths},
                                  {Masses, MassUnit, UnitRows::Masses},
                                  {Volumes, VolumeUnit, UnitRows::Volumes},
                                  {Forces, ForceUnit, UnitRows::Forces}};

constexpr PaneNumbers DocumentUnits = {1076, 1147, 1662, 1004}, DimensionUnits = {1077, 1164, 1689, 1204};
constexpr CorrectionRow DocumentCorrections[] = {
    {1304, 1663}, {1297, 1664}, {1298, 1665}, {1299, 1666}, {1300, 1667}, {1301, 1668},
    {1302, 1669}, {1303, 1670}, {1305, 1671}, {1312, 1672}, {1313, 1673}, {1314, 1674},
    {1315, 1675}, {1306, 1676}, {1307, 1680}, {1308, 1677}, {1309, 1678}, {1310, 1679}};
constexpr CorrectionRow DimensionCorrections[] = {{1304, 1690}, {1297, 1665}, {1298, 1674}, {1299, 1664},
                                                  {1300, 1666}, {1301, 1667}, {1302, 1668}, {1303, 1675}};

} // namespace

void CUnitPane::PrepareControls() {
    m_length.emplace(*this, Length);
    WatchGroup(*m_length);
    FillCodedRows(*this, Angles, UnitRows::Angles);
    SetName(Angles, AngleUnit);
    Watch(Angles);
    m_anglePlaces.emplace(*this, AnglePlaces, AnglePlacesField, AngleDecimals);
    WatchPair(*m_anglePlaces);
}

void CUnitPane::WatchPair(NumberPair& pair) {
    connect(&pair, &NumberPair::OperatorChosen, this, &CUnitPane::OnChosen);
    connect(&pair, &NumberPair::ValueChanged, this, &CUnitPane::OnValue);
    connect(&pair, &NumberPair::Left, this, [this, &pair] {
        if (pair.NeedsGuard())
            NormalizeZeroValues();
    });
}

void CUnitPane::WatchGroup(LengthUnitGroup& group) {
    connect(&group, &LengthUnitGroup::Chosen, this, &CUnitPane::OnChosen);
    connect(&group, &LengthUnitGroup::ValueChanged, this, &CUnitPane::OnValue);
    connect(&group, &LengthUnitGroup::NumberLeft, this, &CUnitPane::NormalizeZeroValues);
}

bool CUnitPane::HasAngleWithPlaces() const {
    const auto* angles = GetDlgItem<CChoiceList>(Angles);
    for (const int row : RowsWithPlaces)
        if (const auto* item = angles ? angles->item(row) : nullptr; item && item->isSelected())
            return true;
    return false;
}

void CUnitPane::GuardBounds() {
    m_length->GuardBounds();
    m_anglePlaces->GuardBound();
}

void CUnitPane::NormalizeZeroValues() {
    GuardBounds();
    OnParameterChanged();
}

void CUnitPane::LoadControls(const CCheck& check) {
    m_length->Load(check);
    LoadCodedRows(*this, Angles, check.GetLongParameter(AngleUnit));
    m_anglePlaces->Load(check);
}

void CUnitPane::LoadCheck(const CCheck& check) {
    CValuePane::LoadCheck(check);
    NameAngleCorrections();
}

void CUnitPane::FillCheck(CCheck& check) {
    NameAngleCorrections();
    CValuePane::FillCheck(check);
    StoreAngleCorrection(check);
}

// Two of the angle units have no text of their own as values, and would be choices without a text.
void CUnitPane::NameAngleCorrections() {
    const auto bound = CorrectionControls.find(AngleUnit);
    const auto* angles = GetDlgItem<CChoiceList>(Angles);
    if (bound == CorrectionControls.end() || !angles)
        return;
    CorrectionChoices& choices = bound->second->Choices;
    const CStringArray chosen = angles->ChosenTexts();
    if (choices.Operator != OpOneOf || choices.Strings.size() != chosen.size() || choices.Strings == chosen)
        return;
    choices.Strings = chosen;
    if (choices.HasValue > 0)
        choices.Text = choices.ChoiceAt(choices.SelectedIndex);
    bound->second->RefreshDisplay();
}

void CUnitPane::StoreAngleCorrection(CCheck& check) const {
    auto* parameter = check.GetLongParameter(AngleUnit);
    const auto bound = CorrectionControls.find(AngleUnit);
    if (!parameter || parameter->Operator == OpNone || bound == CorrectionControls.end())
        return;
    for (const CodedRow& row : UnitRows::Angles)
        if (bound->second->Choices.Text == LoadString(row.text))
            parameter->SetCorrection(row.code);
}

CDocUnitDlg::CDocUnitDlg(EditingHost& host) : CUnitPane(host, DocumentUnits, DocumentCorrections) {
    CheckType = 108;
}

void CDocUnitDlg::PrepareControls() {
    CUnitPane::PrepareControls();
    m_systems.emplace(*this, UnitSystem, std::vector(std::begin(UnitSystems), std::end(UnitSystems)));
    for (const ValueBox& box : UnitSystems)
        Watch(box.number);
    for (const UnitList& units : MassLists) {
        FillCodedRows(*this, units.list, units.rows);
        SetName(units.list, units.parameter);
        Watch(units.list);
    }
    m_massPlaces.emplace(*this, MassPlaces, MassPlacesField, MassDecimals);
    WatchPair(*m_massPlaces);
    m_dual.emplace(*this, DualLength);
    WatchGroup(*m_dual);
}

void CDocUnitDlg::ApplyEnableRules() {
    const bool isCustom = IsChecked(CustomBox);
    m_length->ApplyEnableRules(isCustom);
    for (const UnitList& units : MassLists)
        Enable(units.list, isCustom);
    m_massPlaces->SetEnabled(isCustom);
    m_dual->ApplyEnableRules(true);
    m_anglePlaces->SetEnabled(HasAngleWithPlaces());
}

void CDocUnitDlg::GuardBounds() {
    CUnitPane::GuardBounds();
    m_massPlaces->GuardBound();
    m_dual->GuardBounds();
}

void CDocUnitDlg::LoadControls(const CCheck& check) {
    m_systems->Load(check);
    CUnitPane::LoadControls(check);
    for (const UnitList& units : MassLists)
        LoadCodedRows(*this, units.list, check.GetLongParameter(units.parameter));
    m_massPlaces->Load(check);
    m_dual->Load(check);
}

void CDocUnitDlg::StoreControls(CCheck& check) const {
    m_systems->Store(check);
    if (IsChecked(CustomBox)) {
        m_length->Store(check);
        for (const UnitList& units : MassLists)
            StoreCodedRows(*this, units.list, check.GetLongParameter(units.parameter));
        m_massPlaces->Store(check);
    }
    m_dual->Store(check);
    StoreCodedRows(*this, Angles, check.GetLongParameter(AngleUnit));
    m_anglePlaces->Store(check);
}

CDimUnitCheckDlg::CDimUnitCheckDlg(EditingHost& host)
    : CUnitPane(host, DimensionUnits, DimensionCorrections) {
    CheckType = 405;
}

void CDimUnitCheckDlg::PrepareControls() {
    CUnitPane::PrepareControls();
    Watch(DocumentBox);
}

void CDimUnitCheckDlg::ApplyEnableRules() {
    const bool isOwn = !IsChecked(DocumentBox);
    m_length->ApplyEnableRules(isOwn);
    Enable(Angles, isOwn);
    m_anglePlaces->SetEnabled(isOwn);
}

void CDimUnitCheckDlg::LoadControls(const CCheck& check) {
    LoadDocumentBox(*this, DocumentBox, check);
    CUnitPane::LoadControls(check);
}

void CDimUnitCheckDlg::StoreControls(CCheck& check) const {
    if (StoreDocumentBox(*this, DocumentBox, check))
        return;
    m_length->Store(check);
    StoreCodedRows(*this, Angles, check.GetLongParameter(AngleUnit));
    m_anglePlaces->Store(check);
}
