// A pane of an arrowhead check on a page, and the parameters that it writes.
#pragma once

#include "support/PaneRoom.h"
#include "support/WrittenCheck.h"

#include "editing/ComboBoxExt.h"
#include "editing/ExACRichEdit.h"
#include "editing/MyStatic.h"
#include "editing/PictureBox.h"
#include "platform/LanguageLibrary.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <vector>

namespace Arrow {

constexpr MQC_CheckType_e Document = 102, Annotations = 201, Dimensions = 402;
constexpr MQC_CheckType_e All[] = {Document, Annotations, Dimensions};

// Rows of the boxes of operators.
enum Row : int { Any, Equal, Below, Above, AtMost, AtLeast, Between, OneOf, NoneOf };

// A parameter of lengths. The box of its operators stands before the value's.
struct Size {
    unsigned parameter;
    int combo, value, correction;
};
constexpr Size Sizes[] = {{1552, 1002, 1003, 1304}, {1553, 1006, 1007, 1297}, {1554, 1013, 1014, 1298},
                          {1555, 1022, 1023, 1299}, {1556, 1028, 1029, 1300}, {1557, 1033, 1034, 1301}};

// A parameter with boxes, in the order in which their values are written.
struct Group {
    MQC_CheckType_e type;
    unsigned parameter;
    std::vector<int> boxes;
    int correction;
    int documentBox; // which takes it out; 0: none
};
inline const std::vector<Group> Groups = {
    {Document, 1558, {1066, 1058, 1065, 1060, 1063, 1067, 1057, 1061, 1064, 1059, 1062}, 1302, 0},
    {Document, 1559, {1113, 1042, 1111, 1046, 1096, 1115, 1038, 1084, 1092, 1050, 1088}, 1303, 0},
    {Document, 1560, {1117, 1044, 1116, 1047, 1097, 1118, 1039, 1085, 1093, 1051, 1089}, 1305, 0},
    {Dimensions, 1561, {1112, 1041, 1110, 1045, 1095, 1114, 1037, 1083, 1091, 1049, 1087}, 1297, 1077},
    {Dimensions, 1562, {1121, 1057, 1120, 1061, 1119, 1122, 1053, 1116, 1118, 1064, 1117}, 1298, 1077},
    {Dimensions, 1569, {1067, 1069, 1071}, 1300, 1075},
    {Annotations, 1583, {1073, 1075, 1079, 1070, 1069, 1077, 1076, 1078, 1071, 1072, 1074}, 1297, 1068}};

constexpr int Styles[] = {9, 1, 8, 3, 6, 10, 0, 4, 7, 2, 5};
inline int ValueOf(const Group& group, std::size_t box) {
    return group.boxes.size() == 3 ? static_cast<int>(box) : Styles[box];
}

// A parameter that leaves something to the document.
struct DocumentBox {
    MQC_CheckType_e type;
    unsigned parameter;
    int box, correction;
};
constexpr DocumentBox DocumentBoxes[] = {
    {Dimensions, 1567, 1077, 1304}, {Dimensions, 1568, 1075, 1299}, {Annotations, 1567, 1068, 1304}};

} // namespace Arrow

// Works one of the panes; all references hold as long as the pane does.
class ArrowHand {
public:
    explicit ArrowHand(ControlHost& pane) : m_pane(pane) {}

    template <class T = QWidget> T& Get(int number) const { return *m_pane.GetDlgItem<T>(number); }
    QComboBox& Combo(int number) const { return Get<QComboBox>(number); }
    QLineEdit& Field(int number) const { return Get<QLineEdit>(number); }
    QCheckBox& Box(int number) const { return Get<QCheckBox>(number); }
    CMyStatic& Correction(int number) const { return Get<CMyStatic>(number); }
    bool IsEnabled(int number) const { return Get(number).isEnabled(); }

    void Click(int number) const { Gui::Click(Get(number)); }
    void Choose(int number, int row) const { Gui::ChooseRow(Get(number), row); }
    // Chooses an operator and types its values, one key after another.
    void Enter(const Arrow::Size& size, int row, const CString& values) const {
        Choose(size.combo, row);
        QLineEdit& field = Field(size.value);
        Gui::Focus(field);
        field.selectAll();
        Gui::Key(field, Qt::Key_Delete);
        Gui::Type(field, values);
    }
    void Leave() const { Gui::Focus(Get(CExtDialog::CriticalityControl)); }

private:
    ControlHost& m_pane;
};

class ArrowRoom : public testing::Test {
protected:
    void SetUp() override {
        room.standard.Unit = 0;
        room.Show();
        room.GetChecksPage().resize(1100, 1300);
        for (const MQC_CheckType_e type : Arrow::All)
            room.Add(type);
    }
    CExtDialog& Pane(MQC_CheckType_e type) { return *room.Pane(type); }
    ArrowHand Hand(MQC_CheckType_e type) { return ArrowHand(Pane(type)); }
    CString Written(MQC_CheckType_e type, unsigned id) { return ::Written(*room.Live(type), id); }

    PaneRoom room;
};
