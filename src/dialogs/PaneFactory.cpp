#include "dialogs/PaneFactory.h"

#include "dialogs/ArrowPanes.h"
#include "dialogs/AssemblyPanes.h"
#include "dialogs/DimExtVisibleGapDlg.h"
#include "dialogs/DimPrecisionDlg.h"
#include "dialogs/FileLocationDlg.h"
#include "dialogs/FontPanes.h"
#include "dialogs/KeepingCheckDlg.h"
#include "dialogs/PartBendTableDlg.h"
#include "dialogs/PicturePanes.h"
#include "dialogs/PlainPanes.h"
#include "dialogs/StandardCheckDlg.h"
#include "dialogs/UnitPanes.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <type_traits>

namespace {

using Pane = std::unique_ptr<CExtDialog>;

// A class that serves several checks is told which.
template <class Class> Pane Make(EditingHost& host, MQC_CheckType_e type) {
    if constexpr (std::is_constructible_v<Class, EditingHost&, MQC_CheckType_e>)
        return std::make_unique<Class>(host, type);
    else
        return std::make_unique<Class>(host);
}

struct PaneClass {
    std::string_view name;
    Pane (*make)(EditingHost& host, MQC_CheckType_e type);
};

constexpr PaneClass Classes[] = {
    {"CStandardCheckDlg", Make<CStandardCheckDlg>},
    {"CReferenceUptoDateDlg", Make<CReferenceUptoDateDlg>},
    {"COverriddenMassPropertiesDlg", Make<COverriddenMassPropertiesDlg>},
    {"CGTOLDatumDlg", Make<CGTOLDatumDlg>},
    {"CAnnSpellCheckerDlg", Make<CAnnSpellCheckerDlg>},
    {"COverriddenDimensionDlg", Make<COverriddenDimensionDlg>},
    {"COverlapDimDlg", Make<COverlapDimDlg>},
    {"CDimReplacedOriginalTextDlg", Make<CDimReplacedOriginalTextDlg>},
    {"CDrawingDocOverlapViewDlg", Make<CDrawingDocOverlapViewDlg>},
    {"CBOMBalloonDlg", Make<CBOMBalloonDlg>},
    {"CDrawingDocDanglingDimensionDlg", Make<CDrawingDocDanglingDimensionDlg>},
    {"CAssemErrorMatesDlg", Make<CAssemErrorMatesDlg>},
    {"CSupCompDlg", Make<CSupCompDlg>},
    {"CFeatureErrorDlg", Make<CFeatureErrorDlg>},
    {"CFeatFullyDefinedSketchDlg", Make<CFeatFullyDefinedSketchDlg>},
    {"CStdHolesSizesDlg", Make<CStdHolesSizesDlg>},
    {"CSupFeatDlg", Make<CSupFeatDlg>},
    {"CFeaturePositioningDlg", Make<CFeaturePositioningDlg>},
    {"CHiddenCompDlg", Make<CHiddenCompDlg>},
    {"CDocFontCheckDlg", Make<CDocFontCheckDlg>},
    {"CDimFontDlg", Make<CDimFontDlg>},
    {"CAnntFontDlg", Make<CAnntFontDlg>},
    {"CDocArrowCheckDlg", Make<CDocArrowCheckDlg>},
    {"CDimArrowCheckDlg", Make<CDimArrowCheckDlg>},
    {"CAnntArrowCheckDlg", Make<CAnntArrowCheckDlg>},
    {"CDocUnitDlg", Make<CDocUnitDlg>},
    {"CDimUnitCheckDlg", Make<CDimUnitCheckDlg>},
    {"CDimPrecisionDlg", Make<CDimPrecisionDlg>},
    {"CDimTextAlignmentDlg", Make<CDimTextAlignmentDlg>},
    {"CDrawingDocDimExtVisibleGapDlg", Make<CDrawingDocDimExtVisibleGapDlg>},
    {"CVirtualSharpCheckDlg", Make<CVirtualSharpCheckDlg>},
    {"CDrawingDocDisplayModeDlg", Make<CDrawingDocDisplayModeDlg>},
    {"CPartBendTableDlg", Make<CPartBendTableDlg>},
    {"CFileLocationDlg", Make<CFileLocationDlg>},
    {"CAssemblyInterferenceDlg", Make<CAssemblyInterferenceDlg>},
    {"CAssemblyMisalignConcentricMatesDlg", Make<CAssemblyMisalignConcentricMatesDlg>},
    {"CAssemblyFixedPartDlg", Make<CAssemblyFixedPartDlg>},
    {"CExternalReferenceDlg", Make<CExternalReferenceDlg>},
};

// The numbers of a pane that keeps the values of its check.
struct KeepingPane {
    MQC_CheckType_e type; // for a check that may stand more than once, the container's
    unsigned iconID;
    unsigned captionStringID;
    unsigned helpTopic;
};

constexpr KeepingPane KeepingPanes[] = {
    {105, 1146, 1723, 1003}, {122, 1403, 1964, 1018}, {302, 1167, 1605, 1301}, {303, 1169, 1582, 1302},
    {310, 1166, 1925, 1304}, {501, 1171, 1822, 1401}, {601, 1175, 2017, 1501},
};

} // namespace

std::unique_ptr<CExtDialog> MakePane(EditingHost& host, const PageCheckRow& row) {
    const auto made =
        std::ranges::find_if(Classes, [&](const PaneClass& pane) { return pane.name == row.dialogClass; });
    if (made != std::end(Classes))
        return made->make(host, row.type);
    const auto kept = std::ranges::find(KeepingPanes, row.type, &KeepingPane::type);
    if (kept == std::end(KeepingPanes))
        return nullptr;
    return std::make_unique<CKeepingCheckDlg>(host, row.dialogTemplateID, kept->iconID, kept->captionStringID,
                                              kept->helpTopic);
}
