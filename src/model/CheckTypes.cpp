#include "model/CheckTypes.h"

#include <algorithm>
#include <iterator>

namespace {

// Heights of a text stand in document units (1704, 1705) or in points (1706).
constexpr ParameterDefinition Fonts[] = {
    {1700, DataText, 12, OpNone, false}, {1701, DataLong, 13, OpNone, false},
    {1702, DataInt, 23, OpNone, false},  {1703, DataInt, 23, OpNone, false},
    {1704, DataDouble, 1, OpNone, true}, {1705, DataDouble, 1, OpNone, true},
    {1706, DataInt, 0, OpNone, true}};

// Fonts of a single kind may follow the document.
constexpr ParameterDefinition OverriddenFonts[] = {
    {1690, DataInt, 23, OpNone, false},  {1700, DataText, 12, OpNone, false},
    {1701, DataLong, 13, OpNone, false}, {1702, DataInt, 23, OpNone, false},
    {1703, DataInt, 23, OpNone, false},  {1704, DataDouble, 1, OpNone, true},
    {1705, DataDouble, 1, OpNone, true}, {1706, DataInt, 0, OpNone, true}};

constexpr ParameterDefinition Type101[] = {{1578, DataLong, 4, OpNone, false},
                                           {0, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type102[] = {
    {1552, DataDouble, 1, OpNone, true}, {1553, DataDouble, 1, OpNone, true},
    {1554, DataDouble, 1, OpNone, true}, {1555, DataDouble, 1, OpNone, true},
    {1556, DataDouble, 1, OpNone, true}, {1557, DataDouble, 1, OpNone, true},
    {1558, DataInt, 3, OpNone, false},   {1559, DataInt, 3, OpNone, false},
    {1560, DataInt, 3, OpNone, false}};
constexpr ParameterDefinition Type104[] = {{1724, DataText, 0, OpNone, false},
                                           {1725, DataLong, 17, OpNone, false},
                                           {1726, DataText, 0, OpNone, true},
                                           {0, DataLong, 0, OpOneOf, false}};
constexpr ParameterDefinition Type106[] = {{1724, DataText, 0, OpNone, false},
                                           {1725, DataLong, 17, OpNone, false},
                                           {1726, DataText, 0, OpNone, true}};
constexpr ParameterDefinition Type107[] = {{1936, DataText, 0, OpTextOnly, false}};
constexpr ParameterDefinition Type108[] = {
    {1663, DataLong, 6, OpNone, false},  {1664, DataLong, 7, OpNone, false},
    {1665, DataLong, 0, OpNone, true},   {1666, DataLong, 18, OpNone, false},
    {1667, DataLong, 0, OpNone, true},   {1668, DataInt, 23, OpNone, false},
    {1669, DataLong, 7, OpNone, false},  {1670, DataLong, 0, OpNone, true},
    {1671, DataLong, 18, OpNone, false}, {1672, DataLong, 0, OpNone, true},
    {1673, DataInt, 23, OpNone, false},  {1674, DataLong, 8, OpNone, false},
    {1675, DataLong, 0, OpNone, true},   {1676, DataLong, 7, OpNone, false},
    {1680, DataLong, 0, OpNone, true},   {1677, DataLong, 9, OpNone, false},
    {1678, DataLong, 10, OpNone, false}, {1679, DataLong, 11, OpNone, false}};
constexpr ParameterDefinition Type118[] = {{1727, DataText, 0, OpTextOnly, false}};
constexpr ParameterDefinition Type121[] = {{135, DataText, 0, OpNone, false},
                                           {132, DataText, 0, OpNone, false},
                                           {133, DataText, 0, OpNone, false},
                                           {134, DataText, 0, OpNone, false},
                                           {138, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type123[] = {{140, DataLong, 32, OpNone, false}};
constexpr ParameterDefinition Type124[] = {{2473, DataLong, 33, OpNone, false},
                                           {2474, DataText, 0, OpNone, false},
                                           {2476, DataBool, 0, OpNone, false}};
constexpr ParameterDefinition Type125[] = {{2473, DataLong, 33, OpNone, false},
                                           {2480, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type126[] = {{2473, DataLong, 33, OpNone, false},
                                           {2479, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type127[] = {{2477, DataLong, 35, OpNone, false},
                                           {2478, DataLong, 33, OpNone, false}};
constexpr ParameterDefinition Type128[] = {{2473, DataLong, 33, OpNone, false},
                                           {2481, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type201[] = {{1567, DataInt, 23, OpNone, false},
                                           {1583, DataInt, 3, OpNone, false}};
constexpr ParameterDefinition Type203[] = {{1707, DataText, 0, OpTextOnly, false}};
constexpr ParameterDefinition Type301[] = {{1694, DataText, 0, OpTextOnly, false}};
constexpr ParameterDefinition Type302[] = {{1618, DataLong, 19, OpNone, false},
                                           {1620, DataDouble, 1, OpNone, true},
                                           {1619, DataDouble, 1, OpNone, true},
                                           {2498, DataText, 0, OpNone, false},
                                           {2489, DataLong, 36, OpNone, false}};
constexpr ParameterDefinition Type304[] = {{1563, DataText, 0, OpNone, false},
                                           {1564, DataUnsigned, 5, OpNone, false},
                                           {1565, DataLong, 21, OpNone, false},
                                           {1566, DataLong, 20, OpNone, false}};
constexpr ParameterDefinition Type305[] = {{1563, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type308[] = {{1926, DataText, 0, OpNone, false},
                                           {1927, DataLong, 17, OpNone, false},
                                           {1928, DataText, 0, OpNone, true},
                                           {1929, DataText, 0, OpNone, false},
                                           {0, DataLong, 0, OpOneOf, false}};
constexpr ParameterDefinition Type309[] = {{1688, DataText, 0, OpTextOnly, false}};
constexpr ParameterDefinition Type311[] = {{1926, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type312[] = {{1742, DataLong, 25, OpNone, false}};
constexpr ParameterDefinition Type314[] = {{1690, DataInt, 23, OpNone, false},
                                           {2293, DataDouble, 1, OpNone, true},
                                           {2294, DataDouble, 1, OpNone, true}};
constexpr ParameterDefinition Type401[] = {{1589, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type402[] = {{1567, DataInt, 23, OpNone, false},
                                           {1561, DataInt, 3, OpNone, false},
                                           {1562, DataInt, 3, OpNone, false},
                                           {1568, DataInt, 23, OpNone, false},
                                           {1569, DataInt, 22, OpNone, false}};
constexpr ParameterDefinition Type405[] = {
    {1690, DataInt, 23, OpNone, false},  {1665, DataLong, 0, OpNone, true},
    {1674, DataLong, 8, OpNone, false},  {1664, DataLong, 7, OpNone, false},
    {1666, DataLong, 18, OpNone, false}, {1667, DataLong, 0, OpNone, true},
    {1668, DataInt, 23, OpNone, false},  {1675, DataLong, 0, OpNone, true}};
constexpr ParameterDefinition Type407[] = {{2271, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type408[] = {{2274, DataLong, 26, OpNone, false},
                                           {2275, DataLong, 27, OpNone, false},
                                           {2276, DataLong, 28, OpNone, false},
                                           {2277, DataLong, 29, OpNone, false}};
constexpr ParameterDefinition Type409[] = {
    {2281, DataLong, 30, OpNone, false},  {2282, DataLong, 30, OpNone, false},
    {2284, DataLong, 30, OpNone, false},  {2283, DataLong, 30, OpNone, false},
    {2405, DataLong, 30, OpNone, false},  {2404, DataLong, 30, OpNone, false},
    {2307, DataDouble, 1, OpNone, false}, {2308, DataDouble, 1, OpNone, false},
    {2309, DataDouble, 2, OpNone, false}, {2310, DataDouble, 2, OpNone, false},
    {2314, DataLong, 30, OpNone, false}};
constexpr ParameterDefinition Type501[] = {{2008, DataText, 0, OpNone, false},
                                           {1823, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type503[] = {{1741, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type602[] = {{1752, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type603[] = {{1586, DataInt, 0, OpNone, true}};
constexpr ParameterDefinition Type604[] = {{1714, DataLong, 14, OpNone, false}};
constexpr ParameterDefinition Type606[] = {{1737, DataText, 0, OpTextOnly, false}};
constexpr ParameterDefinition Type607[] = {{1754, DataDouble, 31, OpNone, true},
                                           {1758, DataLong, 15, OpNone, false}};
constexpr ParameterDefinition Type608[] = {{32947, DataText, 0, OpNone, false},
                                           {32948, DataText, 0, OpNone, false},
                                           {32949, DataDouble, 1, OpNone, false},
                                           {32950, DataText, 0, OpNone, false}};
constexpr ParameterDefinition Type702[] = {{1922, DataLong, 24, OpOneOf, false}};
constexpr ParameterDefinition Type703[] = {{1730, DataText, 0, OpTextOnly, false}};
constexpr ParameterDefinition Type704[] = {{1739, DataText, 0, OpTextOnly, false}};
constexpr ParameterDefinition Type705[] = {{2502, DataText, 0, OpTextOnly, false}};

// In the order of the codes. A name of 0 is none: such a check is named by its file.
constexpr CheckTypeDefinition Types[] = {
    {101, 1581, Type101}, {102, 1579, Type102},  {103, 0, Fonts},
    {104, 1723, Type104}, {105, 1723, {}},       {106, 2116, Type106},
    {107, 1593, Type107}, {108, 1662, Type108},  {109, 1908, Fonts},
    {110, 1916, Fonts},   {111, 1909, Fonts},    {112, 1910, Fonts},
    {113, 1911, Fonts},   {114, 1912, Fonts},    {115, 1913, Fonts},
    {116, 1914, Fonts},   {117, 1915, Fonts},    {118, 1949, Type118},
    {119, 2185, Fonts},   {120, 2189, Fonts},    {121, 1964, Type121},
    {122, 1964, {}},      {123, 139, Type123},   {124, 2425, Type124},
    {125, 2428, Type125}, {126, 2427, Type126},  {127, 2425, Type127},
    {128, 2429, Type128}, {201, 1584, Type201},  {202, 1715, OverriddenFonts},
    {203, 1691, Type203}, {301, 1595, Type301},  {302, 1605, Type302},
    {303, 1582, {}},      {304, 1582, Type304},  {305, 2120, Type305},
    {306, 2115, Type304}, {307, 1587, {}},       {308, 1925, Type308},
    {309, 1597, Type309}, {310, 1925, {}},       {311, 1973, Type311},
    {312, 1743, Type312}, {313, 1958, {}},       {314, 1759, Type314},
    {401, 1589, Type401}, {402, 1580, Type402},  {403, 1699, OverriddenFonts},
    {405, 1689, Type405}, {406, 1591, {}},       {407, 2271, Type407},
    {408, 2272, Type408}, {409, 2273, Type409},  {501, 1822, Type501},
    {503, 1740, Type503}, {601, 1824, Type501},  {602, 1601, Type602},
    {603, 1585, Type603}, {604, 1713, Type604},  {606, 1736, Type606},
    {607, 1753, Type607}, {608, 32939, Type608}, {701, 1600, Type602},
    {702, 1599, Type702}, {703, 1995, Type703},  {704, 1738, Type704},
    {705, 2500, Type705},
};

constexpr ContainerType Containers[] = {
    {105, 104, 1723}, {122, 121, 1964}, {127, 124, 2425}, {303, 304, 1582}, {310, 308, 1925}};

} // namespace

const CheckTypeDefinition* FindCheckType(MQC_CheckType_e type) {
    const auto* found =
        std::lower_bound(std::begin(Types), std::end(Types), type,
                         [](const CheckTypeDefinition& row, int code) { return row.type < code; });
    return found != std::end(Types) && found->type == type ? found : nullptr;
}

std::span<const CheckTypeDefinition> AllCheckTypes() {
    return Types;
}

const ContainerType* FindContainerType(MQC_CheckType_e type) {
    const auto* found = std::ranges::find(Containers, type, &ContainerType::container);
    return found != std::end(Containers) ? found : nullptr;
}

const ContainerType* FindContainerOfChild(MQC_CheckType_e child) {
    const auto* found = std::ranges::find(Containers, child, &ContainerType::child);
    return found != std::end(Containers) ? found : nullptr;
}

unsigned SummaryTextOf(MQC_CheckType_e type) {
    switch (type) {
    case 107: return 2000;
    case 118: return 2151;
    case 203: return 2149;
    case 301: return 1998;
    case 307: return 2006;
    case 309: return 2005;
    case 313: return 2289;
    case 401: return 2003;
    case 406: return 2002;
    case 407: return 2278;
    case 602: return 2004;
    case 606: return 2250;
    case 608: return 32946;
    case 701: return 2001;
    case 702: return 1999;
    case 703: return 2161;
    case 704: return 2251;
    case 705: return 2503;
    default: return 0;
    }
}

bool IsAutoCorrectable(MQC_CheckType_e type) {
    constexpr MQC_CheckType_e Not[] = {106, 107, 118, 121, 122, 203, 301, 305, 306, 308, 309, 311,
                                       313, 401, 407, 603, 604, 605, 606, 607, 703, 704, 705};
    return !std::binary_search(std::begin(Not), std::end(Not), type);
}
