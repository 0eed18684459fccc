#include "model/CheckTypes.h"

#include "model/Check.h"
#include "model/CheckManager.h"
#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace {

#define FONTS "1700 s12, 1701 l13, 1702 i23, 1703 i23, 1704 d1*, 1705 d1*, 1706 i0*"

struct TypeRow {
    int type;
    unsigned nameText; // 0: no name
    int count;
    // Each parameter as its number, the letter of its data type with its value list, an initial operator
    // other than 0, and a star where it is optional.
    const char* parameters;
};

constexpr TypeRow TypeRows[] = {
    {101, 1581, 2, "1578 l4, 0 s0"},
    {102, 1579, 9, "1552 d1*, 1553 d1*, 1554 d1*, 1555 d1*, 1556 d1*, 1557 d1*, 1558 i3, 1559 i3, 1560 i3"},
    {103, 0, 7, FONTS},
    {104, 1723, 4, "1724 s0, 1725 l17, 1726 s0*, 0 l0 op2"},
    {105, 1723, 0, ""},
    {106, 2116, 3, "1724 s0, 1725 l17, 1726 s0*"},
    {107, 1593, 1, "1936 s0 op13"},
    {108, 1662, 18,
     "1663 l6, 1664 l7, 1665 l0*, 1666 l18, 1667 l0*, 1668 i23, 1669 l7, 1670 l0*, 1671 l18, 1672 l0*, 1673 "
     "i23, 1674 l8, 1675 l0*, 1676 l7, 1680 l0*, 1677 l9, 1678 l10, 1679 l11"},
    {109, 1908, 7, FONTS},
    {110, 1916, 7, FONTS},
    {111, 1909, 7, FONTS},
    {112, 1910, 7, FONTS},
    {113, 1911, 7, FONTS},
    {114, 1912, 7, FONTS},
    {115, 1913, 7, FONTS},
    {116, 1914, 7, FONTS},
    {117, 1915, 7, FONTS},
    {118, 1949, 1, "1727 s0 op13"},
    {119, 2185, 7, FONTS},
    {120, 2189, 7, FONTS},
    {121, 1964, 5, "135 s0, 132 s0, 133 s0, 134 s0, 138 s0"},
    {122, 1964, 0, ""},
    {123, 139, 1, "140 l32"},
    {124, 2425, 3, "2473 l33, 2474 s0, 2476 b0"},
    {125, 2428, 2, "2473 l33, 2480 s0"},
    {126, 2427, 2, "2473 l33, 2479 s0"},
    {127, 2425, 2, "2477 l35, 2478 l33"},
    {128, 2429, 2, "2473 l33, 2481 s0"},
    {201, 1584, 2, "1567 i23, 1583 i3"},
    {202, 1715, 8, "1690 i23, " FONTS},
    {203, 1691, 1, "1707 s0 op13"},
    {301, 1595, 1, "1694 s0 op13"},
    {302, 1605, 5, "1618 l19, 1620 d1*, 1619 d1*, 2498 s0, 2489 l36"},
    {303, 1582, 0, ""},
    {304, 1582, 4, "1563 s0, 1564 u5, 1565 l21, 1566 l20"},
    {305, 2120, 1, "1563 s0"},
    {306, 2115, 4, "1563 s0, 1564 u5, 1565 l21, 1566 l20"},
    {307, 1587, 0, ""},
    {308, 1925, 5, "1926 s0, 1927 l17, 1928 s0*, 1929 s0, 0 l0 op2"},
    {309, 1597, 1, "1688 s0 op13"},
    {310, 1925, 0, ""},
    {311, 1973, 1, "1926 s0"},
    {312, 1743, 1, "1742 l25"},
    {313, 1958, 0, ""},
    {314, 1759, 3, "1690 i23, 2293 d1*, 2294 d1*"},
    {401, 1589, 1, "1589 s0"},
    {402, 1580, 5, "1567 i23, 1561 i3, 1562 i3, 1568 i23, 1569 i22"},
    {403, 1699, 8, "1690 i23, " FONTS},
    {404, 0, 0, ""},
    {405, 1689, 8, "1690 i23, 1665 l0*, 1674 l8, 1664 l7, 1666 l18, 1667 l0*, 1668 i23, 1675 l0*"},
    {406, 1591, 0, ""},
    {407, 2271, 1, "2271 s0"},
    {408, 2272, 4, "2274 l26, 2275 l27, 2276 l28, 2277 l29"},
    {409, 2273, 11,
     "2281 l30, 2282 l30, 2284 l30, 2283 l30, 2405 l30, 2404 l30, 2307 d1, 2308 d1, 2309 d2, 2310 d2, 2314 "
     "l30"},
    {501, 1822, 2, "2008 s0, 1823 s0"},
    {502, 0, 0, ""},
    {503, 1740, 1, "1741 s0"},
    {601, 1824, 2, "2008 s0, 1823 s0"},
    {602, 1601, 1, "1752 s0"},
    {603, 1585, 1, "1586 i0*"},
    {604, 1713, 1, "1714 l14"},
    {605, 0, 0, ""},
    {606, 1736, 1, "1737 s0 op13"},
    {607, 1753, 2, "1754 d31*, 1758 l15"},
    {608, 32939, 4, "32947 s0, 32948 s0, 32949 d1, 32950 s0"},
    {701, 1600, 1, "1752 s0"},
    {702, 1599, 1, "1922 l24 op2"},
    {703, 1995, 1, "1730 s0 op13"},
    {704, 1738, 1, "1739 s0 op13"},
    {705, 2500, 1, "2502 s0 op13"},
};

