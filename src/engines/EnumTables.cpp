#include "engines/EnumTables.h"

#include "engines/ParameterKinds.h"

#include <array>
#include <cstddef>

namespace {

// One run a number, for keys 0, 1, 2, ... whose numbers follow no order.
template <std::size_t N> consteval std::array<IdRun, N> RunsOf(const std::array<std::uint32_t, N>& ids) {
    std::array<IdRun, N> runs{};
    for (std::uint32_t key = 0; key < N; ++key)
        runs[key] = {key, ids[key], 1};
    return runs;
}

constexpr IdRun ArrowStyleImages[] = {{0, 1124}, {1, 1123}, {2, 1125, 9}};
constexpr IdRun ArrowStyles[] = {{0, 1832, 11}};
constexpr IdRun DraftingStandards[] = {{1, 1826}, {2, 1825}, {3, 1828, 4}, {7, 1827}, {8, 2422}};
constexpr IdRun UnitSystems[] = {{1, 1681, 5}};
constexpr IdRun LengthUnits[] = {{0, 1624, 3}, {3, 1629}, {4, 1630}, {5, 1631},
                                 {6, 1621, 3}, {9, 1628}, {10, 1627}};
constexpr IdRun AngleUnits[] = {{0, 1633}, {3, 1636}};
constexpr IdRun MassUnits[] = {{1, 1637, 4}};
constexpr IdRun DocumentUnits10[] = {{1, 1641, 7}, {9, 1649, 2}};
constexpr IdRun DocumentUnits11[] = {{1, 1651, 6}};
constexpr IdRun FontStyles[] = {{1, 1695, 4}};
constexpr IdRun ReferenceStates[] = {{0, 1708, 2}, {3, 1710, 3}};
constexpr IdRun InterferenceModes[] = {{0, 1755, 3}};
constexpr IdRun CustomPropertyTypes[] = {{0, 1632}, {3, 1717}, {11, 1719}, {30, 1716}, {64, 1718}};
constexpr IdRun NumberFormats[] = {{1, 1686, 2}};
constexpr IdRun PaperSizes[] = {{0, 1607, 6}, {6, 1616, 2}, {8, 1615}, {9, 1614},
                                {10, 1613},   {11, 1606},   {12, 1930}};
constexpr IdRun LineThicknessImages[] = {{0, 157, 8}};
constexpr IdRun LineThicknesses[] = {{0, 1843, 8}};
constexpr IdRun LineStyleImages[] = {{0, 148}, {1, 150, 2}, {3, 149}, {4, 154}, {5, 152, 2}};
constexpr IdRun LineStyles[] = {{0, 1851, 7}};
constexpr IdRun ArrowPlacements[] = {{0, 1575, 3}};
constexpr IdRun YesNo[] = {{0, 1661}, {1, 1660}};
constexpr IdRun SketchStates[] = {{1, 1931}, {2, 1919, 3}, {5, 1932, 3}};
constexpr IdRun DisplayModeImages[] = {{0, 1362}, {1, 1361}, {2, 1360}, {3, 1363}, {4, 1370}};
constexpr IdRun DisplayModes[] = {{0, 1744, 5}};
// The pictures of the text alignments have the numbers of their texts.
constexpr IdRun TextAlignments1[] = {{1, 1340, 3}};
constexpr IdRun TextAlignments2[] = {{1, 1330, 3}};
constexpr IdRun TextAlignments3[] = {{1, 1333, 3}};
constexpr IdRun TextAlignments4[] = {{1, 1339}, {2, 1336}, {3, 1338}, {4, 1337}};
constexpr IdRun DecimalPrecisions[] = {{0, 2285, 4}, {4, 2389, 5}, {9, 2320},
                                       {10, 2315},   {11, 2312},   {12, 2311}};
constexpr IdRun SharpDisplayImages[] = {{0, 1421}, {1, 1417, 4}};
constexpr IdRun SharpDisplays[] = {{0, 1764, 5}};
constexpr IdRun FileLocationTypes[] = {{0, 2430, 5}, {5, 2485, 3}, {8, 2435, 28}};
constexpr auto FileLocationOptions = RunsOf(
    std::to_array<std::uint32_t>({6,  1,  5,  22, 30, 67, 68, 69, 25, 48, 40, 38, 27, 57, 64, 26, 33, 59,
                                  39, 23, 20, 28, 35, 60, 7,  45, 12, 61, 62, 31, 70, 21, 34, 29, 32, 58}));
constexpr IdRun FileLocationRules[] = {{0, 2483}, {1, 2482}, {2, 2484}};
constexpr IdRun SheetFormatRules[] = {{0, 2490, 2}};

constexpr ValueList Texts(IdMap texts, int valueKind = 0) {
    return {ListUse::Texts, valueKind, texts, {}};
}

constexpr ValueList Pictures(IdMap texts, IdMap images) {
    return {ListUse::Pictures, 3, texts, images};
}

// Stands at the place of its kind's number.
constexpr std::array<ValueList, ParameterKindCount> Lists{{
    {ListUse::Number, 0, {}, {}},                             // KindPlain
    {ListUse::None, 1, {}, {}},                               // KindLength
    {ListUse::None, 1, {}, {}},                               // KindAngle
    Pictures(ArrowStyles, ArrowStyleImages),                  // KindArrowStyle
    Texts(DraftingStandards),                                 // KindDraftingStandard
    {ListUse::None, 2, {}, {}},                               // KindColor
    Texts(UnitSystems),                                       // KindUnitSystem
    Texts(LengthUnits),                                       // KindLengthUnit
    Texts(AngleUnits),                                        // KindAngleUnit
    Texts(MassUnits),                                         // KindMassUnit
    Texts(DocumentUnits10),                                   // KindDocumentUnit10
    Texts(DocumentUnits11),                                   // KindDocumentUnit11
    {ListUse::None, 0, {}, {}},                               // KindFontName
    Texts(FontStyles),                                        // KindFontStyle
    Texts(ReferenceStates),                                   // KindReferenceState
    Texts(InterferenceModes),                                 // KindInterferenceMode
    Texts({}),                                                // KindUnused
    Texts(CustomPropertyTypes),                               // KindCustomPropertyType
    Texts(NumberFormats),                                     // KindNumberFormat
    Texts(PaperSizes),                                        // KindPaperSize
    Pictures(LineThicknesses, LineThicknessImages),           // KindLineThickness
    Pictures(LineStyles, LineStyleImages),                    // KindLineStyle
    Texts(ArrowPlacements),                                   // KindArrowPlacement
    {ListUse::YesNo, 0, YesNo, {}},                           // KindBoolean
    {ListUse::ShownOnly, 0, SketchStates, {}},                // KindSketchState
    Pictures(DisplayModes, DisplayModeImages),                // KindDisplayMode
    Pictures(TextAlignments1, TextAlignments1),               // KindTextAlign1
    Pictures(TextAlignments2, TextAlignments2),               // KindTextAlign2
    Pictures(TextAlignments3, TextAlignments3),               // KindTextAlign3
    Pictures(TextAlignments4, TextAlignments4),               // KindTextAlign4
    Texts(DecimalPrecisions),                                 // KindDecimalPrecision
    {ListUse::None, 1, {}, {}},                               // KindVolume
    Pictures(SharpDisplays, SharpDisplayImages),              // KindSharpDisplay
    Texts(FileLocationTypes, NoValueKind),                    // KindFileLocationType
    {ListUse::Options, NoValueKind, FileLocationOptions, {}}, // KindFileLocationOption
    Texts(FileLocationRules, NoValueKind),                    // KindFileLocationRule
    Texts(SheetFormatRules, NoValueKind),                     // KindSheetFormatRule
}};

constexpr bool InKeyOrder(IdMap map) {
    for (std::size_t i = 1; i < map.size(); ++i)
        if (map[i].firstKey < map[i - 1].firstKey + map[i - 1].count)
            return false;
    return true;
}

constexpr bool AllInKeyOrder() {
    for (const ValueList& list : Lists)
        if (!InKeyOrder(list.texts) || !InKeyOrder(list.images))
            return false;
    return true;
}

static_assert(AllInKeyOrder());

constexpr ValueList NoList;

} // namespace

const ValueList& ValueListOf(int type) {
    return type >= 0 && type < ParameterKindCount ? Lists[static_cast<std::size_t>(type)] : NoList;
}

std::uint32_t IdOf(IdMap map, std::uint32_t key) {
    for (const IdRun& run : map)
        if (key - run.firstKey < run.count) // wraps to a large number below the first key
            return run.firstId + (key - run.firstKey);
    return 0;
}
