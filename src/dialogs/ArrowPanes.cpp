#include "dialogs/ArrowPanes.h"

#include "editing/ComparisonTexts.h"
#include "editing/CorrectionChoices.h"
#include "editing/ExtRichEditCtrl.h"
#include "engines/ParameterKinds.h"
#include "engines/UnitConvertor.h"
#include "platform/LanguageLibrary.h"

#include <QCheckBox>
#include <QComboBox>
#include <algorithm>
#include <iterator>

namespace {

// The values of the boxes, in the order in which they are written.
constexpr int ArrowStyles[] = {9, 1, 8, 3, 6, 10, 0, 4, 7, 2, 5};
constexpr int Placements[] = {0, 1, 2};

const QList<unsigned> LengthOperators = {OpNone,    OpEqual,   OpBelow, OpAbove, OpAtMost,
                                         OpAtLeast, OpBetween, OpOneOf, OpNoneOf};

constexpr int AtEdge[] = {1066, 1058, 1065, 1060, 1063, 1067, 1057, 1061, 1064, 1059, 1062};
constexpr int AtFace[] = {1113, 1042, 1111, 1046, 1096, 1115, 1038, 1084, 1092, 1050, 1088};
constexpr int Unattached[] = {1117, 1044, 1116, 1047, 1097, 1118, 1039, 1085, 1093, 1051, 1089};
constexpr ArrowTable::Size DocumentSizes[] = {
    {1552, 1002, 1003, 1210, 1304, 1216}, {1553, 1006, 1007, 1211, 1297, 1217},
    {1554, 1013, 1014, 1212, 1298, 1218}, {1555, 1022, 1023, 1213, 1299, 1219},
    {1556, 1028, 1029, 1214, 1300, 1220}, {1557, 1033, 1034, 1215, 1301, 1221}};
constexpr ArrowTable::Group DocumentGroups[] = {{1558, KindArrowStyle, AtEdge, 1302, 0},
                                                {1559, KindArrowStyle, AtFace, 1303, 0},
                                                {1560, KindArrowStyle, Unattached, 1305, 0}};
constexpr ArrowTable Document = {102, 1145, 1579, 1002, DocumentSizes, {}, DocumentGroups};

constexpr int First[] = {1112, 1041, 1110, 1045, 1095, 1114, 1037, 1083, 1091, 1049, 1087};
constexpr int Second[] = {1121, 1057, 1120, 1061, 1119, 1122, 1053, 1116, 1118, 1064, 1117};
constexpr int PlacementBoxes[] = {1067, 1069, 1071};
constexpr ArrowTable::DocumentBox DimensionDocumentBoxes[] = {{1567, 1077, 1304}, {1568, 1075, 1299}};
constexpr ArrowTable::Group DimensionGroups[] = {{1561, KindArrowStyle, First, 1297, 1077},
                                                 {1562, KindArrowStyle, Second, 1298, 1077},
                                                 {1569, KindArrowPlacement, PlacementBoxes, 1300, 1075}};
constexpr ArrowTable Dimensions = {1093, 1162, 1580, 1202, {}, DimensionDocumentBoxes, DimensionGroups};

constexpr int Annotation[] = {1073, 1075, 1079, 1070, 1069, 1077, 1076, 1078, 1071, 1072, 1074};
constexpr ArrowTable::DocumentBox AnnotationDocumentBoxes[] = {{1567, 1068, 1304}};
constexpr ArrowTable::Group AnnotationGroups[] = {{1583, KindArrowStyle, Annotation, 1297, 1068}};
constexpr ArrowTable Annotations = {1069, 1158, 1584, 1101, {}, AnnotationDocumentBoxes, AnnotationGroups};

std::vector<ValueBox> BoxesOf(const ArrowTable::Group& group) {
    const std::span<const int> values =
        group.parameterType == KindArrowStyle ? std::span<const int>(ArrowStyles) : Placements;
    std::vector<ValueBox> boxes;
    std::ranges::transform(group.boxes, values, std::back_inserter(boxes), [](int number, int value) {
        return ValueBox{number, value};
    });
    return boxes;
}

} // namespace

CArrowPane::CArrowPane(EditingHost& host, const ArrowTable& table)
    : CParameterCheckDlg(host, table.templateID, table.iconID, table.captionStringID), m_table(table) {}

CArrowPane::~CArrowPane() = default;

bool CArrowPane::OnInitDialog() {
    for (const ArrowTable::Size& size : m_table.sizes)
        if (!GetDlgItem<QComboBox>(size.comparison) || !GetDlgItem<CExtRichEditCtrl>(size.value))
            return false;
    for (const ArrowTable::DocumentBox& document : m_table.documentBoxes)
        if (!GetDlgItem<QCheckBox>(document.box))
            return false;
    MakeSizes();
    MakeGroups();
    ApplyEnableRules();
    CreateCorrectionControls();
    return true;
}

