#include "model/Catalogue.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

// Both tables in one, so that a command cannot lead to another check in the one than in the other.
struct OfferedCheck {
    MQC_CheckType_e appType;
    unsigned group;
    unsigned position;
    unsigned bitmap;
    unsigned menuText;
    unsigned tabText;
    unsigned command;
    MQC_CheckType_e pageType;
    unsigned dialogTemplate;
    const char* dialogClass;
};

// clang-format off
constexpr OfferedCheck Offered[] = {
    {101, 0, 0, 1136, 2046, 1864, 32771, 101, 1078, "CStandardCheckDlg"},
    {102, 0, 1, 1196, 2047, 1865, 32772, 102, 102, "CDocArrowCheckDlg"},
    {104, 0, 2, 1197, 2057, 1867, 32773, 105, 1084, "CCustomPropertyDlg"},
    {108, 0, 3, 1139, 2060, 1868, 32774, 108, 1076, "CDocUnitDlg"},
    {107, 0, 4, 1140, 2058, 1869, 32775, 107, 1541, "CReferenceUptoDateDlg"},
    {109, 0, 5, 1141, 2048, 1870, 32896, 109, 1080, "CDocFontCheckDlg"},
    {110, 0, 6, 1149, 2054, 1878, 32904, 110, 1080, "CDocFontCheckDlg"},
    {111, 0, 7, 1142, 2049, 1871, 32897, 111, 1080, "CDocFontCheckDlg"},
    {119, 0, 8, 1314, 2187, 1896, 32874, 119, 1080, "CDocFontCheckDlg"},
    {112, 0, 9, 1143, 2050, 1872, 32898, 112, 1080, "CDocFontCheckDlg"},
    {120, 0, 10, 1315, 2190, 1897, 32878, 120, 1080, "CDocFontCheckDlg"},
    {113, 0, 11, 1144, 2051, 1873, 32899, 113, 1080, "CDocFontCheckDlg"},
    {114, 0, 12, 1145, 2053, 1874, 32900, 114, 1080, "CDocFontCheckDlg"},
    {115, 0, 13, 1146, 2052, 1875, 32903, 115, 1080, "CDocFontCheckDlg"},
    {116, 0, 14, 1147, 2056, 1876, 32901, 116, 1080, "CDocFontCheckDlg"},
    {117, 0, 15, 1148, 2055, 1877, 32902, 117, 1080, "CDocFontCheckDlg"},
    {118, 0, 16, 1199, 2150, 1894, 32872, 118, 1558, "COverriddenMassPropertiesDlg"},
    {121, 0, 17, 1404, 2407, 1959, 32916, 122, 1572, "CCustomCheckDlg"},
    {123, 0, 18, 1416, 2302, 1221, 32924, 123, 1575, "CVirtualSharpCheckDlg"},
    {124, 0, 19, 1436, 2426, 2424, 32928, 127, 1576, "CFileLocationDlg"},
    {201, 1, 0, 1152, 2062, 1865, 32776, 201, 1069, "CAnntArrowCheckDlg"},
    {202, 1, 1, 1151, 2063, 1866, 32777, 202, 1542, "CAnntFontDlg"},
    {301, 1, 2, 1153, 2064, 1879, 32778, 301, 1074, "CGTOLDatumDlg"},
    {203, 1, 3, 1198, 2148, 1893, 32869, 203, 1557, "CAnnSpellCheckerDlg"},
    {401, 2, 0, 1155, 2066, 1880, 32779, 401, 1072, "COverriddenDimensionDlg"},
    {402, 2, 1, 1156, 2067, 1865, 32780, 402, 1093, "CDimArrowCheckDlg"},
    {403, 2, 2, 1157, 2068, 1866, 32781, 403, 130, "CDimFontDlg"},
    {405, 2, 3, 1158, 2069, 1868, 32782, 405, 1077, "CDimUnitCheckDlg"},
    {406, 2, 4, 1159, 2070, 1881, 32783, 406, 1073, "COverlapDimDlg"},
    {407, 2, 5, 1343, 2264, 1903, 32910, 407, 1567, "CDimReplacedOriginalTextDlg"},
    {408, 2, 6, 1344, 2265, 1904, 32911, 408, 1568, "CDimTextAlignmentDlg"},
    {409, 2, 7, 1345, 2266, 1905, 32912, 409, 1569, "CDimPrecisionDlg"},
    {302, 3, 0, 1161, 2072, 1882, 32787, 302, 1075, "CTitleBlockFormatDlg"},
    {304, 3, 1, 1162, 2073, 1883, 32785, 303, 1534, "CNewLayerDlg"},
    {307, 3, 2, 1163, 2074, 1884, 32786, 307, 1071, "CDrawingDocOverlapViewDlg"},
    {308, 3, 3, 1164, 2075, 1885, 32784, 310, 1549, "CTitleBlockDlg"},
    {309, 3, 4, 1165, 2076, 1886, 32895, 309, 1537, "CBOMBalloonDlg"},
    {312, 3, 5, 1320, 2114, 1902, 32909, 312, 1565, "CDrawingDocDisplayModeDlg"},
    {313, 3, 6, 1392, 2262, 1957, 32914, 313, 1570, "CDrawingDocDanglingDimensionDlg"},
    {314, 3, 7, 1409, 2292, 1967, 32922, 314, 1574, "CDrawingDocDimExtVisibleGapDlg"},
    {501, 4, 0, 1167, 2078, 1887, 32788, 501, 1086, "CPartMaterialDlg"},
    {503, 4, 1, 1319, 2396, 1901, 32908, 503, 1566, "CPartBendTableDlg"},
    {601, 5, 0, 1167, 2080, 1888, 32889, 601, 1543, "CAssemCompMaterialDlg"},
    {602, 5, 1, 1169, 2081, 1889, 32890, 602, 1538, "CAssemErrorMatesDlg"},
    {603, 5, 2, 1170, 2082, 1890, 32891, 603, 1070, "CAssemblyFixedPartDlg"},
    {604, 5, 3, 1171, 2083, 1891, 32892, 604, 1081, "CExternalReferenceDlg"},
    {606, 5, 4, 1317, 2243, 1899, 32906, 606, 1562, "CSupCompDlg"},
    {607, 5, 5, 1408, 2291, 1965, 32921, 607, 1573, "CAssemblyInterferenceDlg"},
    {608, 5, 6, 32961, 32937, 32938, 32936, 608, 32935, "CAssemblyMisalignConcentricMatesDlg"},
    {701, 6, 0, 1169, 2085, 1892, 32893, 701, 1539, "CFeatureErrorDlg"},
    {702, 6, 1, 1172, 2086, 1906, 32894, 702, 1540, "CFeatFullyDefinedSketchDlg"},
    {703, 6, 2, 1200, 2160, 1895, 32876, 703, 1560, "CStdHolesSizesDlg"},
    {704, 6, 3, 1318, 2244, 1900, 32907, 704, 1563, "CSupFeatDlg"},
    {705, 6, 4, 1439, 2501, 2599, 32930, 705, 1577, "CFeaturePositioningDlg"},
};
// clang-format on