CString Described(const CParameterEntry& entry) {
    const CParameterBase& parameter = *entry.Parameter;
    CString text = CString::number(entry.ID) + " " + QChar(" ilbdsxu"[entry.DataType]) +
                   CString::number(parameter.ParameterType);
    if (entry.Flag)
        text += "*";
    if (parameter.Operator != OpNone)
        text += " op" + CString::number(parameter.Operator);
    return text;
}

CString Described(const CCheck& check) {
    CStringArray parameters;
    for (const CParameterEntry* entry : check.Parameters)
        parameters.append(Described(*entry));
    return parameters.join(", ");
}

} // namespace

TEST(CheckTypes, EveryTypeHasItsNameAndParametersInOrder) {
    for (const TypeRow& row : TypeRows) {
        const CCheck check(row.type, 0, 0, 0, 1);
        EXPECT_EQ(check.Name, row.nameText ? LoadString(row.nameText) : CString()) << row.type;
        EXPECT_EQ(check.Name.isEmpty(), row.nameText == 0) << row.type;
        EXPECT_EQ(check.Parameters.Count, row.count) << row.type;
        EXPECT_EQ(Described(check), row.parameters) << row.type;
    }
}

TEST(CheckTypes, NewParametersHaveLabelsAndNothingElse) {
    for (const TypeRow& row : TypeRows) {
        const CCheck check(row.type, 0, 0, 0, 1);
        for (const CParameterEntry* entry : check.Parameters) {
            const CParameterBase& parameter = *entry->Parameter;
            EXPECT_EQ(parameter.ID, entry->ID);
            EXPECT_EQ(parameter.Name, entry->ID ? LoadString(entry->ID) : CString()) << entry->ID;
            EXPECT_EQ(parameter.Name.isEmpty(), entry->ID == 0) << entry->ID;
            EXPECT_TRUE(parameter.Remarks.isEmpty());
            EXPECT_EQ(parameter.CorrectionKind, CorrectionAbsent);
            VisitParameter(*entry, [](const auto& typed) { EXPECT_EQ(typed.Values.Count, 0); });
        }
    }
}

TEST(CheckTypes, NoOtherCodeHasNameOrParameters) {
    std::set<int> known;
    for (const TypeRow& row : TypeRows)
        known.insert(row.type);
    for (int type = -5; type < 1000; ++type) {
        if (known.contains(type))
            continue;
        const CCheck check(type, 0, 0, 0, 1);
        EXPECT_TRUE(check.Name.isEmpty()) << type;
        EXPECT_EQ(check.Parameters.Count, 0) << type;
        EXPECT_EQ(FindCheckType(type), nullptr) << type;
    }
}

TEST(CheckTypes, TableIsInTheOrderOfTheCodes) {
    int before = 0;
    for (const CheckTypeDefinition& row : AllCheckTypes()) {
        EXPECT_GT(row.type, before);
        before = row.type;
    }
    EXPECT_EQ(AllCheckTypes().size(), std::size(TypeRows) - 3) << "404, 502 and 605 hold nothing";
}

TEST(CheckTypes, ParameterOfTheOverriddenDimensionIsNumberedLikeItsName) {
    const CCheck check(401, 0, 0, 0, 1);
    ASSERT_EQ(check.Parameters.Count, 1);
    EXPECT_EQ(check.Parameters[0]->ID, 1589u);
    EXPECT_EQ(check.Name, check.Parameters[0]->Parameter->Name);
}

TEST(CheckTypes, ContainersAndTheirChildren) {
    const int pairs[][3] = {
        {105, 104, 1723}, {122, 121, 1964}, {127, 124, 2425}, {303, 304, 1582}, {310, 308, 1925}};
    for (const auto& [container, child, name] : pairs) {
        ASSERT_TRUE(FindContainerType(container));
        EXPECT_EQ(FindContainerType(container)->child, child);
        EXPECT_EQ(FindContainerOfChild(child), FindContainerType(container));
        EXPECT_EQ(CCheckManager(container).Name, LoadString(static_cast<unsigned>(name)));
        EXPECT_EQ(CCheckManager(container).MakeChild()->Type, child);
    }
    for (int type = 0; type < 1000; ++type) {
        EXPECT_EQ(FindContainerType(type) != nullptr,
                  type == 105 || type == 122 || type == 127 || type == 303 || type == 310);
        EXPECT_EQ(FindContainerOfChild(type) != nullptr,
                  type == 104 || type == 121 || type == 124 || type == 304 || type == 308);
    }
}

TEST(CheckTypes, OnlySomeTypesOfferCorrection) {
    const std::set<int> without{106, 107, 118, 121, 122, 203, 301, 305, 306, 308, 309, 311,
                                313, 401, 407, 603, 604, 605, 606, 607, 703, 704, 705};
    for (int type = 0; type < 900; ++type)
        EXPECT_EQ(CCheck(type, 0, 0, 0, 1).IsACSupported(), !without.contains(type)) << type;
}

TEST(CheckTypes, SomeTypesHaveASummaryText) {
    const std::map<int, unsigned> texts{{107, 2000}, {118, 2151}, {203, 2149},  {301, 1998}, {307, 2006},
                                        {309, 2005}, {313, 2289}, {401, 2003},  {406, 2002}, {407, 2278},
                                        {602, 2004}, {606, 2250}, {608, 32946}, {701, 2001}, {702, 1999},
                                        {703, 2161}, {704, 2251}, {705, 2503}};
    for (int type = 0; type < 900; ++type) {
        const auto found = texts.find(type);
        EXPECT_EQ(SummaryTextOf(type), found != texts.end() ? found->second : 0u) << type;
        EXPECT_EQ(LoadString(SummaryTextOf(type)).isEmpty(), found == texts.end()) << type;
    }
}