void CArrowPane::MakeSizes() {
    for (const ArrowTable::Size& size : m_table.sizes) {
        auto* value = GetDlgItem<CExtRichEditCtrl>(size.value);
        value->SetFilter(NumberListCharacters, false);
        auto& pair = m_sizes.emplace_back(
            std::make_unique<ComparisonPair>(GetDlgItem<QComboBox>(size.comparison), value, true));
        pair->Fill(LengthOperators);
        pair->SetName(LoadString(size.parameter));
        connect(pair.get(), &ComparisonPair::Changed, this, &CArrowPane::OnParameterChanged);
        AttachUnitLabel(size.value, size.unit, 0, DimensionLength);
        AttachUnitLabel(size.correction, size.correctionUnit, 0, DimensionLength);
    }
}

void CArrowPane::MakeGroups() {
    for (const ArrowTable::Group& group : m_table.groups) {
        BoxGroup& made = m_groups.emplace_back(*this, group.parameter, BoxesOf(group));
        made.ShowPictures(group.parameterType);
        for (const ValueBox& box : made.Boxes())
            On(box.number, ControlEvent::Clicked, &CArrowPane::OnBoxClicked);
    }
    for (const ArrowTable::DocumentBox& document : m_table.documentBoxes)
        On(document.box, ControlEvent::Clicked, &CArrowPane::OnBoxClicked);
}

void CArrowPane::CreateCorrectionControls() {
    for (const ArrowTable::Size& size : m_table.sizes)
        BindCorrectionControl(size.correction, size.parameter, NumberEntry, -1);
    for (const ArrowTable::DocumentBox& document : m_table.documentBoxes)
        BindCorrectionControl(document.correction, document.parameter, TextEntry, -1);
    for (const ArrowTable::Group& group : m_table.groups)
        if (group.parameterType == KindArrowStyle)
            BindCorrectionControl(group.correction, group.parameter, ImageEntry, 0);
        else
            BindCorrectionControl(group.correction, group.parameter, TextEntry, -1);
}

void CArrowPane::OnBoxClicked() {
    ApplyEnableRules();
    OnParameterChanged();
}

Qt::CheckState CArrowPane::StateOf(int documentBox) const {
    return documentBox != 0 ? GetDlgItem<QCheckBox>(documentBox)->checkState() : Qt::Unchecked;
}

void CArrowPane::ApplyEnableRules() {
    for (std::size_t i = 0; i < m_groups.size(); ++i)
        m_groups[i].SetEnabled(StateOf(m_table.groups[i].documentBox) == Qt::Unchecked);
}

void CArrowPane::NormalizeZeroValues() {
    for (const ArrowTable::Size& size : m_table.sizes)
        GuardLessThanBound(size.comparison, size.value);
    OnParameterChanged();
}

void CArrowPane::FillCheckParameters(CCheck& check) {
    CParameterCheckDlg::FillCheckParameters(check);
    for (std::size_t i = 0; i < m_sizes.size(); ++i)
        if (auto* size = check.GetDoubleParameter(m_table.sizes[i].parameter))
            m_sizes[i]->Store(*size);
    for (const ArrowTable::DocumentBox& document : m_table.documentBoxes)
        if (auto* use = check.GetIntParameter(document.parameter)) {
            const Qt::CheckState state = StateOf(document.box);
            use->ClearValues();
            use->Operator = state == Qt::Unchecked ? OpNone : OpEqual;
            if (state != Qt::Unchecked)
                use->Values.Add(state == Qt::Checked ? 1 : 0);
        }
    // What is left to the document stays as in a new check, however its grey boxes stand.
    for (std::size_t i = 0; i < m_groups.size(); ++i)
        if (StateOf(m_table.groups[i].documentBox) == Qt::Unchecked)
            m_groups[i].Store(check);
}

void CArrowPane::LoadCheck(const CCheck& check) {
    LoadCorrectionControls(check);
    for (std::size_t i = 0; i < m_sizes.size(); ++i)
        if (const auto* size = check.GetDoubleParameter(m_table.sizes[i].parameter))
            m_sizes[i]->Load(*size);
    for (const ArrowTable::DocumentBox& document : m_table.documentBoxes) {
        const auto* use = check.GetIntParameter(document.parameter);
        const bool isUsed = use && use->Operator != OpNone && use->Values.Count > 0 && use->Values[0] != 0;
        GetDlgItem<QCheckBox>(document.box)->setChecked(isUsed);
    }
    for (BoxGroup& group : m_groups)
        group.Load(check);
    ApplyEnableRules();
    CParameterCheckDlg::LoadCheck(check);
}

CDocArrowCheckDlg::CDocArrowCheckDlg(EditingHost& host) : CArrowPane(host, Document) {}

CDimArrowCheckDlg::CDimArrowCheckDlg(EditingHost& host) : CArrowPane(host, Dimensions) {}

CAnntArrowCheckDlg::CAnntArrowCheckDlg(EditingHost& host) : CArrowPane(host, Annotations) {}
