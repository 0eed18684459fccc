// The panes whose values are chosen among pictures.
#include "ValueRoom.h"

#include "editing/PictureBox.h"
#include "platform/widgets/Look.h"

namespace {

struct Row {
    MQC_CheckType_e type;
    unsigned parameter;
    int correction;
    std::vector<std::pair<int, long>> boxes; // with their values, in the order in which they are written
    std::vector<unsigned> texts;             // of the boxes
};

const Row Rows[] = {
    {408, 2274, 1304, {{1261, 1}, {1515, 2}, {1516, 3}}, {1340, 1341, 1342}},
    {408, 2275, 1297, {{1523, 1}, {1524, 2}, {1525, 3}}, {1330, 1331, 1332}},
    {408, 2276, 1298, {{1520, 1}, {1521, 2}, {1522, 3}}, {1333, 1334, 1335}},
    {408, 2277, 1299, {{1526, 2}, {1527, 4}, {1528, 3}, {1529, 1}}, {1336, 1337, 1338, 1339}},
    {123, 140, 1304, {{1289, 0}, {1290, 1}, {1291, 2}, {1292, 3}, {1293, 4}}, {1764, 1765, 1766, 1767, 1768}},
    {312,
     1742,
     1304,
     {{1265, 0}, {1266, 2}, {1267, 1}, {1268, 3}, {1269, 4}},
     {1744, 1746, 1745, 1747, 1748}}};

class PicturePanes : public testing::Test {
protected:
    void SetUp() override {
        room.Show();
        for (const MQC_CheckType_e type : {408, 123, 312})
            room.Add(type);
    }
    PaneHand Hand(const Row& row) { return PaneHand(*room.Pane(row.type)); }
    CString WrittenOf(const Row& row) { return Written(*room.Live(row.type), row.parameter); }

    PaneRoom room;
};

} // namespace

TEST_F(PicturePanes, BoxesAreWrittenInTheirOrder) {
    for (const Row& row : Rows) {
        CStringArray codes;
        for (const auto& [box, code] : row.boxes)
            codes.append(QString::number(code));
        for (auto box = row.boxes.rbegin(); box != row.boxes.rend(); ++box)
            Hand(row).Click(box->first);
        EXPECT_EQ(WrittenOf(row), "2:" + codes.join(u',')) << row.parameter;
        for (const auto& [box, code] : row.boxes)
            Gui::Key(Hand(row).Get(box), Qt::Key_Space);
        EXPECT_EQ(WrittenOf(row), "0:") << row.parameter;
    }
}

TEST_F(PicturePanes, EachBoxHasItsValueAndShowsItsPicture) {
    for (const Row& row : Rows) {
        for (size_t i = 0; i < row.boxes.size(); ++i) {
            const auto& [number, code] = row.boxes[i];
            const auto& box = Hand(row).Get<CPictureBox>(number);
            EXPECT_EQ(box.toolTip(), LoadString(row.texts[i])) << number;
            EXPECT_EQ(box.accessibleName(), LoadString(row.texts[i])) << number;
            EXPECT_FALSE(box.icon().isNull()) << number;
            EXPECT_GE(box.iconSize().height(), 32) << number;
            Hand(row).Click(number);
            EXPECT_EQ(WrittenOf(row), QString("2:%1").arg(code)) << number;
            EXPECT_EQ(WrittenCorrection(*room.Live(row.type), row.parameter), QString::number(code));
            EXPECT_EQ(Hand(row).Correction(row.correction).List()->currentText(), box.toolTip());
            Hand(row).Click(number);
        }
    }
}

TEST_F(PicturePanes, ACheckTicksTheBoxOfEachValue) {
    for (const Row& row : Rows) {
        for (const auto& [wanted, code] : row.boxes) {
            CCheck check(row.type, 0, 0, 0, 1);
            Require<long>(check.GetLongParameter(row.parameter), OpOneOf, {code, 77}); // one without a box
            room.Pane(row.type)->LoadCheck(check);
            for (const auto& [box, other] : row.boxes)
                EXPECT_EQ(Hand(row).IsTicked(box), box == wanted) << box;
            CCheck shown(row.type, 0, 0, 0, 1);
            room.Pane(row.type)->FillCheck(shown);
            EXPECT_EQ(Written(shown, row.parameter), QString("2:%1").arg(code)); // that one is dropped
        }
    }
}

TEST_F(PicturePanes, CorrectionsAreChosenAmongTheTickedPictures) {
    const Row& row = Rows[3];
    Hand(row).Click(1526);
    Hand(row).Click(1529);
    CMyStatic& correction = Hand(row).Correction(row.correction);
    EXPECT_EQ(correction.Mode(), ImageEntry);
    EXPECT_EQ(correction.Extra(), 0);
    ASSERT_EQ(correction.List()->count(), 2);
    Gui::ChooseRow(*correction.List(), 1);
    EXPECT_EQ(WrittenCorrection(*room.Live(408), 2277), "1");
    Hand(row).Click(1529);
    EXPECT_EQ(WrittenCorrection(*room.Live(408), 2277), "2");
}

TEST_F(PicturePanes, TheCriticalityIsWrittenWithTheRest) {
    for (const Row& row : Rows) {
        Hand(row).Click(row.boxes[0].first);
        Hand(row).Choose(CExtDialog::CriticalityControl, 3);
        EXPECT_EQ(room.Live(row.type)->Criticality, 3u) << row.type;
        EXPECT_TRUE(WrittenOf(row).startsWith("2:")) << row.type;
    }
}

// Its commit before saving is left out: each change has been written already.
TEST_F(PicturePanes, TheDisplayModesWriteTheirCriticalityOnlyWhenItIsChosen) {
    room.Pane(312)->Criticality = 2;
    room.Pane(312)->OnCriticalityChanged();
    EXPECT_EQ(room.Live(312)->Criticality, 1u);
    room.Pane(123)->Criticality = 2;
    room.Pane(123)->OnCriticalityChanged();
    EXPECT_EQ(room.Live(123)->Criticality, 2u);
}
