#include "dialogs/PicturePanes.h"

#include "engines/ParameterKinds.h"

namespace {

constexpr ValueBox LinearTexts[] = {{1261, 1}, {1515, 2}, {1516, 3}};
constexpr ValueBox AngularTexts[] = {{1523, 1}, {1524, 2}, {1525, 3}};
constexpr ValueBox RadialTexts[] = {{1520, 1}, {1521, 2}, {1522, 3}};
constexpr ValueBox ChamferTexts[] = {{1526, 2}, {1527, 4}, {1528, 3}, {1529, 1}};
constexpr PictureRow Alignments[] = {{2274, KindTextAlign1, LinearTexts},
                                     {2275, KindTextAlign2, AngularTexts},
                                     {2276, KindTextAlign3, RadialTexts},
                                     {2277, KindTextAlign4, ChamferTexts}};
constexpr CorrectionRow AlignmentCorrections[] = {{1304, 2274, ImageEntry, 0},
                                                  {1297, 2275, ImageEntry, 0},
                                                  {1298, 2276, ImageEntry, 0},
                                                  {1299, 2277, ImageEntry, 0}};

constexpr ValueBox Sharps[] = {{1289, 0}, {1290, 1}, {1291, 2}, {1292, 3}, {1293, 4}};
constexpr PictureRow SharpRows[] = {{140, KindSharpDisplay, Sharps}};
constexpr CorrectionRow SharpCorrections[] = {{1304, 140, ImageEntry, 0}};

// The second and the third box stand in another order than their values.
constexpr ValueBox DisplayModes[] = {{1265, 0}, {1266, 2}, {1267, 1}, {1268, 3}, {1269, 4}};
constexpr PictureRow DisplayModeRows[] = {{1742, KindDisplayMode, DisplayModes}};
constexpr CorrectionRow DisplayModeCorrections[] = {{1304, 1742, ImageEntry, 0}};

} // namespace

void CPicturePane::PrepareControls() {
    for (const PictureRow& row : m_rows) {
        m_groups.emplace_back(*this, row.parameter, std::vector(row.boxes.begin(), row.boxes.end()));
        m_groups.back().ShowPictures(row.kind);
        for (const ValueBox& box : row.boxes)
            Watch(box.number);
    }
}

void CPicturePane::LoadControls(const CCheck& check) {
    for (BoxGroup& group : m_groups)
        group.Load(check);
}

void CPicturePane::StoreControls(CCheck& check) const {
    for (const BoxGroup& group : m_groups)
        group.Store(check);
}

CDimTextAlignmentDlg::CDimTextAlignmentDlg(EditingHost& host)
    : CPicturePane(host, {1568, 1259, 2272, 1207}, AlignmentCorrections, Alignments) {
    CheckType = 408;
}

CVirtualSharpCheckDlg::CVirtualSharpCheckDlg(EditingHost& host)
    : CPicturePane(host, {1575, 1408, 139, 1019}, SharpCorrections, SharpRows) {
    CheckType = 123;
}

CDrawingDocDisplayModeDlg::CDrawingDocDisplayModeDlg(EditingHost& host)
    : CPicturePane(host, {1565, 1265, 1743, 1306}, DisplayModeCorrections, DisplayModeRows) {
    CheckType = 312;
}
