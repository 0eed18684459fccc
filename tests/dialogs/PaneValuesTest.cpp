// What panes offer to those with values: units and bounds.
#include "support/PaneRoom.h"

#include "editing/ExACRichEdit.h"
#include "editing/MyStatic.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace {

// A pane with controls made in code.
class ValuePane : public CExtDialog {
public:
    explicit ValuePane(EditingHost& host) : CExtDialog(host, 1541, 1148, 1593) {
        AddControl(1, &combo);
        AddControl(2, &field);
        AddControl(3, &spin);
        AddControl(4, &list);
        AddControl(5, &label);
        AddControl(6, &correction);
        list.setEditable(true);
        combo.addItems({"<", ">"});
    }
    using CExtDialog::GuardLessThanBound;

    QComboBox combo;
    QLineEdit field;
    QSpinBox spin;
    QComboBox list;
    QLabel label;
    CMyStatic correction;
};

} // namespace

TEST(PaneValues, BelowABoundWantsANumberAboveZero) {
    PaneRoom room;
    ValuePane pane(room);
    for (const char* text : {"0", "-2", "", "x", "0.0"}) {
        pane.field.setText(text);
        pane.GuardLessThanBound(1, 2);
        EXPECT_EQ(pane.field.text(), "1") << text;
    }
    pane.field.setText("0.5");
    pane.GuardLessThanBound(1, 2);
    EXPECT_EQ(pane.field.text(), "0.5");
    pane.spin.setValue(0);
    pane.GuardLessThanBound(1, 3);
    EXPECT_EQ(pane.spin.value(), 1);
    pane.list.setEditText("0");
    pane.GuardLessThanBound(1, 4);
    EXPECT_EQ(pane.list.currentText(), "1");
}

TEST(PaneValues, OtherComparisonsTakeAnyNumber) {
    PaneRoom room;
    ValuePane pane(room);
    pane.combo.setCurrentIndex(1);
    pane.field.setText("0");
    pane.GuardLessThanBound(1, 2);
    EXPECT_EQ(pane.field.text(), "0");
}

TEST(PaneValues, UnitLabelsShowTheUnitAndFollowIt) {
    PaneRoom room;
    room.standard.Unit = 0;
    room.standard.AngularUnit = 3;
    ValuePane pane(room);
    pane.AttachUnitLabel(2, 5, 2, 2);
    ASSERT_EQ(room.units.size(), 1u);
    EXPECT_EQ(pane.label.text(), "mm"); // the power shows from the first change on
    pane.field.setText("1000");
    room.units[0]->ApplyUnitChange(0, 1);
    EXPECT_EQ(pane.field.text(), "1");
    EXPECT_EQ(pane.label.text(), "cm^3");
}

TEST(PaneValues, AngleLabelsShowTheNameOfTheUnit) {
    PaneRoom room;
    room.standard.AngularUnit = 3;
    ValuePane pane(room);
    pane.AttachUnitLabel(2, 5, 0, 3);
    CString name;
    CEnumEngine().GetDisplayString(8, 3, name);
    EXPECT_EQ(pane.label.text(), name);
}

TEST(PaneValues, ACorrectionFollowsItsUnitThroughItsField) {
    PaneRoom room;
    room.standard.Unit = 0;
    ValuePane pane(room);
    pane.AttachUnitLabel(6, 5, 0, 2);
    EXPECT_EQ(room.units[0]->ValueControl, pane.correction.Edit());
}
