// Which control of a pane shows the correction of which parameter, and how.
#include "support/PaneRoom.h"

#include "editing/CorrectionChoices.h"
#include "editing/MyStatic.h"

namespace {

struct CorrectionPlace {
    unsigned parameter;
    int control;
    int mode = NumberEntry;
    int extra = -1;
};

struct PaneCorrections {
    std::vector<MQC_CheckType_e> types;
    std::vector<CorrectionPlace> all;
};

const PaneCorrections CorrectionsOfPanes[] = {{{109, 110, 111, 112, 113, 114, 115, 116, 117, 119, 120},
                                               {{1700, 1304, TextEntry},
                                                {1701, 1297},
                                                {1702, 1298},
                                                {1703, 1299},
                                                {1704, 1300},
                                                {1705, 1301},
                                                {1706, 1302}}},
                                              {{202, 403},
                                               {{1690, 1304},
                                                {1700, 1297, TextEntry},
                                                {1701, 1298},
                                                {1702, 1299},
                                                {1703, 1300},
                                                {1704, 1301},
                                                {1705, 1302},
                                                {1706, 1303}}},
                                              {{108},
                                               {{1663, 1304},
                                                {1664, 1297},
                                                {1665, 1298},
                                                {1666, 1299},
                                                {1667, 1300},
                                                {1668, 1301},
                                                {1669, 1302},
                                                {1670, 1303},
                                                {1671, 1305},
                                                {1672, 1312},
                                                {1673, 1313},
                                                {1674, 1314},
                                                {1675, 1315},
                                                {1676, 1306},
                                                {1680, 1307},
                                                {1677, 1308},
                                                {1678, 1309},
                                                {1679, 1310}}},
                                              {{405},
                                               {{1690, 1304},
                                                {1665, 1297},
                                                {1674, 1298},
                                                {1664, 1299},
                                                {1666, 1300},
                                                {1667, 1301},
                                                {1668, 1302},
                                                {1675, 1303}}},
                                              {{409},
                                               {{2281, 1297, TextEntry},
                                                {2282, 1304, TextEntry},
                                                {2283, 1299, TextEntry},
                                                {2284, 1298, TextEntry},
                                                {2404, 1301, TextEntry},
                                                {2405, 1300, TextEntry}}},
                                              {{408},
                                               {{2274, 1304, ImageEntry, 0},
                                                {2275, 1297, ImageEntry, 0},
                                                {2276, 1298, ImageEntry, 0},
                                                {2277, 1299, ImageEntry, 0}}},
                                              {{314}, {{1690, 1304}, {2293, 1297}, {2294, 1298}}},
                                              {{123}, {{140, 1304, ImageEntry, 0}}},
                                              {{312}, {{1742, 1304, ImageEntry, 0}}}};

} // namespace

TEST(CorrectionPlaces, EachParameterHasItsControlAndItsWayOfEntry) {
    PaneRoom room;
    room.Show();
    for (const PaneCorrections& places : CorrectionsOfPanes)
        for (const MQC_CheckType_e type : places.types) {
            const CExtDialog& pane = room.Add(type);
            EXPECT_EQ(pane.GetCorrectionControls().size(), places.all.size()) << type;
            for (const CorrectionPlace& place : places.all) {
                const auto bound = pane.GetCorrectionControls().find(place.parameter);
                ASSERT_NE(bound, pane.GetCorrectionControls().end()) << type << ' ' << place.parameter;
                EXPECT_EQ(bound->second, pane.GetDlgItem<CMyStatic>(place.control))
                    << type << ' ' << place.parameter;
                EXPECT_EQ(bound->second->Mode(), place.mode) << type << ' ' << place.parameter;
                EXPECT_EQ(bound->second->Extra(), place.extra) << type << ' ' << place.parameter;
            }
        }
}