constexpr auto AppTable = [] {
    std::array<AppCheckRow, std::size(Offered)> table;
    std::ranges::transform(Offered, table.begin(), [](const OfferedCheck& check) {
        return AppCheckRow{check.appType, CAppCheckInfo(check.group, check.position, check.bitmap,
                                                        check.menuText, check.tabText, check.command)};
    });
    return table;
}();

constexpr auto PageTable = [] {
    std::array<PageCheckRow, std::size(Offered)> table;
    std::ranges::transform(Offered, table.begin(), [](const OfferedCheck& check) {
        return PageCheckRow{check.pageType,       check.group,   check.position,
                            check.dialogTemplate, check.command, check.dialogClass};
    });
    return table;
}();

// Documents, Annotations, Dimensions, Drawings, Parts, Assemblies, Features. The order is not that of the
// codes, and the Annotations reach one code into the three hundreds.
constexpr CheckGroup Groups[] = {
    {100, 199, 1405, 1983, 1406, 2045, 1039, 1090}, {200, 301, 1137, 1984, 1150, 2061, 1047, 1088},
    {400, 499, 1138, 1985, 1154, 2065, 1059, 1095}, {302, 399, 1139, 1986, 1160, 2071, 1066, 1091},
    {500, 599, 1140, 1987, 1166, 2077, 1068, 1093}, {600, 699, 1141, 1988, 1174, 2079, 1070, 1094},
    {700, 799, 1142, 1989, 1173, 2084, 1072, 1092},
};

template <class Rows, class Matches>
auto FindRow(const Rows& rows, Matches matches) -> decltype(rows.data()) {
    const auto found = std::ranges::find_if(rows, matches);
    return found != rows.end() ? &*found : nullptr;
}

} // namespace

std::span<const AppCheckRow> AppChecks() {
    return AppTable;
}

std::span<const PageCheckRow> PageChecks() {
    return PageTable;
}

std::span<const CheckGroup> CheckGroups() {
    return Groups;
}

unsigned GroupOfCheckType(MQC_CheckType_e type) {
    const auto* group =
        std::ranges::find_if(Groups, [type](const CheckGroup& row) { return row.Holds(type); });
    return group != std::end(Groups) ? static_cast<unsigned>(group - Groups) : 0;
}

const PageCheckRow* FindPageCheck(MQC_CheckType_e type) {
    return FindRow(PageTable, [type](const PageCheckRow& row) { return row.type == type; });
}

const PageCheckRow* FindPageCheckByCommand(unsigned commandID) {
    return FindRow(PageTable, [commandID](const PageCheckRow& row) { return row.commandID == commandID; });
}

const AppCheckRow* FindAppCheckByCommand(unsigned commandID) {
    return FindRow(AppTable,
                   [commandID](const AppCheckRow& row) { return row.info.GetCommandID() == commandID; });
}
